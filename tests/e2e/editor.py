"""The note editor as a user knows it: its tabs by their captions, its controls by what they are for."""

import contextlib

from kalvora import Kalvora

TITLE = "Edit Notes"
KINDS = ("Daily", "Weakly", "Monthly", "Yearly", "Fast")
EXTENSIONS = (".tx1", ".tx2", ".tx3", ".tx4", ".txt")
# The number of the sixth kind, which is there for who chose it.
ONCE = len(KINDS)
ALL_KINDS = (*KINDS, "Once")
WEEKDAYS = ("Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday")

# The middle of each tab, from the left of the strip.
TAB_MIDDLES = (26, 80, 135, 190, 245, 300)
TABS, CLOSE, RESTORE = 1990, 1991, 1992
# The first number of each array of controls, to which the kind or the position is added.
NAMES, NAME, CONTENT, NEW, SAVE, DELETE = 2000, 2010, 2020, 2030, 2040, 2050
DAILY_TIME, WEEKLY_TIME, FAST_TIME, HALF_OF_DAY, WEEKDAY = 2060, 2070, 2080, 2090, 2100
MONTHLY_DAY, YEARLY_DAY, MONTH, ONCE_TIME, ONCE_DATE = 2110, 2120, 2130, 2140, 2150

# The empty-value question, letter for letter.
EMPTY_VALUE = ("You didn't enter the time or day to your note,\r"
               "which means that this note will be without an alarm. \r\r Save ?")


class Editor:
    """The open editor. Clicks and keys go to it as a hand would send them."""

    def __init__(self, program, choose=Kalvora.choose):
        """choose: how the menu is gone through."""
        self.program = program
        choose(program, "Edit All Notes")
        self.window = program.window(title=TITLE)
        self.kind = 0
        self._controls = {}
        program.wait_until(lambda: self.focus == self[NAMES].handle, "the keyboard in the list of names")

    def __getitem__(self, number):
        """A control by its number; one that each page has by its first number, on the page that is open."""
        if number <= DELETE and number >= NAMES and number % 10 == 0:
            number += self.kind
        if number not in self._controls:
            self._controls[number] = self.window.control(number)
        return self._controls[number]

    @property
    def open(self):
        return self.window.visible

    @property
    def focus(self):
        """The handle of the control that has the keyboard."""
        return self.program.wine.ask("focus", self.window.handle)

    @property
    def message_boxes(self):
        return [box for box in self.program.message_boxes() if box.title != TITLE]

    @property
    def names(self):
        return self.program.wine.ask("items", self[NAMES].handle)

    def chosen(self, number):
        """The position selected in a list, counted from 0; -1 for none."""
        return self.program.wine.ask("chosen", self[number].handle)

    def caret(self, number):
        """Where the selection of a box begins and ends."""
        return tuple(self.program.wine.ask("caret", self[number].handle))

    @property
    def pages(self):
        """Kind of each page that there is -> whether it is to be seen."""
        lists = {NAMES + kind: kind for kind in range(len(ALL_KINDS))}
        return {lists[facts["id"]]: facts["visible"]
                for facts in self.program.wine.ask("controls", self.window.handle) if facts["id"] in lists}

    @property
    def page(self):
        """Kind of the page that is to be seen."""
        shown = [kind for kind, visible in self.pages.items() if visible]
        assert len(shown) == 1, f"one page is to be seen, not {shown}"
        return shown[0]

    def wait_for_page(self, kind):
        self.program.wait_until(lambda: self.page == kind, f"the page {ALL_KINDS[kind]}")
        self.kind = kind

    def choose_tab(self, kind):
        self[TABS].click(TAB_MIDDLES[kind], 11)
        self.wait_for_page(kind)

    def fill(self, number, text):
        """Types over what is in a box, and waits until it stands there."""
        self.type_over(number, text)
        self.wait_for_text(number, text.replace("\n", "\r\n"))

    def type_over(self, number, text):
        self[number].click()
        self.program.screen.key("ctrl+Home", "ctrl+shift+End", "Delete")
        self.program.screen.type(text)

    def wait_for_text(self, number, text):
        self.program.wait_until(lambda: self[number].text == text,
                                f"{text!r} in the control {number}, where there is {self[number].text!r}")

    def choose_letter(self, number, letter, position):
        """Opens a list by mouse and takes the item that begins with the letter."""
        self[number].click()
        self.program.screen.key(letter, "Return")
        self.program.wait_until(lambda: self.chosen(number) == position, f"item {position} of {number}")

    def tick(self, *weekdays):
        for weekday in weekdays:
            box = self[WEEKDAY + WEEKDAYS.index(weekday)]
            box.click(6, None)
            self.program.wait_until(lambda box=box: box.checked, f"{weekday} to be ticked")

    def pick(self, name):
        """Clicks a name of the list by the mouse and waits until its note is on the page."""
        self.click_name(name)
        self.wait_for_text(NAME, name)

    def click_name(self, name):
        height = 13  # of a line, in the system's dialog font
        self[NAMES].click(30, 2 + height * self.names.index(name) + height // 2)

    def new(self, name):
        """New by the mouse; then the name is typed, which has the keyboard and is selected."""
        self[NEW].click()
        self.wait_for_text(NAME, "New")
        self.program.wait_until(lambda: self.focus == self[NAME].handle, "the keyboard in the name")
        self.program.screen.type(name)
        self.wait_for_text(NAME, name)

    def save(self):
        self[SAVE].click()

    def wait_for_names(self, *names):
        self.program.wait_until(lambda: self.names == list(names), f"the names {names}, not {self.names}")

    def close(self):
        self[CLOSE].click()
        self.wait_until_closed()

    def wait_until_closed(self):
        self.program.wait_until(lambda: not self.open, "the editor to close")

    def texts(self):
        """All that the page shows: control -> text or tick."""
        return {facts["id"]: (facts["text"], facts["checked"])
                for facts in self.program.wine.ask("controls", self.window.handle)
                if facts["visible"] and facts["id"] >= NAMES}


def files_in(folder):
    """File name -> bytes; a file that vanishes meanwhile is none."""
    found = {}
    for file in folder.iterdir() if folder.exists() else ():
        with contextlib.suppress(FileNotFoundError):
            found[file.name] = file.read_bytes()
    return found


def note_files(program):
    return files_in(program.folder / "notes")


def wait_for_files(program, files):
    program.wait_until(lambda: note_files(program) == files, f"the files {files}, not {note_files(program)}")


@contextlib.contextmanager
def held(program, name):
    """While the block runs, another program has the file open and lets nobody near it."""
    path = "Z:" + str(program.folder / name).replace("/", "\\")
    assert program.wine.ask("hold", path), path
    try:
        yield
    finally:
        program.wine.ask("release")


@contextlib.contextmanager
def started(**options):
    """The program with its tray icon; it must be able to end properly afterwards."""
    options.setdefault("settings", {"Graph": {"Window_X": "20", "Window_Y": "20", "Win1_Jump": "100"}})
    with Kalvora(**options) as program:
        program.start_and_wait_for_tray()
        yield program
        assert program.end() == 0
