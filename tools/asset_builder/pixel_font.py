"""Fonts drawn as text: reading them and painting the strip."""

import itertools

from .requirements import AssetError

ORDER = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789:()-'!_+\\/[]^&%.,=$# "


class PixelFont:
    """57 glyphs in the order of the strip; each glyph is the set of its ink pixels (x, y) in the cell."""

    def __init__(self, width, height, glyphs):
        self.width, self.height, self.glyphs = width, height, glyphs


def read(path):
    cell, place, pictures, order = (0, 0), (0, 0), {}, []
    with open(path, encoding="ascii") as file:
        for number, line in enumerate(file.read().split("\n"), 1):
            if line.startswith("="):
                order.append(line[1:])
                pictures[line[1:]] = []
            elif line and set(line) <= {"#", "."} and order:
                pictures[order[-1]].append(line)
            elif line.startswith("cell "):
                cell = tuple(int(word) for word in line.split()[1:])
            elif line.startswith("place "):
                place = tuple(int(word) for word in line.split()[1:])
            elif line and not line.startswith(";"):
                raise AssetError(f"{path}:{number}: neither glyph, picture, cell, place nor comment: {line}")
    if "".join(order) != ORDER:
        raise AssetError(f"{path}: the glyphs must be, in this order: {ORDER}")
    return PixelFont(*cell, [_ink(path, name, pictures[name], cell, place) for name in order])


def _ink(path, name, rows, cell, place):
    ink = {(place[0] + x, place[1] + y) for y, row in enumerate(rows) for x, mark in enumerate(row) if mark == "#"}
    if any(x >= cell[0] or y >= cell[1] for x, y in ink):
        raise AssetError(f'{path}: glyph "{name}" runs out of its cell')
    if not ink and name != " ":
        raise AssetError(f'{path}: glyph "{name}" is empty')
    return ink


def word_path(font, word):
    """The word as the data of an SVG path: its ink alone, with the top left corner at (0, 0)."""
    ink = {(number * font.width + x, y) for number, character in enumerate(word)
           for x, y in font.glyphs[ORDER.index(character)]}
    left, top = min(x for x, _ in ink), min(y for _, y in ink)
    path = []
    for x, y in sorted(ink, key=lambda pixel: (pixel[1], pixel[0])):
        if (x - 1, y) not in ink:
            length = next(length for length in itertools.count(1) if (x + length, y) not in ink)
            path.append(f"M{x - left} {y - top}h{length}v1h-{length}z")
    return "".join(path)


def strip(font, ink, ground):
    """The picture of all 57 cells side by side."""
    from PIL import Image

    picture = Image.new("RGB", (font.width * len(font.glyphs), font.height), ground)
    for index, glyph in enumerate(font.glyphs):
        for x, y in glyph:
            picture.putpixel((index * font.width + x, y), ink)
    return picture
