"""If this fails, a reminder dismissed in another way than at its close button keeps the next one from coming, or comes
to stay."""

from kalvora import TITLE
from reminders import RINGING, WINDOW, RingingKalvora

NOTES = {"Browsing.txt": "||Nothing is due here", "Call.txt": "7|31|Phone home", "Gym.txt": "7|30|Run",
         "Pills.tx1": "7|30|Two of them", "Tea.tx1": "7|30|Green"}

with RingingKalvora(notes=NOTES, clock="2026-11-21 07:29:30") as program:
    program.start_and_wait_for_tray()
    program.ring_at("2026-11-21 07:30:00", "Gym", "Run")

    # A question that is cancelled changes nothing.
    program.press("Fast Delete")
    program.message_box("Delete").answer("Cancel")
    program.expect_reminder("Gym", "Run")
    assert program.exists("notes/Gym.txt")

    program.press("Fast Delete")
    program.message_box("Delete").answer("OK")
    program.expect_reminder("Pills", "Two of them")
    assert not program.exists("notes/Gym.txt")
    assert program.exists("notes/Pills.tx1")

    program.tray.double_click()
    program.expect_reminder("Tea", "Green")
    program.wait_until(lambda: program.alarms_heard() == 3, "the alarm of each reminder")
    program.tray.double_click()
    program.wait_until(lambda: not program.main.visible, "the window to go after the last reminder")
    program.open_window()
    program.expect_browsing("Browsing")

    # What falls due while the window is out waits until the user has saved.
    program.set_clock("2026-11-21 07:30:58")
    program.wait_until(lambda: program.clock().second in range(5, 50), "the minute to begin")
    program.expect_browsing("Browsing")
    assert program.alarms_heard() == 3, program.heard()
    program.press("Save")
    program.expect_reminder("Call", "Phone home")
    program.wait_until(lambda: program.alarms_heard() == 4, "the alarm")
    # The save itself looks for what is due in this minute, and so the note comes once more.
    program.press("Minimize")
    program.expect_reminder("Call", "Phone home")
    program.dismiss()
    program.open_window()
    program.expect_browsing("Browsing")
    assert program.main.control(TITLE).text == "Browsing"
    assert program.end() == 0

# The second press of a double click is not for the reminder that came at the first one.
with RingingKalvora("double-click", notes=NOTES, settings={**RINGING, "Graph": {**WINDOW, "Win1_Jump": "0"}},
                    clock="2026-11-21 07:29:30") as program:
    program.start_and_wait_for_tray()
    program.ring_at("2026-11-21 07:30:00", "Gym", "Run")
    program.main.click(*program.middle_of("Minimize"), times=2)
    program.expect_reminder("Pills", "Two of them")
    program.wait_until_standing()
    program.expect_reminder("Pills", "Two of them")
    program.press("Minimize")
    program.expect_reminder("Tea", "Green")
    program.dismiss()
    program.wait_until(lambda: program.alarms_heard() == 3, "the alarm of each reminder")
    assert program.end() == 0
