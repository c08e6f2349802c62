"""If this fails, a due note does not come forward, or the window does not go back to browsing after it."""

from kalvora import TEXT, TIME, TITLE, Kalvora

NOTES = {"Browsing.txt": "||Nothing is due here", "Gym.txt": "7|30|Run", "Pills.tx1": "7|30|Two of them",
         "Choir.tx2": "7|30|0|0|0|0|0|0|1|Saturdays", "Class.tx2": "7|30|1|1|1|1|1|1|0|All days but Saturday"}
MAIN_BUTTONS = ("New", "Save", "Delete", "Left", "Right")


def look_of(program, button):
    return program.main.pixel(*program.middle_of(button))


def is_reminder(program, title, text):
    program.wait_until_standing()
    program.shows(title)
    main = program.main
    assert main.control(TEXT).text == text
    for field in (TITLE, TEXT, TIME):
        main.control(field).type("x")
    assert main.control(TITLE).text == title, "a reminder can't be typed over"
    assert main.control(TEXT).text == text


# 21 November 2026 is a Saturday.
with Kalvora(notes=NOTES, clock="2026-11-21 07:29:40", settings={"Sys": {"AmPm": "False"}}) as program:
    program.start_and_wait_for_tray()
    assert not program.main.visible
    program.open_window()
    program.shows("Browsing")
    buttons = {button: look_of(program, button) for button in MAIN_BUTTONS}
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to go")
    program.set_clock("2026-11-21 07:29:58")
    assert not program.main.visible
    program.wait_until(lambda: program.main.visible, "the window to come out with the reminder")

    is_reminder(program, "Gym", "Run")
    program.keep_picture("reminder")
    for button in MAIN_BUTTONS:
        assert look_of(program, button) != buttons[button], f"{button} is gone"
        program.press(button)
    program.shows("Gym")
    program.press("Minimize")
    is_reminder(program, "Pills", "Two of them")
    program.press("Minimize")
    is_reminder(program, "Choir", "Saturdays")
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to go after the last reminder")

    program.open_window()
    program.shows("Browsing")
    for button in MAIN_BUTTONS:
        program.wait_until(lambda: look_of(program, button) == buttons[button], f"{button} to be back")
    program.main.control(TITLE).type("x")
    program.wait_until(lambda: "x" in program.main.control(TITLE).text, "the title to take text again")
    assert program.end() == 0
