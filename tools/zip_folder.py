#!/usr/bin/env python3
"""zip_folder.py FOLDER FILE.zip SECONDS: the folder as a zip file, all its files from one moment
(seconds since 1970), so that the same content always gives the same bytes."""

import sys
import time
import zipfile
from pathlib import Path


def main():
    folder, target, seconds = Path(sys.argv[1]), Path(sys.argv[2]), int(sys.argv[3])
    moment = time.gmtime(seconds)[:6]
    with zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archive:
        for path in sorted(folder.rglob("*")):
            if path.is_file():
                entry = zipfile.ZipInfo(str(path.relative_to(folder.parent)), moment)
                entry.compress_type = zipfile.ZIP_DEFLATED
                archive.writestr(entry, path.read_bytes())


if __name__ == "__main__":
    main()
