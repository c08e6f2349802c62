"""If this fails, a reminder's Snooze and Done are not seen, not told, or do not put it off and away by the mouse; or a skin
without a face has buttons."""

import datetime

from reminders import RingingKalvora

NOTES = {"Browsing.txt": "||Nothing is due here", "Gym.txt": "7|30|Run", "Pills.tx1": "7|30|Two of them"}
CLOCK = "2026-11-21 07:29:30"
FACE = ("Snooze", "Done")
TIPS = {"Snooze": "Snooze: remind again later (right-click for when)", "Done": "Done: put the reminder away"}
BESIDE = (160, 290)  # the page, between the two buttons
POPUP = "#32768"
FIRST_ITEM = (30, 14)


def expect_face(program):
    program.screen.move(5, 5)
    for button in FACE:
        program.wait_until(lambda: program.face_looks(button), f"{button} to be seen")


def expect_tip(program, button):
    program.screen.move(*program.main.on_screen(*program.middle_of(button)))
    program.window("tooltips_class32", TIPS[button])


def let_go_beside(program, button):
    program.main.press(*program.middle_of(button))
    program.wait_until(lambda: program.face_looks(button, held=True), f"{button} to look pressed")
    program.keep_picture(f"reminder-face-{button}")
    program.screen.move(*program.main.on_screen(*BESIDE))
    program.wait_until(lambda: program.face_looks(button), f"{button} to look normal when the mouse left it")
    program.screen.release()


def roll_up_and_down(program):
    """What was clicked before is heard by then."""
    height = program.main.place[3]
    program.press("Rool Down/Up")
    program.wait_until(lambda: program.main.place[3] < height, "the notes to roll up")
    program.wait_until_standing()
    program.press("Rool Down/Up")
    program.wait_until(lambda: program.main.place[3] == height, "the notes to roll down")
    program.wait_until_standing()


def expect_back_after(program, minutes):
    """The reminder was put off just now."""
    program.wait_until(lambda: not program.main.visible, "the window to go with what was put off")
    moment, name = program.setting("Snooze", "Put_off").split("|")[:2]
    moment = datetime.datetime.fromisoformat(moment)
    ahead = moment - program.clock().replace(tzinfo=None)
    assert name == "Pills.tx1" and abs(datetime.timedelta(minutes=minutes) - ahead) < datetime.timedelta(minutes=1), ahead
    program.set_clock(str(moment - datetime.timedelta(seconds=2)))
    program.expect_reminder("Pills", "Two of them")
    program.wait_until_standing()


def put_off_by_mouse(program):
    program.press("Snooze")
    expect_back_after(program, 10)
    program.main.click(*program.middle_of("Snooze"), button=3)
    menu = program.window(POPUP)
    program.keep_picture("reminder-face-menu")
    menu.click(*FIRST_ITEM)
    expect_back_after(program, 5)


with RingingKalvora(notes=NOTES, clock=CLOCK) as program:
    program.start_and_wait_for_tray()
    program.ring_at("2026-11-21 07:30:00", "Gym", "Run")
    expect_face(program)
    program.keep_picture("reminder-face")
    for button in FACE:
        expect_tip(program, button)
    for button in FACE:
        let_go_beside(program, button)
    program.press("Minimize")
    program.expect_reminder("Pills", "Two of them")
    expect_face(program)
    roll_up_and_down(program)
    expect_face(program)
    put_off_by_mouse(program)
    program.press("Done")
    program.wait_until(lambda: not program.main.visible, "the window to go after the last reminder")
    program.open_window()
    program.expect_browsing("Browsing")
    assert not any(program.face_looks(button) for button in FACE)
    assert program.end() == 0

with RingingKalvora("reminder_face_none", notes=NOTES, clock=CLOCK) as program:
    (program.folder / "skins" / "Almanac" / "remind2.bmp").unlink()
    program.start_and_wait_for_tray()
    program.ring_at("2026-11-21 07:30:00", "Gym", "Run")
    assert not any(program.face_looks(button) for button in FACE)
    program.keep_picture("reminder-face-none")
    for button in FACE:
        program.press(button)
    roll_up_and_down(program)
    program.expect_reminder("Gym", "Run")
    program.press("Minimize")
    program.expect_reminder("Pills", "Two of them")
    program.dismiss()
    assert program.end() == 0
