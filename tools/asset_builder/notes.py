"""Sample notes: readable sources, one file a note, to note files."""

import os

from .requirements import AssetError

# Fields before the content, and the extension, of each kind.
KINDS = {
    "Daily": (".tx1", ("hour", "minute")),
    "Weekly": (".tx2", ("hour", "minute", "sunday", "monday", "tuesday", "wednesday", "thursday", "friday", "saturday")),
    "Monthly": (".tx3", ("day", "days before", "every days")),
    "Yearly": (".tx4", ("day", "month", "days before", "every days")),
    "Fast": (".txt", ("hour", "minute")),
}
NAME_CHARACTERS = set("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789 ~`@#$%^&()-_=+[]{},.;'")
LONGEST = 32767


def build(folder):
    """The note files as {name: bytes}."""
    results = {}
    for source in sorted(os.listdir(folder)):
        with open(os.path.join(folder, source), encoding="utf-8", newline="") as file:
            name, data = _note(file.read().replace("\r\n", "\n"), source)
        results[name] = data
    return results


def _note(text, source):
    head, mark, content = text.partition("\n---\n")
    if not mark:
        raise AssetError(f"{source}: no line --- between the fields and the text")
    fields = dict(line.split(":", 1) for line in head.split("\n"))
    fields = {key.strip(): value.strip() for key, value in fields.items()}
    name, kind = fields.pop("name", ""), fields.pop("kind", "")
    if not name or set(name) - NAME_CHARACTERS:
        raise AssetError(f"{source}: a note cannot be called {name!r}")
    if kind not in KINDS:
        raise AssetError(f"{source}: kind must be one of {', '.join(KINDS)}")
    extension, keys = KINDS[kind]
    if tuple(fields) != keys:
        raise AssetError(f"{source}: the fields of a {kind} note are, in this order: {', '.join(keys)}")
    content = content.rstrip("\n").replace("\n", "\r\n")
    if "|" in content or any(value and not value.isdigit() for value in fields.values()):
        raise AssetError(f"{source}: fields are digits or empty, and no text holds a |")
    data = "|".join([*fields.values(), content]).encode("cp1252")
    if len(data) > LONGEST:
        raise AssetError(f"{source}: {len(data)} bytes, {LONGEST} is the most")
    return name + extension, data
