"""If this fails, of two copies of the program that run at once one has no icon or no reminders, damages what the
other has saved, or takes it along when it ends."""

from driver import MAIN_CLASS
from editor import files_in, note_files, wait_for_files
from kalvora import TEXT, TITLE, Kalvora
from reminders import WINDOW
from tray import TRAY_ICON_WIDTH
from windows import Window

NOTES = {"a.txt": b"||Alpha", "b.txt": b"7|30|Bravo"}
SETTINGS = {"Graph": WINDOW, "Sys": {"AmPm": "False", "AlwOnTop": "False", "Fast_delete_msg": "False"}}
SAVES = 20
SAVES_AT_ONCE = 150  # of each copy; together they make more safety copies than are kept


class Copy:
    """One of the copies, by its main window; its buttons are pressed though the other's may cover them."""

    def __init__(self, program, facts):
        self._program = program
        self.process = facts["process"]
        self.window = Window(program, facts)
        self.title, self.text = self.window.control(TITLE), self.window.control(TEXT)

    def press(self, button):
        self._program.wine.ask("click", self.window.handle, *self._program.middle_of(button))

    def press_without_waiting(self, button):
        assert self._program.wine.ask("clicksoon", self.window.handle, *self._program.middle_of(button))

    def enter(self, title, text):
        self.title.set_text(title)
        self.text.set_text(text)

    def save(self, title, text):
        self.enter(title, text)
        self.press("Save")

    def wait_until_out(self):
        self._program.wait_until(lambda: self.window.visible and self.window.place[0] == int(WINDOW["Window_X"]),
                                 "the window to come out")

    def shows(self, title, text):
        self._program.wait_until(lambda: (self.title.text, self.text.text) == (title, text), f"{title} with {text}")


def icons(program):
    """How many icons the strip shows, told by the colours in the place of each."""
    if program.tray.place is None:
        return 0
    left, top, width, height = program.tray.place
    strip = program.screen.picture().crop((left + 1, top + 1, left + width - 1, top + height - 1))
    places = range(0, strip.width - TRAY_ICON_WIDTH, TRAY_ICON_WIDTH)
    colours = [len(strip.crop((x, 0, x + TRAY_ICON_WIDTH, strip.height)).getcolors(1000)) for x in places]
    return sum(count > 2 for count in colours)


def double_click_icon(program, number):
    left, top, _, height = program.tray.place
    program.screen.click(left + number * TRAY_ICON_WIDTH + TRAY_ICON_WIDTH // 2, top + height // 2, times=2)


def second_copy(program):
    """Starts it beside the first one; both copies, the first one first."""
    first = next(one for one in program.all_windows() if one["class"] == MAIN_CLASS)
    process = program.start_another()

    def both():
        return [one for one in program.all_windows() if one["class"] == MAIN_CLASS][1:]

    program.wait_until(both, "the second main window", timeout=60)
    program.wait_until(lambda: icons(program) == 2, "the second icon")
    other = next(one for one in program.all_windows() if one["class"] == MAIN_CLASS and one["handle"] != first["handle"])
    return Copy(program, first), Copy(program, other), process


def bring_out_both(program, first, second):
    for number in (0, 1):
        double_click_icon(program, number)
    for copy in (first, second):
        copy.wait_until_out()
        copy.shows("a", "Alpha")


def both_write(program, first, second):
    for number in range(SAVES):
        writer = (first, second)[number % 2]
        writer.save("a", f"save {number}")
        wait_for_files(program, {**NOTES, "a.txt": f"||save {number}".encode()})
    # What one has deleted the other still shows, and can save again.
    first.press("Delete")
    wait_for_files(program, {"b.txt": NOTES["b.txt"]})
    second.press("Fast Delete")
    box = program.message_box("Error!")
    assert box.message.startswith("This file cannot be deleted, it is gone already: "), box.message
    box.answer("OK")
    second.save("a", "saved again")
    wait_for_files(program, {**NOTES, "a.txt": b"||saved again"})


def both_ring(program, first, second):
    for copy in (first, second):
        copy.press("Minimize")
        program.wait_until(lambda copy=copy: not copy.window.visible, "the window to go")
    program.set_clock("2026-11-21 07:29:58")
    for copy in (first, second):
        copy.wait_until_out()
        copy.shows("b", "Bravo")
        assert copy.title.read_only
    program.keep_picture("two-copies")
    for copy in (first, second):
        copy.press("Minimize")
        program.wait_until(lambda copy=copy: not copy.window.visible, "the window to go after its reminder")


def both_write_at_once(program, first, second):
    """The note is always what one of them saved, whole, and neither leaves anything of its work."""
    written = {NOTES["a.txt"]}
    for number in range(SAVES_AT_ONCE):
        texts = [f"{name} {number}\r\n" + f"{name * 38}\r\n" * (50 + number % 7) + str(number) for name in ("x", "y")]
        written.update(b"||" + text.encode() for text in texts)
        for copy, text in zip((first, second), texts):
            copy.enter("a", text)
        for copy in (first, second):
            copy.press_without_waiting("Save")
        found = files_in(program.folder / "notes").get("a.txt")
        assert found in written, found
    # What a window is asked comes after its save, and it shows the note as it is then.
    shown = [copy.text.text for copy in (first, second)]
    assert set(shown) <= set(texts), shown
    assert [(box.title, box.message) for box in program.message_boxes()] == []
    last = note_files(program)
    assert last in [{**NOTES, "a.txt": b"||" + text.encode()} for text in texts], last
    copies = files_in(program.folder / "backup")
    odd = {name: content for name, content in copies.items() if name.startswith("~") or content not in written}
    assert not odd, odd


def take_turns_and_ring():
    with Kalvora(notes=NOTES, settings=SETTINGS, clock="2026-11-21 07:20:00") as program:
        program.start_and_wait_for_tray()
        first, second, second_process = second_copy(program)
        bring_out_both(program, first, second)
        both_write(program, first, second)
        both_ring(program, first, second)
        second.window.close()
        assert second_process.wait(20) == 0
        program.wait_until(lambda: icons(program) == 1, "the icon of the second copy to go")
        program.open_window()
        first.shows("b", "Bravo")
        assert set(note_files(program)) == set(NOTES)
        assert program.end() == 0


def write_at_once():
    # Without a clock of its own: a file's age is to be the true one.
    with Kalvora("two-copies-at-once", notes=NOTES, settings=SETTINGS) as program:
        program.start_and_wait_for_tray()
        first, second, second_process = second_copy(program)
        bring_out_both(program, first, second)
        both_write_at_once(program, first, second)
        second.window.close()
        assert second_process.wait(20) == 0
        program.wait_until(lambda: icons(program) == 1, "the icon of the second copy to go")
        assert program.end() == 0


take_turns_and_ring()
write_at_once()
