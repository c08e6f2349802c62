"""Start, memory and processor time of the program under Wine, beside the smallest editor that Wine brings along."""

import datetime
import statistics
import time

from figures import Figure
from kalvora import Kalvora
from on_screen import wait_until_shown
from processes import only_on, processor_choices, processor_seconds, proportional_size, server_of

NOTEPAD_TITLE = "Untitled - Notepad"
SETTLED = 5  # seconds until what a start leaves to do is done
MOST_HIDDEN, MOST_SCROLLING = 0.2, 0.5  # percent of one processor


def hundred_notes():
    """Twenty of each kind; none is due within the measuring."""
    now = datetime.datetime.now()
    time_of_day, day = f"{(now.hour + 12) % 24}|44|", f"{(now.day + 10) % 28 + 1}|"
    heads = {".txt": time_of_day, ".tx1": time_of_day, ".tx2": f"{time_of_day}1|0|1|0|1|0|1|",
             ".tx3": f"{day}0|0|", ".tx4": f"{day}{now.month - 1}|0|0|"}
    return {f"A note with a long title {number}{ending}": f"{head}The text of the note {number}"
            for ending, head in heads.items() for number in range(20)}


class Notepad:
    """Beside the program, on the same screen and the same Wine."""

    def __init__(self, program):
        self._program = program
        # By its full path, or another process of Wine's would start it.
        self.process = program.wine.spawn([r"C:\windows\system32\notepad.exe"], program.folder, {})

    def close(self):
        self._program.window(title=NOTEPAD_TITLE).close()
        self.process.wait(30)


def seconds_until_shown(program, name, start):
    """From the start of the process until its window is on the screen."""
    begin = time.monotonic()
    started = start()
    wait_until_shown(program, name)
    return time.monotonic() - begin, started


def start_times(program, repetitions):
    """Of the program and of notepad, in turns; the first of each only warms the caches."""
    ours, theirs = [], []
    for _ in range(repetitions + 1):
        ours.append(seconds_until_shown(program, "Kalvora", program.start)[0])
        program.wait_until_standing()
        program.main.close()
        program.exit_code()
        taken, notepad = seconds_until_shown(program, NOTEPAD_TITLE, lambda: Notepad(program))
        theirs.append(taken)
        notepad.close()
    return [1000 * statistics.median(times[1:]) for times in (ours, theirs)]


def percents(processes, seconds):
    """What share of one processor each process takes from now on."""
    before, begin = [processor_seconds(process) for process in processes], time.monotonic()
    time.sleep(seconds)
    elapsed = time.monotonic() - begin
    return [100 * (processor_seconds(process) - spent) / elapsed for process, spent in zip(processes, before)]


def wait_until_title_moves(program):
    """It rests for five seconds in each round."""
    before = program.title_strip()
    program.wait_until(lambda: program.title_strip() != before, "the title to move")


def processor_figure(what, processes, seconds, most):
    ours, notepad, server = percents(processes, seconds)
    return Figure(f"processor, {what} over {seconds} s", f"{ours:.3f} % (Wine's server {server:.3f} %)",
                  f"notepad.exe doing nothing {notepad:.3f} %", None, f"{most} %", ours / most)


def program_with_notes():
    settings = {"Graph": {"Window_X": "300", "Window_Y": "200"}, "Sys": {"AlwOnTop": "False"}}
    return Kalvora("bench-desktop", notes=hundred_notes(), settings=settings)


def start_figures(quick):
    for processors, where in processor_choices():
        with only_on(processors), program_with_notes() as program:
            program.set_setting("Graph", "ShWatS", "True")
            ours, notepads = start_times(program, 3 if quick else 15)
        yield Figure(f"start to first window shown, 100 notes, {where}", f"{ours:.0f} ms",
                     f"notepad.exe {notepads:.0f} ms", ours / notepads, "as notepad.exe", ours / notepads)


def measure(quick):
    yield from start_figures(quick)
    seconds = 10 if quick else 60
    with program_with_notes() as program:
        program.set_setting("Graph", "ShWatS", "False")
        program.start_and_wait_for_tray()
        notepad = Notepad(program)
        program.window(title=NOTEPAD_TITLE)
        time.sleep(SETTLED)
        processes = (program.process_id, notepad.process.pid, server_of(program))
        assert not program.main.visible
        yield processor_figure("hidden in the tray", processes, seconds, MOST_HIDDEN)
        assert not program.main.visible, "the window came out meanwhile"

        program.open_window()
        wait_until_title_moves(program)
        yield processor_figure("title scrolling", processes, seconds, MOST_SCROLLING)
        wait_until_title_moves(program)
        ours, notepads = (proportional_size(process) for process in processes[:2])
        yield Figure("memory (proportional set size), window shown", f"{ours:,} kB", f"notepad.exe {notepads:,} kB",
                     ours / notepads, "as notepad.exe", ours / notepads)
        notepad.close()
        program.end()
