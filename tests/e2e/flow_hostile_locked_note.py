"""If this fails, a note that another program has open is lost or half written, or keeps other notes from being shown
and from ringing."""

from editor import held, wait_for_files
from kalvora import TEXT, TITLE
from reminders import RingingKalvora
from trouble import QUIET, expect_error, expect_refusal

NOTES = {"a.txt": b"||Alpha", "b.txt": b"7|30|Bravo", "c.tx1": b"7|30|Charlie"}
CANNOT_READ = "This file cannot be read: "

with RingingKalvora(notes=NOTES, clock="2026-11-21 07:20:00", settings=QUIET) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
    with held(program, "notes/a.txt"):
        program.main.control(TEXT).set_text("changed")
        expect_refusal(program, "Save", "This file cannot be written: ", "\\notes\\a.txt")
        expect_refusal(program, "Fast Delete", "This file cannot be deleted: ", "\\notes\\a.txt")
        # Under another name the new one is taken back when the old one can't be removed.
        program.main.control(TITLE).set_text("d")
        expect_refusal(program, "Save", "This file cannot be deleted: ", "\\notes\\a.txt")
        typed = (program.main.control(TITLE).text, program.main.control(TEXT).text)
        assert typed == ("d", "changed"), "what the user typed is still there"
        # The way over the note that can't be read leads to the others.
        program.press("Right")
        program.shows("b")
        program.press("Left")
        expect_error(program, CANNOT_READ, "\\notes\\a.txt")
        program.press("Right")
        program.shows("b")
        program.press("Delete")
        expect_error(program, CANNOT_READ, "\\notes\\a.txt")
    wait_for_files(program, {"a.txt": NOTES["a.txt"], "c.tx1": NOTES["c.tx1"]})
    program.write("notes/b.txt", NOTES["b.txt"])
    program.press("Left")
    program.shows("a")
    # The save reads all times anew.
    program.press("Save")
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to go")

    with held(program, "notes/b.txt"):
        program.set_clock("2026-11-21 07:29:58")
        expect_error(program, CANNOT_READ, "\\notes\\b.txt")
        program.keep_picture("locked-reminder")
    program.wait_until(lambda: program.main.visible, "the window")
    program.press("Minimize")
    program.expect_reminder("c", "Charlie")
    program.dismiss()
    assert program.end() == 0
