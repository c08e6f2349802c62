#!/usr/bin/env python3
"""Writes src/find/LetterBases.h: what each letter with an accent, or of another width, is compared as.

    letter_bases.py [FILE]      FILE is the header; the project's own if left out

The data is Unicode 3.2, which every Python brings unchanged and which has the letters of all code pages. Capitals
are those of src/base/Text.cpp, so that both tables fit together.
"""

import re
import sys
from pathlib import Path
from unicodedata import ucd_3_2_0 as unicode

TOP = Path(__file__).resolve().parent.parent
# Latin, Greek, Cyrillic, Armenian, Hebrew, Arabic, kana, and their forms of other widths. Of the symbols only letters
# and numbers set high or low.
BLOCKS = ((0xA0, 0x24F), (0x370, 0x3FF), (0x400, 0x52F), (0x531, 0x587), (0x621, 0x6D3), (0x1E00, 0x1FFF), (0x2126, 0x212B),
          (0x3041, 0x30FF), (0xFB00, 0xFB06), (0xFB1D, 0xFB4F), (0xFF01, 0xFF9F))
WIDE_FORMS = range(0xFF01, 0xFFA0)
# Letters that are no base with an accent to Unicode, though people type them so.
OWN = {"\u00d8": "O", "\u0141": "L", "\u0110": "D", "\u00d0": "D", "\u0126": "H", "\u0166": "T", "\u00c6": "AE",
       "\u0152": "OE", "\u00de": "TH", "\u0131": "I", "\u00df": "SS", "\u1e9e": "SS"}
# What is left out where it stands behind a letter; the marks of kana, which make another letter, stay.
MARKS = ((0x300, 0x36F), (0x591, 0x5C7), (0x64B, 0x65F))
MOST_LETTERS = 3
PER_LINE = 4


def runs_of_capitals():
    text = (TOP / "src/base/Text.cpp").read_text(encoding="utf-8")
    return [tuple(int(number, 0) for number in run)
            for run in re.findall(r"\{(0x\w+), (0x\w+), (\d+), (-?\d+)\}", text)]


RUNS = runs_of_capitals()


def capital(letter):
    code = ord(letter)
    if "a" <= letter <= "z":
        return letter.upper()
    for first, last, step, further in RUNS:
        if first <= code <= last and (code - first) % step == 0:
            return chr(code + further)
    return letter


def base(letter):
    if letter in OWN:
        return OWN[letter]
    bare = "".join(c for c in unicode.normalize("NFKD", letter) if not any(a <= ord(c) <= b for a, b in MARKS))
    folded = "".join(OWN.get(capital(c), capital(c)) for c in bare.casefold())
    return folded if folded != letter else None


def wanted(letter, text):
    if not text or len(text) > MOST_LETTERS or capital(letter) != letter:
        return False
    return ord(letter) in WIDE_FORMS or all(c.isalnum() or c in "\u3099\u309a" for c in text)


def entries():
    for first, last in BLOCKS:
        for code in range(first, last + 1):
            text = base(chr(code))
            if wanted(chr(code), text):
                yield "{0x%04X, {%s}}," % (code, ", ".join("0x%04X" % ord(c) for c in text))


def header():
    rows = list(entries())
    lines = [" ".join(rows[i:i + PER_LINE]) for i in range(0, len(rows), PER_LINE)]
    return "\n".join([
        "#pragma once", "", "#include <array>", "", "namespace kalvora {", "",
        "/// A letter, and the capitals without an accent that it is compared as; 0 for one that is missing.",
        "struct LetterBase {", "  char16_t letter;", f"  char16_t base[{MOST_LETTERS}];", "};", "",
        "// Written by tools/letter_bases.py, in order. Small letters that have a capital are left out.",
        "// clang-format off",
        f"inline constexpr std::array<LetterBase, {len(rows)}> kLetterBases = {{{{",
        *("  " + line for line in lines), "}};", "// clang-format on", "", "}  // namespace kalvora", ""])


if __name__ == "__main__":
    target = Path(sys.argv[1]) if len(sys.argv) > 1 else TOP / "src/find/LetterBases.h"
    target.write_text(header(), encoding="utf-8")
