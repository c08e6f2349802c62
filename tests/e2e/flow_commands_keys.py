"""If this fails, who works without a mouse cannot page, write, save, delete or roll notes, turn AM into PM, open the menu,
or see by the mark that a text goes on."""

from editor import files_in
from kalvora import AM_PM, MENU_CLASS, TEXT, TIME, TITLE, Kalvora

LONG = "\r\n".join(f"line {number}" for number in range(60))
NOTES = {"a.txt": "7|30|" + LONG, "b.tx1": "8|5|Bravo", "c.txt": "||Charlie"}


def notes_of(program):
    return sorted(files_in(program.folder / "notes"))


def strip(program):
    return program.main.controls("KalvoraTextScroll")[0]


def strip_looks(program):
    """Its upper part and its lower end."""
    x, y, width, height = strip(program).place
    picture = program.screen.picture()
    return [picture.crop((x, y + top, x + width, y + bottom)).tobytes() for top, bottom in ((0, height - 10), (height - 10, height))]


def is_plain(picture):
    """Whether all of it has one colour."""
    return len({picture[i:i + 3] for i in range(0, len(picture), 3)}) == 1


def is_marked(program):
    upper, lower = strip_looks(program)
    return is_plain(upper) and not is_plain(lower)


def has_no_mark(program):
    return all(map(is_plain, strip_looks(program)))


def mark_goes_at_the_end(program):
    program.main.control(TEXT).click()  # The keyboard is the window's.
    program.screen.move(5, 5)
    program.screen.key("ctrl+Home")
    program.wait_until(lambda: is_marked(program), "the mark beside the long text")
    program.screen.key("ctrl+End")
    program.wait_until(lambda: has_no_mark(program), "the mark to go where the text ends")
    program.screen.key("ctrl+Home")
    program.wait_until(lambda: is_marked(program), "the mark to come back")


def pages_are_turned(program):
    program.screen.key("ctrl+Next")
    program.shows("b")
    program.wait_until(lambda: has_no_mark(program), "no mark beside a short text")
    assert program.main.control(TIME).text == "8:5", "a box that is stored stays as it was typed"
    program.screen.key("ctrl+Prior")
    program.shows("a")


def half_of_the_day_is_turned(program):
    program.main.control(TEXT).click()
    half = program.main.control(AM_PM)
    program.screen.key("Up")
    program.screen.key("Tab", "Up")
    program.wait_until(lambda: half.text == "PM", "AM to become PM")
    program.screen.key("Down")
    program.wait_until(lambda: half.text == "AM", "PM to become AM")
    assert program.main.control(TIME).text == "7:30"


def note_is_made_and_saved(program):
    program.screen.key("ctrl+n")
    program.wait_until(lambda: program.main.control(TITLE).text == "Untiled", "a new note")
    program.screen.key("shift+Tab", "shift+Tab", "ctrl+a")
    program.screen.type("Zoo")
    program.wait_until(lambda: program.main.control(TITLE).text == "Zoo", "the title")
    program.screen.key("ctrl+s")
    program.wait_until(lambda: program.exists("notes/Zoo.txt"), "the note to be saved")


def notes_are_rolled(program):
    height = program.main.place[3]
    program.screen.key("F6")
    program.wait_until(lambda: program.main.place[3] < height, "the notes to roll up")
    program.wait_until_standing()
    program.screen.key("ctrl+Delete")
    program.screen.key("F6")
    program.wait_until(lambda: program.main.place[3] == height, "the notes to roll down")
    program.wait_until_standing()
    assert notes_of(program) == ["Zoo.txt", *NOTES], "what is not to be seen is not deleted"


def menu_is_used(program):
    program.screen.key("F10")
    menu = program.window(MENU_CLASS)
    program.keep_picture("commands-menu")
    program.screen.key("e", "Escape")
    program.wait_until(lambda: not menu.exists, "the menu to close")
    program.main.control(TEXT).click()
    program.screen.key("F10")
    menu = program.window(MENU_CLASS)
    program.main.control(TITLE).click()
    program.wait_until(lambda: not menu.exists, "the menu to go with the keyboard")
    program.screen.key("F10")
    program.window(MENU_CLASS)
    program.screen.key("o")
    options = program.window(title="Kalvora Options")
    program.screen.key("Escape")
    program.wait_until(lambda: not options.visible, "the options to go")


def notes_are_deleted(program):
    program.main.control(TEXT).click()
    shown = program.main.control(TITLE).text
    program.screen.key("ctrl+Delete")
    program.wait_until(lambda: len(notes_of(program)) == 3, f"{shown} to be deleted")
    assert program.main.visible
    program.screen.key("ctrl+shift+Delete")
    program.message_box("Delete")
    program.screen.key("Return")
    program.wait_until(lambda: not program.main.visible, "the window to go with the note")
    program.wait_until(lambda: len(notes_of(program)) == 2, "the next note to be deleted")


with Kalvora(notes=NOTES) as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.shows("a")
    mark_goes_at_the_end(program)
    pages_are_turned(program)
    half_of_the_day_is_turned(program)
    note_is_made_and_saved(program)
    notes_are_rolled(program)
    menu_is_used(program)
    notes_are_deleted(program)
    assert program.end() == 0
