#!/usr/bin/env python3
"""Lays out the Markdown pages of the documentation site in one folder.

    stage_pages.py TREE REFERENCE PAGES

TREE is the source tree, REFERENCE the folder of the generated pages of the entity classes, PAGES the
folder to fill. Links from page to page are written anew for the places that the pages have on the
site; one that shows the path of a page shows its title instead. A link to a file of the tree that is
no page becomes the name of that file.
"""

import os
import pathlib
import re
import sys

# Where pages outside docs/ stand on the site.
TOP_PAGES = {
    "README.md": "index.md",
    "CHANGELOG.md": "changelog.md",
    "CONTRIBUTING.md": "contributing.md",
    "SECURITY.md": "security.md",
    "examples/README.md": "examples.md",
    "tools/docs/cpp-api.md": "cpp-api.md",
}
PICTURES = ("*.svg", "*.png")
FENCE = re.compile(r"\s*(```|~~~)")
LINK = re.compile(r"(?<!!)\[([^\]\[]+)\]\(([^)\s#]+)(#[^)\s]*)?\)")
IMAGE = re.compile(r"!\[([^\]\[]*)\]\(([^)\s]+)\)")


def page_places(tree):
    """From path in the tree to path on the site, for each page that is there."""
    places = {page: place for page, place in TOP_PAGES.items() if (tree / page).is_file()}
    for page in sorted((tree / "docs").glob("**/*.md")):
        places[page.relative_to(tree).as_posix()] = page.relative_to(tree / "docs").as_posix()
    return places


def title(page):
    """The first heading of a page; its name if it has none."""
    heading = re.search(r"^# (.+)$", page.read_text(encoding="utf-8"), re.MULTILINE)
    return heading.group(1).strip() if heading else page.name


def relinked(line, page, places, tree):
    """The line of a page, with links that lead to the same things from the page's place."""

    def replace(match):
        text, target, fragment = match.group(1), match.group(2), match.group(3) or ""
        path = os.path.normpath(os.path.join(os.path.dirname(page), target))
        if path in places:
            base = os.path.dirname(places[page]) or "."
            if text.strip("`") in (target, path):
                text = title(tree / path)
            return "[%s](%s%s)" % (text, os.path.relpath(places[path], base), fragment)
        if not (tree / path).exists():
            return match.group(0)  # a place on the site or elsewhere; or dead, which the build reports
        name = "`%s`" % path
        return name if text.strip("`") == path else "%s (%s)" % (text, name)

    return LINK.sub(replace, with_pictures(line, page, places))


def with_pictures(line, page, places):
    """The line of a page, with pictures of docs/ at their places on the site."""

    def replace(match):
        path = os.path.normpath(os.path.join(os.path.dirname(page), match.group(2)))
        if not path.startswith("docs/"):
            return match.group(0)
        base = os.path.dirname(places[page]) or "."
        return "![%s](%s)" % (match.group(1), os.path.relpath(path[len("docs/"):], base))

    return IMAGE.sub(replace, line)


def stage(tree, pages):
    places = page_places(tree)
    for page, place in places.items():
        lines, in_code = [], False
        for line in (tree / page).read_text(encoding="utf-8").splitlines(keepends=True):
            if FENCE.match(line):
                in_code = not in_code
            is_code = in_code or line.startswith("    ")
            lines.append(line if is_code else relinked(line, page, places, tree))
        target = pages / place
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_text("".join(lines), encoding="utf-8")
    pictures = (picture for kind in PICTURES for picture in (tree / "docs").glob("**/" + kind))
    for picture in pictures:
        target = pages / picture.relative_to(tree / "docs")
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(picture.read_bytes())


def main():
    tree, reference, pages = (pathlib.Path(argument).resolve() for argument in sys.argv[1:4])
    stage(tree, pages)
    (pages / "reference").mkdir(parents=True, exist_ok=True)
    for page in reference.glob("*.md"):
        (pages / "reference" / page.name).write_bytes(page.read_bytes())


if __name__ == "__main__":
    main()
