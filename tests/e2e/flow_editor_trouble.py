"""If this fails, a note is lost in the editor when it cannot be saved or deleted, or the user is not told which:
on a full disk, for a read-only file, for one that another program has open, for one that is too large."""

import resource

from drafts import wait_for_draft
from editor import CONTENT, DAILY_TIME, DELETE, NAME, Editor, held, note_files, started, wait_for_files

ROOM = 8192  # bytes that fit into a file while the disk is full
OLD = b"7|30|" + b"o" * 20000
# In lines: unbroken text takes the edit box seconds to lay out.
NEW = ("n" * 38 + "\r\n") * 375
TOO_MUCH = ("x" * 40 + "\r\n") * 780 + "xxx"
NOTES = {"Gym.tx1": OLD, "Swim.tx1": b"8|15|Pool"}


def limit_files(program, room):
    """From now on no file of the program can grow beyond `room`: a write ends short, and the next fails."""
    resource.prlimit(program.process_id, resource.RLIMIT_FSIZE, (room, resource.RLIM_INFINITY))


def expect_refusal(editor, button, message, name):
    """The button's work fails; the box says why and which file, and all is as it was."""
    program = editor.program
    before, page, names = note_files(program), editor.texts(), editor.names
    button()
    box = program.message_box("Error!")
    assert box.message.startswith(message) and box.message.endswith("\\notes\\" + name), box.message
    box.answer("OK")
    assert note_files(program) == before, "every note as it was, and nothing half written beside them"
    assert editor.open and editor.texts() == page, "what the user typed is still there"
    assert editor.names == names


def a_full_disk_keeps_the_old_note(program, editor, name):
    """Saves under a name while there is no room, and again when there is."""
    editor.fill(NAME, name)
    editor[CONTENT].set_text(NEW)
    # While there is room: else a message of the draft that cannot be kept comes in between.
    wait_for_draft(program, f"{name}.tx1", b"7|30|" + NEW.encode(), "typing")
    limit_files(program, ROOM)
    expect_refusal(editor, editor.save, "This file cannot be written: ", f"{name}.tx1")
    limit_files(program, resource.RLIM_INFINITY)
    editor.save()
    wait_for_files(program, {f"{name}.tx1": b"7|30|" + NEW.encode(), "Swim.tx1": NOTES["Swim.tx1"]})
    editor.wait_for_names(*sorted((name, "Swim")))


def a_protected_note_stays(program, editor):
    file = program.folder / "notes" / "Run.tx1"
    file.chmod(0o444)
    editor.fill(CONTENT, "changed")
    expect_refusal(editor, editor.save, "This file cannot be written: ", "Run.tx1")
    expect_refusal(editor, editor[DELETE].click, "This file cannot be deleted: ", "Run.tx1")
    editor.fill(NAME, "Jog")
    expect_refusal(editor, editor.save, "This file cannot be deleted: ", "Run.tx1")
    file.chmod(0o644)


def a_note_that_another_program_has_open_stays(program, editor):
    editor.fill(NAME, "Run")
    with held(program, "notes/Run.tx1"):
        expect_refusal(editor, editor.save, "This file cannot be written: ", "Run.tx1")
        expect_refusal(editor, editor[DELETE].click, "This file cannot be deleted: ", "Run.tx1")
        editor.fill(NAME, "Jog")
        expect_refusal(editor, editor.save, "This file cannot be deleted: ", "Run.tx1")
        expect_refusal_to_read(program, editor)
    editor.save()
    wait_for_files(program, {"Jog.tx1": b"7|30|changed", "Swim.tx1": NOTES["Swim.tx1"]})
    editor.wait_for_names("Jog", "Swim")


def expect_refusal_to_read(program, editor):
    page = editor.texts()
    editor.click_name("Run")
    box = program.message_box("Error!")
    assert box.message.startswith("This file cannot be read: ") and box.message.endswith("Run.tx1"), box.message
    box.answer("OK")
    assert editor.texts() == page


def a_note_too_large_is_refused(editor):
    editor[CONTENT].set_text(TOO_MUCH)
    expect_refusal(editor, editor.save, "This note is too large to be saved, it takes 32768 bytes, and a note can "
                   "hold 32767: ", "Jog.tx1")


with started(notes=NOTES) as program:
    editor = Editor(program)
    editor.pick("Gym")
    editor.wait_for_text(DAILY_TIME, "7")
    a_full_disk_keeps_the_old_note(program, editor, "Gym")
    a_full_disk_keeps_the_old_note(program, editor, "Run")
    a_protected_note_stays(program, editor)
    a_note_that_another_program_has_open_stays(program, editor)
    a_note_too_large_is_refused(editor)
    editor.fill(CONTENT, "short again")
    editor.save()
    wait_for_files(program, {"Jog.tx1": b"7|30|short again", "Swim.tx1": NOTES["Swim.tx1"]})
    editor.close()
