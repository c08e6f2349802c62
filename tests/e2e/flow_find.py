"""If this fails, the user cannot find a note by its words with the mouse: the window does not open from the editor,
finds the wrong notes, or a row does not lead to the place in its note."""

from coming import editor_on
from editor import CONTENT, DELETE, Editor
from finding import CLOSE, EDITOR_BUTTON, EDITOR_WORDS, TITLE, WORDS, Find
from kalvora import Kalvora

LONG = "".join(f"Line {number}\r\n" for number in range(60))
NOTES = {"Bins.tx2": "7|5|0|0|1|0|0|0|0|Out with them", "Birthday.tx4": "24|11|||A cake from the caf\xe9".encode("cp1252"),
         "Caf\xe9 Noir.tx1": "9|30|Ask for Zo\xeb".encode("cp1252"), "Gym.tx1": "18|30|Mat and towel",
         "Milk.txt": "||Three bottles", "Moving house.tx3": ("28|||" + LONG + "the last towel\r\n").encode(),
         "Rent.tx3": "28|||Pay it"}
SETTINGS = {"Graph": {"Window_X": "20", "Window_Y": "20", "Win1_Jump": "100"}, "Sys": {"AmPm": "False"}}


def selection(program, editor):
    """What is selected in the text of the page."""
    box = editor[CONTENT]
    begin, end = program.wine.ask("caret", box.handle)
    return box.text[begin:end]


def to_the_front(editor, find):
    """The button brings the window that is open already, with the keyboard in its field."""
    editor[EDITOR_BUTTON].click()
    find.wait_for_focus(WORDS)


def from_the_editor(program):
    editor = Editor(program)
    editor.pick("Gym")
    editor.fill(CONTENT, "Mat only")
    editor.fill(EDITOR_WORDS, "towel")
    editor[EDITOR_BUTTON].click()
    find = Find(program)
    find.wait_for_rows(("Gym", "Daily", "Mat and towel"), ("Moving house", "Monthly", "\u2026Line 59 the last towel "))
    program.keep_picture("find")
    return editor, find


def to_the_place(program, editor, find):
    """What is typed over a note is kept where a row leads to another one, and the place is selected there."""
    find.click_row(1)
    editor_on(program, "Moving house")
    editor.wait_for_page(2)
    program.wait_until(lambda: selection(program, editor) == "towel", "the word to be selected")
    assert editor.focus == editor[CONTENT].handle
    program.keep_picture("find-place")
    to_the_front(editor, find)
    find.click_row(0)
    editor_on(program, "Gym")
    editor.wait_for_page(0)
    # It was on its page already, as it was typed over.
    assert editor[CONTENT].text == "Mat only", editor[CONTENT].text
    assert program.read("notes/Gym.tx1") == b"18|30|Mat and towel"
    assert [box.title for box in editor.message_boxes] == [TITLE], "no message of its own"


def by_accents(program, editor, find):
    to_the_front(editor, find)
    find.type("cafe")
    find.wait_for_names("Birthday", "Caf\xe9 Noir")
    program.screen.type(" zoe")
    find.wait_for_rows(("Caf\xe9 Noir", "Daily", "Ask for Zo\xeb"))
    assert find.notice == "1 note.", find.notice


def deleted(program, editor, find):
    """What was typed over another note is kept, and a note that is deleted leaves the list."""
    find.click_row(0)
    editor_on(program, "Caf\xe9 Noir")
    program.wait_until(lambda: selection(program, editor) == "Zo\xeb", "the name in the text")
    program.wait_until(lambda: any((program.folder / "backup").glob("Gym*")), "the draft of what was typed")
    editor[DELETE].click()
    find.wait_for_notice("Nothing is found.")
    program.wait_until(lambda: find.rows() == [], "the deleted note to go")
    to_the_front(editor, find)


# Keep_typing saves what this flow leaves unsaved.
with Kalvora(notes=NOTES, settings=SETTINGS, clock="2026-11-23 08:00:10", unticked=("Keep_typing",)) as program:
    program.start_and_wait_for_tray()
    editor, find = from_the_editor(program)
    to_the_place(program, editor, find)
    by_accents(program, editor, find)
    deleted(program, editor, find)
    find[CLOSE].click()
    find.wait_until_closed()
    editor.close()
    assert program.setting("Find", "Width") is None, "a size that is as designed is not stored"
    assert program.end() == 0
