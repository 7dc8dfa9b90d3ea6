"""What hands on the keyboard do, and nothing else."""
import re

from desk import expect, wait

OPTIONS = "^Options"
MIXER = "^Sheet background"
SNAPPING = "snapping$"


def titled(desk, title):
    """The windows with that title."""
    return [window for window, name in desk.windows().items() if re.search(title, name)]


def a_custom_color_is_mixed_by_keys_alone(desk):
    """With both cores busy: the mixer must not open inside the event of the key that chose it."""
    desk.start("--page", "General")
    desk.window(OPTIONS)
    desk.activate(OPTIONS)
    wait(lambda: desk.active().startswith("Options") and desk.focused(), "the options to have the keyboard")
    with desk.busy():
        for opening in range(5):
            desk.key("alt+h", "alt+Down", "End", "Return")
            desk.window(MIXER)
            desk.key("Escape")
            wait(lambda: not titled(desk, MIXER), f"the mixer to close (opening {opening + 1})")
            wait(lambda: desk.active().startswith("Options"), f"the keyboard to come back ({opening + 1})")
            desk.key("ctrl+Page_Down", "ctrl+Page_Up")
    wait(lambda: desk.active().startswith("Options"), "the options to be active again")
    desk.key("Escape")
    wait(lambda: not any(t.startswith("Options") for t in desk.windows().values()), "Esc to close the options")


def tab_is_a_ring(desk):
    desk.start("--page", "General")
    desk.activate(OPTIONS)
    for key in ("Tab", "shift+Tab"):
        seen, first = [], None
        for _ in range(120):
            desk.key(key)
            here = desk.focused()
            first = first or here
            if seen and here == first:
                break
            seen.append(here)
        expect(first and here == first and len(seen) > 20, f"{key} is no ring: {seen}")


def small_windows_stand_apart_and_esc_closes_them_alone(desk):
    desk.start("--page", "Annotation")
    desk.window(OPTIONS)
    for count in range(1, 4):
        desk.activate(OPTIONS)
        desk.key("alt+c")
        wait(lambda: len(titled(desk, SNAPPING)) == count, f"{count} small windows")
    corners = [desk.frame(window)[:2] for window in titled(desk, SNAPPING)]
    for i, (x, y) in enumerate(corners):
        for other_x, other_y in corners[:i]:
            expect(abs(x - other_x) + abs(y - other_y) >= 15, f"they hide each other: {corners}")
    desk.activate(SNAPPING)
    desk.key("Escape")
    wait(lambda: len(titled(desk, SNAPPING)) == 2, "Esc to close one of them")
    expect(titled(desk, OPTIONS), "Esc has closed the options")


def a_refused_text_stays_and_ok_goes_to_it(desk):
    desk.start("--page", "General")
    desk.window(OPTIONS)
    desk.activate(OPTIONS)
    desk.key("alt+p", "ctrl+a")
    field = wait(desk.focused, "the field to have the focus")
    desk.type("wide")
    desk.key("Tab", "ctrl+Tab", "alt+k")
    wait(lambda: desk.focused() == field, "OK to lead to the field")
    expect(titled(desk, OPTIONS), "OK has thrown the text away")
    desk.key("Escape", "alt+k")
    wait(lambda: not titled(desk, OPTIONS), "OK to close the options")


CASES = [a_custom_color_is_mixed_by_keys_alone, tab_is_a_ring,
         small_windows_stand_apart_and_esc_closes_them_alone, a_refused_text_stays_and_ok_goes_to_it]
