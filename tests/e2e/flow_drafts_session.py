"""If this fails, the end of the Windows session takes along what was typed and not saved, in the main window or in
the note editor."""

from drafts import drafts, wait_for_draft
from editor import CONTENT, NAME, Editor
from kalvora import TEXT, Kalvora
from trouble import QUIET

with Kalvora(notes={"Gym.txt": "||Mat"}, settings=QUIET, clock="2026-11-21 07:29:30") as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("Gym")
    editor = Editor(program)
    editor.fill(NAME, "Rent")
    # Drafts keep out of a minute's first second, so that for the next eight none is written by itself.
    program.set_clock("2026-11-21 07:30:54")
    editor.fill(CONTENT, "to be paid")
    program.main.control(TEXT).set_text("a towel")
    unkept = {("Gym.txt", b"||a towel"), ("Rent.tx1", b"||to be paid")}
    assert not unkept & drafts(program), "too early to tell what the end of the session keeps"
    program.wine.spawn(["wineboot", "--end-session"], program.folder, {})
    program.exit_code()
    for name, content in sorted(unkept):
        wait_for_draft(program, name, content, "the end of the session")
