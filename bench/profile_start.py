"""Where a start goes: what the program asks Wine's server and Linux until its window is on the screen, by cause, with
a hundred notes, beside notepad and an empty window. Prints two tables. Nothing here is timed: the counting slows it.
"""

import contextlib
import os
import shutil
import sys
import tempfile
import time
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tests" / "e2e"))

# The driver of the end-to-end tests is found only now.
from anchors import EMPTY_TITLE, EMPTY_WINDOW, NOTEPAD, NOTEPAD_TITLE  # noqa: E402
from desktop import spawn  # noqa: E402
from kalvora import Kalvora  # noqa: E402
from mappings import Mappings  # noqa: E402
from note_sets import notes_of_all_kinds  # noqa: E402
from server_questions import questions_by_cause  # noqa: E402
from start_figures import SHOWN_AT_START  # noqa: E402
from system_calls import calls_by_cause  # noqa: E402

NOTES = 100
# Name -> title of the window, and the command.
PROGRAMS = {f"Kalvora, {NOTES} notes": ("Kalvora", "kalvora.exe"), "notepad.exe": (NOTEPAD_TITLE, NOTEPAD),
            "empty window": (EMPTY_TITLE, EMPTY_WINDOW)}


def program_with_notes():
    """The folder, the screen and the Wine in which one program after the other is looked at."""
    return Kalvora("bench-profile", notes=notes_of_all_kinds(NOTES), settings=SHOWN_AT_START)


def start(program, mappings, title, command):
    """The process, and the moment (of the monotonic clock) at which its window is on the screen."""
    mappings.forget()
    process = spawn(command, program.folder.parent / "profiled.log", cwd=program.folder, env=program.wine.environment)
    return process, mappings.wait_for(title)


def finish(program, title, process):
    program.window(title=title).close()
    process.wait(60)


@contextlib.contextmanager
def talking_server(folder, log):
    """While the block begins, a Wine that starts has a server that writes down what it is asked: where the first
    program is told to trace it, the server is started so."""
    wine = folder / "wine"
    wine.write_text(f'#!/bin/sh\nWINEDEBUG=+server exec {shutil.which("wine")} "$@" 2>>{log}\n', encoding="utf-8")
    wine.chmod(0o755)
    before = os.environ["PATH"]
    os.environ["PATH"] = f"{folder}:{before}"
    try:
        yield
    finally:
        os.environ["PATH"] = before


def lines_between(log, begin, end):
    with open(log, "rb") as file:
        file.seek(begin)
        return file.read(end - begin).decode("utf-8", "replace").splitlines()


def questions(folder):
    """Name -> cause -> count; of each program's second start, because the first one fills the caches."""
    log, found = folder / "server.log", {}
    with talking_server(folder, log), program_with_notes() as program, Mappings(program) as mappings:
        for name, (title, own) in PROGRAMS.items():
            for _ in range(2):
                begin = log.stat().st_size
                process, _ = start(program, mappings, title, ["wine", own])
                end = log.stat().st_size
                finish(program, title, process)
            found[name] = questions_by_cause(lines_between(log, begin, end), process.pid)
    return found


def calls(folder):
    """The same of the system calls."""
    log, found = folder / "calls.log", {}
    with program_with_notes() as program, Mappings(program) as mappings:
        for name, (title, own) in PROGRAMS.items():
            for _ in range(2):
                log.unlink(missing_ok=True)
                process, shown = start(program, mappings, title, ["strace", "-f", "-y", "-ttt", "-o", log, "wine", own])
                finish(program, title, process)
            since_1970 = shown + time.time() - time.monotonic()
            found[name] = calls_by_cause(log.read_text(encoding="utf-8", errors="replace").splitlines(), since_1970)
    return found


def print_table(what, found):
    print(f"\n| {what} | {' | '.join(found)} |\n|---|{'---:|' * len(found)}")
    ours = next(iter(found.values()))
    causes = sorted(set().union(*found.values()), key=lambda cause: (-ours[cause], cause))
    for cause in causes:
        print(f"| {cause} | {' | '.join(f'{counts[cause]:,}' for counts in found.values())} |")
    print(f"| all | {' | '.join(f'{sum(counts.values()):,}' for counts in found.values())} |")


def main():
    with tempfile.TemporaryDirectory() as folder:
        print_table("questions to Wine's server", questions(Path(folder)))
        print_table("system calls of the program's process", calls(Path(folder)))


main()
