"""Drives the real program as a user does: by mouse and keyboard, looking at the screen.

    with Program(notes={"Milk.txt": b"..."}, settings={"Graph": {"Window_X": "300"}}) as program:
        program.start()
        program.tray.double_click()
        program.wait_until(lambda: program.main.visible, "the window to come out")

Each Program has a folder, settings and a screen of its own. When the block fails, a picture of the
screen and the program's folder stay behind, and the message says where.
"""

import datetime
import glob
import os
import shutil
import subprocess
import sys
import time
import traceback
import zoneinfo
from pathlib import Path

from desktop import DEFAULT_TIMEOUT, DESKTOP_COLOUR, SOURCE, Screen, Timeout, Wine, wait_until
from tray import Tray

__all__ = ["BUILD", "DESKTOP_COLOUR", "Program", "SOURCE", "Timeout", "wait_until"]

BUILD = Path(os.environ.get("KALVORA_BUILD", SOURCE / "build" / "mingw-release"))
SETTINGS_KEY = "Software\\Kalvora"
MAIN_CLASS = "KalvoraMain"
MESSAGE_BOX_CLASS = "#32770"
ES_READONLY = 0x800


class Control:
    """A control of a window, or any window, as it was when it was found; text is read anew each time."""

    def __init__(self, program, facts):
        self._program = program
        self.handle = facts["handle"]
        self.class_name = facts["class"]
        self.id = facts["id"]

    def _facts(self):
        return self._program.wine.ask("window", self.handle)

    def _fact(self, name):
        facts = self._facts()
        if facts is None:
            raise AssertionError(f"the window {self.class_name} {self.id} is gone")
        return facts[name]

    @property
    def exists(self):
        return self._facts() is not None

    @property
    def text(self):
        return self._program.wine.ask("text", self.handle)

    @property
    def visible(self):
        facts = self._facts()
        return facts is not None and facts["visible"]

    @property
    def enabled(self):
        return self._fact("enabled")

    @property
    def checked(self):
        return self._fact("checked")

    @property
    def read_only(self):
        """Whether an edit box takes no input."""
        return bool(self._fact("style") & ES_READONLY)

    @property
    def topmost(self):
        return self._fact("topmost")

    @property
    def place(self):
        """(x, y, width, height) in pixels of the screen."""
        return tuple(self._fact("place"))

    def set_text(self, text):
        """Puts a text in at once, as pasting over all of it would."""
        self._program.wine.ask("settext", self.handle, text)

    def push(self):
        """Pushes a button, without the mouse."""
        self._program.wine.ask("press", self.handle)

    def on_screen(self, x, y):
        left, top, _, _ = self.place
        return left + x, top + y

    def click(self, x=None, y=None, button=1, times=1):
        """Clicks at (x, y) of the window, or in its middle."""
        left, top, width, height = self.place
        at = (left + (width // 2 if x is None else x), top + (height // 2 if y is None else y))
        self._program.screen.click(*at, button=button, times=times)

    def type(self, text):
        """Clicks into the control and types."""
        self.click()
        self._program.screen.type(text)


class Window(Control):
    """A top-level window. Positions are pixels from its upper left corner."""

    def control(self, number):
        """The control with this id."""
        for facts in self._program.wine.ask("controls", self.handle):
            if facts["id"] == number:
                return Control(self._program, facts)
        raise AssertionError(f"the window has no control {number}")

    def controls(self, class_name=None):
        return [Control(self._program, facts)
                for facts in self._program.wine.ask("controls", self.handle)
                if class_name is None or facts["class"] == class_name]

    def press(self, x, y, button=1):
        self._program.screen.press(*self.on_screen(x, y), button=button)

    def release(self, button=1):
        self._program.screen.release(button)

    def drag(self, start, finish):
        """Presses at start and lets go at finish, both in the window as it stands before the drag."""
        self._program.screen.drag(self.on_screen(*start), self.on_screen(*finish))

    def pixel(self, x, y):
        """The colour on the screen at that place, whoever painted it."""
        return self._program.screen.pixel(*self.on_screen(x, y))

    def covers(self, x, y):
        """Whether the pixel lies inside the window's shape."""
        return self._program.wine.ask("covers", self.handle, x, y)

    def close(self):
        self._program.wine.ask("close", self.handle)


CLICKS_AT_MOST = 3


class MessageBox(Window):
    """A message box: its title, its text and its buttons."""

    def __init__(self, program, facts):
        super().__init__(program, facts)
        self.title = facts["text"]

    def _wait_until_standing(self):
        """A busy window manager may still move a box that just came, and a click would miss it."""
        places = []

        def stands():
            places.append(self.place)
            return len(places) > 4 and len(set(places[-4:])) == 1

        self._program.wait_until(stands, f"the box '{self.title}' to stand still")

    @property
    def message(self):
        return "\n".join(one.text for one in self.controls("Static") if one.text)

    @property
    def buttons(self):
        return [one.text.replace("&", "") for one in self.controls("Button")]

    def answer(self, button):
        """Clicks the button with this caption and waits until the box is gone."""
        self._wait_until_standing()
        found = [one for one in self.controls("Button") if one.text.replace("&", "") == button]
        assert found, f"the box has no button '{button}', only {self.buttons}"
        # On a busy machine the window manager can swallow the first click on a window that just came.
        for _ in range(CLICKS_AT_MOST):
            found[0].click()
            try:
                return self._program.wait_until(lambda: not self.exists, f"the box '{self.title}' to go", 20)
            except Timeout as timeout:
                missed = timeout
        raise missed


class Program:
    """The program in a folder of its own, with a registry and a screen of its own.

    skins, icons: folders and files to put beside the program; None takes those that are shipped.
    notes: name -> bytes (or text, written in code page 1252). settings: section -> key -> text, in the
    registry before the start. clock: the local time that the program sees at its first start, running on.
    monitors: places of the monitors on the screen, the primary one first; none makes the screen one monitor.
    environment: more variables for the program. dots_per_inch: 192 is a screen at 200 %.
    """

    def __init__(self, name=None, *, skins=None, icons=None, notes=None, settings=None,
                 screen=(1024, 768), monitors=(), clock=None, time_zone="UTC", exe=None, settings_key=SETTINGS_KEY,
                 environment=None, dots_per_inch=96):
        self.name = name or Path(sys.argv[0]).stem.removeprefix("flow_")
        self._exe = Path(exe or os.environ.get("KALVORA_EXE") or BUILD / "src/win32/kalvora.exe")
        self._skins, self._icons, self._notes = skins, icons, notes or {}
        self._settings, self._settings_key = settings or {}, settings_key
        self._screen_size, self._monitors, self._clock, self._zone = screen, monitors, clock, zoneinfo.ZoneInfo(time_zone)
        self._clock_offset = None
        self.environment = dict(environment or {})
        self._dots_per_inch = dots_per_inch
        self._base = BUILD / "e2e" / self.name
        self._evidence = BUILD / "e2e-failures" / self.name
        self.folder = self._base / "Kalvora"
        self.screen = self.wine = self._process = None
        self.tray = Tray(self)

    def __enter__(self):
        for left_over in (self._base, self._evidence):
            shutil.rmtree(left_over, ignore_errors=True)
        self._stage()
        try:
            self.screen = Screen(self._screen_size, self._base, self._monitors)
            self.wine = Wine(self._base, BUILD, self.screen, self._dots_per_inch)
            for section, values in self._settings.items():
                for key, text in values.items():
                    self.set_setting(section, key, text)
        except BaseException:
            self._stop()
            raise
        return self

    def __exit__(self, kind, error, trace):
        if kind is not None:
            self._keep_evidence("".join(traceback.format_exception(kind, error, trace)))
        self._stop()
        shutil.rmtree(self._base, ignore_errors=True)

    def _stage(self):
        self.folder.mkdir(parents=True)
        shutil.copy2(self._exe, self.folder)
        for name, chosen in (("skins", self._skins), ("icons", self._icons)):
            shipped = SOURCE / "assets" / name
            (self.folder / name).mkdir()
            for item in shipped.glob("*") if chosen is None else map(Path, chosen):
                copy = shutil.copytree if item.is_dir() else shutil.copy2
                copy(item, self.folder / name / item.name)
        (self.folder / "notes").mkdir()
        for name, content in self._notes.items():
            self.write(f"notes/{name}", content)

    def _stop(self):
        if self.running:
            self._process.terminate()
        for part in (self.wine, self.screen):
            if part is not None:
                part.stop()

    def _keep_evidence(self, story):
        evidence = self._evidence
        evidence.mkdir(parents=True)
        (evidence / "story.txt").write_text(story, encoding="utf-8")
        try:
            self.screen.picture().save(evidence / "screen.png")
            shutil.copytree(self.folder, evidence / "Kalvora")
            for log in glob.glob(str(self._base / "*.log")):
                shutil.copy2(log, evidence)
        except OSError as trouble:
            print(f"not all of the evidence could be kept: {trouble}", file=sys.stderr)
        print(f"{self.name} failed; its screen and folder are in {evidence}", file=sys.stderr)

    # Starting and ending

    def start(self, *arguments):
        """Starts the program and returns at once."""
        self._process = self.wine.spawn([self._exe.name, *arguments], self.folder,
                                        {**self._clock_environment(), **self.environment})

    def start_another(self):
        """Starts a second copy beside the first one; its process."""
        return self.wine.spawn([self._exe.name], self.folder, {**self._clock_environment(), **self.environment})

    def start_and_wait_for_tray(self, *arguments):
        self.start(*arguments)
        self.wait_until(lambda: self.tray.there, "the tray icon", timeout=60)

    @property
    def process_id(self):
        return self._process.pid

    @property
    def running(self):
        return self._process is not None and self._process.poll() is None

    def exit_code(self, timeout=DEFAULT_TIMEOUT):
        """Waits for the program's end; the lowest eight bits of its exit code."""
        try:
            return self._process.wait(timeout)
        except subprocess.TimeoutExpired:
            raise Timeout(f"waited {timeout:g} s in vain: the program to end") from None

    def wait_until(self, condition, what, timeout=DEFAULT_TIMEOUT):
        return wait_until(condition, what, timeout)

    # Windows

    def all_windows(self):
        return self.wine.ask("windows")

    def windows(self, class_name=None, title=None, kind=Window):
        """The windows that are to be seen, frontmost first."""
        return [kind(self, facts) for facts in self.all_windows()
                if facts["visible"] and (class_name is None or facts["class"] == class_name)
                and (title is None or facts["text"] == title)]

    def window(self, class_name=None, title=None, timeout=DEFAULT_TIMEOUT):
        """Waits for a window that is to be seen."""
        return self.wait_until(lambda: self.windows(class_name, title),
                               f"the window {title or class_name}", timeout)[0]

    @property
    def main(self):
        """The main window, shown or not."""
        found = self.wait_until(
            lambda: [facts for facts in self.all_windows() if facts["class"] == MAIN_CLASS],
            "the main window")
        return Window(self, found[0])

    def message_boxes(self):
        return self.windows(MESSAGE_BOX_CLASS, kind=MessageBox)

    def message_box(self, title=None, timeout=DEFAULT_TIMEOUT):
        """Waits for a message box."""
        return self.wait_until(
            lambda: [box for box in self.message_boxes() if title in (None, box.title)],
            f"the message box {title or ''}", timeout)[0]

    def window_at(self, x, y):
        """The class of the program's window that a click at this place of the screen reaches, or None."""
        facts = self.wine.ask("at", x, y)
        return facts and facts["class"]

    # What the program keeps

    def setting(self, section, key):
        """A text of the registry, or None."""
        return self.wine.ask("regread", f"{self._settings_key}\\{section}", key)

    def set_setting(self, section, key, text):
        """Puts a text into the registry; the program reads it at its next start."""
        self.wine.ask("regwrite", f"{self._settings_key}\\{section}", key, text)

    def setting_keys(self, section):
        return self.wine.ask("regnames", f"{self._settings_key}\\{section}")

    def read(self, name):
        return (self.folder / name).read_bytes()

    def write(self, name, content):
        data = content.encode("cp1252") if isinstance(content, str) else content
        (self.folder / name).write_bytes(data)

    def exists(self, name):
        return (self.folder / name).exists()

    # The clock

    def set_clock(self, clock, fold=0):
        """From now on the program sees this local time, running on. Needs a clock from the start."""
        wanted = datetime.datetime.fromisoformat(clock).replace(tzinfo=self._zone, fold=fold)
        self._clock_offset = wanted.timestamp() - time.time()
        self._write_clock(f"{self._clock_offset:+.3f}")

    def hold_clock(self, moment):
        """From now on the program sees this local time, and it stays. Needs a clock from the start."""
        self._write_clock(f"{moment:%Y-%m-%d %H:%M:%S}")

    def _write_clock(self, text):
        fresh = self._base / "clock.new"
        fresh.write_text(text + "\n", encoding="ascii")
        fresh.replace(self._base / "clock")

    def clock(self):
        """The local time that the program sees. Needs a clock from the start."""
        return datetime.datetime.fromtimestamp(time.time() + self._clock_offset, self._zone)

    def _clock_environment(self):
        if self._clock is None:
            return {}
        if not (self._base / "clock").exists():
            self.set_clock(self._clock)
        library = glob.glob("/usr/lib/*/faketime/libfaketime.so.1")[0]
        return {"LD_PRELOAD": library, "FAKETIME_TIMESTAMP_FILE": str(self._base / "clock"),
                "FAKETIME_NO_CACHE": "1", "DONT_FAKE_MONOTONIC": "1", "TZ": self._zone.key}
