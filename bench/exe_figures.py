"""The program's file: how large it is, and what it needs."""

import re
import subprocess

from driver import BUILD, SOURCE
from figures import Figure

LARGEST = 2_000_000
# What every Windows has.
SYSTEM_LIBRARIES = {"advapi32.dll", "comctl32.dll", "comdlg32.dll", "gdi32.dll", "kernel32.dll", "msvcrt.dll", "ole32.dll",
                    "oleacc.dll", "oleaut32.dll", "shell32.dll", "user32.dll", "uxtheme.dll", "winmm.dll"}


def measure(_quick):
    exe = BUILD / "src/win32/kalvora.exe"
    size = exe.stat().st_size
    yield Figure("exe", f"{size:,} bytes", budget=f"{LARGEST:,} bytes", to_budget=size / LARGEST)
    listing = subprocess.run(["x86_64-w64-mingw32-objdump", "-p", exe], text=True, check=True,
                             stdout=subprocess.PIPE).stdout
    needed = {line.split()[-1].lower() for line in listing.splitlines() if "DLL Name:" in line}
    others = sorted((needed | loaded_by_name()) - SYSTEM_LIBRARIES)
    yield Figure("libraries of others that are needed", ", ".join(others) or "none", budget="none",
                 to_budget=float(len(others) > 0) * 2)


def loaded_by_name():
    """The libraries that the program loads only when it needs them."""
    sources = " ".join(file.read_text(encoding="utf-8") for file in (SOURCE / "src" / "win32").glob("*.cpp"))
    return {name.lower() for name in re.findall(r'L"(\w+\.dll)"', sources)}
