"""If this fails, the options do not follow the window that is dragged, or the window does not go where
the options put it."""

import options_dialog as options
from kalvora import Kalvora
from options_dialog import OptionsDialog

SCREEN = (1024, 768)
GRIP = (150, 5)  # a place on the window's body
SETTINGS = {"Graph": {"Window_X": "60", "Window_Y": "40", "Win1_Jump": "100", "Win2_Jump": "100"}}
SHAPE_TITLE = (37, 88, 91)  # of the little window in the picture of the screen
NEAR = 2  # pixels of the picture


def drag_to(program, x, y):
    left, top, _, _ = program.main.place
    start = program.main.on_screen(*GRIP)
    program.screen.drag(start, (start[0] + x - left, start[1] + y - top))
    program.wait_until(lambda: program.main.place[:2] == (x, y), f"the window at {x}, {y}")


def shape_on_screen(program, dialog):
    """Where the little window stands, in pixels of the real screen."""
    left, top, width, height = dialog.box(options.PREVIEW).place
    picture = program.screen.picture().crop((left, top, left + width, top + height))
    found = [(x, y) for y in range(height) for x in range(width) if picture.getpixel((x, y)) == SHAPE_TITLE]
    if not found:
        return None
    factor = min(width / SCREEN[0], height / SCREEN[1])
    corner = ((width - SCREEN[0] * factor) / 2, (height - SCREEN[1] * factor) / 2)
    # Inside its frame of one pixel.
    return tuple((min(one[axis] for one in found) - 1 - corner[axis]) / factor for axis in (0, 1)), factor


def expect_position(program, dialog, x, y):
    """The numbers and the picture, within what its scale can show."""
    program.wait_until(lambda: (dialog.text(options.LEFT), dialog.text(options.TOP)) == (str(x), str(y)),
                       f"the numbers {x} and {y}")

    def stands():
        shape, factor = shape_on_screen(program, dialog) or ((-9999, -9999), 1)
        return all(abs(was - wanted) * factor <= NEAR for was, wanted in zip(shape, (x, y)))

    program.wait_until(stands, f"the little window at {x}, {y}")


with Kalvora(notes={"a.txt": "||Alpha"}, screen=SCREEN, settings=SETTINGS) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    dialog = OptionsDialog(program)
    # The dialog makes room for the window.
    dialog.window.drag((150, 10), (150 + 420 - dialog.window.place[0], 10))
    program.wait_until(lambda: dialog.window.place[0] > 380, "the dialog on the right")
    dialog.page("Set Window Position")
    expect_position(program, dialog, 60, 40)
    for x, y in ((30, 300), (45, 25)):
        drag_to(program, x, y)
        expect_position(program, dialog, x, y)
        program.keep_picture("options-position-follows")

    # Only digits can be typed in; the little window follows the numbers, the real one follows Apply.
    dialog.write(options.LEFT, "a5-0b")
    dialog.write(options.TOP, "1x2 0")
    expect_position(program, dialog, 50, 120)
    assert program.main.place[:2] == (45, 25)
    dialog.click(options.APPLY)
    program.wait_until(lambda: program.main.place[:2] == (50, 120), "the window to go there")
    assert program.setting("Graph", "Window_X") == "50" and program.setting("Graph", "Window_Y") == "120"

    # Set using mouse: the window comes to the front, and where it is dropped is what the boxes say.
    dialog.click(options.SET_USING_MOUSE)
    drag_to(program, 33, 222)
    expect_position(program, dialog, 33, 222)
    dialog.leave(options.OK)
    assert program.setting("Graph", "Window_X") == "33" and program.setting("Graph", "Window_Y") == "222"
    drag_to(program, 40, 50)

    # 9999 is "at the right edge, in the middle", now and at the next start; the tray icon goes on working.
    dialog = OptionsDialog(program)
    dialog.page("Set Window Position")
    dialog.write(options.LEFT, "9999")
    dialog.write(options.TOP, "9999")
    dialog.leave(options.OK)
    width, height = program.main.place[2:]
    home = (SCREEN[0] - width, (SCREEN[1] - height) // 2)
    program.wait_until(lambda: program.main.place[:2] == home, "the window at its computed place")
    assert (program.setting("Graph", "Window_X"), program.setting("Graph", "Window_Y")) == ("9999", "9999")
    program.tray.double_click()
    program.wait_until(lambda: not program.main.visible, "the window to slide away")
    program.open_window()
    assert program.main.place[:2] == home, program.main.place
    drag_to(program, 40, 50)
    assert program.end() == 0
    assert program.setting("Graph", "Window_X") == "40", "the place at the end is what the next start finds"
