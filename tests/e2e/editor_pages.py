"""Each page of the note editor filled in by mouse and keyboard; each function gives the file that this is saved as."""

from editor import (CONTENT, DAILY_TIME, FAST_TIME, HALF_OF_DAY, MONTH, MONTHLY_DAY, WEEKLY_TIME, YEARLY_DAY)


def fill_daily(editor):
    editor.fill(DAILY_TIME, "07")
    editor.fill(DAILY_TIME + 1, "30")
    editor.choose_letter(HALF_OF_DAY, "p", 1)
    editor.fill(CONTENT, "Pills\nTwo of them")
    return b"19|30|Pills\r\nTwo of them"


def fill_weekly(editor):
    editor.fill(WEEKLY_TIME, "7")
    editor.fill(WEEKLY_TIME + 1, "30")
    editor.tick("Monday", "Friday")
    editor.fill(CONTENT, "Gym")
    return b"7|30|0|1|0|0|0|1|0|Gym"


def fill_monthly(editor):
    editor.fill(MONTHLY_DAY, "20")
    editor.fill(MONTHLY_DAY + 1, "6")
    editor.fill(MONTHLY_DAY + 2, "2")
    editor.fill(CONTENT, "Rent")
    return b"20|6|2|Rent"


def fill_yearly(editor):
    editor.fill(YEARLY_DAY, "14")
    editor.choose_letter(MONTH, "d", 11)
    editor.fill(YEARLY_DAY + 1, "21")
    editor.fill(YEARLY_DAY + 2, "7")
    editor.fill(CONTENT, "Cake")
    return b"14|11|21|7|Cake"


def fill_fast(editor):
    editor.fill(FAST_TIME, "12")
    editor.fill(FAST_TIME + 1, "05")
    editor.choose_letter(HALF_OF_DAY + 2, "p", 1)
    editor.fill(CONTENT, "Bread | butter")
    return b"24|05|Bread | butter"


# By the number of the kind.
FILLS = (fill_daily, fill_weekly, fill_monthly, fill_yearly, fill_fast)
