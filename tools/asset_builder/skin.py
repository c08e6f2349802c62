"""A shipped skin from its folder of sources: main.svg, shape.svg, config.ini, skin.json."""

import io
import json
import os

from . import description, pixel_font, texture
from .requirements import colour, render_svg

TEXTURES = {"paper": texture.paper_grain, "cloth": texture.cloth_weave, "metal": texture.brushed_metal}
LAYERS = ("picture", *TEXTURES, "outline")


def build(folder, sources):
    """The skin's files as {name: bytes}."""
    settings = json.loads(_text(folder, "skin.json"))
    size = tuple(settings["size"])
    config = description.Description(_text(folder, "config.ini"), os.path.join(folder, "config.ini"))
    full = _mask(folder, size, ".rolled, .full {display: inline}")
    rolled = _mask(folder, size, ".full {display: none}").crop((0, 0, size[0], settings["rolled"]))

    font = pixel_font.read(os.path.join(sources, "fonts", settings["font"] + ".txt"))
    names = ("main1.bmp", "main2.bmp", "remind1.bmp", "remind2.bmp")[:4 if config.has_face() else 2]
    pictures = [_main(settings, config, full, rolled, Drawing(folder, size, font, name)) for name in names]
    ink, ground = colour(settings["ink"]), colour(settings["ground"])
    description.check(config, pictures, font, ink, ground)

    full, rolled = _with_margin(full), _with_margin(rolled)
    pictures = [_with_margin(picture) for picture in pictures]
    files = {name: bmp(picture) for name, picture in zip(names, pictures)}
    return files | {
        "titlebar.bmp": bmp(pictures[0].crop((0, 0, rolled.width, rolled.height))),
        "text.bmp": bmp(pixel_font.strip(font, ink, ground)),
        "shapem.bmp": bmp(_shape(full)),
        "shapet.bmp": bmp(_shape(rolled)),
        "config.ini": _text(folder, "config.ini").replace("\n", "\r\n").encode("ascii"),
    }


class Drawing:
    """The layers of main.svg for one of the pictures that are made from it."""

    def __init__(self, folder, size, font, picture):
        self.path, self.size = os.path.join(folder, "main.svg"), size
        self.hidden = [".down" if picture.endswith("1.bmp") else ".up",
                       ".reminder" if picture.startswith("main") else ".browsing"]
        self.words = "".join(f'<path id="word{word}" d="{pixel_font.word_path(font, word.upper())}"/>'
                             for word in description.FACE)

    def layer(self, name):
        hidden = self.hidden + [f".{other}" for other in LAYERS if other != name]
        return render_svg(self.path, *self.size, ", ".join(hidden) + " {display: none}", self.words)


def bmp(picture):
    """A BMP file of 24 bits."""
    file = io.BytesIO()
    picture.convert("RGB").save(file, "BMP")
    return file.getvalue()


def _text(folder, name):
    with open(os.path.join(folder, name), encoding="utf-8", newline="") as file:
        return file.read().replace("\r\n", "\n")


def _mask(folder, size, style):
    """255 where the window is, 0 elsewhere."""
    alpha = render_svg(os.path.join(folder, "shape.svg"), *size, style).getchannel("A")
    return alpha.point(lambda value: 255 if value >= 128 else 0)


def _main(settings, config, full, rolled, drawing):
    """One of the pictures of the whole window, cut and outlined."""
    from PIL import Image

    size = tuple(settings["size"])
    picture = Image.new("RGB", size, colour(settings["ground"]))
    layer = drawing.layer("picture")
    picture.paste(layer, mask=layer.getchannel("A"))
    for name, make in TEXTURES.items():
        mask = _grain_mask(drawing.layer(name), config)
        if not mask.getbbox():
            continue
        texture.add(picture, make(*size, settings["seed"]), mask)
    outline = Image.new("RGB", size, colour(settings["edge"]))
    layer = drawing.layer("outline")
    outline.paste(layer, mask=layer.getchannel("A"))
    for shape in (full, rolled):
        _draw_outline(picture, outline, shape)
    picture.paste(outline, mask=full.point(lambda value: 255 - value))
    return picture


def _grain_mask(layer, config):
    """The layer's white, with a soft hole around each line of the pixel font."""
    from PIL import Image, ImageDraw, ImageFilter

    mask = Image.new("RGB", layer.size, (0, 0, 0))
    mask.paste(layer, mask=layer.getchannel("A"))
    mask = mask.getchannel("R")
    holes = Image.new("L", layer.size, 255)
    for name in description.ROWS:
        x0, y0, x1, y1 = config.row(name)
        ImageDraw.Draw(holes).rectangle((x0 - 7, y0 - 7, x1 + 6, y1 + 6), fill=0)
    holes = holes.filter(ImageFilter.BoxBlur(3))
    for name in description.ROWS:
        x0, y0, x1, y1 = config.row(name)
        ImageDraw.Draw(holes).rectangle((x0, y0, x1 - 1, y1 - 1), fill=0)
    black = Image.new("L", layer.size, 0)
    return Image.composite(mask, black, holes)


def _draw_outline(picture, outline, shape):
    """A crisp line on the shape's own edge pixels; the inner steps of its curves are softened."""
    inside, pixels, colours = shape.load(), picture.load(), outline.load()

    def is_outside(x, y):
        return not (0 <= x < shape.width and 0 <= y < shape.height and inside[x, y])

    for y in range(shape.height):
        for x in range(shape.width):
            if is_outside(x, y):
                continue
            if any(is_outside(x + dx, y + dy) for dx, dy in ((1, 0), (-1, 0), (0, 1), (0, -1))):
                pixels[x, y] = colours[x, y]
            elif any(is_outside(x + dx, y + dy) for dx in (-1, 1) for dy in (-1, 1)):
                pixels[x, y] = tuple((a + b) // 2 for a, b in zip(pixels[x, y], colours[x, y]))


def _with_margin(picture):
    """One more column and row: the window is one narrower than its shape and never shows the last row."""
    from PIL import Image

    wide = Image.new(picture.mode, (picture.width + 1, picture.height + 1), 0)
    if picture.mode == "RGB":
        wide.paste(picture.crop((picture.width - 1, 0, picture.width, picture.height)), (picture.width, 0))
        wide.paste(picture.crop((0, picture.height - 1, picture.width, picture.height)), (0, picture.height))
    wide.paste(picture, (0, 0))
    return wide


def _shape(mask):
    """Black where the window is, pure white where it is not."""
    return mask.point(lambda value: 255 - value).convert("RGB")
