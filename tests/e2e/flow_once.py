"""If this fails, a note for one date is not stored as it was picked, does not ring on its date or rings on another day,
or who did not choose such notes meets them all the same."""

from editor import (CONTENT, KINDS, NAME, ONCE, ONCE_DATE, ONCE_TIME, Editor, note_files, wait_for_files)
from kalvora import TEXT, TITLE
from reminders import RINGING, RingingKalvora

CHOSEN = RINGING | {"Comfort": {"Once_notes": "True"}}
BROWSING = {"Browsing.txt": "||Nothing is due here"}
NO_SUCH_DATE = "2026|2|31|9|30|Thirty-one days"
DENTIST = b"2026|11|23|9|15|Upstairs"


def make_by_keyboard(program, editor):
    """From the name to Save without the mouse; the date is one day after today."""
    editor.choose_tab(ONCE)
    editor.new("Dentist")
    assert "2026" in editor[ONCE_DATE].text, editor[ONCE_DATE].text
    assert [editor[ONCE_TIME + part].text for part in (0, 1)] == ["10", "0"], "the next full hour"
    today = editor[ONCE_DATE].text
    screen = program.screen
    screen.key("Tab")
    program.wait_until(lambda: editor.focus == editor[ONCE_DATE].handle, "the keyboard in the date")
    # The weekday comes first: a day on is the next one.
    screen.key("Right", "Up")
    program.wait_until(lambda: editor[ONCE_DATE].text != today, "another date")
    screen.key("Tab")
    screen.type("9")
    editor.wait_for_text(ONCE_TIME, "9")
    screen.key("Tab")
    screen.type("15")
    editor.wait_for_text(ONCE_TIME + 1, "15")
    # The half of the day cannot be chosen in 24-hour time.
    screen.key("Tab")
    program.wait_until(lambda: editor.focus == editor[CONTENT].handle, "the keyboard in the text")
    screen.type("Upstairs")
    editor.wait_for_text(CONTENT, "Upstairs")
    program.keep_picture("editor-once")
    screen.key("alt+s")
    editor.wait_for_names("Bad", "Dentist")


def a_date_that_there_is_not_is_said(program, editor):
    editor.pick("Bad")
    notice = [one.text for one in editor.window.controls("Static") if one.id == 1999]
    assert notice == ["This note's date does not exist: today is shown in its place."], notice
    assert editor[CONTENT].text == NO_SUCH_DATE.split("|")[-1]
    program.keep_picture("editor-once-no-date")


def who_chose_them():
    notes = BROWSING | {"Bad.tx5": NO_SUCH_DATE}
    with RingingKalvora("chosen", settings=CHOSEN, notes=notes, clock="2026-11-22 09:02:30") as program:
        program.start_and_wait_for_tray()
        told = program.message_box(title="Error!")
        assert told.message == "These notes do not ring, because they cannot be read:\r\nBad.tx5", told.message
        told.answer("OK")
        editor = Editor(program)
        before = note_files(program)
        make_by_keyboard(program, editor)
        wait_for_files(program, before | {"Dentist.tx5": DENTIST})
        a_date_that_there_is_not_is_said(program, editor)
        editor.pick("Dentist")
        assert editor[NAME].text == "Dentist"
        editor.close()
        wait_for_files(program, before | {"Dentist.tx5": DENTIST})
        program.pass_in_silence("2026-11-22 09:15:00")
        program.pass_in_silence("2026-11-23 09:14:00")
        program.ring_and_dismiss("2026-11-23 09:15:00", "Dentist", "Upstairs")
        program.pass_in_silence("2026-11-23 09:16:00")
        program.pass_in_silence("2026-11-24 09:15:00")
        assert program.end() == 0


def who_did_not():
    notes = BROWSING | {"Dentist.tx5": DENTIST.decode(), "Bad.tx5": NO_SUCH_DATE, "Tea.tx1": "9|16|Every day"}
    with RingingKalvora("not-chosen", notes=notes, clock="2026-11-23 09:13:30") as program:
        program.start_and_wait_for_tray()
        program.pass_in_silence("2026-11-23 09:15:00")
        program.ring_and_dismiss("2026-11-23 09:16:00", "Tea", "Every day")
        # Closing the editor rings again what is due in that minute.
        program.pass_in_silence("2026-11-23 09:17:00")
        editor = Editor(program)
        assert sorted(editor.pages) == list(range(len(KINDS))), editor.pages
        for _ in KINDS:
            program.screen.key("ctrl+Tab")
        editor.wait_for_page(0)
        editor.close()
        # It is a file like any other: its title is shown, and nothing of what is in it.
        program.open_window()
        program.shows("Bad")
        assert program.main.control(TEXT).text == "", program.main.control(TITLE).text
        assert not program.message_boxes()
        assert program.end() == 0


who_chose_them()
who_did_not()
