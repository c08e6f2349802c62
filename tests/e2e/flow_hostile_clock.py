"""If this fails, a clock that is set forward or back by hours or days makes a note ring twice in its minute, or
silences the program for good."""

from reminders import RingingKalvora

NOTES = {"Gym.txt": "7|30|Run", "Mondays.tx2": "7|40|0|1|0|0|0|0|0|Plan", "Tea.tx1": "15|5|Green"}

# 21 November 2026 is a Saturday.
with RingingKalvora(notes=NOTES, clock="2026-11-21 07:29:30") as program:
    program.start_and_wait_for_tray()
    program.ring_and_dismiss("2026-11-21 07:30:00", "Gym", "Run")
    # Back into the minute that has just rung, and to its very beginning.
    program.set_clock("2026-11-21 07:30:40")
    program.pass_in_silence("2026-11-21 07:30:00")
    # Forward by hours, and back again past the note.
    program.ring_and_dismiss("2026-11-21 15:05:00", "Tea", "Green")
    program.pass_in_silence("2026-11-21 07:20:00")
    program.ring_and_dismiss("2026-11-21 07:30:00", "Gym", "Run")
    # Forward into a Monday and back into the Sunday before.
    program.ring_and_dismiss("2026-11-23 07:40:00", "Mondays", "Plan")
    program.pass_in_silence("2026-11-22 07:41:00")
    program.pass_in_silence("2026-11-22 07:40:00")
    program.ring_and_dismiss("2026-11-22 15:05:00", "Tea", "Green")
    # Years away in both directions.
    program.ring_and_dismiss("2036-02-29 07:30:00", "Gym", "Run")
    program.ring_and_dismiss("2001-01-01 07:40:00", "Mondays", "Plan")
    program.ring_and_dismiss("2026-11-21 07:30:00", "Gym", "Run")
    assert program.message_boxes() == []
    program.open_window()
    program.expect_browsing("Gym")
    assert program.end() == 0
