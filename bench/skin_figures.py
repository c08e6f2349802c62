"""Wearing another skin, and making a window's outline from its picture: the program's own code under Wine."""

import shutil
import statistics
import subprocess

from PIL import Image, ImageDraw

from driver import BUILD, SOURCE, Program
from figures import Figure
from processes import only_on, processor_choices

WHITE, BLACK = (255, 255, 255), (0, 0, 0)
SKIN_SIZE = (400, 320)
SHAPE_SIZE = (1024, 768)
MOST_MILLISECONDS = {"reskin": 30, "region": 1}
NAMES = {"reskin": "reskin, pictures of 400 x 320", "region": "shape of 1024 x 768 to region"}


def write_skin(folder, size):
    """One skin with a window of that size, drawn from a shipped one of an odd outline."""
    shipped = SOURCE / "assets" / "skins" / "Puddle"
    shutil.copytree(shipped, folder)
    for name in ("main1", "main2", "remind1", "remind2", "shapem", "shapet"):
        picture = Image.open(shipped / f"{name}.bmp")
        width, height = size if name != "shapet" else (size[0], picture.height)
        picture.resize((width, height), Image.Resampling.NEAREST).save(folder / f"{name}.bmp")


def write_shape(file):
    """A round outline with three holes, which changes in nearly every row."""
    width, height = SHAPE_SIZE
    picture = Image.new("RGB", SHAPE_SIZE, WHITE)
    draw = ImageDraw.Draw(picture)
    draw.ellipse((0, 0, width - 2, height - 2), fill=BLACK)
    for left in (width // 4, width // 2, width * 5 // 8):
        draw.ellipse((left, height // 3, left + width // 10, height * 2 // 3), fill=WHITE)
    picture.save(file)


def run_bench(repetitions):
    """Name -> the milliseconds of each repetition."""
    with Program("bench-skins") as program:
        folder = program.folder / "bench"
        write_skin(folder / "skins" / "One", SKIN_SIZE)
        write_shape(folder / "shape.bmp")
        (folder / "notes").mkdir()
        output = subprocess.run(
            ["wine", str(BUILD / "bench" / "skins-bench.exe"), ".", str(repetitions)],
            cwd=folder, env=program.wine.environment, text=True, check=True, stdout=subprocess.PIPE).stdout
    lines = [line.split() for line in output.splitlines()]
    return {name: [float(time) for time in times] for name, *times in lines}


def measure(quick):
    """Once on one processor and once on all."""
    for processors, where in processor_choices():
        with only_on(processors):
            results = run_bench(20 if quick else 200)
        for name, times in results.items():
            middle, budget = statistics.median(times), MOST_MILLISECONDS[name]
            yield Figure(f"{NAMES[name]}, {where}", f"{middle:.2f} ms (slowest of {len(times)}: {max(times):.2f})",
                         budget=f"{budget} ms", to_budget=middle / budget)
