#!/usr/bin/python3 -B
"""Checks every link of a rendered site: its file and its anchor exist.

    check_site.py <folder of the site>

Prints every broken link, and exits with 1 if there is one.
"""
from html.parser import HTMLParser
import os
import re
import sys

EXTERNAL = re.compile(r"^[a-z]+:")


class PageReader(HTMLParser):
    def __init__(self):
        super().__init__()
        self.links, self.anchors = [], set()

    def handle_starttag(self, tag, attrs):
        for name, value in attrs:
            if name in ("href", "src"):
                self.links.append(value)
            elif name == "id":
                self.anchors.add(value)


def read_site(folder):
    """Every page by its path, with its links and its anchors."""
    pages = {}
    for directory, _, names in os.walk(folder):
        for name in (name for name in names if name.endswith(".html")):
            path = os.path.join(directory, name)
            reader = PageReader()
            with open(path, encoding="utf-8") as file:
                reader.feed(file.read())
            pages[path] = reader
    return pages


def wrong_links(pages):
    """(looked at, complaints)"""
    looked_at, complaints = 0, []
    for path, page in sorted(pages.items()):
        for link in page.links:
            if EXTERNAL.match(link):
                continue
            looked_at += 1
            file, _, anchor = link.partition("#")
            target = os.path.normpath(os.path.join(os.path.dirname(path), file)) if file else path
            if not os.path.isfile(target):
                complaints.append(f"{path}: {link} leads nowhere")
            elif anchor and "=" not in anchor and anchor not in pages[target].anchors:  # otherwise, it is an input
                complaints.append(f"{path}: {link}: there is no such place on that page")
    return looked_at, complaints


def main():
    pages = read_site(sys.argv[1])
    looked_at, complaints = wrong_links(pages)
    for complaint in complaints:
        print(complaint)
    print(f"{looked_at} links on {len(pages)} pages, {len(complaints)} wrong")
    return 1 if complaints or looked_at == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
