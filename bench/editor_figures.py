"""How long the note editor takes to open over 5,000 notes of one kind, under Wine, beside one without notes: from the
click on "Edit All Notes" until the window comes, which it does with its list filled.

The processor time is that of the program and of Wine's server, and says more on a busy machine.
"""

import statistics
import time

from editor import NAMES, TITLE, started
from figures import Figure
from kalvora import MENU_ITEMS, MENU_TEXT_LEFT
from on_screen import wait_until_shown
from processes import processor_seconds, server_of

COUNT = 5000
MOST_MILLISECONDS = 1000


def seconds_to_open(program, processes):
    """From the click until the window is to be seen, and of the processor."""
    at = program.open_menu().on_screen(MENU_TEXT_LEFT, MENU_ITEMS["Edit All Notes"])
    worked, start = sum(map(processor_seconds, processes)), time.monotonic()
    program.screen.click(*at)
    # Asked of the screen, not of Wine, whose server would be kept busy with the asking.
    wait_until_shown(program, TITLE)
    return time.monotonic() - start, sum(map(processor_seconds, processes)) - worked


def close(program):
    window = program.window(title=TITLE)
    window.close()
    program.wait_until(lambda: not window.visible, "the editor to close", timeout=60)


def medians(count, repetitions):
    """Milliseconds with so many notes: of the clock, and of the processor."""
    notes = {f"Note {number}.tx1": "7|30|text" for number in range(count)}
    times = []
    with started(name=f"bench-editor-{count}", notes=notes) as program:
        processes = (program.process_id, server_of(program))
        for repetition in range(repetitions + 1):
            both = seconds_to_open(program, processes)
            if repetition == 0:  # which also reads the folder from the disk
                names = program.window(title=TITLE).control(NAMES)
                assert len(program.wine.ask("items", names.handle)) == count
            else:
                times.append(both)
            close(program)
    return [1000 * statistics.median(values) for values in zip(*times)]


def measure(quick):
    (empty, empty_worked), (full, full_worked) = (medians(count, 2 if quick else 9) for count in (0, COUNT))
    what = f"note editor with {COUNT:,} notes"
    yield Figure(what, f"{full:.0f} ms", f"without notes {empty:.0f} ms", full / empty, f"{MOST_MILLISECONDS:,} ms",
                 full / MOST_MILLISECONDS)
    yield Figure(f"{what}, processor time", f"{full_worked:.0f} ms", f"without notes {empty_worked:.0f} ms",
                 full_worked / empty_worked)
