"""If this fails, a disk without room costs the user a note or what was typed, or nobody says that it is full, or old
safety copies keep the room that a note needs."""

from editor import files_in, wait_for_files
from kalvora import TEXT, TITLE, Kalvora
from trouble import QUIET, SmallDisk, expect_refusal

OLD = b"7|30|" + b"o" * 20000
FULL = "There is no room on the disk for this file: "
COPIES = {"Oldest 2025-01-01 08-00-00.txt": b"||" + b"1" * 9998, "Older 2025-01-02 08-00-00.txt": b"||" + b"2" * 9998,
          "Old 2025-01-03 08-00-00.txt": b"||" + b"3" * 9998}


def copies(program):
    return files_in(program.folder / "backup")


def give_copies(program, new):
    """The safety copies are these and no others."""
    for name in copies(program):
        (program.folder / "backup" / name).unlink()
    for name, content in new.items():
        program.write(f"backup/{name}", content)


def enter(program, title, text):
    program.main.control(TITLE).set_text(title)
    program.main.control(TEXT).set_text(text)


def expect_draft_is_missed(program):
    """It is said, once an editing, that what is typed cannot be kept."""
    box = program.message_box("Error!", timeout=60)
    assert box.message.startswith("What is typed and not saved cannot be kept as a draft."), box.message
    assert FULL in box.message, box.message
    box.answer("OK")


def expect_no_room(program, title, text):
    """Saves in vain; the note on the disk, the copies and what was typed are as they were."""
    before = copies(program)
    expect_refusal(program, "Save", FULL, f"\\notes\\{title}.txt")
    # A draft finds no room either, and brings back what it took away to see.
    program.wait_until(lambda: copies(program) == before, "every copy as it was, and nothing half written beside them")
    assert (program.main.control(TITLE).text, program.main.control(TEXT).text) == (title, text)


def save(program, title, text):
    program.press("Save")
    wait_for_files(program, {f"{title}.txt": b"7|30|" + text.encode()})


def a_full_disk_keeps_the_old_note(program, disk, title, text):
    """Under a title, while there is no room, while there is some, and when there is enough."""
    give_copies(program, {})
    # Before anything is typed, so that no draft of it has room that the note could take.
    disk.leave_room(0)
    enter(program, title, text)
    expect_draft_is_missed(program)
    for room in (0, 5000):
        disk.leave_room(room)
        expect_no_room(program, title, text)
    disk.leave_all_room()
    save(program, title, text)


def old_copies_make_room(program, disk):
    """As many of them as must, the oldest first."""
    give_copies(program, COPIES)
    disk.leave_room(0)
    enter(program, "b", "r" * 15000)
    # No draft takes the room of a copy. A note does.
    expect_draft_is_missed(program)
    save(program, "b", "r" * 15000)
    newest = list(COPIES)[-1]
    assert copies(program) == {newest: COPIES[newest]}, list(copies(program))
    assert program.message_boxes() == []


def copies_that_are_too_small_stay(program, disk):
    give_copies(program, {name: b"||a small one" for name in COPIES})
    enter(program, "b", "short")
    program.wait_until(lambda: b"7|30|short" in copies(program).values(), "what is typed to be kept while there is room")
    disk.leave_room(100)
    enter(program, "b", "v" * 12000)
    expect_draft_is_missed(program)
    expect_no_room(program, "b", "v" * 12000)
    disk.leave_all_room()
    save(program, "b", "v" * 12000)


def deleting_takes_no_room(program, disk):
    """The deleted note is the newest copy afterwards, and no other one went for it."""
    # The window answers when the save before has ended, which takes its draft away after the note is written.
    program.main.control(TITLE).set_text("b")
    before, note = copies(program), program.read("notes/b.txt")
    disk.leave_room(0)
    program.press("Delete")
    wait_for_files(program, {})
    assert program.message_boxes() == []
    after = copies(program)
    new = {name: content for name, content in after.items() if name not in before}
    assert list(new.values()) == [note] and {**before, **new} == after, list(after)
    disk.leave_all_room()


with Kalvora(notes={"a.txt": OLD}, settings=QUIET) as program:
    disk = SmallDisk(program)
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
    a_full_disk_keeps_the_old_note(program, disk, "a", "n" * 15000)
    a_full_disk_keeps_the_old_note(program, disk, "b", "m" * 15000)
    old_copies_make_room(program, disk)
    copies_that_are_too_small_stay(program, disk)
    deleting_takes_no_room(program, disk)
    assert program.end() == 0
