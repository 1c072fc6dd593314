#!/usr/bin/python3 -B
"""Renders README.md, the pages that docs/README.md lists, and every file that they link to.

    render_site.py <project root> <output folder> [--reference URL] [--inspector FILE]

A page in Markdown becomes a page; a picture is copied; any other file of the tree is shown with its lines numbered; a
folder becomes the list of its files. Linked files are included. The output folder is emptied first.
"""
import argparse
import json
import os
import re
import shutil

from page_template import Beside, page_html, stylesheet
from site_pages import Site

INSPECTOR = "inspector.html"
EXAMPLE = re.compile(r"<code>((?:[0-9A-F]{2} ?)+)</code>(?= in <code>([a-z0-9_]+)</code>)")


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("project")
    parser.add_argument("output")
    parser.add_argument("--reference", help="where the reference of the headers is, seen from the first page")
    parser.add_argument("--inspector", help="inspector.html of a build: it is copied, and examples open in it")
    return parser.parse_args()


def write(output, path, content):
    target = os.path.join(output, path)
    os.makedirs(os.path.dirname(target), exist_ok=True)
    with open(target, "w", encoding="utf-8") as file:
        file.write(content)


def clear(output):
    """Removes an earlier site, and no other files."""
    if os.path.isdir(output) and os.listdir(output) and not os.path.exists(os.path.join(output, "style.css")):
        raise SystemExit(f"{output}: there is something else in it; name an empty folder, or one that does not exist")
    shutil.rmtree(output, ignore_errors=True)


def opening_examples(page):
    """The body of a page, with the wire bytes of known messages as links into the inspector."""
    return EXAMPLE.sub(lambda found: f'<a href="{page.link_to(INSPECTOR)}#message={found[2]}&amp;'
                                     f'hex={found[1].replace(" ", "")}">{found[0]}</a>', page.body)


def search_index(pages):
    """One entry for each section of each page in Markdown."""
    return [{"target": page.target + (f"#{anchor}" if anchor else ""), "text": " ".join(text.split()),
             "title": page.title if words == page.title else f"{page.title}: {words}"}
            for page in pages for anchor, words, text in page.sections]


def main():
    arguments = parse_arguments()
    site = Site(arguments.project)
    pages = list(site.all_pages())  # all pages before the first is written: a missing file of a link stops here
    version = re.search(r"^ +VERSION ([0-9.]+)$", site.read("CMakeLists.txt"), re.MULTILINE)[1]
    clear(arguments.output)
    beside = []
    if arguments.inspector:
        beside.append(Beside("Try it", "Inspector", INSPECTOR))
        with open(arguments.inspector, encoding="utf-8") as file:
            write(arguments.output, INSPECTOR, file.read())
        for page in pages:
            page.body = opening_examples(page)
    if arguments.reference:
        beside.append(Beside("Reference", "Functions and records", arguments.reference))
    for page in pages:
        write(arguments.output, page.target, page_html(page, site.navigation, beside, version))
    for copied in sorted(site.copied):
        target = os.path.join(arguments.output, copied)
        os.makedirs(os.path.dirname(target), exist_ok=True)
        shutil.copyfile(os.path.join(arguments.project, copied), target)
    write(arguments.output, "style.css", stylesheet())
    write(arguments.output, "site.js", site.read("reference/site/site.js"))
    # A script, because a browser does not load other files for a page from a local folder.
    write(arguments.output, "search-index.js", f"window.searchIndex = {json.dumps(search_index(pages))};\n")
    print(f"{len(pages)} pages and {len(site.copied)} pictures in {arguments.output}")


if __name__ == "__main__":
    main()
