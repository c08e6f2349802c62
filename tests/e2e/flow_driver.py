"""The driver itself, on a stand-in program: if this fails, believe no other flow."""

from driver import BUILD, DESKTOP_COLOUR, Program, Timeout, wait_until

RED = (200, 30, 60)


def stand_in(**options):
    exe = next(BUILD.rglob("e2e-standIn.exe"))
    return Program(exe=exe, settings_key="Software\\KalvoraStandIn", **options)


def window_comes_at_a_double_click_and_goes_at_the_next(program):
    assert not program.main.visible
    program.tray.double_click()
    program.wait_until(lambda: program.main.visible, "the window to come")
    program.tray.double_click()
    program.wait_until(lambda: not program.main.visible, "the window to go")
    program.tray.double_click()
    program.wait_until(lambda: program.main.visible, "the window to come again")


def corners_are_cut_away(program):
    main = program.main
    program.wait_until(lambda: main.pixel(100, 10) == RED, "the window to be painted")
    assert main.pixel(5, 5) == DESKTOP_COLOUR
    assert main.covers(100, 10) and not main.covers(5, 5)
    assert program.window_at(*main.on_screen(100, 10)) == "KalvoraMain"
    assert program.window_at(*main.on_screen(5, 5)) != "KalvoraMain"
    main.click(5, 5)
    assert not program.message_boxes()


def texts_are_read_set_and_typed(program):
    main = program.main
    assert main.control(1001).text == "a title"
    assert main.control(1002).text == "line one\r\nline two \u0105"
    main.control(1001).set_text("tab\there \\ \u0105")
    assert main.control(1001).text == "tab\there \\ \u0105"
    main.control(1001).set_text("")
    main.control(1001).type("Typed 1")
    program.wait_until(lambda: main.control(1001).text == "Typed 1", "the typed text")
    assert not main.control(1004).visible and main.control(1001).visible


def window_is_dragged(program):
    x, y, width, height = program.main.place
    program.main.drag((100, 10), (180, 70))
    program.wait_until(lambda: program.main.place == (x + 80, y + 60, width, height),
                       "the window at its new place")


def clock_is_the_given_one(program):
    program.tray.right_click()
    program.wait_until(lambda: program.main.control(1004).text == "2027-03-28 06:29", "the given time")
    program.set_clock("2028-02-29 23:59:30")
    program.tray.right_click()
    program.wait_until(lambda: program.main.control(1004).text == "2028-02-29 23:59", "the later time")


def question_is_read_and_answered(program):
    program.main.click(20, 180)
    box = program.message_box("Stand-in")
    assert box.message == "Is it time to go ?" and box.buttons == ["Yes", "No"], box.buttons
    box.answer("No")
    assert program.running
    program.main.click(20, 180)
    program.message_box().answer("Yes")


def leaving_saves_the_place_and_gives_a_code(program, left):
    assert program.exit_code() == 7
    assert not program.running
    assert program.setting("Graph", "Window_X") == str(left), program.setting("Graph", "Window_X")
    assert sorted(program.setting_keys("Graph")) == ["Before", "Window_X"]
    assert program.setting("Graph", "Before") == "here \u0105"
    assert program.setting("Graph", "None") is None
    assert program.read("notes/a.txt") == b"\xe9"
    program.wait_until(lambda: not program.tray.there, "the tray icon to go")


def waiting_in_vain_says_for_what():
    try:
        wait_until(lambda: False, "the moon", timeout=0.1)
    except Timeout as timeout:
        assert "the moon" in str(timeout)
    else:
        raise AssertionError("the wait ended by itself")


if __name__ == "__main__":
    waiting_in_vain_says_for_what()
    with stand_in(notes={"a.txt": "\u00e9"}, settings={"Graph": {"Before": "here \u0105"}},
                  clock="2027-03-28 06:29:10", time_zone="Europe/Warsaw") as program:
        program.start_and_wait_for_tray()
        window_comes_at_a_double_click_and_goes_at_the_next(program)
        corners_are_cut_away(program)
        texts_are_read_set_and_typed(program)
        window_is_dragged(program)
        clock_is_the_given_one(program)
        question_is_read_and_answered(program)
        leaving_saves_the_place_and_gives_a_code(program, 280)
