"""If this fails, a new user who follows the README's first steps does not get a weekly reminder, another
skin or sounds."""

import shutil

import options_dialog as options
from kalvora import ALMANAC, PLAIN, SOURCE, Kalvora
from options_dialog import OptionsDialog

TABS, CLOSE = 1990, 1991
WEEKLY = 1  # its place among the kinds, and in each array of the editor's controls
NAME, TEXT, NEW, SAVE = (first + WEEKLY for first in (2010, 2020, 2030, 2040))
HOUR, MINUTE, HALF, SUNDAY = 2070, 2071, 2090 + WEEKLY, 2100
MONDAY, FRIDAY = SUNDAY + 1, SUNDAY + 5


def write(program, window, number, text):
    window.control(number).click(10)
    program.screen.key("ctrl+a")
    program.screen.type(text)


def make_a_weekly_reminder(program):
    program.choose("Edit All Notes")
    window = program.window(title="Edit Notes")
    window.control(TABS).click(75, 10)
    program.wait_until(lambda: window.control(NEW).visible, "the tab Weakly")
    window.control(NEW).click()
    program.screen.type("Yoga")
    program.wait_until(lambda: window.control(NAME).text == "Yoga", "the name, where the caret waits")
    write(program, window, HOUR, "7")
    write(program, window, MINUTE, "30")
    window.control(HALF).click()
    program.screen.key("Down", "Down", "Return")  # pm
    window.control(MONDAY).click(8)
    window.control(FRIDAY).click(8)
    write(program, window, TEXT, "Mat and towel")
    program.keep_picture("first-steps-reminder")
    window.control(SAVE).click()
    program.wait_until(lambda: program.exists("notes/Yoga.tx2"), "the reminder to be saved")
    assert program.read("notes/Yoga.tx2") == b"19|30|0|1|0|0|0|1|0|Mat and towel", program.read("notes/Yoga.tx2")
    window.control(CLOSE).click()
    program.wait_until(lambda: not program.windows(title="Edit Notes"), "the editor to close")


def put_on_another_skin(program):
    dialog = OptionsDialog(program)
    dialog.page("Skins")
    before = program.main.place[2:]
    dialog.choose_skin(1)
    program.wait_until(lambda: program.main.place[2:] != before, "the window in the other skin")
    return dialog


def open_file_dialog(program, dialog):
    dialog.click(options.BROWSE_SHOW)
    return program.window(title="Open")


def switch_on_sounds(program, dialog):
    dialog.page("Sounds")
    dialog.tick(options.USE_SOUNDS)
    opened = open_file_dialog(program, dialog)
    program.keep_picture("first-steps-sound")
    program.screen.type("bell.wav")
    program.screen.key("Return")
    program.wait_until(lambda: not opened.exists, "the file to be chosen")
    chosen = program.wait_until(lambda: dialog.text(options.SHOW_SOUND), "the path in its box")
    assert chosen.endswith("\\sounds\\bell.wav"), chosen
    # Who cancels keeps what was chosen before.
    opened = open_file_dialog(program, dialog)
    program.screen.key("Escape")
    program.wait_until(lambda: not opened.exists, "the file dialog to go")
    assert dialog.text(options.SHOW_SOUND) == chosen
    dialog.click(options.PLAY_SHOW)
    dialog.leave(options.OK)
    assert program.setting("Sounds", "Use_Sounds") == "True"
    assert program.setting("Sounds", "Snd_Show") == chosen
    assert program.setting("Sys", "Last_skin") == "1"


with Kalvora(skins=[ALMANAC, PLAIN], clock="2026-11-20 19:28:40") as program:  # a Friday
    (program.folder / "sounds").mkdir()
    sound = sorted((SOURCE / "assets" / "sounds").glob("*.wav"))[0]
    shutil.copy2(sound, program.folder / "sounds" / "bell.wav")
    program.start_and_wait_for_tray()
    program.open_window()
    make_a_weekly_reminder(program)
    switch_on_sounds(program, put_on_another_skin(program))
    program.tray.double_click()
    program.wait_until(lambda: not program.main.visible, "the window to go away")
    # On its weekday, at its time, it comes out by itself.
    program.set_clock("2026-11-23 19:29:55")
    program.wait_until(lambda: program.main.visible, "the reminder to come out", timeout=60)
    program.shows("Yoga")
    program.wait_until_standing()
    program.keep_picture("first-steps-rings")
    assert program.end() == 0
