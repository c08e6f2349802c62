"""If this fails, the program forgets what the user has set, or where the window stood."""

from kalvora import AM_PM, TIME, Kalvora

SETTINGS = {"Graph": {"ShWatS": "True", "Window_X": "120", "Window_Y": "80"},
            "Sys": {"AmPm": "False", "AlwOnTop": "False"}}

with Kalvora(notes={"a.txt": "19|5|Alpha"}, settings=SETTINGS) as program:
    program.start_and_wait_for_tray()
    program.wait_until_standing()
    program.shows("a")
    assert program.main.place[:2] == (120, 80)
    assert not program.main.topmost
    assert program.main.control(TIME).text == "19:5"
    assert program.main.control(AM_PM).text == ""
    assert program.end() == 0
    assert program.setting("Graph", "Window_X") == "120"
    assert program.setting("Graph", "Window_Y") == "80"
    assert program.setting_keys("Sounds") == [], "nothing else was saved"

with Kalvora("settings-first-start") as program:
    program.start_and_wait_for_tray()
    program.open_window()
    left, top, width, height = program.main.place
    assert left + width == 1024, "flush with the right edge of the screen"
    assert top == 304, "centred for the height that the program starts with"
    assert program.main.topmost
    assert program.end() == 0
    assert program.setting("Graph", "Window_X") == str(left)
