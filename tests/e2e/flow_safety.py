"""If this fails, a program that is killed while it saves leaves half a note, or none, or its half-written files
stay for ever."""

import os
import random
import signal
import threading
import time

from kalvora import TEXT, TITLE, Kalvora

SAVES = 300
KILLS = 12
TITLES = ("one", "two")
OTHER = b"||a note that nobody touches"
SETTINGS = {"Graph": {"ShWatS": "True", "Window_X": "300", "Window_Y": "200", "Win1_Jump": "2000"},
            "Sys": {"AlwOnTop": "False"}}
LETTERS = "abcdefghijklmnopqrstuvwxyz"


def content(number):
    """A long note whose every part says which one it is, no two after each other of the same length."""
    line = LETTERS[number % 26] * 40 + "\r\n"  # Unbroken text takes the edit box seconds to lay out.
    return f"||{number:05}\r\n" + line * (400 + number % 7 * 30) + f"{number:05}"


def notes(program):
    """Title -> content of the notes that a save may touch; a file that vanishes meanwhile is none."""
    found = {}
    for title in TITLES:
        try:
            found[title] = program.read(f"notes/{title}.txt").decode()
        except FileNotFoundError:
            pass
    return found


def save(program, title, number, just_before=lambda: None):
    """Puts the next content into the window and clicks on Save."""
    program.text.set_text(content(number)[2:])
    program.title.set_text(title)
    just_before()
    # Without the driver's rest between two clicks: the window knows no double clicks.
    program.screen.xdotool("mousemove", *program.save_button, "click", 1)


def start(program):
    program.start()
    program.wait_until_standing()
    main = program.main
    program.title, program.text = main.control(TITLE), main.control(TEXT)
    program.save_button = main.on_screen(*program.middle_of("Save"))


def wait_until_saved(program, number):
    deadline = time.monotonic() + 20
    while list(notes(program).values()) != [content(number)]:
        assert time.monotonic() < deadline, f"save {number} did not come"
        time.sleep(0.005)


def expect_whole(program, allowed, when):
    found = notes(program)
    assert found, f"{when}: the note is gone"
    for title, text in found.items():
        assert text in allowed, f"{when}: {title} is neither old nor new: {text[:20]}...{text[-20:]}, {len(text)}"
    assert program.read("notes/z.txt") == OTHER


def remove_all_but_the_newest(program):
    """A killed renaming may leave both names; from here on there is one again."""
    found = notes(program)
    for title in sorted(found, key=found.get)[:-1]:
        (program.folder / "notes" / f"{title}.txt").unlink()


class Killer:
    """Kills the program near the moment of its save: later after it came too early, sooner after it came too late."""

    def __init__(self, chance):
        self.outcomes = {"old": 0, "new": 0, "both": 0}
        self._chance, self._delay, self._step = chance, 0.02, 0.008

    def kill_while_saving(self, program, title, number):
        delay = max(0.0, self._delay + self._chance.uniform(-0.002, 0.002))
        timer = threading.Timer(delay, os.kill, (program.process_id, signal.SIGKILL))
        save(program, title, number, just_before=timer.start)
        timer.join()
        program.exit_code()
        program.wait_until(lambda: not program.windows("KalvoraMain"), "the window to go with the program")
        saved = content(number) in notes(program).values()
        self.outcomes["both" if len(notes(program)) == 2 else "new" if saved else "old"] += 1
        self._delay = max(0.0, self._delay + (-self._step if saved else self._step))
        self._step = max(0.001, self._step * 0.8)


def run(program, chance):
    killed_at, killer = set(chance.sample(range(5, SAVES), KILLS)), Killer(chance)
    start(program)
    for number in range(1, SAVES + 1):
        title = chance.choice(TITLES)
        if number in killed_at:
            killer.kill_while_saving(program, title, number)
            expect_whole(program, (content(number - 1), content(number)), f"killed at save {number}")
            remove_all_but_the_newest(program)
            start(program)
        save(program, title, number)
        wait_until_saved(program, number)
    return killer.outcomes


def leave_half_a_file(program, name, seconds_ago):
    program.write(name, "||half a no")
    written = time.time() - seconds_ago
    os.utime(program.folder / name, (written, written))


def expect_leftovers_to_go(program):
    """At the next start, unless they are so young that another copy of the program may be writing them."""
    (program.folder / "backup").mkdir(exist_ok=True)
    for folder in ("notes", "backup"):
        leave_half_a_file(program, f"{folder}/~kalvora-7-1.tmp", seconds_ago=90)
    leave_half_a_file(program, "notes/~kalvora-8-1.tmp", seconds_ago=0)
    start(program)
    program.wait_until(lambda: not list(program.folder.glob("*/~kalvora-7-1.tmp")), "the left-over files to go")
    assert (program.folder / "notes/~kalvora-8-1.tmp").exists()
    assert program.end() == 0


seed = int(os.environ.get("KALVORA_SEED", random.randrange(10**6)))
print(f"KALVORA_SEED={seed} repeats this run")
with Kalvora("safety", notes={"one.txt": content(0), "z.txt": OTHER}, settings=SETTINGS) as program:
    outcomes = run(program, random.Random(seed))
    print(f"{SAVES} saves, killed in {KILLS} of them: {outcomes}")
    assert outcomes["old"] and outcomes["new"], f"killed only before or only after the saves: {outcomes}"
    left = {file.name for file in (program.folder / "notes").iterdir()}
    assert {name for name in left if not name.startswith("~kalvora-")} <= {"one.txt", "two.txt", "z.txt"}, left
    assert program.end() == 0
    expect_leftovers_to_go(program)
