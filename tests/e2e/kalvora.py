"""Kalvora's main window as a user knows it: its buttons by their names, its fields by what they hold."""

import configparser
import os
import signal
import time

from PIL import Image

from driver import BUILD, SOURCE, Program

ALMANAC = SOURCE / "assets" / "skins" / "Almanac"
PLAIN = SOURCE / "tests" / "data" / "skins" / "Plain"

MENU_CLASS = "KalvoraMenu"
# The middle of each item, from the top of the menu.
MENU_ITEMS = {"Edit All Notes": 21, "Options": 41, "About": 61, "Exit": 81}
MENU_TEXT_LEFT = 60

# A busy machine can keep a window waiting for its next step for a while. Seconds.
STANDS_STILL = 0.7

TITLE, TEXT, TIME, AM_PM = 1001, 1002, 1003, 1004

# The characters of a skin's font strip, from left to right.
FONT = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789:()-'!_+\\/[]^&%.,=$# "


class Kalvora(Program):
    """The program with one skin, whose description tells where its buttons are."""

    def __init__(self, name=None, *, skin=ALMANAC, **options):
        options.setdefault("skins", [skin])
        super().__init__(name, **options)
        self._description = configparser.ConfigParser(interpolation=None)
        self._description.read(skin / "config.ini", encoding="cp1252")
        self._look = Image.open(skin / "main1.bmp").convert("RGB")
        face = [skin / name for name in ("remind1.bmp", "remind2.bmp")]
        self._face = [Image.open(path).convert("RGB") for path in face if path.exists()]
        self._font = Image.open(skin / "text.bmp").convert("RGB")

    def open_window(self):
        """Brings the window out by a double click on the tray icon and waits until it stands."""
        self.tray.double_click()
        self.wait_until_standing()

    def wait_until_standing(self):
        since, last = time.monotonic(), None

        def stands():
            nonlocal since, last
            now = (self.main.visible, self.main.place)
            if now != last:
                since, last = time.monotonic(), now
            return now[0] and time.monotonic() - since > STANDS_STILL

        self.wait_until(stands, "the window to stand still")

    def place_of(self, button):
        """(x, y, width, height) of the button with this name in the skin's description."""
        return tuple(self._description.getint(button, key) for key in "XYWH")

    def middle_of(self, button):
        x, y, width, height = self.place_of(button)
        return x + width // 2, y + height // 2

    def press(self, button):
        self.main.click(*self.middle_of(button))

    def looks_whole(self, button):
        """Whether the button is to be seen as the skin paints it, not pressed and not hidden."""
        return self._painted(self.place_of(button)).tobytes() == _piece(self._look, self.place_of(button)).tobytes()

    def face_looks(self, button, held=False):
        """Whether this button of a reminder's face is to be seen as the skin paints it, at rest or held down."""
        place = self.place_of(button)
        return self._painted(place).tobytes() == _piece(self._face[1 if held else 0], place).tobytes()

    def title_strip(self):
        """The text in the title strip, as row() reads it."""
        return self.row("Scrool")

    def row(self, name):
        """The text of a row, by its name in the skin's description, read from the pixels; a cell without a character of
        the font is "?"."""
        def number(key):
            return self._description.getint("Graphic Text", key)

        width, height = number("Cell Width"), number("Cell Height")
        glyphs = {_piece(self._font, (i * width, 0, width, height)).tobytes(): FONT[i] for i in range(len(FONT))}
        cells = number(f"{name}, Length")
        row = self._painted((number(f"{name}, X"), number(f"{name}, Y"), cells * width, height))
        pieces = (_piece(row, (i * width, 0, width, height)) for i in range(cells))
        return "".join(glyphs.get(piece.tobytes(), "?") for piece in pieces).rstrip()

    def _painted(self, place):
        """The picture of a piece of the window, as it is on the screen."""
        x, y, width, height = place
        return _piece(self.screen.picture(), (*self.main.on_screen(x, y), width, height))

    def shows(self, title):
        """Waits until the note with this title is on show."""
        field = self.main.control(TITLE)
        self.wait_until(lambda: field.text == title, f"the note {title}")

    def type_over(self, number, text):
        """Types over what is in a field of the window, and waits until it stands there."""
        field = self.main.control(number)
        field.click()
        self.screen.key("ctrl+a", "Delete")
        self.screen.type(text)
        self.wait_until(lambda: field.text == text, f"{text!r} in the field {number}, not {field.text!r}")

    def keep_picture(self, name):
        """Leaves a picture of the screen in the build folder, for a person to look at."""
        pictures = BUILD / "e2e-pictures"
        pictures.mkdir(exist_ok=True)
        self.screen.picture().save(pictures / f"{name}.png")

    def end(self):
        """Ends the program at its tray icon and gives its exit code."""
        self.choose("Exit")
        return self.exit_code()

    def kill(self):
        """Ends the program as a power cut would."""
        os.kill(self.process_id, signal.SIGKILL)
        self.exit_code()
        self.wait_until(lambda: not self.tray.there, "the tray icon to go")

    def choose(self, item):
        """Clicks an item of the popup menu of the tray icon."""
        self.open_menu().click(MENU_TEXT_LEFT, MENU_ITEMS[item])

    def choose_by_key(self, item):
        """Goes to an item of the open menu with the keys. Only the tray icon itself is clicked."""
        self.open_menu()
        self.screen.key(*["Down"] * (list(MENU_ITEMS).index(item) + 1), "Return")

    def open_menu(self):
        """The popup menu, opened at the tray icon."""
        self.tray.rest_pointer()
        self.tray.right_click()
        return self.window(MENU_CLASS)


def _piece(picture, place):
    x, y, width, height = place
    return picture.crop((x, y, x + width, y + height))
