#!/usr/bin/env python3
"""Builds the library with one planted bug at a time, and says which test program finds it.

    plant_bugs.py <work folder> <patches> [name of a bug...]

The work folder has `plain`, a copy of the project, built in `build`. Exits with 1 unless every bug is found.
"""
import hashlib
import os
import re
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

from mutant_builder import DOES_NOT_COMPILE, Builder, sources_of


def read_patches(path):
    """Name -> patch, with its description before it."""
    with open(path, encoding="utf-8") as stream:
        parts = re.split(r"^=== (.*)\n", stream.read(), flags=re.M)
    return dict(zip(parts[1::2], parts[2::2]))


def patched_files(source, patch):
    """Path -> text of each file that the patch changes; None if it does not apply as it is."""
    with tempfile.TemporaryDirectory() as folder:
        paths = re.findall(r"^\+\+\+ b/(.*)$", patch, re.M)
        for path in paths:
            os.makedirs(os.path.dirname(os.path.join(folder, path)), exist_ok=True)
            with open(os.path.join(source, path), "rb") as original, open(os.path.join(folder, path), "wb") as copy:
                copy.write(original.read())
        done = subprocess.run(["patch", "-s", "-p1", "--fuzz=0", "-d", folder], input=patch.encode(), check=False)
        if done.returncode != 0:
            return None
        texts = {}
        for path in paths:
            with open(os.path.join(folder, path), encoding="latin-1") as stream:
                texts[path] = stream.read()
        return texts


def try_bug(builders, name, patch):
    """Returns whether a test program found it."""
    changed = patched_files(builders[0].tree, patch)
    finder = next(filter(None, (builder.killer_of(changed) for builder in builders)), None) if changed else None
    if not changed:
        print(f"{name}: does not apply", flush=True)
    elif finder == DOES_NOT_COMPILE:
        print(f"{name}: does not compile", flush=True)
    else:
        print(f"{name}: found by {finder}" if finder else f"{name}: NOT FOUND", flush=True)
    return finder not in (None, DOES_NOT_COMPILE)


def main():
    work, patches = sys.argv[1], read_patches(sys.argv[2])
    names = sys.argv[3:] or list(patches)
    unknown = [name for name in names if name not in patches]
    if unknown:
        sys.exit(f"no such bug: {', '.join(unknown)}; {sys.argv[2]} has their names")
    plain = os.path.join(work, "plain")
    version = hashlib.sha1(sources_of(plain).encode()).hexdigest()
    corpus = os.path.join(plain, "fuzz", "corpus")
    builders = [Builder(work, "plain", corpus, version, stage) for stage in ("fast", "slow")]
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        found = sum(pool.map(lambda name: try_bug(builders, name, patches[name]), names))
    print(f"found / planted: {found} / {len(names)}")
    sys.exit(0 if found == len(names) else 1)


if __name__ == "__main__":
    main()
