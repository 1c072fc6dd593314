#!/usr/bin/env python3
"""Writes all mutants of run-time code into one copy of the tree: see mutant_switch.h.

    mutate_sources.py <copy of the project> <mutants.json>

Rewrites the sources in the copy, drops mutants that do not compile, and writes the description of each mutant. Also
describes the mutants that are built one at a time (find_constants.py), which are not in the copy.
"""
import glob
import json
import os
import re
import shutil
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

import find_constants
import find_mutants

COMPILER = "clang++-19"
SWITCH = os.path.join(os.path.dirname(os.path.abspath(__file__)), "mutant_switch.h")
# The lists of fields in src/messages have no mutants: a change there does not compile.
MUTATED = ["src/codec/*.h", "src/codec/*.cpp", "src/messages/*.cpp", "src/nal/*.h", "src/nal/*.cpp"]
# Templates are read through the sources that instantiate them.
COMPILED = ["src/*/*.cpp"]


def arguments_in(root):
    return ["-std=c++20", "-w", f"-I{root}/include", f"-I{root}/src"]


def expand(root, patterns):
    return sorted(path for pattern in patterns for path in glob.glob(os.path.join(root, pattern)))


def find_all(root, files):
    """path -> sites. A header that many sources include is read once."""
    found = {}
    for source in expand(root, COMPILED):
        left = {path: name for path, name in files.items() if path not in found}
        found.update(find_mutants.find_sites(source, left, arguments_in(root)))
    return found


def number_sites(found):
    """Returns how many mutants there are."""
    number = 1
    for sites in found.values():
        for site in sites:
            site.first = number
            number += len(site.changes)
    return number - 1


def edits_of(sites):
    """(from, to, text) in the order in which they are written. At one position, ends come before starts; ends with the
    innermost first, starts with the outermost first."""
    edits = []
    for order, site in enumerate(sites):
        if site.dropped:
            continue
        number = site.first
        edits.append(((site.start, 1, -site.end, order), site.start, site.before.format(number)))
        edits.append(((site.end, 0, -site.start, -order), site.end, site.after.format(number)))
        if site.operator:
            start, end, text = site.operator
            edits.append(((start, 2, 0, 0), end, text.format(number)))
    return sorted(edits, key=lambda edit: edit[0])


def without_forced_inlining(text):
    """Without forced inlining: mutants make functions large, and a compiler would take an hour. Same length, so that
    positions stay."""
    for attribute in (r"\[\[gnu::(?:always_inline|flatten)\]\]", r", gnu::(?:always_inline|flatten)(?=[],])"):
        text = re.sub(attribute, lambda found: " " * len(found.group()), text)
    return text


def rewrite(path, text, sites):
    """Writes the mutated file. Returns pairs (position in it, position in the original), to map the compiler's
    errors."""
    pieces, positions, written, at = [], [], 0, 0

    def put(piece, original):
        nonlocal written
        positions.append((written, original))
        pieces.append(piece)
        written += len(piece)

    put('#include "mutant_switch.h"\n', 0)
    for (start, *_), end, inserted in edits_of(sites):
        put(text[at:start], at)
        put(inserted, start)
        at = end
    put(text[at:], at)
    with open(path, "w", encoding="latin-1") as stream:
        stream.write("".join(pieces))
    return positions


def errors_of(root, source):
    """(file, line, column) of each error, and of the place that instantiated its function."""
    command = [COMPILER, "-fsyntax-only", "-ferror-limit=0", "-Wno-c++11-narrowing",
               *arguments_in(root), source]
    output = subprocess.run(command, capture_output=True, text=True, check=False).stderr
    return re.findall(r"^(/[^:\n]+):(\d+):(\d+): (?:fatal )?error: (.*)", output, re.M)


def original_position(path, positions, line, column):
    with open(path, encoding="latin-1") as stream:
        lines = stream.read().splitlines(keepends=True)
    at = sum(len(each) for each in lines[:line - 1]) + column - 1
    written, original = [pair for pair in positions if pair[0] <= at][-1]
    following = [pair[1] for pair in positions if pair[0] > at]
    return min(original + at - written, following[0] if following else original + at - written)


def drop_at(sites, at):
    """Drops the innermost site around the position. False if there is none."""
    around = [site for site in sites if not site.dropped and site.start <= at <= site.end]
    if not around:
        return False
    min(around, key=lambda site: site.end - site.start).dropped = True
    return True


def drop_what_does_not_compile(root, found, texts):
    """Writes the files until all compile."""
    with ThreadPoolExecutor(int(os.environ.get("MUTATION_JOBS", os.cpu_count()))) as pool:
        while True:
            positions = {path: rewrite(path, texts[path], sites) for path, sites in found.items()}
            errors = set()
            for batch in pool.map(lambda source: errors_of(root, source), expand(root, COMPILED)):
                errors.update(batch)
            if not errors:
                return
            dropped = False
            for path, line, column, message in sorted(errors):
                if path not in found:
                    continue
                at = original_position(path, positions[path], int(line), int(column))
                dropped |= drop_at(found[path], at)
                print(f"not compiled: {os.path.relpath(path, root)}:{texts[path].count(chr(10), 0, at) + 1}: {message}")
            if not dropped:
                raise SystemExit(f"no mutant to blame for {sorted(errors)[:3]}")


def describe(found, texts):
    """number -> description; `key` does not depend on line numbers."""
    mutants, seen = {}, {}
    for path, sites in found.items():
        for site in sites:
            original = " ".join(texts[path][site.start:site.end].split())
            for index, change in enumerate(site.changes):
                key = f"{os.path.basename(site.file)} {site.function}: {original} [{change}]"
                seen[key] = seen.get(key, 0) + 1
                if not site.dropped:
                    mutants[site.first + index] = {
                        "key": key if seen[key] == 1 else f"{key} #{seen[key]}", "file": site.file,
                        "line": texts[path].count("\n", 0, site.start) + 1, "within": site.within}
    return mutants


def describe_built(files, first):
    """The same for the mutants that are built one at a time, with the edit."""
    edits = [edit for path, name in files.items() for edit in find_constants.find_edits(path, name)]
    return {number: {"key": edit.key, "file": edit.file, "line": edit.line, "within": edit.within,
                     "edit": {"file": edit.file, "start": edit.start, "replaced": edit.replaced, "text": edit.text}}
            for number, edit in enumerate(edits, first)}


def main():
    root, result = os.path.abspath(sys.argv[1]), sys.argv[2]
    files = {path: os.path.relpath(path, root) for path in expand(root, MUTATED)}
    texts = {}
    for path in files:
        with open(path, encoding="latin-1") as stream:
            texts[path] = without_forced_inlining(stream.read())
    shutil.copy(SWITCH, os.path.join(root, "src"))
    found = find_all(root, files)
    built = {path: name for path, name in files.items() if not name.startswith("src/messages/")}
    count = number_sites(found)
    edits = describe_built(built, count + 1)  # while the files are as they were
    drop_what_does_not_compile(root, found, texts)
    mutants = describe(found, texts)
    print(f"{count} mutants to be chosen, {count - len(mutants)} of them do not compile; {len(edits)} to be built")
    mutants.update(edits)
    keys = [mutant["key"] for mutant in mutants.values()]
    if len(keys) != len(set(keys)):
        raise SystemExit(f"described alike: {[key for key in keys if keys.count(key) > 1][:3]}")
    with open(result, "w", encoding="utf-8") as stream:
        json.dump(mutants, stream, indent=1)


if __name__ == "__main__":
    main()
