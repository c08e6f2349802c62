#!/usr/bin/env python3
"""Runs clang-tidy over the sources that have changed since it last found nothing in them.

    tidy.py BUILD_FOLDER FOLDERS EXCEPT [EXTRA...]

BUILD_FOLDER holds compile_commands.json, and will hold the stamps: one a source, in tidy-stamps/, named after
all that the result depends on. FOLDERS and EXCEPT are lists of folders from the top of the project, with a comma
between them; EXTRA are further arguments for the compiler.

Most of the time goes into the headers of the library, which are looked through anew for each source. So sources that
are compiled alike are read many at a time, as one file, by the checks that look at each statement by itself. Where they
find something in such a file, or it cannot be compiled, each of its sources is read alone, which then decides. What
looks at a source as a whole (WHOLE) reads each one of src/ alone in any case.
"""

import hashlib
import json
import os
import re
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
RULES = ROOT / ".clang-tidy"
INCLUDED = re.compile(rb'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)
# What would reach into the next source, or is known outside its own by the same name in others; the system's calls on
# files are called like functions of ours.
NOT_LOCAL = re.compile(
    r"^\s*#\s*define\b|^#include <fcntl\.h>|^extern \"C\"|^int (?:(?:WINAPI )?w?(?:m|WinM)ain|LLVMFuzzerTestOneInput)\(",
    re.MULTILINE)
LOCAL = re.compile(r"^namespace \{\n(.*?)^\}  // namespace$", re.MULTILINE | re.DOTALL)
# In a namespace: what is declared on a line that begins at its left edge.
DECLARED = re.compile(
    r"^(?:class|struct|enum(?: class)?|using(?: \w+::)?) ?(\w+)|^(?!TEST)\w.*?(\w+)(?=[({;\[]| =)", re.MULTILINE)
# Nothing of such a source is known outside it, so that it can stand in a namespace of its own.
OPENING = "\nnamespace kalvora {\nnamespace {\n"
CLOSING = "\n}  // namespace\n}  // namespace kalvora\n"
TOGETHER = 40
# The analyzer does not look at a function again that another one brought it to, and what one source uses counts as used
# in the next. Through what the macros of a test become there are so many ways that a single file takes the analyzer
# half a minute, so tests and benchmarks are left to the other checks.
WHOLE = "clang-analyzer-*"
# Looks through all headers for what few sources have.
WHOLE_WITH_USING = f"{WHOLE},misc-unused-using-decls"
USING = re.compile(r"^\s*using (?!namespace\b)[\w:]+;", re.MULTILINE)
ALL_BUT_WHOLE = "-clang-analyzer-*,-misc-unused-using-decls"
# Nor does it follow a call into the library of C++: that takes it most of its time, and what it would judge there is not
# ours.
NOT_INTO_THE_LIBRARY = ("-Xclang", "-analyzer-config", "-Xclang", "c++-stdlib-inlining=false")
# It goes first where it was not yet. What it still finds to do after so many steps in one function are other ways to
# statements that it has seen, and would double its time.
STEPS_A_FUNCTION = ("-Xclang", "-analyzer-config", "-Xclang", "max-nodes=25000")
# An exception that leaves a test program is how that tells that it failed, and what is slow in it costs nobody anything.
NOT_FOR_TESTS = ",-bugprone-exception-escape,-performance-inefficient-*"
# Messages of Windows carry pointers in integers.
NOT_FOR_WINDOWS = ",-performance-no-int-to-ptr"


def our_files(source):
    """The source and all files of ours that it includes, also indirectly."""
    seen, waiting = set(), [source]
    while waiting:
        file = waiting.pop()
        if file in seen:
            continue
        seen.add(file)
        for target in INCLUDED.findall(file.read_bytes()):
            for folder in (ROOT / "src", ROOT / "tests", file.parent):
                if (folder / os.fsdecode(target)).is_file():
                    waiting.append(folder / os.fsdecode(target))
                    break
    return sorted(seen)


class Source:
    """A source file, how it is compiled, and what its result depends on."""

    def __init__(self, file, command, common):
        self.file = Path(file)
        words = shlex.split(command)[1:]
        # What is written, and from which source.
        self.flags = tuple(word for before, word in zip(["", *words], words)
                           if word not in ("-o", "-c") and before not in ("-o", "-c"))
        self.is_ours = self.file.is_relative_to(ROOT / "src")
        self.checks = ALL_BUT_WHOLE + ("" if self.is_ours else NOT_FOR_TESTS)
        if any(flag.startswith("-D_WIN32_WINNT") for flag in self.flags):
            self.checks += NOT_FOR_WINDOWS
        digest = hashlib.sha256(common)
        digest.update("\0".join(self.flags).encode())
        for file in our_files(self.file):
            digest.update(str(file.relative_to(ROOT)).encode() + b"\0" + file.read_bytes() + b"\0")
        self.stamp = digest.hexdigest()

    def alike(self, other):
        return self.flags == other.flags and self.checks == other.checks

    def text(self):
        return self.file.read_text(encoding="utf-8")

    def is_all_local(self):
        text = self.text()
        return text.count(OPENING) == 1 and text.endswith(CLOSING) and text.count("\n}  // namespace") == 2

    def apart(self):
        """The text, with what is local in a namespace of its own where nothing else is in it."""
        inner = f"\nnamespace kalvora::source_{self.stamp} {{\nnamespace {{\n"
        return self.text().replace(OPENING, inner) if self.is_all_local() else self.text()

    def local_names(self):
        """The names that would clash with another source's in one file."""
        if self.is_all_local():
            return set()
        found = (DECLARED.findall(part) for part in LOCAL.findall(self.text()))
        return {first or second for names in found for first, second in names}


def together(sources):
    """Groups of sources that can be one file: read alike, no name twice, and nothing that reaches beyond one."""
    groups = []
    for source in sources:
        names, alone = source.local_names(), bool(NOT_LOCAL.search(source.text()))
        for group in groups:
            if (not alone and not group["alone"] and group["sources"][0].alike(source) and
                    len(group["sources"]) < TOGETHER and not names & group["names"]):
                group["sources"].append(source)
                group["names"] |= names
                break
        else:
            groups.append({"sources": [source], "names": names, "alone": alone})
    return [group["sources"] for group in groups]


def combined(sources, folder):
    """One file of all the sources."""
    file = folder / (hashlib.sha256("".join(source.stamp for source in sources).encode()).hexdigest() + ".cpp")
    file.write_text("".join(f'#line 1 "{source.file}"\n{source.apart()}\n' for source in sources), encoding="utf-8")
    return file


def tidy(file, sources, checks, extra):
    """Whether clang-tidy finds nothing in a file that holds the sources; and what it says."""
    beside = {f"-iquote{source.file.parent}" for source in sources}
    command = ["clang-tidy", "-quiet", f"--config-file={RULES}", f"--checks={checks}", str(file), "--",
               *sources[0].flags, *sorted(beside), *extra]
    run = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
    return run.returncode == 0, run.stdout or run.stderr


def clean_alone(source, checks, extra):
    """Whether nothing is found in a source; what is found is printed."""
    clean, said = tidy(source.file, [source], checks, extra)
    if not clean:
        print(said, flush=True)
    return clean


def clean_whole(source, extra):
    """Whether nothing is found by what looks at a source as a whole, where that is one of ours."""
    whole = WHOLE_WITH_USING if USING.search(source.text()) else WHOLE
    return not source.is_ours or clean_alone(source, f"-*,{whole}", [*extra, *NOT_INTO_THE_LIBRARY, *STEPS_A_FUNCTION])


def clean_ones(sources, folder, extra):
    """Those of the sources in which the checks of each statement find nothing."""
    if len(sources) > 1:
        file = combined(sources, folder)
        clean, said = tidy(file, sources, sources[0].checks, extra)
        file.unlink()
        if clean:
            return sources
    clean = [source for source in sources if clean_alone(source, source.checks, extra)]
    if len(sources) > 1 and len(clean) == len(sources):
        print(f"{len(sources)} sources were read one by one, though nothing is wrong with any:\n{said}", flush=True)
    return clean


def compiled_by(entry):
    """The sources that an entry compiles: itself, or those that the build put together in one file."""
    file = Path(entry["file"])
    return map(os.fsdecode, INCLUDED.findall(file.read_bytes())) if file.parent.name == "Unity" else [str(file)]


def chosen_sources(build, folders, but_not, common):
    """The C++ sources in the folders and not in the others, those that are compiled alike beside each other."""
    def holds(names, file):
        return any(file.is_relative_to(ROOT / name) for name in names if name)

    entries = json.loads((build / "compile_commands.json").read_text())
    files = {file: entry["command"] for entry in entries for file in compiled_by(entry)
             if file.endswith(".cpp") and holds(folders, Path(file)) and not holds(but_not, Path(file))}
    return [Source(file, files[file], common) for file in sorted(files)]


def main(build, folders, but_not, *extra):
    build = Path(build)
    stamps = build / "tidy-stamps"
    stamps.mkdir(exist_ok=True)
    version = subprocess.run(["clang-tidy", "--version"], stdout=subprocess.PIPE, check=True).stdout
    common = b"\0".join([version, RULES.read_bytes(), Path(__file__).read_bytes(), *map(os.fsencode, extra)])
    sources = chosen_sources(build, folders.split(","), but_not.split(","), common)
    known = {source.stamp for source in sources}
    for old in stamps.iterdir():
        if old.name not in known:
            old.unlink()
    changed = [source for source in sources if not (stamps / source.stamp).exists()]

    with ThreadPoolExecutor(os.cpu_count()) as pool:
        alone = pool.map(lambda source: clean_whole(source, extra), changed)
        grouped = pool.map(lambda group: clean_ones(group, build, extra), together(changed))
        clean = {source for group in grouped for source in group}
        clean &= {source for source, nothing in zip(changed, alone) if nothing}
    for source in clean:
        (stamps / source.stamp).touch()
    unclean = len(changed) - len(clean)
    print(f"{len(sources)} sources, {len(changed)} changed since the last run, {unclean} with findings")
    return 0 if sources and not unclean else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
