#!/usr/bin/env python3
"""Holds the rules of the house that no compiler checks. Prints what breaks them, a line each.

    lint.py [FOLDER]      FOLDER is the project's top folder; this one's if left out

Each rule is a function that takes the Project and yields (file, line, what is wrong).
tests/lint/test_lint.py feeds each one bad samples.
"""

import ast
import re
import subprocess
import sys
from pathlib import Path

# What a folder of src/ may include, besides itself.
ARROWS = {
    "base": set(),
    "posix": {"base"},
    "notes": {"base"},
    "skin": {"base"},
    "options": {"base"},
    "alarms": {"base", "notes"},
    "coming": {"base", "notes", "alarms"},
    "find": {"base", "notes", "alarms"},
    "app": {"base", "notes", "skin", "alarms", "options"},
    "skinkit": {"base", "posix", "skin", "app"},
    "win32": {"base", "notes", "skin", "alarms", "coming", "find", "options", "app", "skinkit"},
}
# The same for the rooms of the shell. What stands beside them, the entry point, may include all.
SHELL_ARROWS = {
    "platform": set(),
    "toolkit": {"platform"},
    "main": {"platform", "toolkit"},
    "editor": {"platform", "toolkit"},
    "options": {"platform", "toolkit"},
    "about": {"platform", "toolkit"},
    "coming": {"platform", "toolkit"},
    "find": {"platform", "toolkit"},
}
PLATFORM_FOLDERS = ("src/win32/", "tests/platform/", "tests/e2e/", "bench/win32/")
PLATFORM_NAMES = re.compile(
    r"<windows\.h>|<(win\w+|shell\w+|comm\w+|mm\w+)\.h>|\b_WIN(32|64)\b|"
    r"\b(HWND|HBITMAP|HRGN|HDC|HICON|HCURSOR|HFONT|HBRUSH|HMENU|HKEY|HMODULE|HINSTANCE|HANDLE|"
    r"LPARAM|WPARAM|LRESULT|DWORD|COLORREF)\b")
# Loaded in another way, a library beside the program could take the place of the system's.
LIBRARY_LOADER = "src/win32/platform/SystemFunction.h"
LOADED_LIBRARY = re.compile(r"\bLoadLibrary\w*|\bLdrLoadDll\b")
NAMELESS = {"util", "utils", "utility", "utilities", "misc", "helper", "helpers"}
MOST_LINES_OF_A_FILE = 350
MOST_LINES_OF_A_FUNCTION = 40
# The project explains itself: it points at no document that its readers do not have, and at no folder
# of one machine. (The brackets keep this file from finding itself.)
OUTSIDE_WORDS = re.compile(
    r"\b(specificat[i]on|the spe[c]|spe[c]\.md|see[d] document|Par[t] \d\.\d|issu[e]s? #?\d+)\b|"
    r"/wor[k]/|/far[m]/|/hom[e]/\w|/roo[t]/", re.IGNORECASE)
OUTSIDE_FILE_NAMES = re.compile(r"(^|/)[^/]*spe[c](ification)?[._-]", re.IGNORECASE)
WEAK_TESTS = re.compile(
    r"(EXPECT|ASSERT)_TRU[E]\(true\)|\bSUCCEE[D]\(\)|\bDISABLE[D]_|\bGTEST_SKI[P]\(\)")
LEFT_FOR_LATER = re.compile(r"\b(TOD[O]|FIXM[E]|XX[X]|HAC[K])\b")
TYPE_OF_A_HEADER = re.compile(r"(?:class|struct|union|enum(?: class)?) (\w+)(?: final)?\s*[:{]")
SOURCE_SUFFIXES = (".h", ".cpp")
BINARY_SUFFIXES = (".png", ".bmp", ".gif", ".jpg", ".ico", ".wav", ".svg")


class Project:
    """The files under version control, or about to be, each with its lines."""

    def __init__(self, root):
        self.root = Path(root)
        self.files = sorted(self._list())

    def _list(self):
        listing = subprocess.run(["git", "ls-files", "-z", "-c", "-o", "--exclude-standard"],
                                 cwd=self.root, stdout=subprocess.PIPE,
                                 stderr=subprocess.DEVNULL, check=False)
        if listing.returncode == 0:
            names = listing.stdout.decode().split("\0")
        else:  # An unpacked archive has no version control.
            names = [str(path.relative_to(self.root)) for path in self.root.rglob("*")
                     if "build" not in path.parts and "__pycache__" not in path.parts]
        return {name for name in names if name and (self.root / name).is_file()}

    def text(self, name):
        return (self.root / name).read_bytes().decode("utf-8", "replace")

    def lines(self, name):
        return enumerate(self.text(name).splitlines(), 1)

    def sources(self, *folders):
        return [name for name in self.files
                if name.endswith(SOURCE_SUFFIXES) and name.startswith(folders or "")]

    def texts(self):
        return [name for name in self.files
                if not name.endswith(BINARY_SUFFIXES) and not name.startswith("tests/data/")]


def includes(project, name):
    for number, line in project.lines(name):
        match = re.match(r'\s*#\s*include\s+"([^"]+)"', line)
        if match:
            yield number, match.group(1)


def include_arrows(project):
    """A folder includes only what the map lets it."""
    for name in project.sources("src/"):
        folder = name.split("/")[1]
        if folder not in ARROWS:
            yield name, 1, f"src/{folder} is not on the map"
            continue
        for number, target in includes(project, name):
            if target.split("/")[0] not in ARROWS[folder] | {folder}:
                yield name, number, f'src/{folder} must not include "{target}"'


def shell_arrows(project):
    """A room of the shell includes only what the map lets it."""
    for name in project.sources("src/win32/"):
        room, *rest = name.split("/")[2:]
        if not rest:
            continue
        if room not in SHELL_ARROWS:
            yield name, 1, f"src/win32/{room} is not on the map"
            continue
        for number, target in includes(project, name):
            folder, *inner = target.split("/")
            if folder == "win32" and inner[0] not in SHELL_ARROWS[room] | {room}:
                yield name, number, f'src/win32/{room} must not include "{target}"'


def includes_exist(project):
    """Includes are written from src/ (in tests also from tests/ or the file's own folder). A header that
    CMake fills in stands there with ".in" behind its name."""
    for name in project.sources():
        places = ["src"]
        if not name.startswith("src/"):
            places += ["tests", str(Path(name).parent)]
        for number, target in includes(project, name):
            if not any((project.root / place / (target + ending)).is_file() for place in places
                       for ending in ("", ".in")):
                yield name, number, f'"{target}" is no file of {" or ".join(places)}'


def platform_names(project):
    """Windows is known to the shell only."""
    for name in project.sources():
        if name.startswith(PLATFORM_FOLDERS):
            continue
        for number, line in project.lines(name):
            match = PLATFORM_NAMES.search(line)
            if match:
                yield name, number, f"{match.group(0)} belongs into src/win32"


def loaded_libraries(project):
    """One place loads libraries, from the system's folder only."""
    for name in project.sources("src/"):
        if name == LIBRARY_LOADER:
            continue
        for number, line in project.lines(name):
            match = LOADED_LIBRARY.search(line)
            if match:
                yield name, number, f"{match.group(0)} is for {LIBRARY_LOADER} only"


def telling_file_names(project):
    """A file is called by what is in it."""
    for name in project.files:
        words = re.findall(r"[A-Z]?[a-z]+|[A-Z]+", Path(name).stem)
        if {word.lower() for word in words} & NAMELESS:
            yield name, 1, "this name does not say what the file holds"


def types_of_one_name(project):
    """A program that holds two types of one name mixes up their functions, and no linker tells."""
    homes = {}
    for name in project.sources("src/", "tests/", "bench/"):
        if not name.endswith(".h"):
            continue
        for number, line in project.lines(name):
            match = TYPE_OF_A_HEADER.match(line)
            if match and homes.setdefault(match.group(1), name) != name:
                yield name, number, f"{homes[match.group(1)]} has a type {match.group(1)} too"


def formatting(project):
    """clang-format would change nothing."""
    sources = project.sources("src/", "tests/", "bench/", "tools/")
    if not sources:
        return
    run = subprocess.run(["clang-format", "--dry-run", "-Werror", "--style=file", *sources],
                         cwd=project.root, stderr=subprocess.PIPE, text=True, check=False)
    for line in run.stderr.splitlines():
        match = re.match(r"(.+?):(\d+):\d+: error", line)
        if match:
            yield match.group(1), int(match.group(2)), "run clang-format -i"
    if run.returncode != 0 and "error" not in run.stderr:
        yield sources[0], 1, f"clang-format failed: {run.stderr.strip()}"


def table_rows(project, name):
    for number, line in project.lines(name):
        cells = [cell.strip().strip("`") for cell in line.strip().strip("|").split("|")]
        if line.lstrip().startswith("|") and not set(line) <= set("|-: ") and cells[0] != "name":
            yield number, cells


def listed_names(project):
    """Each name of docs/NAMES.md stands once, and is in the code of the file that its row names: as it
    is, as a member name_, as the event name_Click, or as the file itself."""
    table, seen = "docs/NAMES.md", {}
    if table not in project.files:
        yield table, 1, "is missing"
        return
    for number, cells in table_rows(project, table):
        if len(cells) != 3 or not all(cells):
            yield table, number, "a row is | name | gloss | file |"
            continue
        name, _, file = cells
        if name in seen:
            yield table, number, f"{name} stands in line {seen[name]} already"
        seen[name] = number
        if file not in project.files:
            yield table, number, f"there is no file {file}"
        elif name != Path(file).stem and not re.search(
                rf"(?<!\w){re.escape(name)}(_|_Click)?(?!\w)",
                without_comments_and_strings(project.text(file))):
            yield table, number, f"{name} is not in the code of {file}"


def linked_files(project):
    """What a document links to is there."""
    for name in project.files:
        if not name.endswith(".md"):
            continue
        for number, line in project.lines(name):
            for target in re.findall(r"\]\(([^)#\s]+)[^)]*\)", line):
                if ":" not in target and not (project.root / name).parent.joinpath(target).exists():
                    yield name, number, f"there is no {target}"


def installed_ticks(project):
    """The installer's "Comfort" sets every tick that the options have, and no other."""
    table, installer = "src/options/ComfortTable.cpp", "packaging/kalvora.nsi"
    if table not in project.files:
        return
    ticks = re.findall(r'ComfortTick\{L"(\w+)"', project.text(table))
    installed = re.findall(r'WriteInitialSetting "Comfort" "(\w+)"', project.text(installer) if installer in project.files else "")
    if not ticks or ticks != installed:
        yield installer, 1, f"sets {installed}, and {table} has {ticks}"


def without_comments_and_strings(text):
    """The same lines with the same braces, less those that are no code."""
    pattern = re.compile(r'//[^\n]*|/\*.*?\*/|R"\((?:.*?)\)"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])+\'',
                         re.DOTALL)
    text = pattern.sub(lambda match: "\n" * match.group(0).count("\n"), text)
    return re.sub(r"^\s*#.*$", "", text, flags=re.MULTILINE)


def cpp_functions(text):
    """(first line, lines of the body) of each function defined in a namespace or a class."""
    code, stack, before, line = without_comments_and_strings(text), [], "", 1
    for index, char in enumerate(code):
        if char == "\n":
            line += 1
        if char == "{":
            initialiser = index > 0 and (code[index - 1].isalnum() or code[index - 1] in "_>(,{=")
            inside_code = bool(stack) and stack[-1][0] != "scope"
            scope = re.search(r"\b(namespace|class|struct|enum|union)\b[^()=;]*$|extern\s*$", before)
            kind = ("other" if initialiser or inside_code else
                    "scope" if scope else "function" if "(" in before else "other")
            stack.append((kind, line, before if initialiser else ""))
            before = ""
        elif char == "}" and stack:
            kind, start, before = stack.pop()
            if kind == "function":
                yield start, max(0, line - start - 1)
        elif char == ";":
            before = ""
        else:
            before += char


def python_functions(text):
    for node in ast.walk(ast.parse(text)):
        if isinstance(node, (ast.FunctionDef, ast.AsyncFunctionDef)):
            yield node.lineno, node.end_lineno - node.lineno


def sizes(project):
    """Files and functions that can be taken in at a glance."""
    for name in project.files:
        if not name.endswith((*SOURCE_SUFFIXES, ".py", ".sh", ".cmake")):
            continue
        text = project.text(name)
        length = len(text.splitlines())
        if length > MOST_LINES_OF_A_FILE:
            yield name, 1, f"{length} lines; {MOST_LINES_OF_A_FILE} at most"
        functions = (cpp_functions(text) if name.endswith(SOURCE_SUFFIXES) else
                     python_functions(text) if name.endswith(".py") else ())
        for line, lines in functions:
            if lines > MOST_LINES_OF_A_FUNCTION:
                yield name, line, f"a function of {lines} lines; {MOST_LINES_OF_A_FUNCTION} at most"


def outside_words(project):
    """Nothing points outside the project."""
    for name in project.files:
        if OUTSIDE_FILE_NAMES.search(name):
            yield name, 1, "a file name that points outside the project"
    for name in project.texts():
        for number, line in project.lines(name):
            match = OUTSIDE_WORDS.search(line)
            if match:
                yield name, number, f'"{match.group(0)}" points outside the project'


def honest_tests(project):
    """No test that cannot fail or is switched off, and no work left in a comment."""
    for name in project.sources("src/", "tests/", "bench/"):
        for number, line in project.lines(name):
            if WEAK_TESTS.search(line):
                yield name, number, "a test that cannot fail or does not run"
            if LEFT_FOR_LATER.search(line):
                yield name, number, "work left for later"


RULES = (include_arrows, shell_arrows, includes_exist, platform_names, loaded_libraries, telling_file_names,
         types_of_one_name, formatting, listed_names, linked_files, installed_ticks, sizes, outside_words, honest_tests)


def main(arguments):
    project = Project(arguments[0] if arguments else Path(__file__).resolve().parents[2])
    problems = [(rule.__name__, *problem) for rule in RULES for problem in rule(project)]
    for rule, name, line, what in problems:
        print(f"{name}:{line}: {what} [{rule}]")
    print(f"{len(project.files)} files, {len(RULES)} rules, {len(problems)} problems")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
