"""If this fails, a library that somebody puts beside the program under the name of one of the system's is loaded in its
place, and does with the user's notes what it likes."""

import shutil

from driver import BUILD
from editor import Editor
from kalvora import Kalvora
from trouble import QUIET

NAMES = ("oleacc.dll", "uxtheme.dll", "comdlg32.dll", "winmm.dll", "dwmapi.dll", "version.dll")
PLANTED = next(BUILD.rglob("plantedLibrary.dll"))


def marks(program):
    return sorted(file.name for file in program.folder.glob("*.loaded"))


def expect_the_planted_one_to_work(program):
    """It leaves its mark where it is loaded, or its silence would say nothing."""
    program.wine.spawn(["rundll32", f".\\{NAMES[0]},Nothing"], program.folder, {})
    program.wait_until(lambda: marks(program) == [f"{NAMES[0]}.loaded"], "the mark of the planted library")
    (program.folder / f"{NAMES[0]}.loaded").unlink()


with Kalvora("planted-library", notes={"a.txt": b"||Alpha"}, settings=QUIET) as program:
    for name in NAMES:
        shutil.copy2(PLANTED, program.folder / name)
    expect_the_planted_one_to_work(program)
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
    assert program.wine.ask("accessible", program.main.handle), "a screen reader gets its answer"
    editor = Editor(program)
    assert editor.names == []
    editor.close()
    assert program.end() == 0
    assert marks(program) == []
