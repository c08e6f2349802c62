#!/usr/bin/env python3
"""Builds and runs the reminder benchmarks and prints what they say as ratios.

    bench/run-reminders [repetitions]

All figures of a line come from one run, with the repetitions of all its programs mixed, so a slow
moment of the machine meets them alike; each is the median of its repetitions. Needs the packages
libbenchmark-dev and remind.
"""

import json
import pathlib
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "native-release"
COUNTS = (1000, 10000, 30000)


def build():
    configure = ["cmake", "--preset", "native-release", "-DKALVORA_BENCH=ON", "-DKALVORA_TESTS=OFF"]
    compile_ = ["cmake", "--build", str(BUILD), "--target", "reminders-bench", "-j2"]
    for command in (configure, compile_):
        subprocess.run(command, cwd=ROOT, check=True, stdout=subprocess.DEVNULL)


def medians(repetitions):
    """Microseconds by name, such as "rebuild/1000": of the clock, and of the processor."""
    out = BUILD / "reminders.json"
    subprocess.run(
        [str(BUILD / "bench" / "reminders-bench"), f"--benchmark_repetitions={repetitions}",
         "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.2",
         f"--benchmark_out={out}", "--benchmark_out_format=json"],
        check=True, stdout=subprocess.DEVNULL)
    times, processor = {}, {}
    for line in json.loads(out.read_text())["benchmarks"]:
        if line.get("error_occurred"):
            sys.exit(f"{line['name']}: {line['error_message']}")
        if line.get("aggregate_name") == "median":
            name = line["run_name"].removesuffix("/real_time")
            times[name], processor[name] = line["real_time"], line["cpu_time"]
    return times, processor


def main():
    if shutil.which("remind") is None:
        sys.exit("The calendar program to compare with is missing: install the package remind.")
    build()
    times, processor = medians(int(sys.argv[1]) if len(sys.argv) > 1 else 9)
    print("| notes | rebuild : bare files | the same in processor time | rebuild : remind | minute check |")
    print("|---|---|---|---|---|")
    for count in COUNTS:
        rebuild = times[f"rebuild/{count}"]
        print(f"| {count:,} | {rebuild / times[f'files/{count}']:.2f}"
              f" | {processor[f'rebuild/{count}'] / processor[f'files/{count}']:.2f}"
              f" | {rebuild / times[f'remind/{count}']:.2f}"
              f" | {times[f'check/{count}'] / 1000:.3f} ms |")
    growth = times["check/30000"] / times["check/10000"]
    print(f"\nThe minute check grows {growth:.2f} times from 10,000 to 30,000 entries.")


if __name__ == "__main__":
    main()
