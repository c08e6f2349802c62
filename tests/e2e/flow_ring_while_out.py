"""If this fails, a reminder does not come into the open window of a user who wants it there, or it takes with it what
was being typed."""

from kalvora import TEXT
from reminders import RINGING, RingingKalvora

NOTES = {"Browsing.txt": "||Nothing is due here", "Gym.txt": "7|30|Run", "Pills.tx1": "7|30|Two of them",
         "Tea.txt": "7|31|Now"}
WANTED = {**RINGING, "Comfort": {"Ring_while_out": "True"}}


def type_half_a_sentence(program):
    """With the keyboard, and the caret is left in the middle of it."""
    field = program.main.control(TEXT)
    field.click()
    program.screen.key("ctrl+End")
    program.screen.type(" and half a sent")
    program.wait_until(lambda: field.text == "Nothing is due here and half a sent", "the words")
    for _ in range(4):
        program.screen.key("Left")


def expect_the_words_back(program, place):
    program.expect_browsing("Browsing")
    main = program.main
    assert main.visible and main.place == place
    assert main.control(TEXT).text == "Nothing is due here and half a sent"
    assert program.read("notes/Browsing.txt") == b"||Nothing is due here", "unsaved still"
    # The keyboard, the caret and what is typed now go on where they were.
    program.screen.type("x")
    program.wait_until(lambda: main.control(TEXT).text == "Nothing is due here and half a xsent", "the caret's place")


with RingingKalvora(notes=NOTES, settings=WANTED, clock="2026-11-21 07:29:20") as program:
    program.start_and_wait_for_tray()
    program.open_window()
    type_half_a_sentence(program)
    place = program.main.place
    program.set_clock("2026-11-21 07:29:58")
    program.expect_reminder("Gym", "Run")
    program.wait_until(lambda: program.alarms_heard() == 1, "the alarm")
    assert program.main.place == place, "the window stays where it is"
    program.keep_picture("reminder-in-open-window")
    program.screen.type("not into the reminder")
    # One that is on show stays, whatever the clock says.
    program.set_clock("2026-11-21 07:30:58")
    program.wait_until(lambda: program.clock().minute == 31 and program.clock().second > 4, "the next minute")
    program.expect_reminder("Gym", "Run")
    program.press("Minimize")
    program.expect_reminder("Pills", "Two of them")
    program.press("Minimize")
    program.expect_reminder("Tea", "Now")
    assert program.alarms_heard() == 3, program.heard()

    # The keyboard alone puts it away, too.
    program.screen.key("alt+F4")
    expect_the_words_back(program, place)

    # Not in the minute of a note, which a save would ring once more.
    program.set_clock("2026-11-21 07:40:10")
    program.press("Save")
    program.wait_until(lambda: program.read("notes/Browsing.txt") == b"||Nothing is due here and half a xsent",
                       "the words to be saved")
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to go")
    assert program.end() == 0
