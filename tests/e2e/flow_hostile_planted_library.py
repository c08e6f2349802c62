"""If this fails, a library that somebody puts beside the program under the name of one of the system's is loaded in its
place, and does with the user's notes what it likes."""

import shutil

from driver import BUILD
from editor import Editor
from kalvora import Kalvora
from trouble import QUIET

NAMES = ("oleacc", "uxtheme")
# Wine has libraries of its own built in. A planted one is to come before them, as on Windows.
LIKE_WINDOWS = {"WINEDLLOVERRIDES": ",".join(NAMES) + "=n,b"}
PLANTED = next(BUILD.rglob("plantedLibrary.dll"))


def marks(program):
    return sorted(file.name for file in program.folder.glob("*.loaded"))


with Kalvora("planted-library", notes={"a.txt": b"||Alpha"}, settings=QUIET, environment=LIKE_WINDOWS) as program:
    for name in NAMES:
        shutil.copy2(PLANTED, program.folder / f"{name}.dll")
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
    assert program.wine.ask("accessible", program.main.handle), "a screen reader gets its answer"
    Editor(program).close()
    assert program.end() == 0
    assert marks(program) == [], marks(program)
