"""If this fails, who looks at a long note by the mouse does not see that it goes on, cannot draw it to its end, or is not
told what a field or a button is for."""

from kalvora import AM_PM, TEXT, TIME, Kalvora

LINES = [f"line {number}" for number in range(60)]
NOTES = {"a.txt": "7|30|" + "\r\n".join(LINES), "b.txt": "||Bravo"}


def area(program, place):
    x, y, width, height = place
    return program.screen.picture().crop((x, y, x + width, y + height)).tobytes()


def text_and_strip(program):
    text = program.main.control(TEXT)
    strip = program.main.controls("KalvoraTextScroll")[0]
    return text, strip


def bar_comes_under_the_pointer(program):
    text, strip = text_and_strip(program)
    program.screen.move(5, 5)
    program.keep_picture("text-goes-on-mark")
    mark = area(program, strip.place)
    program.screen.move(*text.on_screen(20, 20))
    program.wait_until(lambda: area(program, strip.place) != mark, "the scroll bar")
    program.keep_picture("text-goes-on-bar")
    program.screen.move(5, 5)
    program.wait_until(lambda: area(program, strip.place) == mark, "the mark in place of the bar")


def bar_is_drawn_and_pressed(program):
    text, strip = text_and_strip(program)
    x, y, width, height = strip.place
    program.screen.drag((x + width // 2, y + 6), (x + width // 2, y + height + 40))
    program.wait_until(lambda: text.first_line > 40, "the text to be drawn to its end")
    program.keep_picture("text-goes-on-end")
    program.screen.drag((x + width // 2, y + height - 6), (x + width // 2, y - 40))
    program.wait_until(lambda: text.first_line == 0, "the text to be drawn back")
    program.screen.click(x + width // 2, y + height - 4)
    program.wait_until(lambda: 0 < text.first_line < 20, "the text to be turned")
    program.screen.click(x + width // 2, y + 2)
    program.wait_until(lambda: text.first_line == 0, "the text to be turned back")
    pressed = area(program, strip.place)
    program.screen.move(*program.main.control(TIME).on_screen(5, 5))
    program.wait_until(lambda: area(program, strip.place) != pressed, "the bar to go with the pointer")


def tips_tell_the_truth(program):
    main = program.main
    for spot, tip in ((main.control(TIME).on_screen(5, 5), "Time, such as 7:30; empty: no reminder"),
                      (main.control(AM_PM).on_screen(4, 6), "Click, or up and down keys: AM or PM"),
                      (main.on_screen(*program.middle_of("Save")), "Save as a Fast note"),
                      (main.on_screen(*program.middle_of("Delete")), "Delete now, without asking"),
                      (main.on_screen(*program.middle_of("Fast Delete")), "Delete, and put the window away")):
        program.screen.move(*spot)
        shown = program.window("tooltips_class32", tip)
        program.keep_picture("tip-" + tip.split()[0].strip(",").lower())
        program.screen.move(5, 5)
        program.wait_until(lambda one=shown: not one.visible, "the tip to go")


with Kalvora(notes=NOTES) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
    bar_comes_under_the_pointer(program)
    bar_is_drawn_and_pressed(program)
    tips_tell_the_truth(program)
    program.press("Right")
    program.shows("b")
    _, strip = text_and_strip(program)
    program.wait_until(lambda: len(set(zip(*[iter(area(program, strip.place))] * 3))) == 1, "no mark beside a short text")
    assert program.end() == 0
