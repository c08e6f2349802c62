"""What a start does its work for: the causes that questions to Wine's server and system calls are counted by."""

import re

LISTING = "notes: listing the folder"
NOTES = "notes: opening, reading, closing"
SKIN = "skin"
LIBRARIES = "the program and its libraries"
OTHER_FILES = "other files"

# The first that is found in a path, with "/" between its folders and in small letters, is its cause.
_PATHS = [(re.compile(pattern), cause) for pattern, cause in (
    (r"/kalvora/notes$", LISTING), (r"/kalvora/notes/", NOTES), (r"/kalvora/skins(/|$)", SKIN),
    (r"/kalvora/icons(/|$)", "icons"), (r"font", "fonts"),
    (r"\.(dll|exe|drv|so)(\.[0-9.]+)?$|/lib/|/system32$", LIBRARIES),
    (r"/(nls|locale)/|\.(nls|conv)$", "languages and code pages"), (r"\.x11-unix|xauthority", "the screen"))]


def cause_of_path(path):
    """Of a path as Wine or Linux writes it, in which a backslash may stand twice."""
    plain = re.sub(r"\\+", "/", path).rstrip("/").lower()
    return next((cause for pattern, cause in _PATHS if pattern.search(plain)), OTHER_FILES)
