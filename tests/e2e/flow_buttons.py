"""If this fails, a button does not look pressed, or acts though the user let go beside it."""

from kalvora import TITLE, Kalvora

NOTES = {"a.txt": "||Alpha", "b.txt": "||Bravo"}
SETTINGS = {"Graph": {"Window_X": "300", "Window_Y": "200", "Win1_Jump": "100"}}
BUTTONS = ("Fast Delete", "Rool Down/Up", "Minimize", "New", "Save", "Delete", "Left", "Right")


def look_of(program, button):
    """What the button looks like on the screen."""
    x, y, width, height = program.place_of(button)
    left, top = program.main.on_screen(x, y)
    return program.screen.picture().crop((left, top, left + width, top + height)).tobytes()


def wait_for_look(program, button, look, what):
    program.wait_until(lambda: look_of(program, button) == look, f"{button} to look {what}")


def hold(program, button):
    """Presses the mouse on a button, and gives its normal and its pressed look."""
    program.screen.move(5, 5)
    normal = look_of(program, button)
    program.main.press(*program.middle_of(button))
    program.wait_until(lambda: look_of(program, button) != normal, f"{button} to look pressed")
    return normal, look_of(program, button)


def move(program, point):
    program.screen.move(*program.main.on_screen(*point))


def let_go_outside(program, button, outside):
    normal, pressed = hold(program, button)
    move(program, outside)
    wait_for_look(program, button, normal, "normal when the mouse left it")
    move(program, program.middle_of(button))
    wait_for_look(program, button, pressed, "pressed when the mouse came back")
    move(program, outside)
    wait_for_look(program, button, normal, "normal again")
    program.screen.release()


def expect_nothing_happened(program, place):
    program.press("Right")
    program.shows("b")
    program.press("Left")
    program.shows("a")
    assert program.main.visible and program.main.place == place
    assert not program.message_boxes()
    assert program.read("notes/a.txt") == b"||Alpha" and program.read("notes/b.txt") == b"||Bravo"


with Kalvora(notes=NOTES, settings=SETTINGS) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
    place = program.main.place
    for button in BUTTONS:
        x, y, width, height = program.place_of(button)
        let_go_outside(program, button, (x + width // 2, y - 6))
        assert program.main.control(TITLE).text == "a"
    let_go_outside(program, "Right", program.middle_of("New"))  # on another button
    let_go_outside(program, "Delete", (-30, -30))  # beside the window
    expect_nothing_happened(program, place)

    # A click of the right mouse button in the middle of a press does not break the press off.
    normal, pressed = hold(program, "Right")
    move(program, program.middle_of("New"))
    program.screen.xdotool("click", 3)
    move(program, program.middle_of("Right"))
    wait_for_look(program, "Right", pressed, "pressed though the other button was clicked")
    program.screen.release()
    program.shows("b")
    wait_for_look(program, "Right", normal, "normal after the release")
    program.main.click(*program.middle_of("Left"), button=3)
    program.main.click(*program.middle_of("Left"), button=2)
    program.press("Right")
    program.shows("b")
    assert program.end() == 0
