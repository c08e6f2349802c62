"""If this fails, a slip of the hand deletes a note: in a dialog a bare letter presses a button. Or nobody
tells what Delete did and how the note comes back."""

from editor import CONTENT, NAME, NAMES, WEEKDAY, Editor, note_files, started, wait_for_files
from options_dialog import CLOSE, RESIZE, ROLL_DOWN, ROLL_IN, SAVE_POSITION, START_SHOWN, OptionsDialog

NOTES = {"Gym.tx2": "7|30|0|1|0|0|0|0|0|Mat and towel"}
NOTICE = 1999
DELETED = "\u201cGym\u201d was deleted. Restore\u2026 brings it back."
RESTORE, LIST_TITLE = 1992, "Restore a Note"


def letters_on_a_tick_box(program, editor):
    files = note_files(program)
    # The tick box has the keyboard after the click.
    editor[WEEKDAY + 2].click(6, None)
    program.wait_until(lambda: editor[WEEKDAY + 2].checked, "Tuesday to be ticked")
    for key in "d", "n", "c", "s", "r":
        program.screen.key(key)
    # The space bar is heard of after them.
    program.screen.key("space")
    program.wait_until(lambda: not editor[WEEKDAY + 2].checked, "the space bar to take the tick away")
    assert editor.open and editor.message_boxes == []
    assert note_files(program) == files
    assert editor[NAME].text == "Gym" and editor[CONTENT].text == "Mat and towel"


def letters_where_they_belong(program, editor):
    editor[NAMES].click(30, 100)
    program.screen.key("g")
    program.wait_until(lambda: editor.chosen(NAMES) == 0, "the name that begins with the letter")
    editor.fill(CONTENT, "dncsr")


def alt_and_a_letter(program, editor):
    editor.pick("Gym")
    editor[WEEKDAY + 1].click(6, None)
    program.wait_until(lambda: not editor[WEEKDAY + 1].checked, "Monday not to be ticked")
    # As it was: what is not saved would be kept as a draft, which stands above the copy once it is the newer one.
    program.screen.key("space")
    program.wait_until(lambda: editor[WEEKDAY + 1].checked, "Monday to be ticked again")
    program.screen.key("alt+d")
    wait_for_files(program, {})
    notice = editor.window.control(NOTICE)
    program.wait_until(lambda: notice.text == DELETED, "the line that tells of it")
    program.keep_picture("editor-deleted")


def restore_brings_it_back(program, editor):
    editor[RESTORE].click()
    copies = program.window(title=LIST_TITLE)
    assert editor.window.control(NOTICE).text == ""
    program.screen.key("Tab", "Tab", "r", "Escape")
    program.wait_until(lambda: not copies.visible, "the list of copies to go")
    assert note_files(program) == {}
    program.screen.key("alt+r")
    program.window(title=LIST_TITLE)
    program.screen.key("Return")
    wait_for_files(program, {"Gym.tx2": b"7|30|0|1|0|0|0|0|0|Mat and towel"})


def letters_in_the_options(program):
    options = OptionsDialog(program)
    options.page("Window Display")
    options.tick(START_SHOWN)
    others = [options.checked(box) for box in (ROLL_DOWN, ROLL_IN, RESIZE, SAVE_POSITION)]
    chosen = options.checked(START_SHOWN)
    for key in "o", "i", "e", "w", "d":
        program.screen.key(key)
    # The space bar is heard of after them.
    program.screen.key("space")
    program.wait_until(lambda: options.checked(START_SHOWN) != chosen, "the space bar to change the tick")
    assert [options.checked(box) for box in (ROLL_DOWN, ROLL_IN, RESIZE, SAVE_POSITION)] == others
    options.leave(CLOSE)


with started(notes=NOTES) as program:
    editor = Editor(program)
    editor.choose_tab(1)
    editor.pick("Gym")
    letters_on_a_tick_box(program, editor)
    letters_where_they_belong(program, editor)
    alt_and_a_letter(program, editor)
    restore_brings_it_back(program, editor)
    editor.close()
    letters_in_the_options(program)
