"""The programs that ours is measured beside, on the same screen and under the same Wine."""

import subprocess
import time

from driver import BUILD

# By its full path, or another process of Wine's would start it.
NOTEPAD = r"C:\windows\system32\notepad.exe"
NOTEPAD_TITLE = "Untitled - Notepad"
EMPTY_WINDOW = str(BUILD / "bench" / "empty-window.exe")
EMPTY_TITLE = "Empty"
BARE_NOTES = str(BUILD / "bench" / "bare-notes.exe")


class Other:
    """A program with a window of this title, that ends when the window is closed."""

    def __init__(self, program, title, *command):
        self._program, self._title = program, title
        self.process = program.wine.spawn(list(command), program.folder, {})

    def close(self):
        self._program.window(title=self._title).close()
        self.process.wait(30)


def notepad(program):
    return Other(program, NOTEPAD_TITLE, NOTEPAD)


def start_of_other(program, mappings, title, *command):
    """Milliseconds from the start of the process until its window is on the screen."""
    mappings.forget()
    begin = time.monotonic()
    other = Other(program, title, *command)
    taken = mappings.wait_for(title) - begin
    other.close()
    return 1000 * taken


def start_of_kalvora(program, mappings):
    """The same of ours. Needs the setting that shows the window at the start."""
    mappings.forget()
    begin = time.monotonic()
    program.start()
    taken = mappings.wait_for("Kalvora") - begin
    program.main.close()
    program.exit_code()
    return 1000 * taken


def _bare_notes(program, *arguments):
    """Milliseconds from the start of the bare program to its end, and of the listing within it."""
    begin = time.monotonic()
    output = subprocess.run(["wine", BARE_NOTES, "notes", *arguments], cwd=program.folder, text=True, check=True,
                            env=program.wine.environment, stdout=subprocess.PIPE).stdout
    taken = time.monotonic() - begin
    count, listing, _ = output.split()
    assert int(count) == len(list((program.folder / "notes").iterdir())), "the bare program does not see every note"
    return 1000 * taken, float(listing)


def bare_listing(program):
    """Milliseconds of one listing of the notes, without the start of the program that makes it."""
    return _bare_notes(program, "list")[1]


def bare_reading(program):
    """Milliseconds from the start to the end of a program that lists the notes, opens, reads and closes each."""
    return _bare_notes(program)[0]
