"""If this fails, a message of a reminder's check stands behind the window that the user works in, or beside it,
where it is not seen, while the main window is hidden."""

from editor import CONTENT, Editor
from reminders import RingingKalvora

BROKEN = "7|30|1|1|1|1|1|yes|1|Friday is no number"

with RingingKalvora(notes={"Good.tx1": "7|30|Rings"}, clock="2026-11-21 23:58:00") as program:
    program.start_and_wait_for_tray()
    assert not program.main.visible
    editor = Editor(program)
    program.write("notes/Broken.tx2", BROKEN)
    # Each new day looks at all notes.
    program.set_clock("2026-11-21 23:59:58")
    box = program.message_box("Error!")
    assert "Broken.tx2" in box.message, box.message
    assert program.front.handle == box.handle, "the message is in front"
    # It belongs to the editor, which waits for the answer.
    program.wait_until(lambda: not editor.window.enabled, "the editor to wait for the answer")
    program.keep_picture("message-over-editor")
    box.answer("OK")
    program.wait_until(lambda: editor.window.enabled, "the editor to go on")
    editor.fill(CONTENT, "Typed afterwards")
    editor.close()
    assert program.end() == 0
