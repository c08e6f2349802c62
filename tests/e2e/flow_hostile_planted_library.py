"""If this fails, a library that somebody puts beside the program under the name of one of the system's is loaded in its
place, and does with the user's notes what it likes."""

import shutil

from driver import BUILD
from editor import Editor
from sounds import AudibleKalvora
from trouble import QUIET

# Wine has libraries of its own built in. Planted ones are to come before them, as on Windows.
LIKE_WINDOWS = {"WINEDLLOVERRIDES": "oleacc,winealsa.drv=n,b"}
PLANTED = next(BUILD.rglob("plantedLibrary.dll"))
# Libraries that the loader would look for beside the program first, were they among its imports. Wine's own windows load
# the second one before the program begins, so only the first can be planted here.
LATE = ("oleacc.dll", "uxtheme.dll", "comctl32.dll", "ole32.dll", "oleaut32.dll", "shell32.dll")
# One that the system's library of sounds loads by name.
OF_SOUNDS = "winealsa.drv"


def imports(program):
    """Names of libraries that stand in the program as the loader reads them; its own texts are wide ones."""
    code = (program.folder / "kalvora.exe").read_bytes().lower()
    assert b"user32.dll" in code, "the list of imports is read"
    return [name for name in LATE if name.encode() in code]


def plant(program, name):
    """Puts a library beside the program; the file that is there once it was loaded."""
    planted = shutil.copy2(PLANTED, program.folder / name)
    mark = program.folder / f"{name}.loaded"
    path = "Z:" + str(planted).replace("/", "\\")
    program.wine.spawn(["rundll32", f"{path},nothing"], program.folder, LIKE_WINDOWS).wait(60)
    assert mark.is_file(), "the planted library leaves a mark where it is loaded"
    mark.unlink()
    return mark


with AudibleKalvora("planted-library", notes={"a.txt": b"||Alpha"}, environment=LIKE_WINDOWS,
                    settings={**QUIET, "Sounds": {"Use_Sounds": "True"}}) as program:
    marks = [plant(program, name) for name in (LATE[0], OF_SOUNDS)]
    assert imports(program) == []
    program.start_and_wait_for_tray()
    # While the window has never been out: what names its fields then brings the system's library in by its full path.
    assert program.wine.ask("accessible", program.main.handle), "a screen reader gets its answer"
    assert not marks[0].exists(), "the one of the system is loaded"
    program.open_window()
    program.shows("a")
    program.expect("show")
    Editor(program).close()
    assert program.end() == 0
    assert not [mark for mark in marks if mark.exists()], "those of the system are loaded"
