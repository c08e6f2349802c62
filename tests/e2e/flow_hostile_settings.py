"""If this fails, settings of a wrong kind or size in the registry keep the program from starting, or from ringing."""

import options_dialog as options
from kalvora import Kalvora
from options_dialog import OptionsDialog
from reminders import RingingKalvora
from trouble import WINDOW

ROOT = "Software\\Kalvora"
TEXT, EXPANDED, BINARY, NUMBER, MULTIPLE, LONG = 1, 2, 3, 4, 7, 11
NOTES = {"a.txt": "||Alpha"}
KEYS = {"Graph": ("ShWatS", "AShT", "WysRZF1", "ZRF1", "Always Save win pos", "Window1_interval", "Window2_interval",
                  "Win1_Jump", "Win2_Jump", "Window_X", "Window_Y", "Icon filename"),
        "Sounds": ("Use_Sounds", "Snd_Show", "Snd_Hide", "Snd_Notes_Show", "Snd_Notes_Hide", "Snd_Alarm",
                   "Snd_Button_Press", "Snd_Button_Delete"),
        "Sys": ("AmPm", "AlwOnTop", "Fast_delete_msg", "Last_skin")}
HUGE = "9" * 51200  # 100 KB as the registry keeps it
WRONG = {"number": (NUMBER, bytes((1, 0, 0, 0))), "binary": (BINARY, bytes(range(256))),
         "multiple": (MULTIPLE, "1\0True\0\0".encode("utf-16-le")), "long": (LONG, bytes(8)),
         "huge": (TEXT, HUGE.encode("utf-16-le")), "expanded": (EXPANDED, "%PATH%\0".encode("utf-16-le"))}


def put(program, section, key, kind, data):
    assert program.wine.ask("regbytes", f"{ROOT}\\{section}", key, kind, data.hex())


def put_everywhere(program, kind, data):
    for section, keys in KEYS.items():
        for key in keys:
            put(program, section, key, kind, data)


def expect_defaults(program):
    """Flush with the right edge, in the middle, not shown at the start, and the options say the same."""
    assert not program.main.visible
    program.open_window()
    left, top, width, _ = program.main.place
    assert left + width == program.screen.size[0], program.main.place
    assert program.main.topmost
    dialog = OptionsDialog(program)
    dialog.page("Window Display")
    assert (dialog.text(options.WINDOW_TIME), dialog.text(options.WINDOW_SIZE)) == ("10", "10")
    assert (dialog.text(options.NOTES_TIME), dialog.text(options.NOTES_SIZE)) == ("10", "20")
    dialog.page("Sounds")
    assert not dialog.checked(options.USE_SOUNDS) and dialog.text(options.ALARM_SOUND) == ""
    return dialog


def wrong_kinds():
    """Nothing of this can be read as a text: the defaults hold, and OK stores texts again."""
    for name, (kind, data) in WRONG.items():
        with Kalvora(f"wrong-{name}", notes=NOTES) as program:
            put_everywhere(program, kind, data)
            program.start_and_wait_for_tray()
            dialog = expect_defaults(program)
            dialog.leave(options.OK)
            assert program.end() == 0
            for section, keys in KEYS.items():
                for key in keys:
                    assert program.setting(section, key) is not None, f"{key} is stored as a text"
                    assert len(program.setting(section, key)) < 300, key


def texts_without_an_end():
    """One of no bytes at all is an empty text, which is told; one of an odd number has its whole characters."""
    with Kalvora("empty-settings", notes=NOTES) as program:
        put_everywhere(program, TEXT, b"")
        program.start_and_wait_for_tray()
        box = program.message_box("Error!")
        assert '"ShWatS" in "Graph"' in box.message and '"Last_skin" in "Sys"' in box.message, box.message
        assert len(box.message.splitlines()) == 18, "a line for each of 16, and what to do"
        program.keep_picture("empty-settings")
        box.answer("OK")
        dialog = expect_defaults(program)
        dialog.leave(options.OK)
        assert program.end() == 0
    with Kalvora("odd-settings", notes=NOTES) as program:
        put(program, "Graph", "Window1_interval", TEXT, "15".encode("utf-16-le") + b"7")
        program.start_and_wait_for_tray()
        dialog = OptionsDialog(program)
        dialog.page("Window Display")
        assert dialog.text(options.WINDOW_TIME) == "15", dialog.text(options.WINDOW_TIME)
        dialog.leave(options.OK)
        assert program.end() == 0


def nonsense():
    """A text that is no number, as long as a path can be: the message is short, names the setting, and only once."""
    for key, value in (("Win1_Jump", "9" * 30000), ("Window_X", "x" * 30000), ("Window_Y", "[{(" * 9000)):
        with Kalvora(f"nonsense-{key}", notes=NOTES, settings={"Graph": {key: value}}) as program:
            program.start_and_wait_for_tray()
            box = program.message_box("Error!", timeout=60)
            assert f'"{key}"' in box.message and len(box.message) < 250, box.message
            _, _, width, height = box.place
            assert width < program.screen.size[0] and height < program.screen.size[1]
            program.keep_picture(f"nonsense-{key}")
            box.answer("OK")
            expect_defaults(program).leave(options.OK)
            assert program.end() == 0
            program.start_and_wait_for_tray()
            program.open_window()
            assert program.message_boxes() == [], "OK stored what can be read"
            assert program.end() == 0


def a_reminder_meanwhile():
    """The message stands open: a reminder comes out all the same, and can be put away before it is answered."""
    with RingingKalvora("unread-setting", notes={"Gym.txt": "7|30|Run"}, clock="2026-11-21 07:29:40",
                        settings={"Graph": {**WINDOW, "Win2_Jump": "twenty"}, "Sys": {"AmPm": "False"}}) as program:
        program.start_and_wait_for_tray()
        box = program.message_box("Error!")
        assert '"Win2_Jump" in "Graph"' in box.message, box.message
        program.set_clock("2026-11-21 07:29:58")
        program.wait_until(lambda: program.main.visible, "the reminder")
        program.expect_reminder("Gym", "Run")
        program.keep_picture("unread-setting")
        program.dismiss()
        box.answer("OK")
        assert program.end() == 0


def a_path_without_end():
    """Paths are only used when something is played: nothing is to be heard, and nothing to be told."""
    sounds = {key: "Z:\\" + "deep\\" * 6000 + "x.wav" for key in KEYS["Sounds"][1:]}
    settings = {"Graph": {**WINDOW, "Icon filename": "i" * 30000}, "Sounds": {"Use_Sounds": "True", **sounds}}
    with Kalvora("path-without-end", notes={"Gym.txt": "7|30|Run"}, settings=settings,
                 clock="2026-11-21 07:29:50") as program:
        program.start_and_wait_for_tray()
        program.wait_until(lambda: program.main.visible, "the reminder")
        program.shows("Gym")
        program.wait_until_standing()
        assert program.message_boxes() == []
        program.press("Minimize")
        program.wait_until(lambda: not program.main.visible, "the window to go")
        assert program.end() == 0


wrong_kinds()
texts_without_an_end()
nonsense()
a_reminder_meanwhile()
a_path_without_end()
