"""Icon files from SVG: NAME.svg for every size, NAME-16.svg and so on where a size is drawn by hand."""

import io
import os
import struct

from .requirements import render_svg

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
    own = os.path.join(folder, f"{name}-{size}.svg")
    return render_svg(own if os.path.exists(own) else os.path.join(folder, name + ".svg"), size, size)


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
