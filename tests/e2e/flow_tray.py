"""If this fails, the tray icon does not bring the window out, or does not send it away."""

from kalvora import TEXT, Kalvora

SETTINGS = {"Graph": {"Window_X": "300", "Window_Y": "200"}}

with Kalvora(notes={"a.txt": "||Alpha"}, settings=SETTINGS) as program:
    program.start_and_wait_for_tray()
    assert not program.main.visible
    for round_trip in range(3):
        program.tray.double_click()
        program.wait_until_standing()
        assert program.main.place[:2] == (300, 200), (round_trip, program.main.place)
        program.tray.double_click()
        program.wait_until(lambda: not program.main.visible, "the window to slide away")

    # A single click shows what is there, and moves nothing.
    program.open_window()
    place = program.main.place
    program.tray.click()
    program.wait_until_standing()
    assert program.main.visible and program.main.place == place

    # Minimize is the window's own way back to the tray.
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to slide away")
    program.open_window()
    assert program.main.place == place
    program.main.control(TEXT).click()  # The keyboard is the window's.
    program.screen.key("alt+F4")
    program.wait_until(lambda: not program.main.visible, "the window to slide away at Alt+F4")
    assert program.running and program.tray.there
    assert program.end() == 0
    program.wait_until(lambda: not program.tray.there, "the tray icon to go")

# At the start the window comes out by itself for a user who wants that.
with Kalvora("tray-shown-at-start", settings={"Graph": {**SETTINGS["Graph"], "ShWatS": "True"}}) as program:
    program.start_and_wait_for_tray()
    program.wait_until_standing()
    program.tray.double_click()
    program.wait_until(lambda: not program.main.visible, "the window to slide away")
    assert program.end() == 0
