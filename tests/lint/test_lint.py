#!/usr/bin/env python3
"""Shows that each rule of the linter finds what it is for, and lets good code pass."""

import subprocess
import tempfile
import unittest
from pathlib import Path

import lint

CLASS = "class Thing {\n public:\n  Thing() : a_{1}, b_{2} {\n%s  }\n};\n"
GOOD = {
    "src/base/Thing.h": "#pragma once\n\nint thing();\n",
    "src/base/Thing.cpp": '#include "base/Thing.h"\n\nint thing() { return 1; }\n',
    "src/notes/Note.cpp": '#include <vector>\n\n#include "base/Thing.h"\n',
    "src/win32/Window.cpp": "#include <windows.h>\n\nHWND window = nullptr;\n",
    "docs/NAMES.md": "# Names\n\n| name | gloss | file |\n| --- | --- | --- |\n"
                     "| `thing` | a thing | `src/base/Thing.cpp` |\n",
    "README.md": "See [the names](docs/NAMES.md) and [the page](https://kalvora.example/).\n",
    ".clang-format": "BasedOnStyle: Google\n",
}


class LintTest(unittest.TestCase):
    def problems(self, **changes):
        """The rules that complain about the good project with these files changed, by name."""
        files = {**GOOD, **{name: text for name, text in changes.get("files", {}).items()}}
        with tempfile.TemporaryDirectory() as folder:
            for name, text in files.items():
                path = Path(folder) / name
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_text(text, encoding="utf-8")
            subprocess.run(["git", "init", "-q", folder], check=True)
            project = lint.Project(folder)
            return {rule.__name__ for rule in lint.RULES if list(rule(project))}

    def finds(self, rule, files):
        self.assertEqual(self.problems(files=files), {rule.__name__})

    def test_good_project_passes(self):
        self.assertEqual(self.problems(), set())

    def test_include_against_the_arrows(self):
        self.finds(lint.include_arrows, {"src/base/Other.cpp": '#include "notes/Note.h"\n',
                                         "src/notes/Note.h": "#pragma once\n"})
        self.finds(lint.include_arrows, {"src/skin/Skin.cpp": '#include "notes/Note.h"\n',
                                         "src/notes/Note.h": "#pragma once\n"})

    def test_folder_that_is_not_on_the_map(self):
        self.finds(lint.include_arrows, {"src/extra/Thing.cpp": "int x = 0;\n"})

    def test_include_against_the_arrows_of_the_shell(self):
        self.finds(lint.shell_arrows, {"src/win32/toolkit/Frame.cpp": '#include "win32/main/Window.h"\n',
                                       "src/win32/main/Window.h": "#pragma once\n"})
        self.finds(lint.shell_arrows, {"src/win32/about/About.cpp": '#include "win32/Root.h"\n',
                                       "src/win32/Root.h": "#pragma once\n"})

    def test_room_of_the_shell_that_is_not_on_the_map(self):
        self.finds(lint.shell_arrows, {"src/win32/extra/Thing.cpp": "int x = 0;\n"})

    def test_include_that_is_no_file(self):
        self.finds(lint.includes_exist, {"src/base/Thing.cpp": '#include "base/Gone.h"\n'
                                                               "int thing();\n"})

    def test_include_not_written_from_src(self):
        self.finds(lint.includes_exist, {"tests/unit/ThingTest.cpp": '#include "Thing.h"\n'})

    def test_platform_names_outside_the_shell(self):
        for line in ("#include <windows.h>\n", "#ifdef _WIN32\n#endif\n", "LPARAM x;\n"):
            self.finds(lint.platform_names, {"src/app/App.cpp": line})
        self.finds(lint.platform_names, {"tests/unit/AppTest.cpp": "HWND x;\n"})

    def test_a_library_loaded_elsewhere(self):
        line = 'const HMODULE module = LoadLibraryW(L"uxtheme.dll");\n'
        self.finds(lint.loaded_libraries, {"src/win32/Page.cpp": line})
        self.assertEqual(self.problems(files={"src/win32/platform/SystemFunction.h": "#pragma once\n\n" + line}), set())

    def test_file_names_that_say_nothing(self):
        for name in ("src/base/Util.cpp", "tests/TextHelpers.h", "tools/misc_things.sh"):
            self.finds(lint.telling_file_names, {name: "\n"})
        self.assertEqual(self.problems(files={"src/base/Futility.cpp": "\n"}), set())

    def test_two_types_of_one_name(self):
        header = "#pragma once\n\nclass Folder {};\n"
        self.finds(lint.types_of_one_name, {"src/base/Folder.h": header,
                                            "tests/fakes/OtherFolder.h": header})
        self.assertEqual(self.problems(files={"src/base/Folder.h": header,
                                              "src/base/User.h": "#pragma once\n\nclass Folder;\n"}),
                         set())

    def test_unformatted_source(self):
        self.finds(lint.formatting, {"src/base/Other.cpp": "int  x=1 ;\n"})

    def test_names_table(self):
        head = GOOD["docs/NAMES.md"]
        for row in ("| `thing` | twice | `src/base/Thing.cpp` |\n",
                    "| `other` | not there | `src/base/Thing.cpp` |\n",
                    "| `thin` | a piece of a name | `src/base/Thing.cpp` |\n",
                    "| `other` | no such file | `src/base/Gone.cpp` |\n",
                    "| `other` | no file at all |\n"):
            self.finds(lint.listed_names, {"docs/NAMES.md": head + row})
        # A name in a comment or a text is no name in the code.
        text = '// other\n\nconst char* text = "other";\n'
        row = "| `other` | in the code | `src/base/Other.cpp` |\n"
        self.finds(lint.listed_names, {"docs/NAMES.md": head + row, "src/base/Other.cpp": text})
        for code in ("int other;\n", "int other_;\n", "void other_Click();\n"):
            self.assertEqual(self.problems(files={"docs/NAMES.md": head + row, "src/base/Other.cpp": code}), set())

    def test_missing_names_table(self):
        with tempfile.TemporaryDirectory() as folder:
            self.assertTrue(list(lint.listed_names(lint.Project(folder))))

    def test_dead_links(self):
        self.finds(lint.linked_files, {"README.md": "See [this](docs/GONE.md).\n"})

    def test_ticks_that_the_installer_does_not_know(self):
        table = 'auto t = {ComfortTick{L"One", L"1"}, ComfortTick{L"Two", L"2"}};\n'
        one = '!insertmacro WriteInitialSetting "Comfort" "One" "True"\n'
        self.finds(lint.installed_ticks, {"src/options/ComfortTable.cpp": table, "packaging/kalvora.nsi": one})
        both = {"src/options/ComfortTable.cpp": table, "packaging/kalvora.nsi": one + one.replace("One", "Two")}
        self.assertEqual(self.problems(files=both), set())

    def test_long_files(self):
        self.finds(lint.sizes, {"src/base/Long.cpp": "int a;\n" * 351})
        self.assertEqual(self.problems(files={"src/base/Long.cpp": "int a;\n" * 350}), set())

    def test_long_functions(self):
        body = "  x();\n"
        for frame in ("void f() {\n%s}\n", "namespace a {\nvoid f() {\n%s}\n}  // namespace a\n",
                      "namespace a {\nstruct P {};\nint f(P p) noexcept {\n%s}\n}  // namespace a\n"):
            self.finds(lint.sizes, {"src/base/Long.cpp": frame % (body * 41)})
            self.assertEqual(self.problems(files={"src/base/Long.cpp": frame % (body * 40)}), set())
        self.finds(lint.sizes, {"src/base/Long.cpp": CLASS % ("    x();\n" * 41)})
        self.finds(lint.sizes, {"tools/long.py": "def f():\n" + "    x()\n" * 41})

    def test_braces_in_strings_and_comments_are_no_code(self):
        text = 'void f() {\n  g("{");  // {\n}\n' + "int a;\n" * 100
        self.assertEqual(list(lint.cpp_functions(text)), [(1, 1)])

    def test_words_that_point_outside(self):
        for words in ("as the " + "spec says", "see " + "Part" + " 1.2", "/wor" + "k/main/x",
                      "closes issue" + " 12", "a speci" + "fication"):
            self.finds(lint.outside_words, {"README.md": words + "\n"})
        self.finds(lint.outside_words, {"docs/my-spe" + "c.txt": "\n"})

    def test_tests_that_cannot_fail(self):
        for line in ("EXPECT_TRUE" + "(true);", "int DISABLED" + "_x;", "// TO" + "DO: more"):
            self.finds(lint.honest_tests, {"tests/unit/ThingTest.cpp": line + "\n"})


if __name__ == "__main__":
    unittest.main()
