"""Runs the parts of the measurement that are asked for and prints their figures; bench/run prepares all it needs."""

import subprocess
import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tests" / "e2e"))

# The driver of the end-to-end tests is found only now.
import desktop_figures  # noqa: E402
import editor_figures  # noqa: E402
import exe_figures  # noqa: E402
import many_notes_figures  # noqa: E402
import motion_figures  # noqa: E402
import reminder_figures  # noqa: E402
import skin_figures  # noqa: E402
import start_figures  # noqa: E402
from figures import HEAD  # noqa: E402

PARTS = {"start": start_figures, "desktop": desktop_figures, "many-notes": many_notes_figures, "motion": motion_figures, "skins": skin_figures, "reminders": reminder_figures,
         "editor": editor_figures, "exe": exe_figures}


def main():
    arguments = sys.argv[1:]
    quick = "--quick" in arguments
    wanted = [name for name in arguments if name != "--quick"] or list(PARTS)
    unknown = [name for name in wanted if name not in PARTS]
    if unknown:
        sys.exit(f"There is no part called {unknown[0]}. The parts: {', '.join(PARTS)}")
    print(HEAD, flush=True)
    troubles = []
    for name in wanted:
        try:
            for figure in PARTS[name].measure(quick):
                print(figure.row(), flush=True)
                if figure.missed:
                    troubles.append(f"{figure.what}: the budget is missed")
        except (AssertionError, OSError, RuntimeError, subprocess.SubprocessError) as trouble:
            troubles.append(f"{name} could not be measured: {trouble}")
    if troubles:
        sys.exit("\n".join(troubles))


main()
