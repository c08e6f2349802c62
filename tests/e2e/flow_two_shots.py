"""If this fails, two commands "./run --shot" at a time in one checkout spoil each other's picture, or leave one on
which the program is not to be seen."""

import subprocess
import tempfile
from pathlib import Path

from PIL import Image

from desktop import DESKTOP_COLOUR, SOURCE

TIMEOUT = 400
LEAST_AREA, LEAST_COLOURS = 10_000, 100  # of a skinned window with a note in it; the strip of tray icons has less


def check_picture(path):
    picture = Image.open(path).convert("RGB")
    of_the_window = [colour for colour in picture.getdata() if colour != DESKTOP_COLOUR]
    assert len(of_the_window) > LEAST_AREA, (path.name, len(of_the_window))
    assert len(set(of_the_window)) > LEAST_COLOURS, (path.name, len(set(of_the_window)))


with tempfile.TemporaryDirectory() as folder:
    pictures = [Path(folder) / f"{name}.png" for name in ("one", "two")]
    shots = [subprocess.Popen([SOURCE / "run", "--shot", picture], stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              stdin=subprocess.DEVNULL, text=True) for picture in pictures]
    for shot, picture in zip(shots, pictures):
        told, _ = shot.communicate(timeout=TIMEOUT)
        assert shot.returncode == 0, told
        assert f"Saved {picture}" in told, told
        check_picture(picture)
