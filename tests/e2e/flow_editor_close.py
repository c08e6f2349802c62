"""If this fails, the program goes on with old notes after the editor is closed: the main window shows one that is
gone, or a new reminder does not ring."""

from editor import CONTENT, DAILY_TIME, DELETE, Editor, note_files, started, wait_for_files
from kalvora import TEXT, TITLE

NOTES = {"Apples.txt": "||Red ones", "Bread.txt": "||Two loaves", "Cheese.txt": "||A small one"}
SETTINGS = {"Graph": {"Window_X": "20", "Window_Y": "20", "Win1_Jump": "100"}, "Sys": {"AmPm": "False"}}


def main_shows(program, title, text):
    program.shows(title)
    field = program.main.control(TEXT)
    program.wait_until(lambda: field.text == text, f"the text {text}")


def closing_goes_to_the_first_note(program):
    program.open_window()
    main_shows(program, "Apples", "Red ones")
    program.press("Right")
    program.press("Right")
    main_shows(program, "Cheese", "A small one")
    editor = Editor(program)
    editor.new("Tea")
    editor.fill(DAILY_TIME, "9")
    editor.fill(DAILY_TIME + 1, "42")
    editor.fill(CONTENT, "Ready to drink")
    editor.save()
    wait_for_files(program, note_files(program) | {"Tea.tx1": b"9|42|Ready to drink"})
    main_shows(program, "Cheese", "A small one")
    editor.close()
    main_shows(program, "Apples", "Red ones")
    program.main.control(TEXT).type("x")
    program.press("Right")
    main_shows(program, "Bread", "Two loaves")
    assert note_files(program)["Apples.txt"] == b"||Red ones", "the text was locked"
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to go")


def the_new_note_rings(program):
    program.set_clock("2026-11-21 09:41:58")
    program.wait_until(lambda: program.main.visible, "the reminder")
    program.wait_until_standing()
    main_shows(program, "Tea", "Ready to drink")
    program.keep_picture("editor-reminder")
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to go after the reminder")


def a_deleted_note_rings_no_more(program):
    """The next day at the same time; a note a minute later shows that the program has come by."""
    program.open_window()
    editor = Editor(program)
    editor.pick("Tea")
    editor[DELETE].click()
    editor.wait_for_names()
    editor.new("Water")
    editor.fill(DAILY_TIME, "9")
    editor.fill(DAILY_TIME + 1, "43")
    editor.save()
    editor.wait_for_names("Water")
    editor.close()
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to go")
    program.set_clock("2026-11-22 09:41:58")
    program.wait_until(lambda: program.main.visible, "the reminder", timeout=90)
    program.wait_until_standing()
    main_shows(program, "Water", "")
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to go after the reminder")


def without_notes_the_window_is_empty_and_editable(program):
    program.open_window()
    editor = Editor(program)
    for kind in (0, 4):
        if kind > 0:
            editor.choose_tab(kind)
        while editor.names:
            name = editor.names[0]
            editor.pick(name)
            editor[DELETE].click()
            program.wait_until(lambda name=name: name not in editor.names, f"{name} to go")
    assert not note_files(program)
    editor.close()
    main_shows(program, "Untiled", "")
    program.main.control(TEXT).type("a new start")
    main_shows(program, "Untiled", "a new start")
    assert program.main.control(TITLE).enabled
    program.press("Save")
    wait_for_files(program, {"Untiled.txt": b"||a new start"})


with started(notes=NOTES, settings=SETTINGS, clock="2026-11-21 09:41:10") as program:
    closing_goes_to_the_first_note(program)
    the_new_note_rings(program)
    a_deleted_note_rings_no_more(program)
    without_notes_the_window_is_empty_and_editable(program)
