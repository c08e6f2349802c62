"""If this fails, what came due while the computer slept or the program was off is never seen, or is seen twice."""

import options_dialog as options
from options_dialog import tick_comfort_by_key
from reminders import RINGING, RINGING_OUT, RingingKalvora

NOTES = {"Browsing.txt": "||Nothing is due here", "Gym.txt": "7|30|Run", "Pills.tx1": "12|0|Two of them",
         "Rent.tx3": "22|||Pay it"}
MISSED = " MISSED"


def expect_missed(program, title, moment):
    """The moment in place of the note's date, as the system writes it."""
    program.shows(title)
    program.wait_until_standing()
    program.wait_until(lambda: program.title_strip() == MISSED, f"the title strip to say{MISSED}")
    shown = program.row("File Date/Time")
    assert shown == moment, shown


def by_mouse():
    with RingingKalvora(notes=NOTES, settings={**RINGING, "Comfort": {"Catch_up": "True"}},
                        clock="2026-11-21 07:00:20") as program:
        # The first start with it has nothing to catch up on.
        program.start_and_wait_for_tray()
        program.pass_in_silence("2026-11-21 07:01:00")
        assert program.setting("Comfort", "Seen") == "2026-11-21 07:01", program.setting("Comfort", "Seen")

        # A power cut, and a start on the next day: each note once, the oldest first, and then the notes of the day.
        program.kill()
        program.set_clock("2026-11-22 09:15:20")
        program.start()
        expect_missed(program, "Pills", "11/21/2026 12:00 PM")
        program.keep_picture("missed")
        program.press("Minimize")
        expect_missed(program, "Gym", "11/22/2026 7:30 AM")
        program.press("Minimize")
        program.expect_reminder("Rent", "Pay it")
        program.dismiss()

        # The computer sleeps: the clock goes on, the program does not see it.
        program.set_clock("2026-11-22 12:40:58")
        program.wait_until(lambda: program.main.visible, "what came due during the sleep")
        expect_missed(program, "Pills", "11/22/2026 12:00 PM")

        # It is killed before anybody put it away.
        program.kill()
        program.set_clock("2026-11-22 13:00:20")
        program.start()
        expect_missed(program, "Pills", "11/22/2026 12:00 PM")
        program.dismiss()

        # The clock goes back, and nothing rings twice; the next day it does.
        program.pass_in_silence("2026-11-22 12:00:00")
        program.ring_and_dismiss("2026-11-23 07:30:00", "Gym", "Run")
        assert program.end() == 0


def by_keyboard():
    """The window is out, and has the keyboard."""
    with RingingKalvora("catch_up_keys", notes=NOTES, settings=RINGING_OUT, clock="2026-11-21 11:58:20") as program:
        program.start_and_wait_for_tray()
        program.wait_until_standing()
        tick_comfort_by_key(program, options.RING_WHILE_OUT, options.CATCH_UP)
        program.take_keyboard()
        # From its first check on.
        program.set_clock("2026-11-21 11:58:58")
        program.wait_until(lambda: program.setting("Comfort", "Seen") == "2026-11-21 11:59", "the check to be noted")
        program.set_clock("2026-11-21 12:10:58")
        expect_missed(program, "Pills", "11/21/2026 12:00 PM")
        program.keep_picture("missed-in-open-window")
        program.screen.key("F8")
        program.expect_browsing("Browsing")
        # A note of a day has no time.
        program.set_clock("2026-11-22 07:40:58")
        expect_missed(program, "Rent", "11/22/2026")
        program.screen.key("F8")
        expect_missed(program, "Gym", "11/22/2026 7:30 AM")
        program.screen.key("F8")
        program.expect_browsing("Browsing")
        # Kalvora was off. Alt+F4 puts it away, too.
        program.kill()
        program.set_clock("2026-11-23 12:40:20")
        program.start()
        expect_missed(program, "Gym", "11/23/2026 7:30 AM")
        program.take_keyboard()
        program.screen.key("F8")
        expect_missed(program, "Pills", "11/23/2026 12:00 PM")
        program.take_keyboard()
        program.screen.key("alt+F4")
        program.wait_until(lambda: program.setting("Comfort", "Waiting") == "", "both to be put away")
        assert program.end() == 0


by_mouse()
by_keyboard()
