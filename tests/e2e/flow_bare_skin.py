"""If this fails, a skin without a description shows no text boxes until they are clicked."""

import shutil

from kalvora import ALMANAC, TEXT, Kalvora
from driver import BUILD

# Where a box stands that no key places.
BOX = (10, 10, 10, 10)
BLACK = (0, 0, 0)


def skin_without_description():
    skin = BUILD / "e2e-skins" / "Bare"
    shutil.rmtree(skin, ignore_errors=True)
    shutil.copytree(ALMANAC, skin)
    (skin / "config.ini").write_bytes(b"")
    return skin


def box_is_black(program):
    left, top, width, height = BOX
    x, y = program.main.on_screen(left, top)
    piece = program.screen.picture().crop((x, y, x + width, y + height))
    colours = piece.getcolors()
    # A caret or a piece of a letter may stand in it.
    return max(colours)[1] == BLACK


class Bare(Kalvora):
    """The program in that skin, whose buttons have no names for the driver."""

    def __init__(self):
        super().__init__(skins=[skin_without_description()], notes={"A.txt": "7|30|Alpha"},
                         settings={"Graph": {"Window_X": "200", "Window_Y": "100"}})


with Bare() as program:
    program.start_and_wait_for_tray()
    program.open_window()
    program.wait_until(lambda: program.main.control(TEXT).text == "Alpha", "the note")
    program.keep_picture("bare-skin")
    program.wait_until(lambda: box_is_black(program), "the text boxes", timeout=10)
    assert program.end() == 0
