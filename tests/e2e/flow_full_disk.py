"""If this fails, a full disk or a protected note costs the user a note, or is met without a word."""

import resource

from editor import files_in, note_files
from kalvora import TEXT, TITLE, Kalvora
from trouble import expect_refusal

ROOM = 8192  # bytes that fit into a file while the disk is full
OLD = b"7|30|" + b"o" * 20000
SETTINGS = {"Graph": {"Window_X": "300", "Window_Y": "200", "Win1_Jump": "100"},
            "Sys": {"Fast_delete_msg": "False"}}


def limit_files(program, room):
    """From now on no file of the program can grow beyond `room`: a write ends short, and the next fails."""
    resource.prlimit(program.process_id, resource.RLIMIT_FSIZE, (room, resource.RLIM_INFINITY))


def a_full_disk_keeps_the_old_note(program, title):
    """Saves under a title while there is no room, and again when there is."""
    before = note_files(program)
    new = "n" * 15000
    program.main.control(TITLE).set_text(title)
    program.main.control(TEXT).set_text(new)
    program.wait_until(lambda: any(new.encode() in draft for draft in files_in(program.folder / "backup").values()),
                       "what was typed to be kept while there is room")
    limit_files(program, ROOM)
    expect_refusal(program, "Save", "This file cannot be written: ", f"\\notes\\{title}.txt")
    assert note_files(program) == before, "every note as it was, and nothing half written beside them"
    assert program.main.control(TEXT).text == new, "what the user typed is still there"
    expect_refusal(program, "Save", "This file cannot be written: ", f"\\notes\\{title}.txt")
    assert note_files(program) == before
    limit_files(program, resource.RLIM_INFINITY)
    program.press("Save")
    program.wait_until(lambda: note_files(program).get(f"{title}.txt") == b"7|30|" + new.encode(), "the new note")


def a_protected_note_stays(program):
    before = note_files(program)
    (program.folder / "notes" / "b.txt").chmod(0o444)
    program.main.control(TEXT).set_text("changed")
    expect_refusal(program, "Save", "This file cannot be written: ", "\\notes\\b.txt")
    expect_refusal(program, "Delete", "This file cannot be deleted: ", "\\notes\\b.txt")
    expect_refusal(program, "Fast Delete", "This file cannot be deleted: ", "\\notes\\b.txt")
    program.main.control(TITLE).set_text("c")
    expect_refusal(program, "Save", "This file cannot be deleted: ", "\\notes\\b.txt")
    program.main.control(TITLE).set_text("b")
    assert note_files(program) == before
    kept = [content for name, content in files_in(program.folder / "backup").items() if name.startswith("b ")]
    assert kept.count(before["b.txt"]) == 1, "five refusals, one copy"
    assert program.main.visible and program.main.control(TEXT).text == "changed"
    (program.folder / "notes" / "b.txt").chmod(0o644)


with Kalvora("full-disk", notes={"a.txt": OLD}, settings=SETTINGS) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
    a_full_disk_keeps_the_old_note(program, "a")
    a_full_disk_keeps_the_old_note(program, "b")
    assert list(note_files(program)) == ["b.txt"], "renamed when there was room"
    a_protected_note_stays(program)
    program.press("Save")
    program.wait_until(lambda: note_files(program) == {"b.txt": b"7|30|changed"}, "the note when it may be written")
    assert program.end() == 0
