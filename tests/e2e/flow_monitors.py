"""If this fails, a second monitor is no place for the window: it can't be put away there, snaps to the wrong edge, or
the options can't put it there."""

import options_dialog as options
from kalvora import Kalvora
from options_dialog import OptionsDialog

# Side by side; Windows counts from the corner of the first, so the other one of the second pair lies left of 0.
# Wide enough that most of the second one lies beyond 2184 pixels, where twips leave 16 bits.
WIDTH, HEIGHT = 1920, 1080
RIGHT_OF_IT = ((0, 0, WIDTH, HEIGHT), (WIDTH, 0, WIDTH, HEIGHT))
LEFT_OF_IT = ((WIDTH, 0, WIDTH, HEIGHT), (0, 0, WIDTH, HEIGHT))
SETTINGS = {"Graph": {"Window_X": "300", "Window_Y": "200", "Win1_Jump": "60", "Win2_Jump": "100"}}
GRIP = (150, 5)


def drop_at(program, x, y, stands_at=None):
    left, top, _, _ = program.main.place
    program.main.drag(GRIP, (GRIP[0] + x - left, GRIP[1] + y - top))
    wanted = stands_at or (x, y)
    program.wait_until(lambda: program.main.place[:2] == wanted, f"the window at {wanted}")


def away_and_back(program):
    place = program.main.place
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to slide away")
    program.open_window()
    assert program.main.place == place, (program.main.place, place)


def second_monitor(name, monitors, edge):
    """edge: where the second monitor begins, as Windows counts."""
    with Kalvora(name, notes={"a.txt": "||Alpha"}, settings=SETTINGS, screen=(2 * WIDTH, HEIGHT),
                 monitors=monitors) as program:
        program.start_and_wait_for_tray()
        program.open_window()
        width = program.main.place[2]
        drop_at(program, edge + 400, 300)
        away_and_back(program)
        drop_at(program, edge + 12, 300, (edge, 300))
        away_and_back(program)
        drop_at(program, edge + WIDTH - width - 12, 8, (edge + WIDTH - width, 0))
        away_and_back(program)

        # The menu opens beside the pointer, on the pointer's monitor.
        program.tray.move_to(edge + WIDTH - 40, HEIGHT - 30)
        left, top, menu_width, menu_height = program.open_menu().place
        assert edge <= left and left + menu_width <= edge + WIDTH and top + menu_height <= HEIGHT, (left, top)
        program.screen.key("Escape")
        program.wait_until(lambda: not program.windows("KalvoraMenu"), "the menu to go")

        dialog = OptionsDialog(program)
        left, _, dialog_width, _ = dialog.window.place
        assert edge <= left and left + dialog_width <= edge + WIDTH, "the options open where the pointer is"
        dialog.page("Set Window Position")
        dialog.write(options.LEFT, str(edge + 300))
        dialog.write(options.TOP, "40")
        program.wait_until(lambda: dialog.text(options.LEFT) == str(edge + 300), "the number to stand there")
        program.keep_picture(f"options-{name}")
        dialog.leave(options.OK)
        program.wait_until(lambda: program.main.place[:2] == (edge + 300, 40), "the window to go there")
        assert program.end() == 0
        assert program.setting("Graph", "Window_X") == str(edge + 300)

        # At the next start it comes out there, in the whole.
        program.start_and_wait_for_tray()
        program.open_window()
        assert program.main.place[:2] == (edge + 300, 40), program.main.place
        assert not program.message_boxes()
        assert program.end() == 0


second_monitor("monitor-right", RIGHT_OF_IT, WIDTH)
second_monitor("monitor-left", LEFT_OF_IT, -WIDTH)
