"""Counts what a program asks Wine's server, by cause, from the log that the server keeps of it.

A question that names a file, a key or a window says its cause itself. One about a handle has the cause for which the
handle was given. Of the others the kind of question is all that there is to go by.
"""

import collections
import re

from causes import cause_of_path

SETTINGS, REGISTRY = "registry: the program's settings", "registry: of Windows and Wine"
TRAY = "tray icon"
KINDS = [(re.compile(pattern), cause) for pattern, cause in (
    (r"_key|_registry|_clipboard_format", REGISTRY),
    (r"winstation|desktop|user_object", "windows: whose desktop it is"), (r"property", "windows: properties"),
    (r"_region|_dc|redraw", "windows: painting"),
    (r"window|class|_input|caret|cursor|_hook|monitor", "windows: making, moving, asking"),
    (r"message|queue|timer|hotkey", "messages and timers"),
    (r"mapping|_view|_dll|image", "the program and its libraries"),
    (r"event|mutex|semaphore|select|sync|apc|completion|keyed", "waiting for each other"),
    (r"thread|process|token|handle|startup|job|init_", "processes and threads"),
    (r"file|fd|irp|ioctl|volume", "other files"))]
OTHER = "other questions"

_QUESTION = re.compile(r"(?P<thread>[0-9a-f]{4}): (?P<name>\w+)\((?P<rest>.*)")
_NAMED = re.compile(r'\b(?:name|class|filename)=L?"(?P<text>[^"]+)"')
_ASKED_ABOUT = re.compile(r"\b(?:handle|hkey|parent|rootdir|mapping)=(?P<handle>[0-9a-f]{4,8})\b")
_GIVEN = re.compile(r"\b(?:handle|hkey)=(?P<handle>[0-9a-f]{4,8})\b")
_WM_COPYDATA = "msg=0000004a"  # what an icon comes into the tray with


def questions_by_cause(lines, process):
    """Cause -> how many questions, of the threads of the Linux process."""
    counter = _Counter(process)
    for line in lines:
        match = _QUESTION.match(line)
        if match:
            counter.take(match["thread"], match["name"], match["rest"])
    if not counter.found:
        raise RuntimeError(f"Wine's server tells nothing of the process {process}")
    return counter.found


class _Counter:
    def __init__(self, process):
        self._first = f"unix_pid={process},"
        self._threads, self._handles, self._asked = set(), {}, {}
        self.found = collections.Counter()

    def take(self, thread, name, rest):
        if name == "init_first_thread" and self._first in rest:
            self._threads.add(thread)
        if thread not in self._threads:
            return
        if rest.startswith(") ="):
            self._take_answer(thread, name, rest)
        else:
            self._asked[thread] = cause = self._cause_of(name, rest)
            self.found[cause] += 1

    def _take_answer(self, thread, name, rest):
        given = _GIVEN.search(rest)
        if name == "new_thread":
            self._threads |= set(re.findall(r"\btid=([0-9a-f]{4})\b", rest))
        elif given and thread in self._asked:
            self._handles[given["handle"]] = self._asked[thread]

    def _cause_of(self, name, rest):
        named = _NAMED.search(rest)
        if "Tray" in rest or (name == "send_message" and _WM_COPYDATA in rest):
            return TRAY
        if named and name in ("create_file", "open_file_object"):
            return cause_of_path(named["text"])
        if named and "Software\\\\Kalvora" in named["text"]:
            return SETTINGS
        about = _ASKED_ABOUT.search(rest)
        if about and about["handle"] in self._handles:
            return self._handles[about["handle"]]
        return next((cause for pattern, cause in KINDS if pattern.search(name)), OTHER)
