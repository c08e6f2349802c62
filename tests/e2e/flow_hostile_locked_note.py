"""If this fails, a note that another program has open is lost or half written, or keeps other notes from being shown
and from ringing."""

from editor import held, wait_for_files
from kalvora import TEXT, TITLE
from reminders import RingingKalvora
from trouble import QUIET, expect_error, expect_refusal

NOTES = {"a.txt": b"||Alpha", "b.txt": b"7|30|Bravo", "c.tx1": b"7|30|Charlie"}
CANNOT_READ = ("This note cannot be read. Another program may have it open, or Windows keeps its name for a "
               "device.")


def expect_named(program, title):
    """The title of a note that cannot be read, with a sentence in place of its text, and no message."""
    program.shows(title)
    program.wait_until(lambda: program.main.control(TEXT).text == CANNOT_READ, "the sentence")
    assert program.message_boxes() == []


with RingingKalvora(notes=NOTES, clock="2026-11-21 07:20:00",
                    settings={**QUIET, "Sounds": {"Use_Sounds": "True"}}) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
    with held(program, "notes/a.txt"):
        program.main.control(TEXT).set_text("changed")
        expect_refusal(program, "Save", "This file cannot be written: ", "\\notes\\a.txt")
        expect_refusal(program, "Fast Delete", "This file cannot be deleted: ", "\\notes\\a.txt")
        # Under another name the new one is there before the old one can't be removed.
        program.main.control(TITLE).set_text("d")
        program.press("Save")
        expect_error(program, "This file cannot be deleted: ", "\\notes\\a.txt")
        wait_for_files(program, {**NOTES, "d.txt": b"||changed"})
        assert program.main.control(TEXT).text == "changed", "what the user typed is still there"
        # The way over the note that can't be read leads to the others.
        program.press("Right")
        program.shows("b")
        program.press("Left")
        expect_named(program, "a")
        program.keep_picture("locked-note")
        expect_refusal(program, "Save", "This is not saved: ", "")
        program.press("Right")
        program.shows("b")
        program.press("Delete")
        expect_named(program, "a")
    wait_for_files(program, {"a.txt": NOTES["a.txt"], "c.tx1": NOTES["c.tx1"], "d.txt": b"||changed"})
    program.write("notes/b.txt", NOTES["b.txt"])
    program.press("Left")
    program.wait_until(lambda: program.main.control(TEXT).text == "Alpha", "the note that can be read again")
    # The save reads all times anew.
    program.press("Save")
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to go")

    with held(program, "notes/b.txt"):
        program.ring_at("2026-11-21 07:30:00", "b", CANNOT_READ)
        program.keep_picture("locked-reminder")
        # It can't be deleted either; it stays on show until it is put away.
        expect_refusal(program, "Fast Delete", "This file cannot be deleted: ", "\\notes\\b.txt")
        program.expect_reminder("b", CANNOT_READ)
        program.press("Minimize")
    program.expect_reminder("c", "Charlie")
    program.dismiss()
    assert program.end() == 0
