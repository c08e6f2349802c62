"""From the start of the process to the first window on the screen, with a hundred notes: of the program, of the
smallest editor that Wine brings along, and of an empty window. Once where Wine shows the tray icon itself and once
with a tray host; the empty window with a tray icon shows what the icon alone costs in each.

The probe of the end-to-end tests runs all the while, which keeps Wine's server and its desktop from ending between two
starts.
"""

import math
import statistics

from anchors import EMPTY_TITLE, EMPTY_WINDOW, NOTEPAD, NOTEPAD_TITLE, start_of_kalvora, start_of_other
from figures import Figure
from kalvora import Kalvora
from mappings import Mappings
from note_sets import notes_of_all_kinds
from processes import only_on, processor_choices
from tray_host import no_tray_host, tray_host
from turns import in_turns

REPETITIONS, QUICK_REPETITIONS = 11, 3
TRAYS = {"Wine's own tray": no_tray_host, "a tray host": tray_host}
AIM = 0.5  # of the way from the empty window to notepad
# Shown at the start, and with one step where it stays.
SHOWN_AT_START = {"Graph": {"Window_X": "300", "Window_Y": "200", "ShWatS": "True", "Win1_Jump": "2000"},
                  "Sys": {"AlwOnTop": "False"}}


def medians(program, mappings, repetitions):
    """Milliseconds of the program, of notepad, of an empty window, and of one that has an icon in the tray."""
    works = (lambda: start_of_kalvora(program, mappings),
             lambda: start_of_other(program, mappings, NOTEPAD_TITLE, NOTEPAD),
             lambda: start_of_other(program, mappings, EMPTY_TITLE, EMPTY_WINDOW),
             lambda: start_of_other(program, mappings, EMPTY_TITLE, EMPTY_WINDOW, "tray"))
    return [statistics.median(times) for times in in_turns(works, repetitions)]


def figures_of(where, ours, notepad, empty, with_icon):
    what = "start to first window, 100 notes"
    way = (ours - empty) / (notepad - empty) if notepad > empty else math.inf
    yield Figure(f"{what}, {where}", f"{ours:.0f} ms", f"notepad.exe {notepad:.0f} ms", ours / notepad,
                 "as notepad.exe", ours / notepad)
    yield Figure(f"{what}, {where}", f"{ours:.0f} ms", f"empty window {empty:.0f} ms", ours / empty,
                 f"{AIM} of the way to notepad.exe (an aim): {way:.2f}")
    yield Figure(f"start of an empty window with a tray icon, {where}", f"{with_icon:.0f} ms",
                 f"empty window {empty:.0f} ms", with_icon / empty)


def measure(quick):
    for processors, where in processor_choices():
        for tray, host in TRAYS.items():
            with (only_on(processors),
                  Kalvora("bench-start", notes=notes_of_all_kinds(100), settings=SHOWN_AT_START) as program,
                  Mappings(program) as mappings,
                  host(program, mappings)):
                times = medians(program, mappings, QUICK_REPETITIONS if quick else REPETITIONS)
            yield from figures_of(f"{where}, {tray}", *times)
