"""If this fails, a library that somebody puts beside the program under the name of one of the system's is loaded in its
place, and does with the user's notes what it likes."""

import shutil

from driver import BUILD
from editor import Editor
from kalvora import Kalvora
from trouble import QUIET

# Wine has libraries of its own built in. A planted one is to come before them, as on Windows.
LIKE_WINDOWS = {"WINEDLLOVERRIDES": "oleacc=n,b"}
PLANTED = next(BUILD.rglob("plantedLibrary.dll"))
# Libraries that the loader would look for beside the program first. Wine's own common controls load the second one
# before the program begins, so only the first can be planted here.
LATE = ("oleacc.dll", "uxtheme.dll")


def imports(program):
    """Names of libraries that stand in the program as the loader reads them; its own texts are wide ones."""
    code = (program.folder / "kalvora.exe").read_bytes().lower()
    assert b"user32.dll" in code, "the list of imports is read"
    return [name for name in LATE if name.encode() in code]


def mark_of_one_that_is_loaded(program, planted, mark):
    path = "Z:" + str(planted).replace("/", "\\")
    program.wine.spawn(["rundll32", f"{path},nothing"], program.folder, LIKE_WINDOWS).wait(60)
    assert mark.is_file(), "the planted library leaves a mark where it is loaded"
    mark.unlink()


with Kalvora("planted-library", notes={"a.txt": b"||Alpha"}, settings=QUIET, environment=LIKE_WINDOWS) as program:
    planted = shutil.copy2(PLANTED, program.folder / "oleacc.dll")
    mark = program.folder / "oleacc.dll.loaded"
    mark_of_one_that_is_loaded(program, planted, mark)
    assert imports(program) == []
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
    assert program.wine.ask("accessible", program.main.handle), "a screen reader gets its answer"
    Editor(program).close()
    assert program.end() == 0
    assert not mark.exists(), "the one of the system is loaded"
