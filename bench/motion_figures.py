"""What a frame of the slide and of the roll costs, with a shipped skin and with a large one, at the settings that the
program has of itself: a step every 10 ms, of ten pixels. The frames are reckoned from the way, because a window
manager that is busy leaves some of the steps out, and the screen does not tell of those.

The processor time is that of the program and of Wine's server.
"""

import contextlib
import dataclasses
import statistics
import tempfile
import threading
from pathlib import Path

from Xlib import X

from figures import Figure
from kalvora import ALMANAC, Kalvora
from mappings import Mappings
from note_sets import notes_of_all_kinds
from processes import processor_seconds, server_of
from skin_figures import write_skin

INTERVAL = 10  # milliseconds
LARGE = (1024, 768)
SCREEN = (2200, 900)  # a slide begins one width to the right of where it ends
RESTS = 1.5  # seconds without a step: the movement has ended
STEP = 10  # pixels
FEWEST_FRAMES = 16  # of a movement that is measured


@dataclasses.dataclass
class Movement:
    """`every`: milliseconds between two frames; `longest`: between two that the screen told of. `cost`: milliseconds of
    processor time a frame, of which `server` are Wine's server's."""

    every: float
    longest: float
    cost: float
    server: float


class Watcher:
    """Watches the movements of the program's window on the screen."""

    def __init__(self, program, mappings):
        self._program, self._mappings = program, mappings
        self._processes = (program.process_id, server_of(program))
        self._windows = set()  # the program's, and the frames that the window manager puts around it

    def slide_in(self):
        self._begin(self._program.tray.double_click)
        self._windows = {self._mappings.wait_for_window("Kalvora")[1]}
        return self._movement()

    def slide_out(self):
        self._begin(lambda: self._program.press("Minimize"))
        return self._movement()

    def roll(self):
        self._begin(lambda: self._program.press("Rool Down/Up"))
        return self._movement()

    def _begin(self, work):
        """The work goes on beside the watching, which must not come late."""
        self._mappings.forget()
        threading.Thread(target=work, daemon=True).start()

    def _movement(self):
        moments, places, worked = [], [None], []
        for moment, event in self._mappings.events(RESTS):
            place = self._place_in(event)
            if place not in (None, places[-1]):
                places.append(place)
                moments.append(moment)
                worked.append([processor_seconds(process) for process in self._processes])
        assert moments, "the window did not move"
        return _movement_of(_frames(places[1], places[-1]), moments, worked)

    def _place_in(self, event):
        """Where the event tells that the window is now, or None."""
        if event.type == X.ReparentNotify and event.window in self._windows:
            self._windows.add(event.parent)
        if event.type != X.ConfigureNotify or event.window not in self._windows:
            return None
        # Of a window that is hidden, Wine leaves one pixel.
        return None if event.width == 1 else (event.x, event.y, event.width, event.height)


def _frames(first, last):
    """How many steps it is from one place or size to the other."""
    frames = max(abs(one - other) for one, other in zip(first, last)) / STEP
    assert frames >= FEWEST_FRAMES, f"the window moved from {first} to {last} only"
    return frames


def _movement_of(frames, moments, worked):
    longest = max(later - moment for moment, later in zip(moments, moments[1:]))
    ours, server = (1000 * (last - first) / frames for first, last in zip(worked[0], worked[-1]))
    return Movement(1000 * (moments[-1] - moments[0]) / frames, 1000 * longest, ours + server, server)


def round_of(watcher):
    """Slide -> movement, roll -> movement: once in and out, up and down. The window comes out rolled down."""
    came = watcher.slide_in()
    rolled = [watcher.roll(), watcher.roll()]
    return {"slide in": came, "roll": max(rolled, key=lambda one: one.cost), "slide out": watcher.slide_out()}


def figure(what, movements):
    """Of the medians of the repetitions; the longest gap is the longest of all."""
    every, cost, server = (statistics.median(getattr(one, name) for one in movements)
                           for name in ("every", "cost", "server"))
    longest = max(one.longest for one in movements)
    measured = f"{cost:.2f} ms (Wine's server {server:.2f}); {100 * cost / every:.0f} % of a processor"
    return Figure(f"{what}: processor time of a frame", measured,
                  f"a frame every {every:.1f} ms (longest {longest:.1f})", cost / every, f"{INTERVAL} ms",
                  cost / INTERVAL)


@contextlib.contextmanager
def skins():
    """Name -> folder of the skins to measure with."""
    with tempfile.TemporaryDirectory() as folder:
        large = Path(folder) / "Large"
        write_skin(large, LARGE)
        yield {"shipped skin": ALMANAC, "skin of 1024 x 768": large}


def rounds(skin, repetitions):
    settings = {"Graph": {"Window_X": "20", "Window_Y": "20", "Win1_Jump": str(STEP), "Win2_Jump": str(STEP)},
                "Sys": {"AlwOnTop": "False"}}
    with Kalvora("bench-motion", skin=skin, screen=SCREEN, notes=notes_of_all_kinds(100), settings=settings) as program:
        program.start_and_wait_for_tray()
        with Mappings(program) as mappings:
            watcher = Watcher(program, mappings)
            return [round_of(watcher) for _ in range(repetitions)]


def measure(quick):
    with skins() as folders:
        for name, folder in folders.items():
            found = rounds(folder, 3 if quick else 11)
            for movement in found[0]:
                yield figure(f"{movement}, {name}", [one[movement] for one in found])
