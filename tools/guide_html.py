#!/usr/bin/env python3
"""guide_html.py GUIDE.md PAGE.html: a guide as one page that any browser shows. Its pictures stay out, and a
link to another guide leads to that one's page beside it."""

import re
import sys
from pathlib import Path

import markdown

PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>{title}</title>
<style>
body {{ max-width: 46em; margin: 2em auto; padding: 0 1em; font: 16px/1.5 "Segoe UI", sans-serif; color: #222; background: #fff; }}
h1, h2, h3 {{ line-height: 1.2; margin-top: 1.6em; }}
table {{ border-collapse: collapse; }}
th, td {{ border: 1px solid #bbb; padding: .3em .6em; text-align: left; vertical-align: top; }}
code, pre {{ font-family: Consolas, monospace; background: #f3f3f0; }}
pre {{ padding: .8em; overflow-x: auto; }}
</style>
</head>
<body>
{body}
</body>
</html>
"""


def page_of(text):
    without_pictures = re.sub(r"^!\[.*\n\n?", "", text, flags=re.MULTILINE)
    between_pages = re.sub(r"\]\(([\w-]+)\.md\)", r"](\1.html)", without_pictures)
    title = re.match(r"# (.*)", text)[1]
    return PAGE.format(title=title, body=markdown.markdown(between_pages, extensions=["tables", "sane_lists"]))


def main():
    guide, page = map(Path, sys.argv[1:])
    page.write_text(page_of(guide.read_text(encoding="utf-8")), encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
