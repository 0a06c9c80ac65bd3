#!/usr/bin/env python3
"""Looks for dead links in a folder of HTML pages, and for parts of a page that another host serves.

    check_links.py SITE [FOLDER]

Each link to a file must lead to one, and each fragment to a name in it. Pages below FOLDER, relative
to SITE, may name fragments that do not exist: Doxygen links to parts of a class that it leaves out.
Links to other hosts are not followed. Exit status 1, and a line for each finding, if there is one.
"""

import html.parser
import pathlib
import re
import sys
import urllib.parse

# What makes a part of the page of what it names: these must come with the site.
PARTS = {("img", "src"), ("script", "src"), ("link", "href"), ("iframe", "src"), ("source", "src")}
STYLE_URL = re.compile(r"""(?:@import\s+|url\()\s*["']?([^"')]+)""")


class Page(html.parser.HTMLParser):
    """The links, parts and names of one page."""

    def __init__(self, text):
        super().__init__()
        self.links, self.parts, self.names = set(), set(), {"", "top"}
        self.feed(text)

    def handle_starttag(self, tag, attrs):
        for name, value in attrs:
            if value is None:
                continue
            if (tag, name) in PARTS:
                self.parts.add(value)
            elif (tag, name) in {("a", "href"), ("area", "href")}:
                self.links.add(value)
            if name == "id" or (tag, name) == ("a", "name"):
                self.names.add(value)


class Site:
    def __init__(self, folder, lenient):
        self.folder = folder
        self.lenient = lenient
        # The page for missing pages is shown at any address, so its links cannot be relative.
        self.pages = {path: Page(path.read_text(encoding="utf-8", errors="replace"))
                      for path in sorted(folder.rglob("*.html")) if path != folder / "404.html"}
        self.findings = []

    def check(self):
        for path, page in self.pages.items():
            for part in page.parts:
                self.check_link(path, part, is_part=True)
            for link in page.links:
                self.check_link(path, link, is_part=False)
        for path in sorted(self.folder.rglob("*.css")):
            for url in STYLE_URL.findall(path.read_text(encoding="utf-8")):
                self.check_link(path, url, is_part=True)
        return sorted(self.findings)

    def check_link(self, path, link, is_part):
        url = urllib.parse.urlsplit(link)
        if url.scheme or url.netloc:
            if is_part and url.scheme not in ("data", "javascript"):
                self.report(path, "another host serves " + link)
            return
        target = path
        if url.path:
            target = (path.parent / urllib.parse.unquote(url.path)).resolve()
        if target.is_dir():
            target = target / "index.html"
        if self.folder not in target.parents or not target.is_file():
            self.report(path, "dead link " + link)
        elif target in self.pages and self.lenient not in path.parents:
            if urllib.parse.unquote(url.fragment) not in self.pages[target].names:
                self.report(path, "no such name " + link)

    def report(self, path, finding):
        self.findings.append("%s: %s" % (path.relative_to(self.folder), finding))


def main():
    folder = pathlib.Path(sys.argv[1]).resolve()
    site = Site(folder, folder / sys.argv[2] if len(sys.argv) > 2 else None)
    findings = site.check()
    for finding in findings:
        print(finding)
    if not findings:
        print("%d pages, no dead link" % len(site.pages))
    return 1 if findings or not site.pages else 0


if __name__ == "__main__":
    sys.exit(main())
