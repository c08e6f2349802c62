"""Counts what is read of a folder, whoever reads it: told by the system's kernel, so nothing is slowed down."""

import ctypes
import dataclasses
import os
import select
import struct
import threading
import time

_IN_ACCESS, _IN_OPEN, _IN_Q_OVERFLOW, _IN_ISDIR = 0x1, 0x20, 0x4000, 0x40000000
_HEAD = struct.Struct("iIII")  # watch, mask, cookie, bytes of the name


@dataclasses.dataclass
class Readings:
    """`listings`: how often the folder was opened and its names were read. `openings`: of files in it."""

    listings: int = 0
    openings: int = 0

    def __str__(self):
        return f"{_counted(self.listings, 'listing')}, {_counted(self.openings, 'opening')}"


class FolderWatch:
    """While its block runs, it counts what is read of the folder."""

    def __init__(self, folder):
        library = ctypes.CDLL(None, use_errno=True)
        self._descriptor = library.inotify_init1(os.O_NONBLOCK | os.O_CLOEXEC)
        wanted = _IN_ACCESS | _IN_OPEN
        if self._descriptor < 0 or library.inotify_add_watch(self._descriptor, os.fsencode(folder), wanted) < 0:
            raise OSError(ctypes.get_errno(), f"{folder} cannot be watched")
        self._found, self._last, self._overflowed, self._ended = Readings(), time.monotonic(), False, False
        self._opened = False  # the folder, its names not read yet
        # The system keeps some thousand readings only until they are asked for.
        self._thread = threading.Thread(target=self._run, daemon=True)

    def __enter__(self):
        self._thread.start()
        return self

    def __exit__(self, *_):
        self._ended = True
        self._thread.join()
        os.close(self._descriptor)

    def readings(self, seconds):
        """What was read since the last call, when nothing has been read for so many seconds."""
        start = time.monotonic()
        while time.monotonic() - max(start, self._last) < seconds:
            time.sleep(0.05)
        if self._overflowed:
            raise RuntimeError("the system did not tell of all that was read")
        found, self._found = self._found, Readings()
        return found

    def _run(self):
        while not self._ended:
            if select.select([self._descriptor], [], [], 0.05)[0]:
                for mask in _masks(os.read(self._descriptor, 1 << 20)):
                    self._count(mask)
                self._last = time.monotonic()

    def _count(self, mask):
        self._overflowed |= bool(mask & _IN_Q_OVERFLOW)
        if not mask & _IN_ISDIR:
            self._found.openings += bool(mask & _IN_OPEN)
        elif mask & _IN_OPEN:
            self._opened = True
        elif self._opened:  # Its names are read in several pieces.
            self._found.listings, self._opened = self._found.listings + 1, False


def _counted(count, what):
    return f"{count:,} {what}{'' if count == 1 else 's'}"


def _masks(data):
    at = 0
    while at < len(data):
        _, mask, _, length = _HEAD.unpack_from(data, at)
        at += _HEAD.size + length
        yield mask
