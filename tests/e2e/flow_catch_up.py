"""If this fails, what came due while the computer slept or the program was off is never seen, or is seen twice."""

from reminders import RINGING, RingingKalvora

NOTES = {"Browsing.txt": "||Nothing is due here", "Gym.txt": "7|30|Run", "Pills.tx1": "12|0|Two of them",
         "Rent.tx3": "22|||Pay it"}
MISSED = " MISSED"


def expect_missed(program, title):
    program.shows(title)
    program.wait_until_standing()
    program.wait_until(lambda: program.title_strip() == MISSED, f"the title strip to say{MISSED}")


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
    expect_missed(program, "Pills")
    program.keep_picture("missed")
    program.press("Minimize")
    expect_missed(program, "Gym")
    program.press("Minimize")
    program.expect_reminder("Rent", "Pay it")
    program.dismiss()

    # The computer sleeps: the clock goes on, the program does not see it.
    program.set_clock("2026-11-22 12:40:58")
    program.wait_until(lambda: program.main.visible, "what came due during the sleep")
    expect_missed(program, "Pills")

    # It is killed before anybody put it away.
    program.kill()
    program.set_clock("2026-11-22 13:00:20")
    program.start()
    expect_missed(program, "Pills")
    program.dismiss()

    # The clock goes back, and nothing rings twice; the next day it does.
    program.pass_in_silence("2026-11-22 12:00:00")
    program.ring_and_dismiss("2026-11-23 07:30:00", "Gym", "Run")
    assert program.end() == 0
