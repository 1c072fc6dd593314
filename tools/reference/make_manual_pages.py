#!/usr/bin/env python3
"""Writes the manual pages of the library from its headers.

    make_manual_pages.py ROOT OUTPUT

ROOT is the project's folder. OUTPUT/man3 gets a page for each exported function, OUTPUT/man7 the overview. Functions
that belong together share a page, under the name of the first: the four of a message, the two adapters of an
application record, the three of the queue. The pages of the others are links to it.
"""
import pathlib
import re
import sys
from email.utils import parsedate_to_datetime

from function_page import function_page
from overview_page import overview_page
from public_headers import read_headers


def release_of(root):
    """("1.0.0", "2026-11-21"), as the changelog of the package has them: pages are the same whenever they are made."""
    text = (root / "debian" / "changelog").read_text(encoding="utf-8")
    version = re.match(r"\S+ \(([^)-]+)", text).group(1)
    date = parsedate_to_datetime(re.search(r"^ -- .*>  (.*)$", text, re.M).group(1))
    return version, date.date().isoformat()


def related(header):
    """The functions of a header in groups that share a page."""
    groups = {}
    for function in header.functions:
        if function.name.startswith("nal_queue_"):
            key = "queue"
        else:
            key = re.sub(r"_(en|de)code_tum_|_(decode_ext|encode_ext|duplicate|free_ext)$", "_", function.name)
        groups.setdefault(key, []).append(function)
    return list(groups.values())


def write_group(folder, header, functions, headers, release):
    main = functions[0].name
    (folder / f"{main}.3").write_text(function_page(header, functions, headers, release), encoding="utf-8")
    for function in functions[1:]:
        (folder / f"{function.name}.3").symlink_to(f"{main}.3")


def main(root, output):
    root, output = pathlib.Path(root), pathlib.Path(output)
    release, headers = release_of(root), read_headers(root / "include")
    for section in ("man3", "man7"):
        (output / section).mkdir(parents=True, exist_ok=True)
        for page in (output / section).glob("*.[37]"):
            page.unlink()
    for header in headers:
        for functions in related(header):
            write_group(output / "man3", header, functions, headers, release)
    example = (root / "examples" / "first_session.c").read_text(encoding="utf-8")
    (output / "man7" / "mava_tum.7").write_text(overview_page(headers, example, release), encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:])
