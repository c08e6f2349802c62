"""Counts the system calls of a program by cause, from the log of strace with the paths of descriptors (-y)."""

import collections
import re

from causes import LISTING, cause_of_path

SERVER = "talking with Wine's server"
SCREEN = "the screen"
MEMORY = "memory"
OTHER = "other calls"

_CALL = re.compile(r"\d+ +(?P<time>[\d.]+) (?P<name>\w+)\((?P<rest>.*)")
_DESCRIPTOR = re.compile(r"(?:AT_FDCWD|\d+)<(?P<path>[^>]*)>")
_TEXT = re.compile(r'"(?P<text>[^"]*)"')
_OF_MEMORY = re.compile(r"mmap|mprotect|munmap|brk|madvise|mremap")


def calls_by_cause(lines, end):
    """Cause -> how many calls until then, in seconds since 1970; of the program's process only, not of the server's."""
    found = collections.Counter()
    for line in lines:
        match = _CALL.match(line)
        if match and float(match["time"]) <= end:
            found[_cause_of(match["name"], match["rest"])] += 1
    return found


def _cause_of(name, rest):
    descriptor, text = _DESCRIPTOR.search(rest), _TEXT.search(rest)
    at = descriptor["path"] if descriptor else ""
    if at.startswith("pipe:") or name == "rt_sigprocmask" or "SCM_RIGHTS" in rest:
        return SERVER  # The signals are held off during each question.
    if at.startswith("socket:"):
        return SCREEN
    if text and name not in ("read", "write", "pread64", "pwrite64"):
        return _cause_of_name(at, text["text"])
    if at:
        return _cause_of_file(at, name)
    return MEMORY if _OF_MEMORY.match(name) else OTHER


def _cause_of_name(folder, name):
    """A name alone is asked for while its folder is listed."""
    if name.startswith("/"):
        return cause_of_path(name)
    cause = cause_of_path(folder)
    return cause if cause == LISTING else cause_of_path(f"{folder}/{name}")


def _cause_of_file(path, name):
    return MEMORY if _OF_MEMORY.match(name) and path.startswith("anon") else cause_of_path(path)
