"""If this fails, what the user typed is lost, or nothing is said, when the notes folder takes no files or is gone."""

from editor import CONTENT, NAME, Editor, note_files, wait_for_files
from kalvora import TEXT, TITLE, Kalvora
from trouble import QUIET, expect_error, expect_refusal, obey_file_modes, read_only

NOTES = {"a.txt": b"7|30|Alpha", "b.txt": b"||Bravo"}
CANNOT_WRITE, CANNOT_DELETE = "This file cannot be written: ", "This file cannot be deleted: "


def type_note(program, title, text):
    program.main.control(TITLE).set_text(title)
    program.main.control(TEXT).set_text(text)


def expect_typed(program, title, text):
    assert program.main.visible
    assert (program.main.control(TITLE).text, program.main.control(TEXT).text) == (title, text), "still typed in"


def a_folder_that_takes_nothing():
    with Kalvora("read-only", notes=NOTES, settings=QUIET) as program:
        program.start_and_wait_for_tray()
        program.open_window()
        with read_only(program.folder / "notes"):
            for title in ("a", "c"):
                type_note(program, title, "changed")
                expect_refusal(program, "Save", CANNOT_WRITE, f"\\notes\\{title}.txt")
                expect_typed(program, title, "changed")
            for button in ("Delete", "Fast Delete"):
                expect_refusal(program, button, CANNOT_DELETE, "\\notes\\a.txt")
                expect_typed(program, "c", "changed")
            program.press("Right")
            program.shows("b")
            program.press("Left")
            program.shows("a")
            type_note(program, "c", "changed")
        program.press("Save")
        wait_for_files(program, {"c.txt": b"7|30|changed", "b.txt": NOTES["b.txt"]})
        assert program.end() == 0


def a_folder_that_goes_away():
    with Kalvora("gone", notes=NOTES, settings=QUIET) as program:
        folder, away = program.folder / "notes", program.folder / "notes away"
        program.start_and_wait_for_tray()
        program.open_window()
        type_note(program, "c", "typed before")
        folder.rename(away)
        program.press("Save")
        expect_error(program, CANNOT_WRITE, "\\notes\\c.txt")
        expect_typed(program, "c", "typed before")
        assert not folder.exists()
        for button in ("Fast Delete", "Delete"):
            program.press(button)
            expect_error(program, "This file cannot be deleted, it is gone already: ", "\\notes\\a.txt")
        expect_typed(program, "c", "typed before")
        type_in_the_editor(program)
        away.rename(folder)
        assert note_files(program) == NOTES
        type_note(program, "c", "typed after")
        program.press("Save")
        program.wait_until(lambda: note_files(program).get("c.txt", b"").endswith(b"typed after"), "the new note")
        assert set(note_files(program)) >= {"b.txt", "c.txt"}
        assert program.end() == 0


def type_in_the_editor(program):
    """The folder is away: the editor opens without a name, and what is typed stays in it when it cannot be saved."""
    editor = Editor(program)
    assert editor.names == []
    editor.new("Run")
    editor.fill(CONTENT, "Shoes")
    editor.save()
    program.message_box("Empty value").answer("OK")
    expect_error(program, CANNOT_WRITE, "\\notes\\Run.tx1")
    assert (editor[NAME].text, editor[CONTENT].text) == ("Run", "Shoes")
    editor.close()


def paging_while_it_is_away():
    with Kalvora("away", notes=NOTES, settings=QUIET) as program:
        folder, away = program.folder / "notes", program.folder / "notes away"
        program.start_and_wait_for_tray()
        program.open_window()
        program.shows("a")
        folder.rename(away)
        program.press("Right")
        program.press("Right")
        program.shows("Untiled")
        away.rename(folder)
        program.press("Right")
        program.shows("b")
        program.press("Left")
        program.shows("a")
        assert program.message_boxes() == []
        assert program.end() == 0


def a_start_without_the_folder():
    with Kalvora("none", settings=QUIET) as program:
        (program.folder / "notes").rmdir()
        program.start_and_wait_for_tray()
        program.open_window()
        program.shows("Untiled")
        for button in ("Left", "Right", "Delete", "Fast Delete"):
            program.press(button)
            program.shows("Untiled")
        assert program.message_boxes() == []
        type_note(program, "First", "text")
        program.press("Save")
        expect_error(program, CANNOT_WRITE, "\\notes\\First.txt")
        expect_typed(program, "First", "text")
        (program.folder / "notes").mkdir()
        program.press("Save")
        wait_for_files(program, {"First.txt": b"||text"})
        assert program.end() == 0


obey_file_modes()
a_folder_that_takes_nothing()
a_folder_that_goes_away()
paging_while_it_is_away()
a_start_without_the_folder()
