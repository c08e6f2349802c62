"""If this fails, a skin folder that is removed while its skin is worn takes the window away, or the program ends
without the reason."""

import shutil

import options_dialog as options
from kalvora import ALMANAC, PLAIN, Kalvora
from options_dialog import OptionsDialog
from trouble import WINDOW

NOTES = {"a.txt": "||Alpha"}
SETTINGS = {"Graph": {**WINDOW, "Window_X": "40"}}


def started(name):
    return Kalvora(name, notes=NOTES, skins=[ALMANAC, PLAIN], settings=SETTINGS)


def expect_skin_error(program, message, end=""):
    box = program.message_box("Skin Error", timeout=60)
    assert box.message.startswith(message) and box.message.endswith(end), box.message
    box.answer("OK")
    program.exit_code()
    program.wait_until(lambda: not program.tray.there, "the tray icon to go")


def roll(program):
    _, _, _, before = program.main.place
    program.press("Rool Down/Up")
    program.wait_until(lambda: program.main.place[3] != before, "the window to roll")
    program.wait_until_standing()


def the_worn_skin_stays(program):
    """All that is seen of it is held by the program; only choosing it again needs its files."""
    full = program.main.place
    roll(program)
    assert program.main.place[3] < full[3]
    roll(program)
    assert program.main.place == full
    program.press("Right")
    program.shows("a")
    program.press("Minimize")
    program.wait_until(lambda: not program.main.visible, "the window to go")
    program.open_window()
    program.wait_until(lambda: program.looks_whole("Save"), "the buttons as the skin paints them")


def one_of_two_removed():
    with started("one-skin-gone") as program:
        program.start_and_wait_for_tray()
        program.open_window()
        shutil.rmtree(program.folder / "skins" / "Almanac")
        the_worn_skin_stays(program)
        dialog = OptionsDialog(program)
        dialog.page("Skins")
        program.keep_picture("skin-gone-options")
        dialog.leave(options.CLOSE)
        assert program.end() == 0
        # The next start wears the one that is left.
        program.wait_until(lambda: not program.tray.there, "the tray icon to go")
        program.start_and_wait_for_tray()
        program.open_window()
        assert program.end() == 0


def chosen_after_it_was_removed():
    """The list was filled before."""
    with started("chosen-skin-gone") as program:
        program.start_and_wait_for_tray()
        program.open_window()
        dialog = OptionsDialog(program)
        dialog.page("Skins")
        shutil.rmtree(program.folder / "skins" / "Plain")
        (program.folder / "skins" / "Plain").mkdir()
        dialog.choose_skin(1)
        expect_skin_error(program, "Ther's no Skin in this Directory ", "")


def all_removed():
    with started("all-skins-gone") as program:
        program.start_and_wait_for_tray()
        program.open_window()
        shutil.rmtree(program.folder / "skins")
        the_worn_skin_stays(program)
        dialog = OptionsDialog(program)
        dialog.page("Skins")
        assert program.wine.ask("items", dialog.box(options.SKINS).handle) == []
        dialog.leave(options.OK)
        assert program.end() == 0
        program.wait_until(lambda: not program.tray.there, "the tray icon to go")
        program.start()
        expect_skin_error(program, "Ther's no skin. Download some and run program again.")


one_of_two_removed()
chosen_after_it_was_removed()
all_removed()
