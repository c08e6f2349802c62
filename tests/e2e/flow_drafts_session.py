"""If this fails, the end of the Windows session takes along what was typed and not saved, in the main window or in
the note editor."""

from drafts import wait_for_draft
from editor import CONTENT, NAME, Editor
from kalvora import TEXT, Kalvora
from trouble import QUIET

with Kalvora(notes={"Gym.txt": "||Mat"}, settings=QUIET) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("Gym")
    text = program.main.control(TEXT)
    text.click()
    program.screen.key("ctrl+a", "Delete")
    program.screen.type("a towel")
    program.wait_until(lambda: text.text == "a towel", "what is typed in the main window")
    editor = Editor(program)
    editor.fill(NAME, "Rent")
    editor.fill(CONTENT, "to be paid")
    program.wine.spawn(["wineboot", "--end-session"], program.folder, {})
    program.exit_code()
    wait_for_draft(program, "Gym.txt", b"||a towel", "the end of the session")
    wait_for_draft(program, "Rent.tx1", b"||to be paid", "the end of the session")
