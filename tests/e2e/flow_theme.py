"""If this fails, the dialogs have lost the look of the user's theme, or a start waits for the library that brings it."""

import re

from editor import Editor
from kalvora import Kalvora

# Wine's word for each library that it loads.
TELL_OF_LIBRARIES = {"WINEDEBUG": "-all,+loaddll"}
OF_THE_THEME = re.compile(r"common-controls_\w+?_6\.0\..*comctl32\.dll", re.IGNORECASE)


def told(program):
    return (program.folder.parent / "wine.log").read_text(encoding="utf-8", errors="replace")


with Kalvora("theme", notes={"a.txt": b"||Alpha"}, environment=TELL_OF_LIBRARIES) as program:
    program.start_and_wait_for_tray()
    assert "user32.dll" in told(program), "Wine tells of libraries"
    assert "comctl32" not in told(program), "no start waits for controls that nothing shows yet"
    editor = Editor(program)
    assert OF_THE_THEME.search(told(program)), "the editor has the controls of the theme"
    editor.close()
    assert program.end() == 0
