"""Takes every picture in docs/pictures anew: starts the real program on a screen of its own, opens
each of its windows as a user does, and saves what is to be seen of it.

A further picture is a function in the table at the end. tools/renew-pictures is how it is run.
"""

import argparse
import dataclasses
import subprocess
import sys
from pathlib import Path
from typing import Callable

ROOT = Path(__file__).resolve().parents[1]
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tests" / "e2e"))

from PIL import Image

from kalvora import MENU_ITEMS, MENU_TEXT_LEFT, TEXT, Kalvora

SHIPPED_NOTES = ROOT / "assets" / "notes"
SKINS = sorted((ROOT / "assets" / "skins").iterdir(), key=lambda skin: skin.name.lower())
SETTINGS = {"Graph": {"Window_X": "100", "Window_Y": "80", "Win1_Jump": "100"}}
CLOCK = "2026-11-21 09:41:00"
OUT_OF_THE_WAY = (5, 5)
BANNER = 110  # rows of pixels at the top of the about window, whose landscape goes by
MARGIN = 12  # pixels of the desktop around a window that is no rectangle

OPTIONS_PAGES = ("Systems", "Sounds", "Graphics", "Window Display", "Set Window Position", "Skins", "Icons",
                 "Comfort")
PAGE_TITLE = 3002  # of src/win32/options/OptionsIds.h
TREE_CLASS = "SysTreeView32"

WHAT_COMES_BUTTON, COMING_ROWS = 1998, 2403
FIND_WORDS, FIND_BUTTON, FIND_ROWS = 1989, 1997, 2503
FIRST_LIST = 2000  # of the note editor's lists of names, in src/win32/editor/EditNotesIds.h: + kind
FIRST_CONTENT = 2020
EDITOR_PAGES = ("daily", "weekly", "monthly", "yearly", "fast")
# Kind -> the notes of its page; the first one is opened.
EDITOR_NOTES = (
    {"Water the plants": "18|30|Basil in the kitchen: a little every day.\r\nFern in the hall: when the soil"
                         " feels dry.\r\nCactus: leave it alone.",
     "Feed the cat": "7|0|", "Lights out": "22|45|", "Take a break": "15|0|"},
    {"Yoga class": "19|15|0|1|0|1|0|0|0|Mat, water, towel.\r\n\r\nBring the book back to Ines.",
     "Plan the week": "9|0|1|0|0|0|0|0|0|", "Put the bins out": "7|0|0|0|0|0|1|0|0|"},
    {"Pay the rent": "28|2|1|Rent\r\nElectricity\r\nTelephone", "Back up the photos": "1|1|1|",
     "Read the meters": "15|3|1|"},
    {"Anna's birthday": "14|5|7|1|Seeds for her garden, and a card that arrives in time.",
     "New passport": "3|10|21|7|", "Tax return": "30|6|14|2|", "Wedding day": "8|7|10|1|"},
    {"Shopping list": "||Bread\r\nMilk\r\nTomatoes\r\nA light bulb for the hall", "Book tips": "||",
     "Call the garage": "10|30|", "Ideas": "||", "Wi-Fi at the cabin": "||"},
)

ONCE = 5
ONCE_NOTES = {"Dentist.tx5": "2026|12|3|16|15|Second floor, ring twice.\r\n\r\nBring the card.",
              "Theatre with Ines.tx5": "2026|12|12|19|30|", "Train to the sea.tx5": "2027|1|9|7|52|"}


class Photographer:
    """The program with its pictures' folder."""

    def __init__(self, program, folder, scale):
        self._program = program
        self._folder = folder
        self._scale = scale

    def take(self, name, place, margin=0, pointer=OUT_OF_THE_WAY, moving=0):
        """Saves what is to be seen at a place of the screen, once nothing moves there any more but the
        first `moving` rows of pixels (at 100 %)."""
        program = self._program
        program.screen.move(*pointer)
        x, y, width, height = place
        box = (x - margin, y - margin, x + width + margin, y + height + margin)
        picture = still = None

        def stands_still():
            nonlocal picture, still
            picture = program.screen.picture().crop(box)
            before, still = still, picture.crop((0, moving * self._scale // 100, *picture.size)).tobytes()
            return before == still

        program.wait_until(stands_still, f"{name} to stand still")
        self.keep(name, picture)

    def keep(self, name, picture):
        picture.save(self._folder / f"{name}.png", optimize=True)
        print(f"{name}.png")

    def take_window(self, name, title, moving=0):
        """A window of the desktop, with its title bar."""
        screen = self._program.screen
        x, y, width, height = self._program.wait_until(
            lambda: screen.place_of("--name", f"^{title}$"), f"the window {title}")
        left, right, top, bottom = frame_of(screen, title)
        self.take(name, (x - left, y - top, left + width + right, top + height + bottom), moving=moving)


def frame_of(screen, title):
    """How far the window manager's frame goes beyond a window: left, right, top, bottom."""
    line = subprocess.run(["xprop", "-name", title, "_NET_FRAME_EXTENTS"], env=screen.environment, text=True,
                          stdout=subprocess.PIPE, check=True).stdout
    return [int(number) for number in line.split("=")[1].split(",")]


def main_window(program, photographer):
    program.open_window()
    program.shows("1. Welcome to Kalvora")
    photographer.take("main-window", program.main.place, MARGIN)


def reminder(program, photographer):
    program.set_clock("2026-11-21 18:29:58")
    program.shows("2. Water the plants")
    program.wait_until_standing()
    photographer.take("reminder", program.main.place, MARGIN)


def snooze(program, photographer):
    """The menu of a reminder, and the dialog behind its last item."""
    program.set_clock("2026-11-21 18:29:58")
    program.shows("2. Water the plants")
    program.wait_until_standing()
    program.main.control(TEXT).click()
    program.screen.key("shift+F7")
    menu = program.window("#32768")
    photographer.take("snooze-menu", around(program.main.place, menu.place), MARGIN)
    program.screen.key("o")
    photographer.take_window("snooze-date", "Remind Me Later")


def missed(program, photographer):
    """Two days later."""
    program.kill()
    program.set_clock("2026-11-23 08:15:20")
    program.start_and_wait_for_tray()
    program.shows("2. Water the plants")
    program.wait_until_standing()
    photographer.take("missed", program.main.place, MARGIN)


def around(*places):
    left, top = (min(place[side] for place in places) for side in (0, 1))
    right, bottom = (max(place[side] + place[side + 2] for place in places) for side in (0, 1))
    return left, top, right - left, bottom - top


def menu(program, photographer):
    # The menu closes when the pointer leaves it, so the pointer stays on the item that it points at.
    window = program.open_menu()
    # The tip of the tray icon stays a moment longer.
    program.wait_until(lambda: not program.windows("tooltips_class32"), "the tray icon's tip to go")
    # It closes when the pointer leaves it.
    photographer.take("menu", window.place, pointer=window.on_screen(MENU_TEXT_LEFT, MENU_ITEMS["Options"]))


def about(program, photographer):
    program.choose("About")
    photographer.take_window("about", "About Kalvora", moving=BANNER)


def options(program, photographer):
    program.choose("Options")
    window = program.window(title="Kalvora Options")
    window.controls(TREE_CLASS)[0].click(40, 8)
    for page in OPTIONS_PAGES:
        program.wait_until(lambda page=page: page in [
            one.text for one in window.controls("Static") if one.id == PAGE_TITLE and one.visible],
            f"the page {page}")
        photographer.take_window("options-" + page.lower().replace(" ", "-"), "Kalvora Options")
        program.screen.key("Down")


def list_on_page(program, window, kind):
    """The list of names of a page of the note editor that is, or comes, on show."""
    return program.wait_until(
        lambda: [one for one in window.controls("ListBox") if one.id == FIRST_LIST + kind and one.visible],
        f"page {kind} of the note editor")[0]


def editor(program, photographer):
    program.choose("Edit All Notes")
    window = program.window(title="Edit Notes")
    for kind, page in enumerate(EDITOR_PAGES):
        notes = sorted(EDITOR_NOTES[kind], key=str.lower)
        wanted = next(iter(EDITOR_NOTES[kind]))
        names = list_on_page(program, window, kind)
        # The list has the keyboard. The first key takes the first name.
        names.click(30, 8)
        program.screen.key(*["Down"] * notes.index(wanted))
        text = EDITOR_NOTES[kind][wanted].split("|")[-1]
        content = window.control(FIRST_CONTENT + kind)
        program.wait_until(lambda content=content, text=text: content.text == text, f"the note {wanted}")
        photographer.take_window(f"editor-{page}", "Edit Notes")
        program.screen.key("ctrl+Tab")


def editor_once(program, photographer):
    program.choose("Edit All Notes")
    window = program.window(title="Edit Notes")
    list_on_page(program, window, 0).click(30, 8)
    program.screen.key(*["ctrl+Tab"] * ONCE)
    list_on_page(program, window, ONCE).click(30, 8)
    content = window.control(FIRST_CONTENT + ONCE)
    program.wait_until(lambda: content.text == ONCE_NOTES["Dentist.tx5"].split("|")[-1], "the note")
    photographer.take_window("editor-once", "Edit Notes")


def what_comes(program, photographer):
    program.choose("Edit All Notes")
    program.window(title="Edit Notes").control(WHAT_COMES_BUTTON).click()
    window = program.window(title="What Comes")
    program.wait_until(lambda: program.wine.ask("rowcount", window.control(COMING_ROWS).handle), "the list of what comes")
    photographer.take_window("what-comes", "What Comes")


def find(program, photographer):
    program.choose("Edit All Notes")
    editor = program.window(title="Edit Notes")
    editor.control(FIND_WORDS).click()
    program.screen.key("Home")
    program.screen.type("the")
    editor.control(FIND_BUTTON).click()
    window = program.window(title="Find")
    program.wait_until(lambda: program.wine.ask("rowcount", window.control(FIND_ROWS).handle), "the notes that are found")
    photographer.take_window("find", "Find")


def editor_notes():
    return {name + extension: text
            for kind, extension in enumerate((".tx1", ".tx2", ".tx3", ".tx4", ".txt"))
            for name, text in EDITOR_NOTES[kind].items()}


def once_notes():
    return editor_notes() | ONCE_NOTES


def shipped_notes():
    return {file.name: file.read_bytes() for file in SHIPPED_NOTES.iterdir()}


def in_skin(name):
    """The window in one of the shipped skins."""
    def take(program, photographer):
        program.open_window()
        program.shows("1. Welcome to Kalvora")
        photographer.take(name, program.main.place, MARGIN)
    return take


def skin_kit(program, photographer):
    """What the skin author's tool paints: the skin to start from as it is and pressed; and its letters."""
    tool = next((ROOT / "build" / "mingw-release").rglob("kalvora-skin.exe"))
    template = ROOT / "assets" / "skin-template"
    looks = []
    for state in ("full", "pressed"):
        painting = program.wine.spawn([str(tool), "preview", str(template), f"{state}.png", "--state", state],
                                      program.folder, {})
        if painting.wait(60) != 0:
            raise RuntimeError("kalvora-skin could not paint the skin")
        looks.append(Image.open(program.folder / f"{state}.png").convert("RGB"))
    photographer.keep("skin-template", side_by_side(looks))
    photographer.keep("skin-letters", in_lines(Image.open(template / "text.bmp").convert("RGB")))


def side_by_side(pictures):
    both = Image.new("RGB", (sum(one.width for one in pictures), pictures[0].height))
    left = 0
    for one in pictures:
        both.paste(one, (left, 0))
        left += one.width
    return both


def in_lines(strip, lines=3, scale=2):
    """A font's strip of 57 letters in lines of 19."""
    width = strip.width // lines
    picture = Image.new("RGB", (width + 8, lines * (strip.height + 4) + 4), strip.getpixel((0, 0)))
    for line in range(lines):
        piece = strip.crop((line * width, 0, (line + 1) * width, strip.height))
        picture.paste(piece, (4, 4 + line * (strip.height + 4)))
    return picture.resize((picture.width * scale, picture.height * scale), Image.NEAREST)


@dataclasses.dataclass
class Session:
    """What takes the pictures, and what the program has meanwhile."""
    take: Callable
    notes: Callable = shipped_notes
    skin: int = 0
    ticks: tuple = ()  # of the page "Comfort"


PICTURES = {
    "main-window": Session(main_window),
    "reminder": Session(reminder),
    "snooze": Session(snooze),
    "missed": Session(missed, ticks=("Catch_up",)),
    "menu": Session(menu),
    "about": Session(about),
    "options": Session(options),
    "editor": Session(editor, editor_notes),
    "editor-once": Session(editor_once, once_notes, ticks=("Once_notes",)),
    "what-comes": Session(what_comes, editor_notes),
    "find": Session(find, editor_notes),
    **{f"skin-{skin.name.lower()}": Session(in_skin(f"skin-{skin.name.lower()}"), skin=index)
       for index, skin in enumerate(SKINS)},
    "skin-kit": Session(skin_kit),
}


def main():
    reader = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    reader.add_argument("names", nargs="*", metavar="NAME", choices=[[], *PICTURES], help=", ".join(PICTURES))
    reader.add_argument("--scale", type=int, default=100, help="of the screen, per cent")
    reader.add_argument("--into", type=Path, default=ROOT / "docs" / "pictures", help="the folder")
    wanted = reader.parse_args()
    wanted.into.mkdir(parents=True, exist_ok=True)
    for name in wanted.names or PICTURES:
        session = PICTURES[name]
        screen = (1024 * wanted.scale // 100, 768 * wanted.scale // 100)
        settings = {**SETTINGS, "Sys": {"Last_skin": str(session.skin)}, "Comfort": dict.fromkeys(session.ticks, "True")}
        with Kalvora(f"picture-{name}", skins=SKINS, notes=session.notes(), settings=settings, clock=CLOCK,
                     screen=screen, dots_per_inch=96 * wanted.scale // 100) as program:
            program.start_and_wait_for_tray()
            session.take(program, Photographer(program, wanted.into, wanted.scale))


if __name__ == "__main__":
    main()
