"""The program's file: how large it is, and what it needs."""

import subprocess

from driver import BUILD
from figures import Figure

LARGEST = 2_000_000
# What every Windows has.
SYSTEM_LIBRARIES = {"advapi32.dll", "comctl32.dll", "comdlg32.dll", "gdi32.dll", "kernel32.dll", "msvcrt.dll", "ole32.dll",
                    "oleacc.dll", "oleaut32.dll", "shell32.dll", "user32.dll", "uxtheme.dll", "winmm.dll"}


def measure(_quick):
    exe = BUILD / "src/win32/kalvora.exe"
    size = exe.stat().st_size
    yield Figure("exe", f"{size:,} bytes", budget=f"{LARGEST:,} bytes", ratio=size / LARGEST, held=size < LARGEST)
    listing = subprocess.run(["x86_64-w64-mingw32-objdump", "-p", exe], text=True, check=True,
                             stdout=subprocess.PIPE).stdout
    needed = {line.split()[-1].lower() for line in listing.splitlines() if "DLL Name:" in line}
    others = sorted(needed - SYSTEM_LIBRARIES)
    yield Figure("libraries that are needed", ", ".join(others) or f"{len(needed)} of the system",
                 budget="of the system only", held=not others)
