#!/usr/bin/env python3
"""Runs clang-tidy over the sources of src/ that have changed since it last found nothing in them.

    tidy.py BUILD_FOLDER INCLUDE EXCLUDE [EXTRA...]

BUILD_FOLDER holds compile_commands.json, and will hold the stamps: one a source, in tidy-stamps/, named after
all that the result depends on. INCLUDE and EXCLUDE are folders from the top of the project ("-" for none);
EXTRA are further arguments for the compiler.
"""

import hashlib
import json
import os
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
INCLUDED = re.compile(rb'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)


def our_files(source):
    """The source and all files of ours that it includes, also indirectly."""
    seen, waiting = set(), [source]
    while waiting:
        file = waiting.pop()
        if file in seen:
            continue
        seen.add(file)
        for target in INCLUDED.findall(file.read_bytes()):
            for folder in (ROOT / "src", file.parent):
                if (folder / os.fsdecode(target)).is_file():
                    waiting.append(folder / os.fsdecode(target))
                    break
    return sorted(seen)


def stamp_of(entry, common):
    digest = hashlib.sha256(common)
    digest.update(entry["command"].encode())
    for file in our_files(Path(entry["file"])):
        digest.update(str(file.relative_to(ROOT)).encode() + b"\0" + file.read_bytes() + b"\0")
    return digest.hexdigest()


def chosen_entries(build, include, exclude):
    """The compile commands of the C++ sources under include and not under exclude."""
    for entry in json.loads((build / "compile_commands.json").read_text()):
        file = Path(entry["file"])
        if (file.suffix == ".cpp" and file.is_relative_to(ROOT / include) and
                not file.is_relative_to(ROOT / exclude)):
            yield entry


def check(entry, build, extra):
    """Whether nothing is found; what is found is printed."""
    run = subprocess.run(
        ["clang-tidy", "-quiet", "-p", str(build), *(f"--extra-arg={argument}" for argument in extra),
         entry["file"]], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
    if run.returncode != 0:
        print(run.stdout or run.stderr, flush=True)
    return run.returncode == 0


def main(build, include, exclude, *extra):
    build = Path(build)
    stamps = build / "tidy-stamps"
    stamps.mkdir(exist_ok=True)
    version = subprocess.run(["clang-tidy", "--version"], stdout=subprocess.PIPE, check=True).stdout
    rules = [file.read_bytes() for file in sorted({ROOT / ".clang-tidy", *ROOT.glob("src/**/.clang-tidy")})]
    common = b"\0".join([version, *rules, *map(os.fsencode, extra)])
    entries = {stamp_of(entry, common): entry for entry in chosen_entries(build, include, exclude)}
    for old in stamps.iterdir():
        if old.name not in entries:
            old.unlink()
    changed = {stamp: entry for stamp, entry in entries.items() if not (stamps / stamp).exists()}

    def run(stamp):
        clean = check(changed[stamp], build, extra)
        if clean:
            (stamps / stamp).touch()
        return clean

    with ThreadPoolExecutor(os.cpu_count()) as pool:
        unclean = list(pool.map(run, changed)).count(False)
    print(f"{len(entries)} sources, {len(changed)} changed since the last run, {unclean} with findings")
    return 0 if entries and not unclean else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
