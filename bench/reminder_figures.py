"""The reckoning of the reminders, natively, with a stand-in of the file system: rebuilding time table and queue beside
the remind calendar, and the minute check. What the real program takes, many_notes_figures.py measures.

All of it comes from one run of reminders-bench, with the repetitions of its programs mixed, so a slow moment of the
machine meets them alike; each figure is the median of its repetitions, of which the other calendar's month has two.
"""

import json
import subprocess

from driver import BUILD
from figures import Figure

NATIVE = BUILD.parent / "native-release"
COUNT = 30_000
MOST_GROWTH = 3.5  # of the minute check, from 10,000 to 30,000 entries


def medians(repetitions):
    """Milliseconds by name, such as "rebuild/30000"."""
    out = NATIVE / "reminders.json"
    subprocess.run(
        [str(NATIVE / "bench" / "reminders-bench"), f"--benchmark_repetitions={repetitions}",
         "--benchmark_enable_random_interleaving=true", "--benchmark_min_time=0.2",
         f"--benchmark_out={out}", "--benchmark_out_format=json"],
        check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    times = {}
    for line in json.loads(out.read_text())["benchmarks"]:
        if line.get("error_occurred"):
            raise RuntimeError(f"{line['name']}: {line['error_message']}")
        if line.get("aggregate_name") == "median":
            name, count = line["run_name"].split("/")[:2]
            times[f"{name}/{count}"] = line["real_time"] / 1000
    return times


def measure(quick):
    times = medians(3 if quick else 9)
    ours, remind = times[f"rebuild/{COUNT}"], times[f"remind/{COUNT}"]
    yield Figure(f"time table and queue from {COUNT:,} notes, natively", f"{ours:.1f} ms", f"remind {remind:.1f} ms",
                 ours / remind, "as remind", ours / remind)
    year, month = times[f"year/{COUNT}"], times[f"remindMonth/{COUNT}"]
    yield Figure(f"all that is due within a year, of {COUNT:,} notes, natively", f"{year:.0f} ms",
                 f"remind -s, a month of them {month:.0f} ms", year / month)
    check, smaller = times[f"check/{COUNT}"], times["check/10000"]
    yield Figure(f"minute check of {COUNT:,} entries, natively", f"{check:.3f} ms", budget="1 ms", to_budget=check)
    yield Figure(f"minute check, from 10,000 to {COUNT:,} entries", f"{check:.3f} ms", f"{smaller:.3f} ms",
                 check / smaller, f"{MOST_GROWTH} times", check / smaller / MOST_GROWTH)
