"""If this fails, a note that was deleted or changed by mistake is lost: no copy of it is kept beside the notes, or
"Restore…" does not bring it back, or takes another note's place with it."""

from editor import CONTENT, Editor, note_files, started, wait_for_files

NOTES = {"Bread.txt": "||Two loaves", "Gym.tx1": "7|30|Mat and towel", "Milk.txt": "||Three bottles"}
CLOCK = "2026-11-21 09:41:00"

RESTORE, COPIES, RESTORE_IT = 1992, 1994, 1
LIST_TITLE = "Restore a Note"
HEADINGS, ROW = 19, 14  # pixels, in the system's dialog font


def copies(program):
    """Name of a safety copy without its moment -> bytes."""
    folder = program.folder / "backup"
    return {_without_moment(file.name): file.read_bytes() for file in folder.iterdir()} if folder.exists() else {}


def _without_moment(name):
    note, extension = name[:-4], name[-4:]
    assert note[-20:-8].startswith(" 2026-11-21 "), name
    return note[:-20] + extension


def wait_for_copies(program, expected):
    program.wait_until(lambda: copies(program) == expected, f"the copies {expected}, not {copies(program)}")


def deleting_in_the_main_window_keeps_the_notes(program):
    program.open_window()
    program.shows("Bread")
    program.press("Delete")
    program.shows("Gym")
    wait_for_copies(program, {"Bread.txt": b"||Two loaves"})
    program.press("Fast Delete")
    program.message_box("Delete").answer("OK")
    wait_for_files(program, {"Milk.txt": b"||Three bottles"})
    wait_for_copies(program, {"Bread.txt": b"||Two loaves", "Gym.tx1": b"7|30|Mat and towel"})


def changing_in_the_editor_keeps_the_old_text(program, editor):
    editor.choose_tab(4)
    editor.pick("Milk")
    editor.fill(CONTENT, "None")
    program.set_clock("2026-11-21 09:45:00")
    editor.save()
    program.message_box("Empty value").answer("OK")
    wait_for_files(program, {"Milk.txt": b"||None"})
    wait_for_copies(program, {"Bread.txt": b"||Two loaves", "Gym.tx1": b"7|30|Mat and towel",
                              "Milk.txt": b"||Three bottles"})


def open_copies(program, editor):
    editor[RESTORE].click()
    copies = program.window(title=LIST_TITLE)
    program.wait_until(lambda: copies.visible and copies.control(COPIES).visible, "the list of copies")
    return copies


def wait_until_gone(program):
    program.wait_until(lambda: not program.windows(title=LIST_TITLE), "the list of copies to go")


def click_row(copies, row, times=1):
    copies.control(COPIES).click(30, HEADINGS + ROW * row + ROW // 2, times=times)


def a_copy_comes_back_beside_the_note_of_its_name(program, editor):
    listed = open_copies(program, editor)
    program.keep_picture("restore")
    click_row(listed, 0)
    listed.control(RESTORE_IT).click()
    wait_until_gone(program)
    wait_for_files(program, {"Milk.txt": b"||None", "Milk (2).txt": b"||Three bottles"})
    editor.wait_for_names("Milk (2)", "Milk")
    assert editor[CONTENT].text == "None", "the page is as it was"


def a_double_click_brings_a_deleted_note_back(program, editor):
    listed = open_copies(program, editor)
    click_row(listed, 1, times=2)
    wait_until_gone(program)
    editor.wait_for_page(0)
    editor.wait_for_names("Gym")
    assert note_files(program)["Gym.tx1"] == b"7|30|Mat and towel"


def esc_leaves_all_as_it_is(program, editor):
    before = note_files(program)
    open_copies(program, editor)
    program.screen.key("Escape")
    wait_until_gone(program)
    assert editor.open and note_files(program) == before




with started(notes=NOTES, clock=CLOCK) as program:
    deleting_in_the_main_window_keeps_the_notes(program)
    editor = Editor(program)
    changing_in_the_editor_keeps_the_old_text(program, editor)
    a_copy_comes_back_beside_the_note_of_its_name(program, editor)
    a_double_click_brings_a_deleted_note_back(program, editor)
    esc_leaves_all_as_it_is(program, editor)
    editor.close()
    assert len(list((program.folder / "backup").iterdir())) == 3, "restoring uses no copy up"
