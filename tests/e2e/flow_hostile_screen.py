"""If this fails, a window whose place is off the screen, because the screen became smaller, cannot be brought back."""

import subprocess

import options_dialog as options
from kalvora import Kalvora
from options_dialog import OptionsDialog

NOTES = {"a.txt": "||Alpha", "Gym.txt": "7|30|Run"}
LARGE, SMALL = (1600, 1200), (800, 600)
FAR = {"Window_X": "1200", "Window_Y": "800", "Win1_Jump": "100", "Win2_Jump": "100"}


def bring_back(program, x, y):
    """As a user does who sees nothing of the window but the icon: its menu, the options, two numbers, Apply."""
    dialog = OptionsDialog(program)
    left, top, width, height = dialog.window.place
    assert left >= 0 and top >= 0 and left + width <= SMALL[0] and top + height <= SMALL[1], dialog.window.place
    dialog.page("Set Window Position")
    dialog.write(options.LEFT, str(x))
    dialog.write(options.TOP, str(y))
    dialog.leave(options.OK)


def shrink(program):
    """As when a projector or a smaller monitor takes the screen's place while the program runs."""
    mode, timing = "%dx%d" % SMALL, "38.25 800 832 912 1024 600 603 607 624"
    for arguments in (["--newmode", mode, *timing.split()], ["--addmode", "screen", mode],
                      ["--output", "screen", "--mode", mode]):
        subprocess.run(["xrandr", *arguments], env=program.screen.environment, check=True)
    program.wait_until(lambda: program.screen.picture().size == SMALL, "the smaller screen")


def a_smaller_screen_at_the_next_start():
    with Kalvora("smaller-start", notes=NOTES, settings={"Graph": FAR}, screen=SMALL) as program:
        program.start_and_wait_for_tray()
        program.tray.double_click()
        box = program.message_box("Kalvora")
        assert "1200 pixels from the left and 800 from the top" in box.message, box.message
        left, _, width, _ = program.main.place
        assert program.main.visible and left + width == SMALL[0], program.main.place
        program.keep_picture("place-on-no-monitor")
        box.answer("OK")
        program.press("Minimize")
        program.wait_until(lambda: not program.main.visible, "the window to go")
        program.open_window()
        assert not program.message_boxes(), "it is told once"
        bring_back(program, 50, 60)
        program.wait_until(lambda: program.main.place[:2] == (50, 60), "the window to be back")
        program.press("Right")
        program.shows("Gym")
        assert program.end() == 0
        assert (program.setting("Graph", "Window_X"), program.setting("Graph", "Window_Y")) == ("50", "60")


def a_screen_that_shrinks():
    with Kalvora("shrinks", notes=NOTES, settings={"Graph": FAR}, screen=LARGE, clock="2026-11-21 07:20:00") as program:
        program.start_and_wait_for_tray()
        program.open_window()
        assert program.main.place[:2] == (1200, 800)
        shrink(program)
        # The icons stand where no mouse gets any more; a real task bar follows the screen by itself.
        program.tray.move_to(400, 300)
        assert program.main.place[0] + program.main.place[2] > SMALL[0], "partly off the screen at least"
        bring_back(program, 50, 60)
        program.wait_until(lambda: program.main.place[:2] == (50, 60), "the window to be back")
        program.wait_until_standing()
        program.keep_picture("screen-shrunk")
        program.press("Minimize")
        program.wait_until(lambda: not program.main.visible, "the window to go")
        program.set_clock("2026-11-21 07:29:58")
        program.wait_until(lambda: program.main.visible, "the reminder")
        program.shows("Gym")
        program.wait_until(lambda: program.main.place[:2] == (50, 60), "the reminder where the window was put")
        assert program.end() == 0


a_smaller_screen_at_the_next_start()
a_screen_that_shrinks()
