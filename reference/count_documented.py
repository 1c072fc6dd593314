#!/usr/bin/env python3
"""Counts the documented symbols of the reference, and names the others.

    count_documented.py XML EXPORTS...

XML is the folder that Doxygen wrote, EXPORTS the lists of exported names. Unlike Doxygen, it also reports macros and
files that Doxygen did not read. Prints each symbol and each exported function without documentation; the last line is
the number of documented symbols. Exits with 1 if a symbol has no documentation.
"""
import pathlib
import sys
import xml.etree.ElementTree as ElementTree


def is_documented(element):
    parts = (element.find("briefdescription"), element.find("detaileddescription"))
    return any("".join(part.itertext()).strip() for part in parts if part is not None)


def symbols_in(folder):
    """(element, identity, name) of each file, structure, function, member and value."""
    for path in sorted(folder.glob("*.xml")):
        for compound in ElementTree.parse(path).getroot().iter("compounddef"):
            if compound.get("kind") in ("page", "dir") or compound.findtext("compoundname").endswith((".md", ".dox")):
                continue
            name = compound.findtext("compoundname")
            yield compound, compound.get("id"), name
            for member in public_members(compound):
                yield member, member.get("id"), f"{name}: {member.findtext('name')}"


def public_members(compound):
    for member in compound.iter("memberdef"):
        if member.get("prot") != "private":
            yield member
            yield from member.findall("enumvalue")


def main(folder, *exports_files):
    documented, missing, functions = set(), set(), set()
    for element, identity, name in symbols_in(pathlib.Path(folder)):
        if not is_documented(element):
            missing.add(f"{name} is not documented")
            continue
        documented.add(identity)  # a member may be in two compounds
        if element.get("kind") == "function":
            functions.add(element.findtext("name"))
    exported = {name for path in exports_files for name in pathlib.Path(path).read_text(encoding="utf-8").split()}
    missing |= {f"{name} is exported and not documented" for name in exported - functions}
    print("\n".join([*sorted(missing), f"{len(documented)} symbols documented"]))
    return 1 if missing else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
