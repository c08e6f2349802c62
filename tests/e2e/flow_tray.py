"""If this fails, the tray icon does not bring the window out, or does not send it away."""

from kalvora import TEXT, Kalvora

HOME = (30, 30)  # beside the about window, which stands in front of this one
SETTINGS = {"Graph": {"Window_X": str(HOME[0]), "Window_Y": str(HOME[1])}}

with Kalvora(notes={"a.txt": "||Alpha"}, settings=SETTINGS) as program:
    program.start_and_wait_for_tray()
    assert not program.main.visible
    for round_trip in range(3):
        program.tray.double_click()
        program.wait_until_standing()
        assert program.main.place[:2] == HOME, (round_trip, program.main.place)
        program.tray.double_click()
        program.wait_until(lambda: not program.main.visible, "the window to slide away")

    # A click that stays single brings the window out, with the keyboard.
    program.tray.click()
    program.wait_until_standing()
    place = program.main.place
    assert place[:2] == HOME, place
    program.main.control(TEXT).click()
    program.screen.key("ctrl+Home")
    program.screen.type("xB")  # The first one that is typed can get lost.
    program.wait_until(lambda: "B" in program.main.control(TEXT).text, "what is typed to reach the window")

    # Another one moves nothing, and gives the window the keyboard back.
    text = program.main.control(TEXT).handle
    program.choose("About")
    program.wait_until(lambda: program.wine.ask("focus", program.main.handle) != text, "the keyboard to be elsewhere")
    program.tray.click()
    program.wait_until(lambda: program.wine.ask("focus", program.main.handle) == text, "the keyboard in the text")
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
    # A search for the icon fails for a moment while X takes another window away.
    program.wait_until(lambda: program.tray.there, "the tray icon to stay")
    assert program.end() == 0
    program.wait_until(lambda: not program.tray.there, "the tray icon to go")

# At the start the window comes out by itself for a user who wants that.
with Kalvora("tray-shown-at-start", settings={"Graph": {**SETTINGS["Graph"], "ShWatS": "True"}}) as program:
    program.start_and_wait_for_tray()
    program.wait_until_standing()
    program.tray.double_click()
    program.wait_until(lambda: not program.main.visible, "the window to slide away")
    assert program.end() == 0
