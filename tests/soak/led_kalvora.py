"""The real program with its clock led from moment to moment, and a user who puts away what comes out."""

import os
import re
import sys
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "e2e"))

# The driver is found only now.
from kalvora import TEXT, TITLE, Kalvora  # noqa: E402

# Longer than two ticks of the minute timer, also on a busy machine. Seconds.
QUIET = 2.5
STANDS = 0.25  # how long a window has to stand still for a hand to reach its button
MOST_AT_ONCE = 100  # of a day; more are taken for a note that rings without end
# The window stands after one step of its slide, which leaves the window manager the time to place it before.
SETTINGS = {"Graph": {"Window_X": "300", "Window_Y": "200", "Win1_Jump": "2000", "Window1_interval": "150"},
            "Sys": {"AmPm": "False", "AlwOnTop": "False"}}
# What one start may grow by from its first day to its last: the queue keeps what has been read.
MOST_GROWTH = 512  # kilobytes
MOST_HANDLES_MORE = 3


class LedKalvora(Kalvora):
    """The program, its clock held still, and a user who puts away what comes out."""

    def start_at(self, moment):
        self.wait_until(lambda: not self.tray.there, "the tray icon to go")
        self.hold_clock(moment)
        self.start_and_wait_for_tray()
        self._main = self.main
        self._title, self._text = self._main.control(TITLE), self._main.control(TEXT)

    def stop(self):
        self._main.close()
        assert self.exit_code() == 0

    @property
    def shows_reminder(self):
        return self._main.visible and self._title.read_only

    def put_away(self, stays_out=False, most=MOST_AT_ONCE):
        """Closes reminders until none is left; the (title, text) of each, in their order."""
        seen = []
        while self.shows_reminder:
            self._wait_until_it_stands()
            seen.append((self._title.text, self._text.text))
            assert len(seen) <= most, f"more than the {most} at most: {seen}"
            # After that the next one is on show, or the note that is browsed.
            self.press_without_mouse("Minimize")
        self.wait_until(lambda: self._main.visible == stays_out, "the window to be as it was before the reminders")
        return seen

    def put_window_away(self):
        self.press_without_mouse("Minimize")
        self.wait_until(lambda: not self._main.visible, "the window to go")

    def rename_one_of(self, titles, title):
        """Pages to a note with one of these titles, and saves it under another one; the title that it had. The
        window is out."""
        for button in ("Left", "Right"):
            last = None
            while (old := self._title.text) not in titles and old != last:
                last = old
                self.press_without_mouse(button)
        self._title.set_text(title)
        self.press_without_mouse("Save")
        self.wait_until(lambda: self.exists(f"notes/{title}.txt"), f"{old} under the name {title}")
        assert old in titles and not self.exists(f"notes/{old}.txt"), old
        return old

    def press_without_mouse(self, button):
        """It answers when the window has done what it does then."""
        self.wine.ask("click", self._main.handle, *self.middle_of(button))

    def _wait_until_it_stands(self):
        """For a while, as a hand is not faster. Where does not matter here: now and then Wine takes a window
        that came out right at the start to be in the corner, though it is seen at its home."""
        since, last = time.monotonic(), None

        def stands():
            nonlocal since, last
            now = self._main.place
            if now != last:
                since, last = time.monotonic(), now
            return time.monotonic() - since > STANDS

        self.wait_until(stands, "the window to stand still")

    def weigh(self):
        """What the program holds while it waits."""
        memory = dict(re.findall(r"^(\w+): +(\d+) kB", Path(f"/proc/{self.process_id}/smaps_rollup").read_text("ascii"),
                                 re.MULTILINE))
        windows = [one for one in self.all_windows() if one["process"] == self.main_process]
        return {"pss": int(memory["Pss"]), "own": int(memory["Anonymous"]),
                "files": len(os.listdir(f"/proc/{self.process_id}/fd")),
                **self.wine.ask("held", self._main.handle),
                "windows": len(windows) + len(self.wine.ask("controls", self._main.handle))}

    @property
    def main_process(self):
        return next(one["process"] for one in self.all_windows() if one["handle"] == self._main.handle)


def expect_flat(weights):
    """One start, a day after the other: it must not hold more and more."""
    first, last = weights[0], weights[-1]
    assert last["own"] - first["own"] <= MOST_GROWTH, f"memory grows: {weights}"
    for what in ("files", "kernel", "gdi", "windows"):
        assert last[what] - first[what] <= MOST_HANDLES_MORE, f"{what} grow: {weights}"
