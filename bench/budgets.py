"""Runs the parts of the measurement that are asked for and prints their figures; bench/run prepares all it needs."""

import argparse
import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tests" / "e2e"))

# The driver of the end-to-end tests is found only now.
import comparison  # noqa: E402
import desktop_figures  # noqa: E402
import editor_figures  # noqa: E402
import exe_figures  # noqa: E402
import many_notes_figures  # noqa: E402
import motion_figures  # noqa: E402
import reminder_figures  # noqa: E402
import skin_figures  # noqa: E402
import start_figures  # noqa: E402
import figures  # noqa: E402
import pairs  # noqa: E402

PARTS = {"start": start_figures, "desktop": desktop_figures, "many-notes": many_notes_figures,
         "editor": editor_figures, "motion": motion_figures, "skins": skin_figures, "reminders": reminder_figures,
         "exe": exe_figures}


def read_arguments():
    parser = argparse.ArgumentParser(prog="bench/run")
    parser.add_argument("--quick", action="store_true", help="fewer repetitions, to see whether the measuring works")
    parser.add_argument("--against", metavar="OTHER.exe", help="another build to measure beside this one")
    parser.add_argument("parts", nargs="*", metavar="PART")
    arguments = parser.parse_args()
    known = comparison.PARTS if arguments.against else PARTS
    unknown = [name for name in arguments.parts if name not in known]
    if unknown:
        parser.error(f"there is no part called {unknown[0]}; the parts: {', '.join(known)}")
    if arguments.against and not Path(arguments.against).is_file():
        parser.error(f"there is no file {arguments.against}")
    arguments.parts = arguments.parts or list(known)
    return arguments


def print_rows(parts, measure, troubles):
    """The rows of each part as they come; a part that cannot be measured does not keep the others from it."""
    for name in parts:
        try:
            for row in measure(name):
                print(row.row(), flush=True)
                troubles += [f"{row.what}: the budget is missed"] * row.missed
        except (AssertionError, OSError, RuntimeError, subprocess.SubprocessError) as trouble:
            troubles.append(f"{name} could not be measured: {trouble}")


def main():
    arguments, troubles = read_arguments(), []
    if arguments.against:
        print(pairs.HEAD, flush=True)
        print_rows(arguments.parts, lambda name: comparison.compare(name, arguments.against, arguments.quick), troubles)
    else:
        print(figures.HEAD, flush=True)
        print_rows(arguments.parts, lambda name: PARTS[name].measure(arguments.quick), troubles)
    if troubles:
        sys.exit("\n".join(troubles))


main()
