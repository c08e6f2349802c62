"""How long the note editor takes to open over 5,000 notes of one kind, under Wine, beside one without notes: from the
click on "Edit All Notes" until the window is on the screen and answers.

The processor time is that of the program and of Wine's server, and says more on a busy machine.
"""

import contextlib
import statistics
import time

from editor import NAMES, TITLE, started
from figures import Figure
from kalvora import MENU_ITEMS, MENU_TEXT_LEFT
from mappings import Mappings
from note_sets import notes_of_one_kind
from processes import processor_seconds, server_of
from turns import in_turns

COUNT = 5000
MOST_TIMES = 1.5


class Opening:
    """One program and its editor, which each call opens and closes."""

    def __init__(self, program, mappings, count):
        self._program, self._mappings, self._count = program, mappings, count
        self._processes = (program.process_id, server_of(program))
        self._seen_whole = False

    def __call__(self):
        """Milliseconds from the click until the editor answers, and of the processor."""
        at = self._program.open_menu().on_screen(MENU_TEXT_LEFT, MENU_ITEMS["Edit All Notes"])
        self._mappings.forget()
        worked = self._worked()
        begin = self._mappings.click(*at)
        self._mappings.wait_for(TITLE)
        window = self._program.window(title=TITLE)
        taken, worked = time.monotonic() - begin, self._worked() - worked
        self._close(window)
        return 1000 * taken, 1000 * worked

    def _worked(self):
        return sum(map(processor_seconds, self._processes))

    def _close(self, window):
        if not self._seen_whole:  # It takes as many questions as there are names.
            names = self._program.wine.ask("items", window.control(NAMES).handle)
            assert len(names) == self._count, f"the editor shows {len(names)} notes"
            self._seen_whole = True
        window.close()
        self._program.wait_until(lambda: not window.visible, "the editor to close")


@contextlib.contextmanager
def opening(count):
    """The program with so many notes of the page that comes first."""
    with (started(name=f"bench-editor-{count}", notes=notes_of_one_kind(count)) as program,
          Mappings(program) as mappings):
        yield Opening(program, mappings, count)


def medians(repetitions):
    """Of the empty folder and of the full one, in turns: milliseconds of the clock, and of the processor."""
    with opening(0) as empty, opening(COUNT) as full:
        figures = in_turns((empty, full), repetitions)
    return [[statistics.median(values) for values in zip(*both)] for both in figures]


def measure(quick):
    (empty, empty_worked), (full, full_worked) = medians(2 if quick else 11)
    what = f"note editor with {COUNT:,} notes"
    yield Figure(what, f"{full:.0f} ms", f"without notes {empty:.0f} ms", full / empty, f"{MOST_TIMES} times",
                 full / empty / MOST_TIMES)
    yield Figure(f"{what}, processor time", f"{full_worked:.0f} ms", f"without notes {empty_worked:.0f} ms",
                 full_worked / empty_worked)
