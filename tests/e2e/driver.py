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
import re
import shutil
import subprocess
import sys
import time
import traceback
import zoneinfo
from pathlib import Path

from desktop import DEFAULT_TIMEOUT, DESKTOP_COLOUR, SOURCE, Screen, Timeout, Wine, wait_until
from tray import Tray
from windows import MessageBox, Window

__all__ = ["BUILD", "DESKTOP_COLOUR", "Program", "SOURCE", "Timeout", "comfort_keys", "wait_until"]

BUILD = Path(os.environ.get("KALVORA_BUILD", SOURCE / "build" / "mingw-release"))
SETTINGS_KEY = "Software\\Kalvora"
MAIN_CLASS = "KalvoraMain"
MESSAGE_BOX_CLASS = "#32770"
TIP_CLASS = "tooltips_class32"
TIP_KEY = " \N{MIDDLE DOT} "
COMFORT_TABLE = SOURCE / "src" / "options" / "ComfortTable.cpp"
# Who goes through the flow ticked all of the page "Comfort".
ALL_TICKS = os.environ.get("KALVORA_ALL_TICKS") == "1"


def comfort_keys():
    """The settings of the page "Comfort", in its order."""
    return re.findall(r'ComfortTick\{L"(\w+)"', COMFORT_TABLE.read_text(encoding="utf-8"))


class Program:
    """The program in a folder of its own, with a registry and a screen of its own.

    skins, icons: folders and files to put beside the program; None takes those that are shipped.
    notes: name -> bytes (or text, written in code page 1252). settings: section -> key -> text, in the
    registry before the start. clock: the local time that the program sees at its first start, running on.
    monitors: places of the monitors on the screen, the primary one first; none makes the screen one monitor.
    environment: more variables for the program. dots_per_inch: 192 is a screen at 200 %.
    unticked: ticks of the page "Comfort" that change what the flow is about; they stay away where all are set.
    """

    def __init__(self, name=None, *, skins=None, icons=None, notes=None, settings=None,
                 screen=(1024, 768), monitors=(), clock=None, time_zone="UTC", exe=None, settings_key=SETTINGS_KEY,
                 environment=None, dots_per_inch=96, unticked=()):
        self.name = name or Path(sys.argv[0]).stem.removeprefix("flow_")
        self._exe = Path(exe or os.environ.get("KALVORA_EXE") or BUILD / "src/win32/kalvora.exe")
        self._skins, self._icons, self._notes = skins, icons, notes or {}
        self._settings, self._settings_key = dict(settings or {}), settings_key
        if ALL_TICKS:
            self.name += "-all-ticks"
            ticks = [key for key in comfort_keys() if key not in unticked]
            self._settings.setdefault("Comfort", dict.fromkeys(ticks, "True"))
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
        state = self._state()
        (evidence / "story.txt").write_text(story + state, encoding="utf-8")
        try:
            self.screen.picture().save(evidence / "screen.png")
            shutil.copytree(self.folder, evidence / "Kalvora")
            for log in glob.glob(str(self._base / "*.log")):
                shutil.copy2(log, evidence)
        except OSError as trouble:
            print(f"not all of the evidence could be kept: {trouble}", file=sys.stderr)
        print(f"{state}{self.name} failed; its screen and folder are in {evidence}", file=sys.stderr)

    def _state(self):
        """What became of the program, of Wine's own ones and of the windows that Wine knows."""
        lines = ["", "The program runs" if self.running else
                 f"The program does not run; its exit code: {self._process and self._process.poll()}"]
        try:
            lines += self.wine.processes()
            lines += (f"{window['class']} \"{window['text']}\" of {window['process']}: {window['place']}" +
                      ("" if window["visible"] else ", hidden")
                      for window in self.all_windows())
        except (OSError, RuntimeError) as trouble:
            lines.append(f"more cannot be asked: {trouble}")
        return "\n".join([*lines, ""])

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

    def all_windows(self, class_name=None):
        """What is known of each, shown or not."""
        return self.wine.ask("windows", class_name or "")

    def windows(self, class_name=None, title=None, kind=Window):
        """The windows that are to be seen, frontmost first. A tip tells a key behind its title."""
        return [kind(self, facts) for facts in self.all_windows(class_name)
                if facts["visible"] and (title is None or facts["text"].split(TIP_KEY)[0] == title)]

    @property
    def front(self):
        """The window in front of all others. A tip above it, which comes where the pointer rests, does not count."""
        return next(window for window in self.windows() if window.class_name != TIP_CLASS)

    def window(self, class_name=None, title=None, timeout=DEFAULT_TIMEOUT):
        """Waits for a window that is to be seen."""
        return self.wait_until(lambda: self.windows(class_name, title),
                               f"the window {title or class_name}", timeout)[0]

    @property
    def main(self):
        """The main window, shown or not."""
        found = self.wait_until(lambda: self.all_windows(MAIN_CLASS), "the main window")
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
