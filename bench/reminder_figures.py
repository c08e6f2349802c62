"""The reminders natively: rebuilding time table and queue beside the bare files and beside the remind calendar, and
the minute check. All of it comes from one run of reminders-bench, with the repetitions of its programs mixed, so a
slow moment of the machine meets them alike; each figure is the median of its repetitions.
"""

import json
import subprocess

from driver import BUILD
from figures import Figure

NATIVE = BUILD.parent / "native-release"
COUNTS = (1000, 10000, 30000)
MOST_GROWTH = 3.5  # of the minute check, from 10,000 to 30,000 entries


def medians(repetitions):
    """Milliseconds by name, such as "rebuild/1000": of the clock, and of the processor."""
    out = NATIVE / "reminders.json"
    subprocess.run(
        [str(NATIVE / "bench" / "reminders-bench"), f"--benchmark_repetitions={repetitions}",
         "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.2",
         f"--benchmark_out={out}", "--benchmark_out_format=json"],
        check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    times, processor = {}, {}
    for line in json.loads(out.read_text())["benchmarks"]:
        if line.get("error_occurred"):
            raise RuntimeError(f"{line['name']}: {line['error_message']}")
        if line.get("aggregate_name") == "median":
            name = line["run_name"].removesuffix("/real_time")
            times[name], processor[name] = line["real_time"] / 1000, line["cpu_time"] / 1000
    return times, processor


def measure(quick):
    times, processor = medians(3 if quick else 9)
    for count in COUNTS:
        largest = count == COUNTS[-1]
        ours, bare, remind = (times[f"{name}/{count}"] for name in ("rebuild", "files", "remind"))
        what = f"time table and queue from {count:,} notes"
        yield Figure(what, f"{ours:.1f} ms", f"remind {remind:.1f} ms", ours / remind, "as remind" if largest else "",
                     ours / remind if largest else None)
        yield Figure(what, f"{ours:.1f} ms", f"bare files {bare:.1f} ms", ours / bare, "1.5 (an aim)" if largest else "")
        ours, bare = (processor[f"{name}/{count}"] for name in ("rebuild", "files"))
        yield Figure(f"{what}, processor time", f"{ours:.1f} ms", f"bare files {bare:.1f} ms", ours / bare)
    check, smaller = times["check/30000"], times["check/10000"]
    yield Figure("minute check of 30,000 entries", f"{check:.3f} ms", budget="1 ms", to_budget=check)
    yield Figure("minute check, from 10,000 to 30,000 entries", f"{check:.3f} ms", f"{smaller:.3f} ms", check / smaller,
                 f"{MOST_GROWTH} times", check / smaller / MOST_GROWTH)
