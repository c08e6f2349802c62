"""What the flows that make trouble for the program have in common."""

import contextlib
import ctypes

from desktop import Timeout
from driver import BUILD
from editor import note_files
from windows import CLICKS_AT_MOST

WINDOW = {"Window_X": "300", "Window_Y": "200", "Win1_Jump": "100", "Win2_Jump": "100"}
QUIET = {"Graph": WINDOW, "Sys": {"AmPm": "False", "Fast_delete_msg": "False", "AlwOnTop": "False"}}

_PR_CAPBSET_DROP = 24
_CAP_DAC_OVERRIDE = 1


def obey_file_modes():
    """From now on programs that are started heed what a folder forbids, also where all is allowed to the user."""
    # It fails for an ordinary user, who has to heed it anyway.
    ctypes.CDLL(None).prctl(_PR_CAPBSET_DROP, _CAP_DAC_OVERRIDE, 0, 0, 0)


class SmallDisk:
    """A disk for the notes and safety copies of a program; smallDisk.cpp says how. Make it before the start."""

    def __init__(self, program):
        self._folders = [program.folder / name for name in ("notes", "backup")]
        self._size = program.folder.parent / "disk-size"
        library = next(BUILD.rglob("smallDisk.so"))
        program.environment.update(LD_PRELOAD=str(library), KALVORA_DISK_SIZE=str(self._size),
                                   KALVORA_DISK_FOLDER=str(program.folder.resolve()))

    def leave_room(self, count):
        """From now on so many more bytes fit onto the disk."""
        used = sum(file.stat().st_size for folder in self._folders if folder.exists() for file in folder.iterdir())
        self._size.write_text(str(used + count), encoding="ascii")

    def leave_all_room(self):
        self._size.unlink()


@contextlib.contextmanager
def read_only(folder):
    """While the block runs, no file can come into the folder or leave it."""
    folder.chmod(0o555)
    try:
        yield
    finally:
        folder.chmod(0o755)


def expect_error(program, message, end=""):
    """One message box that begins and ends like this; answers it."""
    box = program.message_box("Error!")
    assert box.message.startswith(message) and box.message.endswith(end), box.message
    box.answer("OK")
    assert "Error!" not in [one.title for one in program.message_boxes()], "one message is enough"


def press_until_told(program, button):
    """Presses a button that brings a message box. On a busy machine the window manager can swallow a click on a window
    that just came to the front."""
    for _ in range(CLICKS_AT_MOST):
        program.press(button)
        try:
            return program.message_box("Error!", 20)
        except Timeout as timeout:
            missed = timeout
    raise missed


def expect_refusal(program, button, message, end):
    """A button whose work fails: a message says so, and nothing is lost on the disk."""
    before = note_files(program)
    press_until_told(program, button)
    expect_error(program, message, end)
    assert note_files(program) == before, "every note as it was, and nothing half written beside them"
