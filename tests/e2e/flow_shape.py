"""If this fails, the window is a plain rectangle, or clicks beside its outline still hit it."""

from driver import DESKTOP_COLOUR
from kalvora import TITLE, Kalvora

with Kalvora(notes={"a.txt": "||Alpha"}, settings={"Graph": {"Window_X": "300", "Window_Y": "200"}}) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
    main = program.main
    left, top, width, height = main.place
    assert (left, top) == (300, 200), main.place
    for x, y in ((0, 0), (width - 1, 0), (0, height - 1), (width - 1, height - 1)):
        assert main.pixel(x, y) == DESKTOP_COLOUR, f"the corner {x}, {y} is cut away"
        assert not main.covers(x, y)
        assert program.window_at(*main.on_screen(x, y)) != "KalvoraMain"
    main.click(0, 0)
    middle = (width // 2, 5)
    assert main.covers(*middle) and main.pixel(*middle) != DESKTOP_COLOUR
    assert program.window_at(*main.on_screen(*middle)) == "KalvoraMain"
    assert main.control(TITLE).text == "a"
    assert main.place == (left, top, width, height)
