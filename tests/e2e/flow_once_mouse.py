"""If this fails, a note for one date cannot be made with the mouse alone, or is not stored, or does not ring, as it was
clicked."""

import options_dialog as options
from editor import HALF_OF_DAY, NAME, NEW, ONCE, ONCE_DATE, ONCE_TIME, Editor, wait_for_files
from options_dialog import tick_comfort
from reminders import RINGING, RingingKalvora

NOTES = {"Browsing.txt": "||Nothing is due here"}
SETTINGS = {**RINGING, "Sys": {"AmPm": "True"}}
ARROW = 10  # from the right edge of a box, its arrow
CALENDAR, CHOICES = "SysMonthCal32", "ComboLBox"
WEDNESDAY_25 = (141, 127)  # of November 2026, which begins on a Sunday
CHOICE = 13  # the height of one, in the system's dialog font
EIGHT, PM = 8, 1  # counted from 0
HALF = HALF_OF_DAY + 3


def open_by_arrow(program, box, class_name):
    box.click(box.place[2] - ARROW, None)
    return program.window(class_name)


def choose(program, box, position, text):
    choices = open_by_arrow(program, box, CHOICES)
    choices.click(20, CHOICE * position + CHOICE // 2)
    program.wait_until(lambda: box.text == text, f"{text}, not {box.text}")


def make_by_mouse(program):
    editor = Editor(program)
    editor.choose_tab(ONCE)
    editor[NEW].click()
    editor.wait_for_text(NAME, "New")
    calendar = open_by_arrow(program, editor[ONCE_DATE], CALENDAR)
    program.keep_picture("editor-once-calendar")
    calendar.click(*WEDNESDAY_25)
    editor.wait_for_text(ONCE_DATE, "Wednesday, November 25, 2026")
    choose(program, editor[ONCE_TIME], EIGHT, "8")
    choose(program, editor[HALF], PM, "pm")
    program.keep_picture("editor-once-mouse")
    editor.save()
    wait_for_files(program, {"Browsing.txt": b"||Nothing is due here", "New.tx5": b"2026|11|25|20|0|"})
    editor.wait_for_names("New")
    editor.close()


with RingingKalvora(notes=NOTES, settings=SETTINGS, clock="2026-11-22 09:02:30") as program:
    program.start_and_wait_for_tray()
    tick_comfort(program, options.ONCE_NOTES)
    make_by_mouse(program)
    program.pass_in_silence("2026-11-24 20:00:00")
    program.pass_in_silence("2026-11-25 08:05:00")
    program.ring_and_dismiss("2026-11-25 20:00:00", "New", "")
    assert program.end() == 0
