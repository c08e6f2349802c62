"""A skin's config.ini: the source, and what the pictures must keep to so that it looks right."""

import configparser

from .requirements import AssetError

BUTTONS = ("Fast Delete", "Rool Down/Up", "Minimize", "New", "Save", "Delete", "Left", "Right")
FACE = ("Snooze", "Done")
BOXES = ("Note Title", "Note Text", "Note Alarm")
ROWS = {"Scrool": 41, "File Date/Time": 21, "Current Date": 21, "x of n": 21}


class Description:
    def __init__(self, text, path):
        self.path = path
        self.ini = configparser.ConfigParser(interpolation=None, comment_prefixes=(";",))
        self.ini.optionxform = str
        self.ini.read_string(text)

    def number(self, section, key):
        try:
            return int(self.ini[section][key])
        except (KeyError, ValueError) as error:
            raise AssetError(f"{self.path}: [{section}] {key}: {error}") from error

    def rectangle(self, section):
        """(left, top, right, bottom), right and bottom exclusive."""
        x, y, w, h = (self.number(section, key) for key in "XYWH")
        return x, y, x + w, y + h

    def has_face(self):
        """Whether a reminder has buttons of its own."""
        return any(section in self.ini for section in FACE)

    def row(self, name):
        x, y = self.number("Graphic Text", f"{name}, X"), self.number("Graphic Text", f"{name}, Y")
        width, height = self.cell()
        return x, y, x + width * self.number("Graphic Text", f"{name}, Length"), y + height

    def cell(self):
        return self.number("Graphic Text", "Cell Width"), self.number("Graphic Text", "Cell Height")

    def colour(self, section, kind):
        return tuple(self.number(section, f"{kind} color, {part}") for part in "RGB")


def contrast(first, second):
    """Contrast ratio of two colours, 1 to 21."""
    def luminance(colour):
        parts = [v / 255 / 12.92 if v <= 10 else ((v / 255 + 0.055) / 1.055) ** 2.4 for v in colour]
        return 0.2126 * parts[0] + 0.7152 * parts[1] + 0.0722 * parts[2]

    light, dark = sorted((luminance(first), luminance(second)), reverse=True)
    return (light + 0.05) / (dark + 0.05)


def check(description, pictures, font, ink, ground):
    """Fails where something would not sit in the picture as if painted there. The first two pictures are those of the
    window, at rest and pressed; two more are those of a reminder's face."""
    problems = []
    if (font.width, font.height) != description.cell():
        problems.append(f"the font's cell is {font.width} x {font.height}")
    for name, capacity in ROWS.items():
        if not 0 < description.number("Graphic Text", f"{name}, Length") <= capacity:
            problems.append(f"{name}, Length: 1 to {capacity} cells")
        _check_flat(problems, pictures, name, description.row(name), ground)
    for name in BOXES:
        _check_flat(problems, pictures, name, description.rectangle(name), description.colour(name, "Background"))
        _check_contrast(problems, name, description.colour(name, "Text"), description.colour(name, "Background"))
    _check_contrast(problems, "pixel font", ink, ground)
    label, paper = description.rectangle("Note AmPm"), description.colour("Note Alarm", "Background")
    _check_flat(problems, pictures, "Note AmPm", label, paper)
    _check_contrast(problems, "Note AmPm", description.colour("Note AmPm", "Text"), paper)
    _check_overlaps(problems, description, BUTTONS)
    if description.has_face():
        _check_overlaps(problems, description, BUTTONS[:3] + FACE)
        _check_face(problems, description, pictures)
    if problems:
        raise AssetError(f"{description.path}: " + "; ".join(problems))


def _check_flat(problems, pictures, name, box, colour):
    for picture in pictures:
        found = picture.crop(box).getcolors()
        if found != [((box[2] - box[0]) * (box[3] - box[1]), colour)]:
            problems.append(f"{name}: the ground at {box} is not flat {colour}")


def _check_contrast(problems, name, text, ground):
    if contrast(text, ground) < 4.5:
        problems.append(f"{name}: contrast {contrast(text, ground):.2f}, at least 4.5 is needed")


def _check_face(problems, description, pictures):
    """Of a face's pictures nothing is seen but the places of its buttons and of the five that it stands for."""
    from PIL import ImageChops, ImageDraw

    for name, window, face in zip(("at rest", "pressed"), pictures, pictures[2:]):
        difference = ImageChops.difference(window, face)
        for section in BUTTONS[3:] + FACE:
            x0, y0, x1, y1 = description.rectangle(section)
            ImageDraw.Draw(difference).rectangle((x0, y0, x1 - 1, y1 - 1), fill=0)
        if difference.getbbox():
            problems.append(f"the face {name} differs at {difference.getbbox()}, where it is never seen")


def _check_overlaps(problems, description, buttons):
    boxes = {name: description.rectangle(name) for name in buttons + BOXES + ("Note AmPm",)}
    boxes.update({name: description.row(name) for name in ROWS})
    names = sorted(boxes)
    for i, first in enumerate(names):
        for second in names[i + 1:]:
            a, b = boxes[first], boxes[second]
            if a[0] < b[2] and b[0] < a[2] and a[1] < b[3] and b[1] < a[3]:
                problems.append(f"{first} and {second} overlap")
