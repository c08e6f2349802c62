"""Builds everything that is shipped beside the program, and the plain test skin.

The results are committed, so building the program needs none of the tools used here. tools/build-assets is how
it is run.
"""

import argparse
import os
import sys

sys.dont_write_bytecode = True
sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

from asset_builder import requirements  # noqa: E402

ROOT = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
SOURCES = os.path.join(ROOT, "assets", "sources")


def build_all():
    """Every result as {path below the root: bytes}."""
    from asset_builder import icons, notes, pictures, plain_skin, skin, sounds

    results = {}
    skins = os.path.join(SOURCES, "skins")
    for name in sorted(os.listdir(skins)):
        for file, data in skin.build(os.path.join(skins, name), SOURCES).items():
            results[f"assets/skins/{name}/{file}"] = data
    for file, data in skin.build(os.path.join(SOURCES, "skin-template"), SOURCES).items():
        results[f"assets/skin-template/{file}"] = data
    for file, data in plain_skin.build().items():
        results[f"tests/data/skins/Plain/{file}"] = data
    for file, data in icons.build(os.path.join(SOURCES, "icons")).items():
        results[f"assets/icons/{file}"] = data
    for file, data in sounds.build(os.path.join(SOURCES, "sounds")).items():
        results[f"assets/sounds/{file}"] = data
    for file, data in notes.build(os.path.join(SOURCES, "notes")).items():
        results[f"assets/notes/{file}"] = data
    for file, data in pictures.build(os.path.join(SOURCES, "pictures")).items():
        results[f"assets/pictures/{file}"] = data
    return results


def stale_files(results):
    """Files in the result folders that no source gives any more."""
    folders = {os.path.dirname(path) for path in results}
    return [f"{folder}/{name}" for folder in sorted(folders)
            if os.path.isdir(os.path.join(ROOT, folder))
            for name in sorted(os.listdir(os.path.join(ROOT, folder)))
            if f"{folder}/{name}" not in results]


def content_of(path):
    try:
        with open(os.path.join(ROOT, path), "rb") as file:
            return file.read()
    except FileNotFoundError:
        return None


def write(path, data):
    full = os.path.join(ROOT, path)
    os.makedirs(os.path.dirname(full), exist_ok=True)
    with open(full, "wb") as file:
        file.write(data)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--check", action="store_true", help="write nothing, report what differs")
    arguments = parser.parse_args()
    requirements.require()

    results = build_all()
    changed = [path for path, data in sorted(results.items()) if content_of(path) != data]
    stale = stale_files(results)
    for path in changed:
        print(("differs: " if arguments.check else "written: ") + path)
        if not arguments.check:
            write(path, results[path])
    for path in stale:
        print("no source gives: " + path)
    print(f"{len(results)} files, {len(changed)} {'different' if arguments.check else 'written'}")
    return 1 if stale or (arguments.check and changed) else 0


if __name__ == "__main__":
    try:
        sys.exit(main())
    except requirements.AssetError as error:
        sys.exit(f"build-assets: {error}")
