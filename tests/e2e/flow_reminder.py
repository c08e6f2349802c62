"""If this fails, a due note does not come forward at its minute, or the window does not go back to browsing after it."""

from kalvora import TEXT, TIME, TITLE
from reminders import MAIN_BUTTONS, RingingKalvora

NOTES = {"Browsing.txt": "||Nothing is due here", "Gym.txt": "7|30|Run", "Pills.tx1": "7|30|Two of them"}

with RingingKalvora(notes=NOTES, clock="2026-11-21 07:29:30") as program:
    # Without its face, so that nothing stands where the five buttons are not.
    (program.folder / "skins" / "Almanac" / "remind1.bmp").unlink()
    program.start_and_wait_for_tray()
    assert not program.main.visible
    program.ring_at("2026-11-21 07:30:00", "Gym", "Run")
    program.keep_picture("reminder")

    before = [program.main.control(field).text for field in (TITLE, TEXT, TIME)]
    for field in (TITLE, TEXT, TIME):
        program.main.control(field).type("9")
    for button in MAIN_BUTTONS:
        program.press(button)
    # Once the roll is seen, the keys and presses before it were heard.
    height = program.main.place[3]
    program.press("Rool Down/Up")
    program.wait_until(lambda: program.main.place[3] < height, "the notes to roll up")
    after = [program.main.control(field).text for field in (TITLE, TEXT, TIME)]
    assert after == before, "a reminder can't be typed over, and leads nowhere else"
    program.wait_until_standing()
    program.press("Rool Down/Up")
    program.wait_until(lambda: program.main.place[3] == height, "the notes to roll down")

    program.press("Minimize")
    program.expect_reminder("Pills", "Two of them")
    program.wait_until(lambda: program.alarms_heard() == 2, "the alarm of the second reminder")
    program.dismiss()
    assert program.alarms_heard() == 2, program.heard()

    program.open_window()
    program.expect_browsing("Browsing")
    program.main.control(TITLE).type("9")
    program.wait_until(lambda: "9" in program.main.control(TITLE).text, "the title to take text again")
    assert program.end() == 0
