"""If this fails, the window does not follow the mouse, does not snap, or comes back elsewhere."""

from kalvora import Kalvora

SCREEN = (1024, 768)
GRIP = (150, 5)  # a place on the window's body
SETTINGS = {"Graph": {"Window_X": "300", "Window_Y": "200", "Win1_Jump": "100"}}


def drag_to(program, x, y, expected, button=1):
    """Drags the window so that its corner would come to (x, y)."""
    left, top, _, _ = program.main.place
    start = program.main.on_screen(*GRIP)
    program.screen.drag(start, (start[0] + x - left, start[1] + y - top))
    program.wait_until(lambda: program.main.place[:2] == expected,
                       f"the window, dropped at {x}, {y}, to stand at {expected}")


with Kalvora(notes={"a.txt": "||Alpha"}, settings=SETTINGS, screen=SCREEN) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    left, top, width, height = program.main.place
    assert (left, top) == (300, 200)
    right, bottom = SCREEN[0] - width, SCREEN[1] - height
    drag_to(program, 400, 250, (400, 250))
    drag_to(program, right - 10, 300, (right, 300))
    drag_to(program, 400, 12, (400, 0))
    drag_to(program, 15, 300, (0, 300))
    drag_to(program, 400, bottom - 19, (400, bottom))
    drag_to(program, right - 5, bottom - 5, (right, bottom))
    drag_to(program, right - 21, 300, (right - 21, 300))
    drag_to(program, 22, 300, (22, 300))
    # Partly off the screen it stays where it was let go.
    drag_to(program, right + 40, 200, (right + 40, 200))
    drag_to(program, -40, 300, (-40, 300))
    assert program.setting("Graph", "Window_X") == "300", "saved at the end only"
    drag_to(program, 9, 100, (0, 100))
    assert program.end() == 0
    assert program.setting("Graph", "Window_X") == "0", program.setting("Graph", "Window_X")
    assert program.setting("Graph", "Window_Y") == "100"

    program.start_and_wait_for_tray()
    program.open_window()
    assert program.main.place[:2] == (0, 100), "the next start finds it where it was"
    assert program.end() == 0

SAVING = {"Graph": {**SETTINGS["Graph"], "Always Save win pos": "True"}}
with Kalvora("dragging-saves", settings=SAVING, screen=SCREEN) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    drag_to(program, 500, 190, (500, 190))
    program.wait_until(lambda: program.setting("Graph", "Window_X") == "500", "the place to be saved")
    assert program.setting("Graph", "Window_Y") == "190"
