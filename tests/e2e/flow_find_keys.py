"""If this fails, the user cannot find a note by the keyboard alone: Ctrl+F opens nothing, also under a reminder, or no
key leads from the words to the note and back."""

from coming import editor_on
from finding import ROWS, TITLE, WORDS, Find
from kalvora import TITLE as NAME_FIELD
from reminders import RINGING, WINDOW, RingingKalvora

NOTES = {"Gym.tx1": "7|30|Mat and towel", "Rent.tx3": "28|||Pay it, then a towel", "Swim.tx1": "21|0|Cap, towel and mat"}
REPEATING = 1.5  # seconds; a key that is held comes again after 0.7
SETTINGS = {**RINGING, "Graph": {**WINDOW, "Window_X": "20", "Window_Y": "20"}, "Comfort": {"Ring_while_out": "True"}}


def words_to_note(program):
    program.main.control(NAME_FIELD).click()
    program.screen.key("ctrl+f")
    find = Find(program)
    assert find.notice == "3 notes.", find.notice
    find.type("towel")
    find.wait_for_names("Gym", "Rent", "Swim")
    program.screen.type(' "towel and')
    find.wait_for_rows(("Swim", "Daily", "Cap, towel and mat"))
    program.screen.key("Return")
    window = editor_on(program, "Swim")
    content = window.control(2020)
    program.wait_until(lambda: program.wine.ask("caret", content.handle) == [5, 14], "the phrase to be selected")
    held_enter(program, find, window)
    program.screen.key("Escape")
    program.wait_until(lambda: not window.visible, "the editor to close")


def held_enter(program, find, editor):
    """It leads on by one window only, and writes over nothing that is selected in the note."""
    content = editor.control(2020)
    text = content.text
    program.main.control(NAME_FIELD).click()
    program.screen.key("ctrl+f")
    find.wait_for_focus(WORDS)
    # By its name alone, so that what was selected stays so.
    find.type("swim")
    find.wait_for_names("Swim")
    program.screen.hold_key("Return", REPEATING)
    program.wait_until(lambda: program.wine.ask("focus", editor.handle) == content.handle, "the keyboard in the text")
    assert program.front.handle == editor.handle
    assert content.text == text, "the held key wrote"
    program.screen.key("ctrl+f", "Delete")
    program.screen.type("gym")
    program.screen.hold_key("Return", REPEATING)
    find.wait_for_names("Gym")
    assert program.front.handle == find.window.handle, "the held key went on to the note"
    program.screen.key("Escape")
    find.wait_until_closed()
    content.click()


def rows_and_back(program):
    program.main.control(NAME_FIELD).click()
    program.screen.key("ctrl+f")
    find = Find(program)
    assert len(program.windows(title=TITLE)) == 1
    find.type("towel")
    find.wait_for_names("Gym", "Rent", "Swim")
    program.screen.key("Down", "Down")
    program.wait_until(lambda: program.wine.ask("rowselected", find[ROWS].handle) == 1, "the second row")
    program.keep_picture("find-keys")
    program.screen.key("Up", "Up")
    find.wait_for_focus(WORDS)
    program.screen.key("Down", "Return")
    window = editor_on(program, "Gym")
    program.screen.key("ctrl+f", "Delete")
    program.screen.type("pay")
    program.screen.key("Return")
    find.wait_for_names("Rent")
    program.wait_until(lambda: program.front.handle == find.window.handle, "Find in front of the editor")
    program.screen.key("Escape")
    find.wait_until_closed()
    window.control(2020).click()
    program.screen.key("Escape")
    program.wait_until(lambda: not window.visible, "the editor to close")


def under_a_reminder(program):
    program.set_clock("2026-11-23 07:29:58")
    program.expect_reminder("Gym", "Mat and towel")
    program.main.control(NAME_FIELD).click()
    program.screen.key("ctrl+f")
    find = Find(program)
    find.type("cap")
    find.wait_for_names("Swim")
    program.screen.key("Escape")
    find.wait_until_closed()


with RingingKalvora(notes=NOTES, settings=SETTINGS, clock="2026-11-23 07:20:10") as program:
    program.start_and_wait_for_tray()
    program.open_window()
    words_to_note(program)
    rows_and_back(program)
    under_a_reminder(program)
    assert program.end() == 0
