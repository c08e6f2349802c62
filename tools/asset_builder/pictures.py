"""Pictures inside the program: NAME.svg becomes NAME.bmp of the same size, 24 bits a pixel."""

import io
import os
import re

from .requirements import AssetError, render_svg


def build(folder):
    """The pictures as {name: bytes}."""
    names = sorted(name[:-4] for name in os.listdir(folder) if name.endswith(".svg"))
    return {name + ".bmp": _picture(os.path.join(folder, name + ".svg")) for name in names}


def _picture(path):
    file = io.BytesIO()
    render_svg(path, *_size(path)).convert("RGB").save(file, "BMP")
    return file.getvalue()


def _size(path):
    with open(path, encoding="utf-8") as file:
        found = re.search(r'<svg [^>]*?width="(\d+)" height="(\d+)"', file.read())
    if not found:
        raise AssetError(f"{path}: no width and height in pixels")
    return int(found.group(1)), int(found.group(2))
