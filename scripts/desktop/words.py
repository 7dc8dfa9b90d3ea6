"""What a screen reader says: Orca runs with its speech written down instead of spoken."""
import re
import time

from desk import expect, wait

OPTIONS = "^Options"


class Reader:
    def __init__(self, desk):
        self.desk, self.file, self.read = desk, desk.room / "orca.debug", 0
        customizations = desk.room / "home/.local/orca"
        customizations.mkdir(parents=True)
        (customizations / "orca-customizations.py").write_text(
            "import orca.debug\norca.debug.debugLevel = orca.debug.LEVEL_INFO\n")
        desk.run("orca", "--replace", "--debug-file", str(self.file), "--debug")
        wait(lambda: "Screen reader on" in self._all(), "the screen reader", 60)

    def _all(self):
        return self.file.read_text(errors="replace") if self.file.exists() else ""

    def hush(self):
        """Forgets what was said so far, once it has fallen silent."""
        before = None
        while before != (before := len(self._all())):
            time.sleep(0.4)
        self.read = before

    def said(self):
        """What was said since, one utterance a line."""
        return "\n".join(re.findall(r"SPEECH OUTPUT: '(.*?)'(?:\s*\{|$)", self._all()[self.read:], re.M))

    def hears(self, action, *wanted):
        """Does it, and waits until all of that was said."""
        self.hush()
        action()
        def heard(pattern):
            if re.search(pattern, self.said()):
                return True
            time.sleep(0.5)
            self.desk.key("Shift_L")  # what it has said comes out with what it says next
            return False
        for pattern in wanted:
            wait(lambda: heard(pattern), lambda: f'"{pattern}" to be said, heard: {self.said()!r}')


def a_page_is_read(desk):
    desk.start("--page", "General")
    desk.window(OPTIONS)
    reader = Reader(desk)
    desk.activate(OPTIONS)

    def press(*keys):
        return lambda: desk.key(*keys)

    reader.hears(press("Tab"), "Pages")
    reader.hears(press("Tab"), "Show ruler", "check box")
    reader.hears(press("space"), "checked")
    while desk.focused()[0] != "spin button":
        desk.key("Tab")
    reader.hears(press("Up"), r"\d+.mm")
    reader.hears(press("ctrl+Page_Down"), "Layout")


CASES = [a_page_is_read]
for case in CASES:
    case.desks = [{"manager": "openbox"}]
