"""Memory and processor time of the program under Wine, beside the smallest editor that Wine brings along."""

import time

from anchors import NOTEPAD_TITLE, notepad
from figures import Figure
from kalvora import Kalvora
from note_sets import notes_of_all_kinds
from processes import percents, proportional_size, server_of

SETTLED = 5  # seconds until what a start leaves to do is done
MOST_HIDDEN, MOST_SCROLLING = 0.2, 0.5  # percent of one processor


def wait_until_title_moves(program):
    """It rests for five seconds in each round."""
    before = program.title_strip()
    program.wait_until(lambda: program.title_strip() != before, "the title to move")


def processor_figure(what, processes, seconds, most):
    ours, notepads, server = percents(processes, seconds)
    return Figure(f"processor, {what} over {seconds} s", f"{ours:.3f} % (Wine's server {server:.3f} %)",
                  f"notepad.exe doing nothing {notepads:.3f} %", None, f"{most} %", ours / most)


def program_with_notes():
    settings = {"Graph": {"Window_X": "300", "Window_Y": "200"}, "Sys": {"AlwOnTop": "False"}}
    return Kalvora("bench-desktop", notes=notes_of_all_kinds(100), settings=settings)


def measure(quick):
    seconds = 10 if quick else 60
    with program_with_notes() as program:
        program.start_and_wait_for_tray()
        beside = notepad(program)
        program.window(title=NOTEPAD_TITLE)
        time.sleep(SETTLED)
        processes = (program.process_id, beside.process.pid, server_of(program))
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
        beside.close()
        program.end()
