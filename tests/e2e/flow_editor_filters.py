"""If this fails, the editor takes what no note can hold, saves without asking, or a key does what nobody
expects: letters stay in the numbers, a name gets a "?", Enter loses or closes something, Esc does not close."""

from editor import (CLOSE, CONTENT, DAILY_TIME, EMPTY_VALUE, FAST_TIME, HALF_OF_DAY, MONTHLY_DAY, NAME, NAMES,
                    NEW, TABS, WEEKLY_TIME, YEARLY_DAY, Editor, note_files, started, wait_for_files)

ERRANDS = b"7|30|Post\r\nBank"


def letters_vanish_from_numbers(editor):
    lists = {0: (DAILY_TIME, DAILY_TIME + 1), 1: (WEEKLY_TIME, WEEKLY_TIME + 1),
             2: (MONTHLY_DAY, MONTHLY_DAY + 1, MONTHLY_DAY + 2), 3: (YEARLY_DAY, YEARLY_DAY + 1, YEARLY_DAY + 2),
             4: (FAST_TIME, FAST_TIME + 1)}
    for kind, numbers in lists.items():
        if kind > 0:
            editor.choose_tab(kind)
        for number in numbers:
            editor.type_over(number, "x")
            editor.program.screen.type("12a")
            editor.wait_for_text(number, "12")
            assert editor.caret(number) == (2, 2), "the caret stays where the user types"
            editor.type_over(number, "a")
            # The digit shows that the letter has come, too.
            editor.program.screen.type("5")
            editor.wait_for_text(number, "5")
            editor.program.screen.key("BackSpace")
            editor.wait_for_text(number, "")
            editor.program.screen.type("b")
            assert editor[number].text == ""
    editor.choose_tab(0)


def what_no_name_can_hold_vanishes(editor):
    editor.type_over(NAME, "my/note?")
    editor.wait_for_text(NAME, "mynote")
    editor.program.screen.key("Home", "Right", "Right")
    editor.program.screen.type("*")
    editor.program.screen.type(" ")
    editor.wait_for_text(NAME, "my note")
    assert editor.caret(NAME) == (3, 3), "the caret stays where the user types"
    editor.type_over(NAME, 'a~`!@#$%^&*()-_=+[]{}\\|;:\'",.<>/?9Z')
    editor.wait_for_text(NAME, "a~`@#$%^&()-_=+[]{};',.9Z")


def a_name_with_every_letter_is_a_file(program, editor):
    editor.fill(DAILY_TIME, "1")
    editor.fill(DAILY_TIME + 1, "2")
    editor.save()
    wait_for_files(program, {"Errands.tx1": ERRANDS, "a~`@#$%^&()-_=+[]{};',.9Z.tx1": b"1|2|"})
    editor.wait_for_names("a~`@#$%^&()-_=+[]{};',.9Z", "Errands")


def ctrl_tab_wraps(editor):
    for kind in (1, 2, 3, 4, 0):
        editor.program.screen.key("ctrl+Tab")
        editor.wait_for_page(kind)


def an_empty_value_is_asked_for(program, editor):
    editor.pick("Errands")
    editor.fill(DAILY_TIME, "")
    editor.fill(CONTENT, "Post")
    before, page = note_files(program), editor.texts()
    editor.save()
    box = program.message_box("Empty value")
    program.keep_picture("editor-empty-value")
    assert box.message == EMPTY_VALUE, repr(box.message)
    assert box.buttons == ["OK", "Cancel"], box.buttons
    box.answer("Cancel")
    assert note_files(program) == before, "Cancel leaves the disk as it is"
    assert editor.texts() == page, "Cancel leaves the page as it is"
    editor.save()
    program.message_box("Empty value").answer("OK")
    wait_for_files(program, before | {"Errands.tx1": b"|30|Post"})
    # An empty minute raises the question as well.
    editor.fill(DAILY_TIME, "7")
    editor.fill(DAILY_TIME + 1, "")
    editor.save()
    program.message_box("Empty value").answer("OK")
    wait_for_files(program, before | {"Errands.tx1": b"7||Post"})


def enter_destroys_nothing(program, editor):
    editor.pick("Errands")
    before = note_files(program)
    page = editor.texts()
    for number in (NAMES, NAME, DAILY_TIME, DAILY_TIME + 1, HALF_OF_DAY, TABS):
        if number == NAMES:
            editor.click_name("Errands")
        elif number == HALF_OF_DAY:
            editor.program.screen.key("Tab")  # A click would open the list.
        elif number == TABS:
            editor[TABS].click(26, 11)
        else:
            editor[number].click()
        editor.program.screen.key("Return")
        assert editor.open and editor.texts() == page, f"Enter at {number}"
    editor[CONTENT].click()
    editor.program.screen.key("ctrl+End", "Return")
    editor.program.screen.type("Bank")
    editor.wait_for_text(CONTENT, "Post\r\nBank")
    assert note_files(program) == before, "Enter has neither saved nor deleted"
    assert editor.open and not editor.message_boxes


def esc_closes(program):
    editor = Editor(program)
    editor[HALF_OF_DAY].click()
    editor.program.screen.key("Escape")
    assert editor.open, "Esc closes the list only that is open"
    editor.program.screen.key("Escape")
    editor.wait_until_closed()
    for number in (NAMES, NAME, DAILY_TIME, CONTENT, NEW):
        editor = Editor(program)
        editor[number].click()
        program.screen.key("Escape")
        editor.wait_until_closed()


with started(notes={"Errands.tx1": ERRANDS}) as program:
    editor = Editor(program)
    letters_vanish_from_numbers(editor)
    what_no_name_can_hold_vanishes(editor)
    a_name_with_every_letter_is_a_file(program, editor)
    ctrl_tab_wraps(editor)
    an_empty_value_is_asked_for(program, editor)
    enter_destroys_nothing(program, editor)
    editor[CLOSE].click()
    editor.wait_until_closed()
    esc_closes(program)
