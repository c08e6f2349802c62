"""Icon files: NAME.svg for every size, save those that are drawn pixel by pixel in NAME-16.txt and so on."""

import io
import os
import struct

from .requirements import AssetError, colour, render_svg

SIZES = (16, 20, 24, 32, 48)
LARGE = 256  # kept as PNG inside the file, in application icons only
APPLICATION_ICONS = ("kalvora",)


def build(folder):
    """The icon files as {name: bytes}."""
    names = sorted(name[:-4] for name in os.listdir(folder) if name.endswith(".svg") and "-" not in name)
    return {name + ".ico": _icon(folder, name) for name in names}


def _icon(folder, name):
    images = [(size, _bitmap(_render(folder, name, size))) for size in SIZES]
    if name in APPLICATION_ICONS:
        images.append((LARGE, _png(_render(folder, name, LARGE))))
    header = struct.pack("<HHH", 0, 1, len(images))
    offset = len(header) + 16 * len(images)
    entries, bodies = b"", b""
    for size, body in images:
        entries += struct.pack("<BBBBHHII", size % 256, size % 256, 0, 0, 1, 32, len(body), offset + len(bodies))
        bodies += body
    return header + entries + bodies


def _render(folder, name, size):
    drawing = os.path.join(folder, f"{name}-{size}.txt")
    if os.path.exists(drawing):
        return _drawn(drawing, size)
    return render_svg(os.path.join(folder, name + ".svg"), size, size)


def _drawn(path, size):
    """A picture from text: lines "K #rrggbb" name the colours, then come `size` rows of `size` marks."""
    from PIL import Image

    palette, rows = {".": (0, 0, 0, 0)}, []
    with open(path, encoding="ascii") as file:
        for line in file.read().split("\n"):
            if line[1:3] == " #":
                palette[line[0]] = (*colour(line[2:]), 255)
            elif line and not line.startswith(";"):
                rows.append(line)
    if len(rows) != size or any(len(row) != size or set(row) - set(palette) for row in rows):
        raise AssetError(f"{path}: {size} rows of {size} marks are needed, each a dot or a named colour")
    picture = Image.new("RGBA", (size, size))
    picture.putdata([palette[mark] for row in rows for mark in row])
    return picture


def _png(picture):
    file = io.BytesIO()
    picture.save(file, "PNG", optimize=True)
    return file.getvalue()


def _bitmap(picture):
    """32-bit pixels from the bottom up, then the one-bit mask that old readers use."""
    size = picture.width
    header = struct.pack("<IiiHHIIiiII", 40, size, size * 2, 1, 32, 0, 0, 0, 0, 0, 0)
    pixels, mask = bytearray(), bytearray()
    for y in reversed(range(size)):
        row = [picture.getpixel((x, y)) for x in range(size)]
        for red, green, blue, alpha in row:
            pixels += bytes((blue, green, red, alpha) if alpha else (0, 0, 0, 0))
        bits = "".join("0" if pixel[3] >= 128 else "1" for pixel in row).ljust((size + 31) // 32 * 32, "0")
        mask += int(bits, 2).to_bytes(len(bits) // 8, "big")
    return header + bytes(pixels) + bytes(mask)
