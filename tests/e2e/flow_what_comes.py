"""If this fails, the user cannot see what comes: the window does not open, lists the wrong moments, does not follow
its calendar, or a row does not lead to its note."""

from coming import CALENDAR, CLOSE, EDITOR_BUTTON, ROWS, TITLE, WhatComes, editor_on
from editor import CONTENT, DELETE, Editor
from kalvora import TEXT, TITLE as NAME_FIELD, Kalvora

# A Monday.
CLOCK = "2026-11-23 08:00:10"
NOTES = {"Bins.tx2": "7|5|0|0|1|0|0|0|0|Out with them", "Gym.tx1": "18|30|Mat and towel", "Milk.txt": "||Three bottles",
         "Rent.tx3": "28|||Pay it", "Birthday.tx4": "24|11|||A cake"}
WEEK = [("18:30", "Gym", "Daily", ""), ("7:05", "Bins", "Weakly", ""), *[("18:30", "Gym", "Daily", "")] * 4,
        ("", "Rent", "Monthly", ""), *[("18:30", "Gym", "Daily", "")] * 2]
SETTINGS = {"Graph": {"Window_X": "20", "Window_Y": "20", "Win1_Jump": "100"}, "Sys": {"AmPm": "False"}}


def to_the_front(program, editor, coming):
    """The button brings the window that is open already."""
    editor[EDITOR_BUTTON].click()
    program.wait_until(lambda: coming.focus == coming[ROWS].handle, "the list of what comes in front")


def by_mouse(program):
    editor = Editor(program)
    editor.pick("Gym")
    editor.fill(CONTENT, "Mat only")
    editor[EDITOR_BUTTON].click()
    coming = WhatComes(program)
    coming.wait_for_rows(*WEEK)
    assert coming.span == "7 days" and coming.notice == "", (coming.span, coming.notice)
    assert len(set(coming.dates())) == 7, coming.dates()
    program.keep_picture("what-comes")

    # Saturday the 28th, and the day before today.
    coming.click_day(4, 6)
    program.wait_until(lambda: coming.selected == 6, f"the first row of the 28th, not {coming.selected}")
    coming.click_day(4, 0)
    program.wait_until(lambda: coming.notice == "That day is over.", f"the notice, not {coming.notice}")

    # What is typed over a note is kept where a row leads to another one.
    coming.click_row(1)
    editor_on(program, "Bins")
    editor.wait_for_page(1)
    program.wait_until(lambda: any((program.folder / "backup").glob("Gym*")), "the draft")
    assert program.read("notes/Gym.tx1") == b"18|30|Mat and towel"

    # A row of another kind turns the page, and deletes or saves nothing.
    to_the_front(program, editor, coming)
    coming.click_row(6)
    editor_on(program, "Rent")
    assert sorted(program.folder.glob("notes/*")) == sorted(program.folder / "notes" / name for name in NOTES)
    assert [box.title for box in editor.message_boxes] == [TITLE], "no message of its own"

    # A deleted note leaves the list.
    editor.wait_for_page(2)
    editor[DELETE].click()
    program.wait_until(lambda: "Rent" not in [row[1] for row in coming.rows()], "the deleted note to go")
    to_the_front(program, editor, coming)
    coming[CLOSE].click()
    coming.wait_until_closed()
    editor.close()


def by_keyboard(program):
    program.open_window()
    program.main.control(TEXT).click()
    program.screen.key("F4")
    coming = WhatComes(program)
    assert coming.count == 8
    program.screen.key("Down", "Down", "Return")
    window = editor_on(program, "Bins")
    program.screen.key("Escape")
    program.wait_until(lambda: not window.visible, "the editor to close")

    # The same window comes to the front again.
    program.main.control(NAME_FIELD).click()
    program.screen.key("F4")
    program.wait_until(lambda: coming.focus == coming[ROWS].handle, "the keyboard in the list")
    assert len(program.windows(title=TITLE)) == 1

    # The span, by its letter and the arrows.
    program.screen.key("alt+s", "Down", "Down")
    program.wait_until(lambda: coming.span == "A year", "the span of a year")
    program.wait_until(lambda: coming.count > 365, "a year of rows")
    program.screen.key("Tab", "Tab")
    program.wait_until(lambda: coming.focus == coming[CALENDAR].handle, "the keyboard in the calendar")
    program.screen.key("Right")
    program.wait_until(lambda: coming.selected == 1, f"the first row of tomorrow, not {coming.selected}")
    program.screen.key("Down", "Down")
    program.wait_until(lambda: coming.rows(coming.selected, 1)[0][:2] == ("7:05", "Bins"), "two weeks later")
    assert coming.dates(coming.selected, 1) == coming.dates(coming.selected + 1, 1)
    program.keep_picture("what-comes-year")
    program.screen.key("Return", "Return")
    editor_on(program, "Bins")
    program.screen.key("Escape")
    program.main.control(NAME_FIELD).click()
    program.screen.key("F4")
    program.wait_until(lambda: coming.focus == coming[ROWS].handle, "the keyboard in the list")
    program.screen.key("Escape")
    coming.wait_until_closed()
    assert program.setting("What comes", "Span") == "3", program.setting("What comes", "Span")
    assert program.setting("What comes", "Width") is None, "a size that is as designed is not stored"


def larger(program):
    """Its corner drags it larger, and it opens as large again."""
    program.main.control(TEXT).click()
    program.screen.key("F4")
    coming = WhatComes(program)
    _, _, width, height = coming.window.place
    x, y, list_width, _ = coming[ROWS].place
    coming.window.drag((width - 10, height - 3), (width + 50, height + 37))
    program.wait_until(lambda: coming[ROWS].place == (x, y, list_width + 60, coming[ROWS].place[3]),
                       "the list to grow")
    size = coming.window.place[2:]
    program.keep_picture("what-comes-large")
    program.screen.key("Escape")
    coming.wait_until_closed()
    program.main.control(TEXT).click()
    program.screen.key("F4")
    coming = WhatComes(program)
    assert coming.window.place[2:] == size, (coming.window.place, size)
    program.screen.key("Escape")
    coming.wait_until_closed()


with Kalvora(notes=NOTES, settings=SETTINGS, clock=CLOCK) as program:
    program.start_and_wait_for_tray()
    by_mouse(program)
    by_keyboard(program)
    larger(program)
    assert program.end() == 0
