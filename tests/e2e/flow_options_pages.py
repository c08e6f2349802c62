"""If this fails, a page of the options does not keep what the user set on it, or keeps what it cannot be."""

import options_dialog as options
from kalvora import ALMANAC, PLAIN, SOURCE, Kalvora
from options_dialog import OptionsDialog

WINDOW = {"Window_X": "40", "Window_Y": "60", "Win1_Jump": "100", "Win2_Jump": "100"}
SOUND = "Z:\\sounds\\a bell.wav"


def set_a_value_on_each_page(program, dialog):
    dialog.page("Systems")
    dialog.tick(options.TWELVE_HOURS)
    dialog.page("Sounds")
    dialog.tick(options.USE_SOUNDS)
    dialog.write(options.ALARM_SOUND, SOUND)
    dialog.page("Graphics")
    dialog.write(options.NOTES_TIME, "25")
    dialog.page("Window Display")
    dialog.tick(options.SAVE_POSITION)
    dialog.page("Skins")
    dialog.choose_skin(1)
    program.wait_until(lambda: dialog.text(options.SKIN_PLACE) == "1 of 2", "the place of the second skin")
    dialog.page("Icons")
    dialog.icon(2).click()
    # After the skin: the window comes out anew in it, and the numbers follow it.
    dialog.page("Set Window Position")
    dialog.write(options.TOP, "90")
    program.wait_until(lambda: dialog.text(options.TOP) == "90", "the number typed in")


EXPECTED = {("Sys", "AmPm"): "False", ("Sys", "Last_skin"): "1", ("Sounds", "Use_Sounds"): "True",
            ("Sounds", "Snd_Alarm"): SOUND, ("Graph", "Window2_interval"): "25",
            ("Graph", "Always Save win pos"): "True", ("Graph", "Window_Y"): "90",
            ("Graph", "Icon filename"): "pin.ico", ("Graph", "Win1_Jump"): "100", ("Sys", "AlwOnTop"): "True"}


def expect_values(dialog):
    dialog.page("Systems")
    assert not dialog.checked(options.TWELVE_HOURS) and dialog.checked(options.ON_TOP)
    dialog.page("Sounds")
    assert dialog.checked(options.USE_SOUNDS) and dialog.text(options.ALARM_SOUND) == SOUND
    dialog.page("Graphics")
    assert dialog.text(options.NOTES_TIME) == "25" and dialog.text(options.NOTES_SIZE) == "100"
    dialog.page("Window Display")
    assert dialog.checked(options.SAVE_POSITION) and not dialog.checked(options.RESIZE)
    dialog.page("Set Window Position")
    assert (dialog.text(options.LEFT), dialog.text(options.TOP)) == ("40", "90")
    dialog.page("Skins")
    assert dialog.text(options.SKIN_PLACE) == "1 of 2"


def check_exclusive_switches(program, dialog):
    """Rolling down and coming out rolled in: one of them, or none."""
    def states():
        return dialog.checked(options.ROLL_DOWN), dialog.checked(options.ROLL_IN)

    dialog.page("Window Display")
    for clicked, expected in ((options.ROLL_DOWN, (True, False)), (options.ROLL_IN, (False, True)),
                              (options.ROLL_DOWN, (True, False)), (options.ROLL_DOWN, (False, False)),
                              (options.ROLL_IN, (False, True))):
        dialog.click(clicked)
        program.wait_until(lambda: states() == expected, f"the switches {expected} after {clicked}")


def check_refused_value(program, dialog, way_out):
    """The message names the box and what is in it; the caret waits there; nothing is stored."""
    dialog.page("Graphics")
    dialog.write(options.NOTES_TIME, "12x")
    dialog.page("Sounds")
    dialog.click(way_out)
    message = program.message_box("Error!")
    assert "Notes, time of a step" in message.message and "12x" in message.message, message.message
    program.keep_picture(f"options-refused-{way_out}")
    message.answer("OK")
    program.wait_until(lambda: dialog.pages_on_show() == ["Graphics"], "the page of the box")
    assert dialog.window.visible
    for section in ("Graph", "Sys", "Sounds"):
        assert sorted(program.setting_keys(section)) == sorted(STORED.get(section, {})), section
    program.screen.type("33")
    program.wait_until(lambda: dialog.text(options.NOTES_TIME) == "33", "the box to be typed over")


ICONS = [SOURCE / "assets" / "icons" / f"{name}.ico" for name in ("bell", "kalvora", "pin")]
STORED = {"Graph": WINDOW}

with Kalvora(notes={"a.txt": "||Alpha"}, skins=[ALMANAC, PLAIN], icons=ICONS, settings=STORED) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    dialog = OptionsDialog(program)
    check_exclusive_switches(program, dialog)
    check_refused_value(program, dialog, options.APPLY)
    check_refused_value(program, dialog, options.OK)
    set_a_value_on_each_page(program, dialog)
    dialog.click(options.APPLY)
    program.wait_until(lambda: program.setting("Sys", "Last_skin") == "1", "the values to be stored")
    for (section, key), value in EXPECTED.items():
        assert program.setting(section, key) == value, (section, key, program.setting(section, key))
    assert dialog.window.visible, "the dialog stays"
    program.wait_until(lambda: program.main.place[:2] == (40, 90), "the window to go where it was told")
    assert program.end() == 0

    program.start_and_wait_for_tray()
    program.open_window()
    assert program.main.place[:2] == (40, 90)
    dialog = OptionsDialog(program)
    expect_values(dialog)

    # Close leaves what is stored as it was; OK stores and closes.
    dialog.page("Systems")
    dialog.tick(options.ASK_BEFORE_DELETE)
    dialog.leave(options.CLOSE)
    assert program.setting("Sys", "Fast_delete_msg") == "True"
    dialog = OptionsDialog(program)
    dialog.page("Systems")
    assert dialog.checked(options.ASK_BEFORE_DELETE)
    dialog.tick(options.ASK_BEFORE_DELETE)
    dialog.leave(options.OK)
    assert program.setting("Sys", "Fast_delete_msg") == "False"
    assert program.end() == 0
