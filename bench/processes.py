"""What processes cost: processor time and memory, as the system counts them."""

import contextlib
import os
import re
import time
from pathlib import Path


def processor_choices():
    """One processor, then all that there are, each with its name. A program asks Wine's server several hundred times
    while it starts; where the two run on different processors, each question may have to wake one up."""
    every = os.sched_getaffinity(0)
    return [({min(every)}, "on one processor"), (every, f"on {len(every)} processors")]


@contextlib.contextmanager
def only_on(processors):
    """For this process and all that it starts meanwhile."""
    before = os.sched_getaffinity(0)
    os.sched_setaffinity(0, processors)
    try:
        yield
    finally:
        os.sched_setaffinity(0, before)


def processor_seconds(process):
    """The processor time that all threads of a process have had so far."""
    return time.clock_gettime((~process << 3) | 2)  # the clock of another process, as the kernel numbers it


def percents(processes, seconds):
    """What share of one processor each process takes from now on."""
    before, begin = [processor_seconds(process) for process in processes], time.monotonic()
    time.sleep(seconds)
    elapsed = time.monotonic() - begin
    return [100 * (processor_seconds(process) - spent) / elapsed for process, spent in zip(processes, before)]


def proportional_size(process):
    """Memory in kB, with what is shared divided among those that share it."""
    return int(re.search(r"^Pss:\s+(\d+) kB", Path(f"/proc/{process}/smaps_rollup").read_text(), re.M)[1])


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
