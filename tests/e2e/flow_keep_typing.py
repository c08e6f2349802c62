"""If this fails, a user who ticked "Keep what I type" and goes by mouse loses what was typed, or finds it in a note of
another kind, or over another note."""

from drafts import drafts
from editor import CONTENT, Editor, note_files, wait_for_files
from kalvora import TEXT, TITLE, Kalvora
from trouble import QUIET, WINDOW

GYM, RENT = b"07|30|0|1|0|0|0|1|0|", b"1|3|1|"
NOTES = {"Gym.tx2": GYM + b"Mat", "Milk.txt": "||Two", "Rent.tx3": RENT + b"pay"}
# Beside the editor, which stands in the middle of a large screen.
SETTINGS = {**QUIET, "Graph": {**WINDOW, "Window_X": "20"}, "Comfort": {"Keep_typing": "True"}}
SCREEN = (1440, 900)
WEEKLY, FAST = 1, 4


def turning_the_page_saves_in_its_own_kind(program, files):
    program.type_over(TEXT, "Mat and towel")
    assert note_files(program) == files, "nothing is saved while it is typed"
    program.press("Right")
    program.shows("Milk")
    files["Gym.tx2"] = GYM + b"Mat and towel"
    wait_for_files(program, files)


def a_new_note_is_called_by_its_first_words(program, files):
    program.press("New")
    program.shows("Untiled")
    program.press("New")
    program.shows("Untiled")
    program.type_over(TEXT, "Buy bread")
    program.press("Right")
    files["Buy bread.txt"] = b"||Buy bread"
    wait_for_files(program, files)
    program.shows("Gym")


def hiding_the_window_renames(program, files):
    program.type_over(TITLE, "Sport")
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to go")
    files["Sport.tx2"] = files.pop("Gym.tx2")
    wait_for_files(program, files)
    program.open_window()
    program.shows("Sport")


def another_note_is_not_written_over(program, files):
    program.press("Left")
    program.shows("Rent")
    program.press("Left")
    program.shows("Milk")
    program.type_over(TEXT, "Three")
    program.type_over(TITLE, "Buy bread")
    program.press("Right")
    question = program.message_box("Not saved")
    assert question.message.startswith("There is already a note of this name: Buy bread"), question.message
    program.keep_picture("keep-typing-taken")
    question.answer("Cancel")
    assert program.main.control(TITLE).text == "Buy bread"
    assert note_files(program) == files
    program.type_over(TITLE, "Milk")
    program.press("Right")
    program.shows("Rent")
    files["Milk.txt"] = b"||Three"
    wait_for_files(program, files)


def save_keeps_the_kind_and_the_note_on_show(program, files):
    program.type_over(TITLE, "A rent")
    program.type_over(TEXT, "pay it")
    program.press("Save")
    files["A rent.tx3"] = RENT + b"pay it"
    del files["Rent.tx3"]
    wait_for_files(program, files)
    program.press("Left")
    program.shows("A rent")
    program.press("Right")
    program.shows("Buy bread")


def the_editor_shows_and_saves_it(program, files):
    program.type_over(TEXT, "Buy rolls")
    editor = Editor(program)
    files["Buy bread.txt"] = b"||Buy rolls"
    wait_for_files(program, files)
    editor.choose_tab(FAST)
    editor.pick("Buy bread")
    editor.wait_for_text(CONTENT, "Buy rolls")
    # Typed in the main window while the editor is open, too.
    program.type_over(TEXT, "Buy cake")
    editor.pick("Milk")
    editor.pick("Buy bread")
    editor.wait_for_text(CONTENT, "Buy cake")
    editor.fill(CONTENT, "Buy tea")
    editor.pick("Milk")
    files["Buy bread.txt"] = b"||Buy tea"
    wait_for_files(program, files)
    editor.fill(CONTENT, "Four")
    editor.choose_tab(WEEKLY)
    files["Milk.txt"] = b"||Four"
    wait_for_files(program, files)
    editor.pick("Sport")
    editor.fill(CONTENT, "Shoes")
    editor.close()
    files["Sport.tx2"] = GYM + b"Shoes"
    wait_for_files(program, files)


def the_end_of_the_program_saves(program, files):
    program.press("Right")
    program.shows("Buy bread")
    program.type_over(TEXT, "Buy soup")
    editor = Editor(program)
    editor.choose_tab(WEEKLY)
    editor.pick("Sport")
    editor.fill(CONTENT, "Mat")
    assert program.end() == 0
    files["Buy bread.txt"], files["Sport.tx2"] = b"||Buy soup", GYM + b"Mat"
    wait_for_files(program, files)


with Kalvora(notes=NOTES, settings=SETTINGS, screen=SCREEN, clock="2026-11-21 06:41:00") as program:
    files = {name: text if isinstance(text, bytes) else text.encode() for name, text in NOTES.items()}
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("Gym")
    for step in (turning_the_page_saves_in_its_own_kind, a_new_note_is_called_by_its_first_words,
                 hiding_the_window_renames, another_note_is_not_written_over, save_keeps_the_kind_and_the_note_on_show,
                 the_editor_shows_and_saves_it, the_end_of_the_program_saves):
        step(program, files)
    # The question about the taken name was about a draft, which went when the note was saved.
    assert drafts(program) == set(), drafts(program)
