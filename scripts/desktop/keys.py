"""What hands on the keyboard do, and nothing else."""
from desk import expect, wait

OPTIONS = "^Options"


def a_custom_color_is_mixed_by_keys_alone(desk):
    """With both cores busy: the mixer must not open inside the event of the key that chose it."""
    desk.start("--page", "General")
    desk.window(OPTIONS)
    desk.activate(OPTIONS)
    with desk.busy():
        for opening in range(5):
            desk.key("alt+h", "alt+Down", "End", "Return")
            desk.window("^(?!Options|Drafting).")
            desk.key("Escape")
            wait(lambda: len(desk.windows()) <= 2, f"the mixer to close (opening {opening + 1})")
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


CASES = [a_custom_color_is_mixed_by_keys_alone, tab_is_a_ring]
