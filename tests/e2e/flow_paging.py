"""If this fails, the user can't leaf through the notes: the arrows do nothing, or run past the ends."""

from kalvora import TEXT, TIME, AM_PM, Kalvora

NOTES = {"a.txt": "||Alpha", "B.tx1": "19|5|Bravo", "c.tx3": "20|6|2|Charlie"}

with Kalvora(notes=NOTES) as program:
    program.start_and_wait_for_tray()
    assert not program.main.visible, "only the tray icon is there at the start"
    program.open_window()
    program.shows("a")
    program.press("Left")
    program.shows("a")
    program.press("Right")
    program.shows("B")
    assert program.main.control(TEXT).text == "Bravo"
    assert program.main.control(TIME).text == "7:5"
    assert program.main.control(AM_PM).text == "PM"
    program.press("Right")
    program.shows("c")
    assert program.main.control(TIME).text == ""
    program.press("Right")
    program.press("Right")
    program.shows("c")
    program.press("Left")
    program.shows("B")
    program.press("Left")
    program.press("Left")
    program.shows("a")
    assert program.read("notes/a.txt") == b"||Alpha", "looking changes nothing"
    assert program.end() == 0
    assert not program.tray.there
