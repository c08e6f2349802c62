"""If this fails, a note that rang comes again in its minute, after a save or at a start, though the user ticked that it
rings once; or it does not for a user who did not."""

import datetime

import options_dialog as options
from editor import Editor
from kalvora import TEXT, Kalvora
from options_dialog import tick_comfort, tick_comfort_by_key
from reminders import QUIET_AFTER, RINGING_OUT, RingingKalvora

NOTES = {"Browsing.txt": "||Nothing is due here", "Gym.txt": "7|30|Run", "Pills.tx1": "7|31|Two of them",
         "Tea.tx1": "7|40|Green"}
GYM, PILLS = ("Gym", "Run"), ("Pills", "Two of them")


def save_in_the_minute(program, minute, text):
    """Of the note Gym, that rang in it and was put away; the window is out then."""
    program.ring_and_dismiss(minute, "Gym", "Run")
    program.open_window()
    program.shows("Browsing")
    program.set_clock(minute[:-2] + "20")
    program.main.control(TEXT).set_text(text)
    program.press("Save")
    program.wait_until(lambda: program.read("notes/Browsing.txt") == f"||{text}".encode(), "the note to be saved")


def start_in_second_0(program, day):
    """In the minute of the note Tea, which comes once at least; second 1 passes with it on show."""
    start = datetime.datetime.fromisoformat(f"{day} 07:40:00")
    program.wait_until(lambda: not program.tray.there, "the tray icon to go")
    program.hold_clock(start)
    program.start_and_wait_for_tray()
    program.expect_reminder("Tea", "Green")
    program.set_clock(f"{day} 07:39:58")
    passed = start.replace(second=QUIET_AFTER)
    program.wait_until(lambda: program.clock().replace(tzinfo=None) >= passed, "second 1 to pass")


def by_mouse():
    with RingingKalvora("once_a_minute", notes=NOTES, clock="2026-11-21 07:28:20") as program:
        program.start_and_wait_for_tray()
        save_in_the_minute(program, "2026-11-21 07:30:00", "Saved")
        program.expect_reminder("Gym", "Run")
        program.dismiss()
        assert program.end() == 0
        start_in_second_0(program, "2026-11-21")
        assert program.alarms_heard() == 3, program.heard()
        program.press("Minimize")
        program.wait_until(lambda: program.alarms_heard() == 4, "the alarm once more")
        program.expect_reminder("Tea", "Green")
        program.dismiss()

        tick_comfort(program, options.ONCE_A_MINUTE)
        save_in_the_minute(program, "2026-11-22 07:30:00", "Saved again")
        program.expect_browsing("Browsing")
        program.dismiss()
        # What waited would come before it.
        program.ring_and_dismiss("2026-11-22 07:31:00", "Pills", "Two of them")
        assert program.end() == 0
        start_in_second_0(program, "2026-11-22")
        program.dismiss()
        assert program.alarms_heard() == 7, program.heard()
        assert program.end() == 0


def expect_by_key(program, clock, *reminders):
    """At this moment they come into the open window, one after the other, and F8 puts them away."""
    program.take_keyboard()
    program.set_clock(clock)
    for title, text in reminders:
        program.expect_reminder(title, text)
        program.screen.key("F8")
    program.expect_browsing("Browsing")


def close_the_editor(program):
    """Which looks for what is due in this minute, as a save does."""
    editor = Editor(program, Kalvora.choose_by_key)
    program.screen.key("Escape")
    editor.wait_until_closed()


def by_keyboard():
    with RingingKalvora("once_a_minute_keys", notes=NOTES, settings=RINGING_OUT,
                        clock="2026-11-21 07:28:20") as program:
        program.start_and_wait_for_tray()
        program.wait_until_standing()
        tick_comfort_by_key(program, options.RING_WHILE_OUT)
        expect_by_key(program, "2026-11-21 07:29:58", GYM)
        program.set_clock("2026-11-21 07:30:20")
        close_the_editor(program)
        expect_by_key(program, "2026-11-21 07:30:58", GYM, PILLS)
        tick_comfort_by_key(program, options.ONCE_A_MINUTE)
        expect_by_key(program, "2026-11-22 07:29:58", GYM)
        program.set_clock("2026-11-22 07:30:20")
        close_the_editor(program)
        expect_by_key(program, "2026-11-22 07:30:58", PILLS)
        assert program.alarms_heard() == 5, program.heard()
        assert program.end() == 0


by_mouse()
by_keyboard()
