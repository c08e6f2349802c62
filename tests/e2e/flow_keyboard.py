"""If this fails, a key that users press without a thought ends the program, hides it or spoils a note."""

from kalvora import AM_PM, TEXT, TIME, TITLE, Kalvora

LINES = [f"line {number}" for number in range(60)]
NOTES = {"a.txt": "7|30|" + "\r\n".join(LINES)}
WHEEL_UP, WHEEL_DOWN = 4, 5


def focus_is_at(program, number):
    """What is typed arrives in the field with this number: it gets a digit, which is taken back."""
    field = program.main.control(number)
    before = field.text
    program.screen.key("End", "1")
    program.wait_until(lambda: field.text != before, f"a key to reach field {number}")
    program.screen.key("BackSpace")
    program.wait_until(lambda: field.text == before, f"field {number} to be as before")


def looks(program):
    """What the note's text looks like now."""
    x, y, width, height = program.main.control(TEXT).place
    return program.screen.picture().crop((x, y, x + width, y + height)).tobytes()


with Kalvora(notes=NOTES) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
    title, text, time = (program.main.control(number) for number in (TITLE, TEXT, TIME))
    place = program.main.place

    # Esc in any field does nothing.
    for field in (text, title, time):
        before = field.text
        field.click()
        program.screen.key("Escape", "Escape", "Escape")
        focus_is_at(program, field.id)
        assert field.text == before
        assert program.running and program.main.visible and program.main.place == place

    # Tab goes round the fields, Shift+Tab the other way; Enter goes on in a field of one line.
    title.click()
    for number in (TEXT, TIME, TITLE):
        program.screen.key("Tab")
        focus_is_at(program, number)
    for number in (TIME, TEXT, TITLE):
        program.screen.key("shift+Tab")
        focus_is_at(program, number)
    program.screen.key("Return")
    focus_is_at(program, TEXT)
    assert text.text == "\r\n".join(LINES), "neither Tab nor Enter wrote anything"

    # The wheel scrolls the note's text, over the text, over another field and over the skin.
    text.click()
    program.screen.key("ctrl+Home")
    skin = program.main.on_screen(*program.middle_of("Minimize"))
    for spot in (text.on_screen(20, 20), title.on_screen(5, 5), skin):
        program.screen.move(*spot)
        top = looks(program)
        program.screen.xdotool("click", WHEEL_DOWN)
        program.wait_until(lambda: looks(program) != top, f"the wheel to scroll the text from {spot}")
        program.screen.xdotool("click", WHEEL_UP)
        program.wait_until(lambda: looks(program) == top, "the wheel to scroll back")

    # A mouse that rests on a button brings its name.
    program.screen.move(*skin)
    tip = program.window("tooltips_class32", "Minimize")
    program.screen.move(*text.on_screen(20, 20))
    program.wait_until(lambda: not tip.visible, "the tip to go")

    # Letters vanish from the time as they are typed, and the caret stays where it was.
    time.click()
    program.screen.key("Home", "Right")
    program.screen.type("am5b")
    program.wait_until(lambda: time.text == "75:30", "the time to take the digit only")
    program.screen.type("x1")
    program.wait_until(lambda: time.text == "751:30", "the caret to stay behind the digit")

    # What no file name may hold vanishes from the title.
    title.click()
    program.screen.key("ctrl+a")
    program.screen.type("my/note?")
    program.wait_until(lambda: title.text == "mynote", "the title to keep what a file may be called")

    # Ctrl+A in the text selects all of it.
    text.click()
    program.screen.key("ctrl+a")
    program.screen.type("new")
    program.wait_until(lambda: text.text == "new", "the text to be replaced")
    # A lone line feed, as it comes from other systems, is shown as a line end.
    text.set_text("one\ntwo")
    program.screen.key("ctrl+End")
    program.screen.type("!")
    program.wait_until(lambda: text.text == "one\r\ntwo!", "the line feed to become a line end")

    program.press("Save")
    program.wait_until(lambda: program.exists("notes/mynote.txt"), "the note to be saved")
    assert not program.exists("notes/a.txt")
    assert program.main.control(AM_PM).visible
    assert program.end() == 0
