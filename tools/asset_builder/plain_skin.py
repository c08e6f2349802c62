"""The plain skin of the tests: one flat colour a region, no value at its default, every picture format."""

import io

from . import skin
from .pixel_font import ORDER
from .requirements import AssetError

WIDTH, HEIGHT, ROLLED = 221, 181, 31  # of the shape; the window is 220 wide
CORNER = 12                           # squares cut from the outline's corners
BACKGROUND, STRIP, PRESSED_BACKGROUND = (96, 112, 128), (64, 80, 96), (32, 40, 48)
TEXT_GROUND, TEXT_INK = (240, 240, 208), (16, 16, 64)
CELL = (6, 8)

# section: rectangle, colour in main1, colour in main2
BUTTONS = {
    "Fast Delete": ((146, 6, 14, 16), (224, 32, 32), (112, 16, 16)),
    "Rool Down/Up": ((164, 7, 16, 14), (32, 192, 32), (16, 96, 16)),
    "Minimize": ((184, 4, 18, 20), (48, 64, 240), (24, 32, 120)),
    "New": ((12, 128, 28, 18), (240, 224, 32), (120, 112, 16)),
    "Save": ((46, 129, 30, 20), (32, 224, 224), (16, 112, 112)),
    "Delete": ((82, 130, 26, 17), (224, 32, 224), (112, 16, 112)),
    "Left": ((116, 127, 22, 22), (240, 144, 32), (120, 72, 16)),
    "Right": ((144, 131, 24, 16), (144, 48, 208), (72, 24, 104)),
}
# name: x, y, cells
ROWS = {
    "Scrool": (14, 9, 19),
    "File Date/Time": (13, 152, 16),
    "Current Date": (12, 164, 12),
    "x of n": (118, 165, 9),
}
# section: rectangle, text colour, background colour
BOXES = {
    "Note Title": ((15, 36, 120, 17), (128, 8, 16), (255, 240, 224)),
    "Note Text": ((16, 60, 186, 60), (12, 96, 24), (224, 255, 232)),
    "Note Alarm": ((142, 37, 34, 18), (8, 24, 144), (224, 232, 255)),
    "Note AmPm": ((180, 38, 22, 16), (200, 250, 60), None),
}
COLOUR_PARTS = "RGB"

# What a missing key gives, in the order of BUTTONS, of CELL and ROWS, and of BOXES.
BUTTON_DEFAULTS = [(150, 5, 15, 15), (163, 5, 15, 15), (163, 5, 15, 15)] + [(1, 1, 1, 1)] * 5
CELL_DEFAULTS = (5, 6)
ROW_DEFAULTS = [(10, 10, 20), (10, 30, 10), (10, 40, 10), (10, 50, 10)]
BOX_DEFAULT, COLOUR_DEFAULT = (10, 10, 10, 10), (0, 0, 0)


def build():
    """The skin's files as {name: bytes}."""
    _require_nothing_at_its_default()
    shape, rolled = _shape(HEIGHT), _shape(ROLLED)
    return {
        "main1.gif": _encode(_main(1), "GIF"),
        "main2.bmp": skin.bmp(_main(2)),
        "titlebar.jpg": _encode(_main(1).crop((0, 0, WIDTH, ROLLED)), "JPEG"),
        "text.bmp": skin.bmp(_text()),
        "shapem.bmp": skin.bmp(shape),
        "shapet.bmp": skin.bmp(rolled),
        "config.ini": _config().encode("ascii"),
    }


def _require_nothing_at_its_default():
    pairs = [(CELL, CELL_DEFAULTS)]
    pairs += [(rectangle, default) for (rectangle, *_), default in zip(BUTTONS.values(), BUTTON_DEFAULTS)]
    pairs += list(zip(ROWS.values(), ROW_DEFAULTS))
    for rectangle, *colours in BOXES.values():
        pairs += [(rectangle, BOX_DEFAULT)] + [(colour, COLOUR_DEFAULT) for colour in colours if colour]
    for values, defaults in pairs:
        if any(value == default for value, default in zip(values, defaults)):
            raise AssetError(f"plain skin: a value of {values} is at its default {defaults}")


def _encode(picture, kind):
    file = io.BytesIO()
    if kind == "GIF":
        picture = picture.convert("P", palette=1, colors=32)
    picture.save(file, kind, **({"quality": 95} if kind == "JPEG" else {}))
    return file.getvalue()


def _fill(picture, rectangle, colour):
    x, y, w, h = rectangle
    picture.paste(colour, (x, y, x + w, y + h))


def _main(which):
    from PIL import Image

    picture = Image.new("RGB", (WIDTH, HEIGHT), BACKGROUND if which == 1 else PRESSED_BACKGROUND)
    if which == 1:
        _fill(picture, (0, 0, WIDTH, ROLLED), STRIP)
    for rectangle, *looks in BUTTONS.values():
        _fill(picture, rectangle, looks[which - 1])
    return picture


def _text():
    """The strip; the space is bare ground."""
    from PIL import Image

    width, height = CELL
    picture = Image.new("RGB", (width * len(ORDER), height), TEXT_GROUND)
    for index, character in enumerate(ORDER):
        if character != " ":
            for x, y in _glyph(character, index):
                picture.putpixel((index * width + x, y), TEXT_INK)
    return picture


def _glyph(character, index):
    """A frame's top and left, and the index in bits inside it, so that no two glyphs are alike."""
    frame = {(x, 0) for x in range(5)} | {(0, y) for y in range(7)}
    return frame | {(1 + bit % 4, 2 + bit // 4 * 2) for bit in range(7) if (index + 1) >> bit & 1}


def _shape(height):
    from PIL import Image

    picture = Image.new("RGB", (WIDTH, height), (255, 255, 255))
    _fill(picture, (0, 0, WIDTH - 1, height - 1), (0, 0, 0))
    corner = CORNER if height == HEIGHT else CORNER // 2
    for x in (0, WIDTH - 1 - corner):
        for y in (0, height - 1 - corner):
            _fill(picture, (x, y, corner, corner), (255, 255, 255))
    return picture


def _config():
    lines = ["; A plain skin for the tests: no value here is the one that a missing key has."]
    for name, (rectangle, *_) in BUTTONS.items():
        lines += ["", f"[{name}]", *_rectangle_lines(rectangle)]
    lines += ["", "[Graphic Text]", f"Cell Width={CELL[0]}", f"Cell Height={CELL[1]}"]
    for name, (x, y, length) in ROWS.items():
        lines += [f"{name}, X={x}", f"{name}, Y={y}", f"{name}, Length={length}"]
    for name, (rectangle, text, background) in BOXES.items():
        lines += ["", f"[{name}]", *_rectangle_lines(rectangle), *_colour_lines("Text", text)]
        if background:
            lines += _colour_lines("Background", background)
    return "\r\n".join(lines) + "\r\n"


def _rectangle_lines(rectangle):
    return [f"{key}={value}" for key, value in zip("XYWH", rectangle)]


def _colour_lines(kind, colour):
    return [f"{kind} color, {part}={value}" for part, value in zip(COLOUR_PARTS, colour)]
