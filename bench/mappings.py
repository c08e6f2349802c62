"""What the screen tells of its windows: when one comes, and each step that it moves.

The screen says so itself, so nothing is started and asked over and over meanwhile: a moment is exact to a millisecond.
"""

import select
import time

from Xlib import X, display, error
from Xlib.ext import xtest

LONGEST = 120  # seconds


class Mappings:
    """A client of the program's screen that is told of every window that comes, moves or changes its size."""

    def __init__(self, program):
        self._display = display.Display(program.screen.display)
        self._root = self._display.screen().root
        self._root.change_attributes(event_mask=X.SubstructureNotifyMask)
        self._display.sync()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._display.close()

    def forget(self):
        """What came before now is of no interest."""
        self._display.sync()
        while self._display.pending_events():
            self._display.next_event()

    def wait_for(self, title):
        """The moment (of the monotonic clock) at which a window of this title came on the screen."""
        return self.wait_for_window(title)[0]

    def wait_for_window(self, title):
        """That moment, and what moves on the screen when the window does: it, or its frame."""
        for moment, event in self.events(LONGEST):
            if event.type == X.MapNotify and title in self._titles(event.window):
                return moment, event.window
        raise AssertionError(f"the window {title} does not come")

    def events(self, most_seconds):
        """Each event with its moment, until none has come for so many seconds."""
        while True:
            if not self._display.pending_events():
                if not select.select([self._display], [], [], most_seconds)[0]:
                    return
            moment = time.monotonic()
            for _ in range(self._display.pending_events()):
                yield moment, self._display.next_event()

    def click(self, x, y):
        """The left mouse button at that place of the screen; the moment just before it."""
        xtest.fake_input(self._display, X.MotionNotify, x=x, y=y)
        self._display.sync()
        begin = time.monotonic()
        xtest.fake_input(self._display, X.ButtonPress, 1)
        xtest.fake_input(self._display, X.ButtonRelease, 1)
        self._display.flush()
        return begin

    def owner_of(self, selection):
        """Whether some client has taken on a task that only one can have."""
        return self._display.get_selection_owner(self._display.intern_atom(selection)) != X.NONE

    def _titles(self, window):
        """Of the window, or of those that a window manager's frame holds."""
        try:
            inside = window.query_tree().children
        except error.XError:  # It went away in between.
            return []
        return [_title(one) for one in (window, *inside)]


def _title(window):
    try:
        return window.get_wm_name()
    except error.XError:
        return None
