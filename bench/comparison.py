"""Measures this build of the program beside another one in turns, in one folder, under one Wine and on one screen.

A round is all that is measured of one start of one build: what -> (unit, figure). Each pair is a round of either, and
the order changes from pair to pair.
"""

import dataclasses
import shutil
import statistics
import time
from pathlib import Path

from browsing import Browsing
from driver import BUILD
from editor_figures import COUNT as EDITOR_COUNT
from editor_figures import Opening
from kalvora import Kalvora
from many_notes_figures import COUNT as MANY
from mappings import Mappings
from motion_figures import SCREEN, Watcher, round_of
from note_sets import notes_of_all_kinds, notes_of_one_kind
from pairs import Pairs
from processes import processor_seconds, proportional_size, server_of
from start_figures import SHOWN_AT_START

THIS, OTHER = "kalvora.exe", "other.exe"
PAGES_TURNED = 5
HIDDEN_AT_START = {"Graph": {"Window_X": "20", "Window_Y": "20"}, "Sys": {"AlwOnTop": "False"}}


class TwoBuilds(Kalvora):
    """The program's folder with both builds in it. They run one at a time, and find the same settings and notes."""

    def __init__(self, other, name, **options):
        super().__init__(f"bench-against-{name}", exe=BUILD / "src/win32" / THIS, **options)
        self._other = other

    def _stage(self):
        super()._stage()
        shutil.copy2(self._other, self.folder / OTHER)

    def take(self, build):
        """The next start is of this build."""
        self._exe = Path(build)


def started(program, mappings):
    """Milliseconds until the window is on the screen, and of the processor: the program's and that of Wine's server."""
    server = server_of(program)
    worked = processor_seconds(server)
    mappings.forget()
    begin = time.monotonic()
    program.start()
    taken = mappings.wait_for("Kalvora") - begin
    worked = processor_seconds(server) - worked + processor_seconds(program.process_id)
    return {"start to first window": ("ms", 1000 * taken),
            "start to first window: processor time": ("ms", 1000 * worked)}


def closed(program):
    program.main.close()
    program.exit_code()


def start_round(program, mappings):
    figures = started(program, mappings)
    closed(program)
    return figures


def many_notes_round(program, mappings):
    figures = started(program, mappings)
    program.wait_until_standing()
    browsing = Browsing(program)
    figures |= {"page turn": ("ms", statistics.median(browsing.turn() for _ in range(PAGES_TURNED))),
                "Save in the main window": ("ms", browsing.save()),
                "memory": ("kB", proportional_size(program.process_id))}
    closed(program)
    return figures


def editor_round(program, mappings):
    program.start_and_wait_for_tray()
    opening = Opening(program, mappings, EDITOR_COUNT)
    opening()  # which also reads the folder from the disk
    taken, worked = opening()
    _end(program)
    return {"note editor": ("ms", taken), "note editor: processor time": ("ms", worked)}


def motion_round(program, mappings):
    program.start_and_wait_for_tray()
    found = round_of(Watcher(program, mappings))
    _end(program)
    return {f"{name}: processor time of a frame": ("ms", movement.cost) for name, movement in found.items()}


def _end(program):
    program.end()
    program.wait_until(lambda: not program.tray.there, "the tray icon to go")


@dataclasses.dataclass
class Part:
    """A round, how often it is made of either build, and with what."""

    work: callable
    pairs: int
    notes: callable
    count: int  # of the notes
    settings: dict


PARTS = {"start": Part(start_round, 25, notes_of_all_kinds, 100, SHOWN_AT_START),
         "many-notes": Part(many_notes_round, 15, notes_of_all_kinds, MANY, SHOWN_AT_START),
         "editor": Part(editor_round, 15, notes_of_one_kind, EDITOR_COUNT, HIDDEN_AT_START),
         "motion": Part(motion_round, 15, notes_of_all_kinds, 100, HIDDEN_AT_START)}
QUICK_PAIRS = 8  # the fewest that say anything


def rounds_in_turns(work, pairs):
    """Of this build and of the other. The first round of each only fills the caches."""
    found = {THIS: [], OTHER: []}
    for pair in range(pairs + 1):
        for build in (THIS, OTHER) if pair % 2 else (OTHER, THIS):
            found[build].append(work(build))
    return found[THIS][1:], found[OTHER][1:]


def compare(name, other, quick):
    """A Pairs for each figure of the part."""
    part = PARTS[name]
    with (TwoBuilds(other, name, notes=part.notes(part.count), settings=part.settings, screen=SCREEN) as program,
          Mappings(program) as mappings):

        def round_with(build):
            program.take(build)
            return part.work(program, mappings)

        ours, others = rounds_in_turns(round_with, QUICK_PAIRS if quick else part.pairs)
    for what, (unit, _) in ours[0].items():
        figures = ([one[what][1] for one in rounds] for rounds in (ours, others))
        yield Pairs(f"{what}, {part.count:,} notes", unit, *figures)
