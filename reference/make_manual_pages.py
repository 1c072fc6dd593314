#!/usr/bin/env python3
"""Writes the manual pages of a library from its headers.

    make_manual_pages.py ROOT OUTPUT LIBRARY VERSION DATE

ROOT is the project's folder, LIBRARY mava_tum or mava_tum_inspect. VERSION and DATE are those in CMakeLists.txt, so
that the pages do not depend on the time of the build. OUTPUT/man3 gets a page for each exported function, OUTPUT/man7
the overview; the pages of the other library stay. Functions that belong together share a page with the name of the
first: the four of a message, the two adapters of an application record, the three of the queue, those between two
dividers in the header of the inspector. The other names are links to it.
"""
import pathlib
import re
import sys
from dataclasses import dataclass

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "catalogue"))

from header_reader import Header, HeaderReader, read_headers  # noqa: E402  (found by the line above)

from comment_blocks import blocks_of, sentence  # noqa: E402
from function_page import function_page  # noqa: E402
from overview_page import codec_overview, inspect_overview  # noqa: E402


@dataclass
class Library:
    name: str  # without lib; that of the overview
    groups: list  # (header, functions) of each page
    codes: dict  # what its functions return; see result_codes
    overview: str


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


def result_codes(header):
    """The codes that functions return: the first enumeration of the header."""
    return header.enums[0].constants


def codec_headers(root):
    """Sorted by name, without the header that includes all others."""
    return sorted(read_headers(root / "include")[:-1], key=lambda header: header.path)


def codec_codes(headers):
    return result_codes(next(header for header in headers if header.path.endswith("codec_contract.h")))


def parts_of(path):
    """Splits a header at its dividers, as if each part were a header."""
    header = HeaderReader().read(path.name, path.read_text(encoding="utf-8"))
    # The list in the comment of the header has the subjects of the parts.
    subjects = dict(row for block in blocks_of(header.comment) for row in block.rows)
    return [Header(header.path, sentence(subjects[title]) if title else header.comment,
                   declarations=[each for each in header.declarations if each.divider == title])
            for title in ["", *header.dividers]]


def codec(root, release):
    headers = codec_headers(root)
    example = (root / "examples" / "first_session.c").read_text(encoding="utf-8")
    return Library("mava_tum", [(header, functions) for header in headers for functions in related(header)],
                   codec_codes(headers), codec_overview(headers, example, release))


def inspector(root, release):
    header, *parts = parts_of(root / "inspector" / "library" / "include" / "mava_tum_inspect.h")
    guide = (root / "docs" / "inspect-library.md").read_text(encoding="utf-8")
    example = re.search(r"save log_why.c -->\n```c\n(.*?)^```$", guide, re.M | re.S).group(1)
    return Library("mava_tum_inspect", [(part, part.functions) for part in parts],
                   codec_codes(codec_headers(root)) | result_codes(header),
                   inspect_overview(header, parts, example, release))


LIBRARIES = {"mava_tum": codec, "mava_tum_inspect": inspector}


def remove_pages(folder, library):
    for page in folder.glob("man[37]/*.[37]"):
        if page.name.startswith("mava_tum_inspect") == (library.name == "mava_tum_inspect"):
            page.unlink()


def write_group(folder, header, functions, library, release):
    main = functions[0].name
    (folder / f"{main}.3").write_text(function_page(header, functions, library, release), encoding="utf-8")
    for function in functions[1:]:
        (folder / f"{function.name}.3").symlink_to(f"{main}.3")


def main(root, output, name, version, date):
    root, output = pathlib.Path(root), pathlib.Path(output)
    release = version, date
    library = LIBRARIES[name](root, release)
    for section in ("man3", "man7"):
        (output / section).mkdir(parents=True, exist_ok=True)
    remove_pages(output, library)
    for header, functions in library.groups:
        write_group(output / "man3", header, functions, library, release)
    (output / "man7" / f"{name}.7").write_text(library.overview, encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:])
