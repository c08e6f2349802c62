"""If this fails, a note saved after the options were applied rings at another hour than the one that was on show."""

import options_dialog as options
from kalvora import AM_PM, TEXT, TIME, Kalvora
from options_dialog import OptionsDialog
from reminders import WINDOW

SUPPER = "Supper.txt"
CLOCK_TICK = 20  # seconds; it ticks every five, on a machine that may be busy


def label(program):
    return program.main.control(AM_PM).text


def time_on_show(program):
    return program.main.control(TIME).text


def apply(program, *, switch_hours=False):
    """Presses Apply with the mouse, and closes the options."""
    dialog = OptionsDialog(program)
    if switch_hours:
        dialog.page("Systems")
        dialog.tick(options.TWELVE_HOURS)
    # A text that the program never writes: when it is gone, the options were applied.
    program.set_setting("Sys", "Fast_delete_msg", "-1")
    dialog.click(options.APPLY)
    program.wait_until(lambda: program.setting("Sys", "Fast_delete_msg") == "True", "the options to be stored")
    dialog.leave(options.CLOSE)


def wait_for_label(program, half):
    program.wait_until(lambda: label(program) == half, f"the clock to write {half} again", timeout=CLOCK_TICK)


def expect_saved(program, content):
    program.press("Save")
    program.wait_until(lambda: program.read(f"notes/{SUPPER}") == content, f"{content} to be stored")


def the_half_comes_back():
    with Kalvora("half", notes={SUPPER: "19|30|Soup"}, settings={"Graph": WINDOW}) as program:
        program.start_and_wait_for_tray()
        program.open_window()
        assert (time_on_show(program), label(program)) == ("7:30", "PM")
        apply(program)
        wait_for_label(program, "PM")
        program.keep_picture("half-of-day")
        expect_saved(program, b"19|30|Soup")
        # A half that was chosen and not saved is what the user last saw.
        program.main.control(AM_PM).click()
        program.wait_until(lambda: label(program) == "AM", "the click on the label")
        apply(program)
        wait_for_label(program, "AM")
        expect_saved(program, b"7|30|Soup")
        # Saved at once, mostly before the clock ticks: also then it is the half that was last seen.
        program.main.control(AM_PM).click()
        program.wait_until(lambda: label(program) == "PM", "the click on the label")
        apply(program)
        expect_saved(program, b"19|30|Soup")
        assert program.end() == 0


def the_hour_is_converted():
    with Kalvora("hours", notes={SUPPER: "19|30|Soup"}, settings={"Graph": WINDOW}) as program:
        program.start_and_wait_for_tray()
        program.open_window()
        program.main.control(TEXT).set_text("Soup and bread")
        apply(program, switch_hours=True)
        assert time_on_show(program) == "19:30", time_on_show(program)
        assert program.main.control(TEXT).text == "Soup and bread", "what was typed is still there"
        program.keep_picture("24-hours")
        expect_saved(program, b"19|30|Soup and bread")
        assert label(program) == ""
        program.main.control(TIME).set_text("21:05")
        apply(program, switch_hours=True)
        assert time_on_show(program) == "9:05", time_on_show(program)
        wait_for_label(program, "PM")
        expect_saved(program, b"21|05|Soup and bread")
        assert program.end() == 0


the_half_comes_back()
the_hour_is_converted()
