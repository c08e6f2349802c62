"""What the builder needs, and rendering of SVG through it."""

import shutil
import subprocess
import tempfile


class AssetError(Exception):
    """A source is wrong or a tool is missing; the text says what to do."""


def require():
    missing = []
    try:
        import PIL  # noqa: F401
    except ImportError:
        missing.append("Pillow for this Python (Debian: python3-pil)")
    if not shutil.which("rsvg-convert"):
        missing.append("rsvg-convert (Debian: librsvg2-bin)")
    if missing:
        raise AssetError("missing: " + "; ".join(missing))


def render_svg(path, width, height, style="", definitions=""):
    """The picture as RGBA, `width` x `height`; `style` is a style sheet laid over the file's own, and the picture
    may use the `definitions` as if they were its own."""
    import io

    from PIL import Image

    with open(path, encoding="utf-8") as file:
        drawing = file.read().replace("</svg>", f"<defs>{definitions}</defs></svg>")
    with tempfile.NamedTemporaryFile("w", suffix=".css") as sheet:
        sheet.write(style)
        sheet.flush()
        command = ["rsvg-convert", "--width", str(width), "--height", str(height), "--stylesheet", sheet.name]
        done = subprocess.run(command, input=drawing.encode(), capture_output=True, check=False)
    if done.returncode != 0:
        raise AssetError(f"{path}: {done.stderr.decode(errors='replace').strip()}")
    return Image.open(io.BytesIO(done.stdout)).convert("RGBA")


def colour(text):
    """(red, green, blue) of "#rrggbb"."""
    return tuple(int(text[i:i + 2], 16) for i in (1, 3, 5))
