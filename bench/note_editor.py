#!/usr/bin/python3
"""Measures how long the note editor takes to open over 5,000 notes of one kind, under Wine, beside one without
notes: from the click on "Edit All Notes" until the window comes, which it does with its list filled.

    bench/time-note-editor [repetitions]

The processor time is that of the program and of Wine's server, and says more on a busy machine.
"""

import os
import statistics
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parents[1]
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tests" / "e2e"))

from editor import NAMES, TITLE, started
from kalvora import MENU_ITEMS, MENU_TEXT_LEFT

COUNT = 5000
TICKS = os.sysconf("SC_CLK_TCK")


def build():
    for command in (["cmake", "--preset", "mingw-release"],
                    ["cmake", "--build", "--preset", "mingw-release", "--target", "kalvora", "e2e-probe"],
                    ["tools/wine-prefix.sh", "template"]):
        subprocess.run(command, cwd=ROOT, check=True, stdout=subprocess.DEVNULL)


def server_of(program):
    """The process number of the server of the program's Wine."""
    wanted = f"WINEPREFIX={program.wine.prefix}".encode()
    for folder in Path("/proc").glob("[0-9]*"):
        try:
            if ((folder / "comm").read_text().startswith("wineserver")
                    and wanted in (folder / "environ").read_bytes().split(b"\0")):
                return int(folder.name)
        except OSError:  # It has ended meanwhile.
            pass
    raise RuntimeError("Wine's server is not to be found")


def processor_seconds(processes):
    fields = [Path(f"/proc/{number}/stat").read_text().rsplit(")", 1)[1].split() for number in processes]
    return sum(int(field[11]) + int(field[12]) for field in fields) / TICKS


def seconds_to_open(program, processes):
    """From the click until the window is to be seen, and of the processor."""
    at = program.open_menu().on_screen(MENU_TEXT_LEFT, MENU_ITEMS["Edit All Notes"])
    worked, start = processor_seconds(processes), time.monotonic()
    program.screen.click(*at)
    while not program.windows(title=TITLE):
        time.sleep(0.005)
    return time.monotonic() - start, processor_seconds(processes) - worked


def close(program):
    window = program.window(title=TITLE)
    window.close()
    program.wait_until(lambda: not window.visible, "the editor to close", timeout=60)


def measure(count, repetitions):
    notes = {f"Note {number}.tx1": "7|30|text" for number in range(count)}
    times = []
    with started(name=f"time-editor-{count}", notes=notes) as program:
        processes = (program.process_id, server_of(program))
        for repetition in range(repetitions + 1):
            both = seconds_to_open(program, processes)
            if repetition == 0:  # which also reads the folder from the disk
                names = program.window(title=TITLE).control(NAMES)
                assert len(program.wine.ask("items", names.handle)) == count
            else:
                times.append(both)
            close(program)
    return zip(*times)


def main():
    repetitions = int(sys.argv[1]) if len(sys.argv) > 1 else 9
    build()
    print("| notes | fastest | median | slowest | processor, median |\n|---|---|---|---|---|")
    for count in (0, COUNT):
        elapsed, worked = ([round(1000 * value) for value in values] for values in measure(count, repetitions))
        print(f"| {count:,} | {min(elapsed)} ms | {statistics.median(elapsed):.0f} ms | {max(elapsed)} ms"
              f" | {statistics.median(worked):.0f} ms |")


main()
