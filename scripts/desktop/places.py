"""Where windows stand: inside the screen with their frames, beside the sheet, and apart from one another."""
import signal

from desk import Failure, expect, wait

OPTIONS = "^Options"
SCREENS = [((800, 600), 1.0), ((1024, 600), 1.0), ((1280, 800), 1.0), ((2560, 1600), 2.0)]


def overlap(one, other):
    return (one[0] < other[0] + other[2] and other[0] < one[0] + one[2] and
            one[1] < other[1] + other[3] and other[1] < one[1] + one[3])


def settled(desk, title):
    """The frame of a window that has come to rest: managers move and resize it after it is mapped."""
    window, before = desk.window(title), None

    def rests():
        nonlocal before
        before, last = desk.frame(window), before
        return before == last
    for _ in range(5):
        wait(rests, f'"{title}" to come to rest')
    return before


def no_window_is_larger_than_the_screen(desk):
    desk.start("--page", "General")
    for title in ("^Drafting", OPTIONS):
        x, y, width, height = settled(desk, title)
        expect(x >= 0 and y >= 0 and x + width <= desk.screen[0] and y + height <= desk.screen[1],
               f'"{title}" stands at {x}, {y}, {width} x {height} on {desk.screen}')
    desk.activate(OPTIONS)
    for _ in range(9):  # a page never makes the window grow out of the screen
        desk.key("ctrl+Page_Down")
    x, y, width, height = settled(desk, OPTIONS)
    expect(y + height <= desk.screen[1] and x + width <= desk.screen[0], f"the last page: {x, y, width, height}")


no_window_is_larger_than_the_screen.desks = [
    {"manager": manager, "screen": screen, "scale": scale}
    for screen, scale in SCREENS for manager in ("openbox", "icewm", "xfwm4")]


def the_options_stand_beside_the_sheet_and_come_back_there(desk):
    desk.start()
    settled(desk, "^Drafting")
    desk.activate("^Drafting")
    desk.key("ctrl+comma")
    first = settled(desk, OPTIONS)
    sheet = desk.find("dial", "^Sheet").get_extents(desk.atspi.CoordType.SCREEN)
    expect(not overlap(first, (sheet.x, sheet.y, sheet.width, sheet.height)),
           "the options cover the sheet though there is room")
    window = desk.window(OPTIONS)
    desk.ask("xdotool", "windowmove", "--sync", window, str(first[0] - 40), str(first[1] + 60))
    moved = settled(desk, OPTIONS)
    desk.activate(OPTIONS)
    desk.key("Escape")
    wait(lambda: not any(t.startswith("Options") for t in desk.windows().values()), "Esc to close the options")
    desk.key("ctrl+comma")
    expect(settled(desk, OPTIONS) == moved, "the options forget where they stood")


the_options_stand_beside_the_sheet_and_come_back_there.desks = [
    {"manager": manager, "screen": (2560, 1440)} for manager in ("openbox", "icewm", "xfwm4")]


def wayland_starts_and_ends_well(desk):
    desk.run("weston", "--backend=headless-backend.so", "--socket=kiv-desk", "--width=1280", "--height=800")
    wait(lambda: (desk.room / "run/kiv-desk").exists(), "weston")
    import os
    os.environ.update(WAYLAND_DISPLAY="kiv-desk", QT_QPA_PLATFORM="wayland")
    del os.environ["DISPLAY"]
    desk.start("--page", "General")
    desk.find("dialog", OPTIONS)
    expect("could not" not in desk.log().lower(), desk.log())
    desk.program.send_signal(signal.SIGTERM)
    wait(desk.ended, "the program to end")
    if desk.program.returncode not in (0, -signal.SIGTERM, 128 + signal.SIGTERM):
        raise Failure(f"it ended with {desk.program.returncode}")


wayland_starts_and_ends_well.desks = [{"manager": None}]

CASES = [no_window_is_larger_than_the_screen, the_options_stand_beside_the_sheet_and_come_back_there,
         wayland_starts_and_ends_well]
