"""A virtual screen with a mouse and a keyboard, and a Wine of its own to run programs on it.

Everything started here ends with the Python process that started it, however that one ends.
"""

import ctypes
import json
import os
import select
import shutil
import signal
import subprocess
import time
from pathlib import Path

from PIL import ImageGrab

SOURCE = Path(__file__).resolve().parents[2]
DESKTOP_COLOUR = (0x3A, 0x6E, 0xA5)
DEFAULT_TIMEOUT = 60.0
PROBE_TIMEOUT = 60.0
DOUBLE_CLICK_TIME = 0.6  # seconds; Windows takes 0.5
_PR_SET_PDEATHSIG = 1


class Timeout(AssertionError):
    """What was waited for did not come."""


def wait_until(condition, what, timeout=DEFAULT_TIMEOUT):
    """Polls until condition() is true and hands back its value; fails naming what was waited for."""
    deadline = time.monotonic() + timeout
    pause = 0.03
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise Timeout(f"waited {timeout:g} s in vain: {what}")
        time.sleep(pause)
        # What takes long is asked less often, for each question takes time from what is waited for.
        pause = min(pause * 1.05, 0.1)


def _end_with_parent():
    ctypes.CDLL(None).prctl(_PR_SET_PDEATHSIG, signal.SIGTERM)


def spawn(command, log, **options):
    """A process in a session of its own, its output in a file: a pipe would be held open by Wine's own."""
    options.setdefault("stdin", subprocess.DEVNULL)
    with open(log, "ab") as output:
        options.setdefault("stdout", output)
        return subprocess.Popen(command, stderr=output, start_new_session=True,
                                preexec_fn=_end_with_parent, **options)


def end(process):
    """Ends a process that spawn() started."""
    if process is None or process.poll() is not None:
        return
    process.terminate()
    try:
        process.wait(10)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


class Screen:
    """An X screen that nobody else uses, with a window manager and a plain desktop.

    monitors: their places (x, y, width, height) on the screen, the primary one first. Windows counts from
    the corner of that one, and so do all places here; a picture begins where the screen does.
    """

    def __init__(self, size, folder, monitors=()):
        self.size = size
        self.monitors = tuple(monitors)
        self.origin = self.monitors[0][:2] if self.monitors else (0, 0)
        self._clicked = {}  # when each place was clicked last
        self._log = folder / "screen.log"
        number_from, number_to = os.pipe()
        self._server = spawn(["Xvfb", "-displayfd", str(number_to), "-screen", "0",
                              f"{size[0]}x{size[1]}x24", "-nolisten", "tcp", "-noreset"],
                             self._log, pass_fds=[number_to])
        os.close(number_to)
        with os.fdopen(number_from) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise RuntimeError(f"the virtual screen did not start, see {self._log}")
        self.display = f":{number}"
        self.environment = dict(os.environ, DISPLAY=self.display)
        subprocess.run(["xsetroot", "-solid", "#%02x%02x%02x" % DESKTOP_COLOUR],
                       env=self.environment, check=True)
        for number_of_monitor, place in enumerate(self.monitors):
            self._set_monitor(number_of_monitor, *place)
        self._manager = spawn(["openbox", "--sm-disable", "--config-file",
                               str(SOURCE / "tools" / "openbox.xml")],
                              self._log, env=self.environment)

    def _set_monitor(self, number, x, y, width, height):
        name, output = ("*FIRST", "screen") if number == 0 else (f"OTHER{number}", "none")
        subprocess.run(["xrandr", "--setmonitor", name, f"{width}/169x{height}/127+{x}+{y}", output],
                       env=self.environment, check=True)

    def on_x(self, x, y):
        """A place as X counts it, from the corner of the whole screen."""
        return x + self.origin[0], y + self.origin[1]

    def stop(self):
        end(self._manager)
        end(self._server)

    def xdotool(self, *arguments):
        return subprocess.run(["xdotool", *map(str, arguments)], env=self.environment, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False).stdout

    def move(self, x, y):
        self.xdotool("mousemove", *self.on_x(x, y))

    def press(self, x, y, button=1):
        self.xdotool("mousemove", *self.on_x(x, y), "mousedown", button)

    def release(self, button=1):
        self.xdotool("mouseup", button)

    def click(self, x, y, button=1, times=1):
        # Two clicks at one place in quick succession would be a double click that nobody asked for;
        # under Wine also if another program's window was clicked in between.
        time.sleep(max(0.0, self._clicked.get((x, y), 0.0) + DOUBLE_CLICK_TIME - time.monotonic()))
        self.xdotool("mousemove", *self.on_x(x, y), "click", "--repeat", times, "--delay", 60, button)
        self._clicked[x, y] = time.monotonic()

    def drag(self, start, finish, steps=8):
        """Presses at start, moves in steps as a hand does, and lets go at finish."""
        self.press(*start)
        time.sleep(0.1)  # The window manager may have to take the pointer first.
        for step in range(1, steps + 1):
            self.move(start[0] + (finish[0] - start[0]) * step // steps,
                      start[1] + (finish[1] - start[1]) * step // steps)
            time.sleep(0.03)
        time.sleep(0.1)
        self.release()

    def type(self, text):
        self.xdotool("type", "--delay", 20, "--", text)

    def key(self, *names):
        """Keys by their X names, such as "Tab", "ctrl+Home"."""
        self.xdotool("key", "--delay", 20, *names)

    def hold_key(self, name, seconds):
        """A key that repeats, as the keyboard is set."""
        self.xdotool("keydown", name)
        time.sleep(seconds)
        self.xdotool("keyup", name)

    def picture(self):
        return ImageGrab.grab(xdisplay=self.display).convert("RGB")

    def pixel(self, x, y):
        return self.picture().getpixel(self.on_x(x, y))

    def place_of(self, *search):
        """(x, y, width, height) of the first visible X window found, or None."""
        windows = self.xdotool("search", "--onlyvisible", *search).split()
        if not windows:
            return None
        lines = subprocess.run(["xwininfo", "-id", windows[0]], env=self.environment, text=True,
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False).stdout
        fields = dict(line.strip().split(":", 1) for line in lines.splitlines() if ":" in line)
        try:
            x, y, width, height = (int(fields[name]) for name in ("Absolute upper-left X", "Absolute upper-left Y",
                                                                  "Width", "Height"))
            return x - self.origin[0], y - self.origin[1], width, height
        except KeyError:  # It went away in between.
            return None


class Wine:
    """A fresh Wine prefix with a server, and the probe that looks at windows and the registry."""

    def __init__(self, folder, build, screen, dots_per_inch=96):
        self.prefix = folder / "prefix"
        self._log = folder / "wine.log"
        self._copy_template(build.parent / "wine-template")
        with open(self.prefix / "user.reg", "a", encoding="ascii") as registry:
            registry.write(f'\n[Control Panel\\\\Desktop]\n"LogPixels"=dword:{dots_per_inch:08x}\n')
            if screen.monitors:  # Else Wine would ask for outputs, and there is only one.
                registry.write('\n[Software\\\\Wine\\\\X11 Driver]\n"UseXRandR"="N"\n')
        self.environment = dict(screen.environment, WINEPREFIX=str(self.prefix), WINEDEBUG="-all",
                                WINEDLLOVERRIDES="winemenubuilder.exe,mscoree,mshtml=",
                                LC_ALL="C.UTF-8")
        program = next(build.rglob("e2e-probe.exe"))
        self._probe = spawn(["wine", str(program)], self._log, env=self.environment,
                            stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        # Its first answer shows that Wine is up: programs started later share its server and clock.
        self.ask("windows", "")

    def _copy_template(self, template):
        # The system files are hard links: Wine never writes them.
        shutil.copytree(template / "drive_c", self.prefix / "drive_c", symlinks=True,
                        copy_function=os.link)
        shutil.copytree(template / "dosdevices", self.prefix / "dosdevices", symlinks=True)
        for name in ("system.reg", "user.reg", "userdef.reg", ".update-timestamp"):
            shutil.copy2(template / name, self.prefix / name)

    def spawn(self, command, folder, environment):
        # Python's signals stay: a file that may not grow fails to be written, and no signal ends the program.
        return spawn(["wine", *command], self._log, cwd=folder, env={**self.environment, **environment},
                     restore_signals=False)

    def ask(self, *fields):
        """One request to the probe; tests/e2e/probe.cpp lists them."""
        line = "\t".join(str(field).replace("\\", "\\\\").replace("\t", "\\t")
                         .replace("\n", "\\n").replace("\r", "\\r") for field in fields)
        self._probe.stdin.write(line.encode() + b"\n")
        self._probe.stdin.flush()
        value = json.loads(self._line_from_probe())
        if isinstance(value, dict) and "error" in value:
            raise RuntimeError(f"the probe cannot do {fields}: {value['error']}")
        return value

    def _line_from_probe(self):
        # Wine's own processes hold the pipe open, so its end does not show that the probe has died.
        line, deadline = b"", time.monotonic() + PROBE_TIMEOUT
        while not line.endswith(b"\n"):
            ready, _, _ = select.select([self._probe.stdout], [], [], 0.5)
            if ready:
                line += os.read(self._probe.stdout.fileno(), 65536)
            elif self._probe.poll() is not None or time.monotonic() > deadline:
                raise RuntimeError(f"the probe does not answer, see {self._log}")
        return line

    def processes(self):
        """The programs that run in this Wine, each with where its threads wait."""
        mine = f"WINEPREFIX={self.prefix}".encode()
        found = []
        for process in Path("/proc").glob("[0-9]*"):
            try:
                if mine in (process / "environ").read_bytes().split(b"\0"):
                    command = (process / "cmdline").read_bytes().replace(b"\0", b" ").decode(errors="replace").strip()
                    waits = [(task / "wchan").read_text(encoding="ascii") for task in (process / "task").glob("*")]
                    found.append(f"{process.name} {command}: {waits}")
            except OSError:  # It ended meanwhile.
                pass
        return found

    def stop(self):
        if self._probe.poll() is None:
            self._probe.stdin.close()
            end(self._probe)
        subprocess.run(["wineserver", "-k"], env=self.environment, check=False,
                       stderr=subprocess.DEVNULL)
