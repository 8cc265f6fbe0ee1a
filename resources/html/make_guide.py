#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
"""Make the page of the guide that the program shows.

usage: make_guide.py GUIDE.md PAGE.html

The headings get the anchors that code hosts give them, so that one link works there and in the
program. The page has no styles: the program's sheet for each theme gives it its look. The program
has only this page and the pictures beside the guide, so whatever leads elsewhere is an error.
"""

import html
import re
import sys
from pathlib import Path

import markdown
from markdown.extensions.tables import TableExtension
from markdown.extensions.toc import TocExtension

PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>{title}</title>
</head>
<body>
{body}
</body>
</html>
"""


def anchor(heading: str, _separator: str) -> str:
    """A heading in small letters, without punctuation, and with hyphens for blanks."""
    return re.sub(r"[^\w -]", "", heading.lower()).replace(" ", "-")


def dead_ends(body: str, folder: Path) -> list:
    """Links to no heading of the page, and pictures that are not there."""

    def values(tag: str, attribute: str) -> set:
        found = re.findall(rf'<{tag}\b[^>]* {attribute}="([^"]*)"', body)
        return set(map(html.unescape, found))

    links = values("a", "href") - {"#" + name for name in values(r"h\d", "id")}
    pictures = {name for name in values("img", "src") if not (folder / name).is_file()}
    return sorted(links | pictures)


def main(arguments: list) -> None:
    if len(arguments) != 2:
        sys.exit(__doc__)
    guide, page = map(Path, arguments)
    converter = markdown.Markdown(
        extensions=[TableExtension(), TocExtension(slugify=anchor)], output_format="html"
    )
    body = converter.convert(guide.read_text(encoding="utf-8"))
    body = body.replace("<p><img ", '<p class="picture"><img ')
    dead = dead_ends(body, guide.parent)
    if dead:
        sys.exit(f"make_guide.py: {guide} leads to what is not there: {', '.join(dead)}")
    title = converter.toc_tokens[0]["name"]
    page.write_text(PAGE.format(title=title, body=body), encoding="utf-8")


if __name__ == "__main__":
    main(sys.argv[1:])
