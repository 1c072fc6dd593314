"""Makes a wheel of the module, with the shared library inside. Needs Python only, and no network.

    make_wheel.py <package folder> <shared library> <version> <output folder>

The name of the wheel promises glibc 2.17: the library needs no newer symbol."""

from __future__ import annotations

import base64
import hashlib
import platform
import sys
import zipfile
from pathlib import Path

NAME = "mava_tum"
TIME = (1980, 1, 1, 0, 0, 0)  # of every file: the same input gives the same wheel
METADATA = """\
Metadata-Version: 2.1
Name: mava-tum
Version: {version}
Summary: Subscriber session records to protobuf wire bytes and back
License: Apache-2.0
Requires-Python: >=3.9
Requires-Dist: cffi>=1.15
Classifier: Operating System :: POSIX :: Linux
Classifier: Typing :: Typed

Turns the session records of a broadband subscriber into protobuf wire bytes and back. The module loads the shared
library, which this package contains.
"""
WHEEL = """\
Wheel-Version: 1.0
Generator: make_wheel
Root-Is-Purelib: false
Tag: {tag}
"""


def contents(package: Path, library: Path, version: str, tag: str) -> dict[str, bytes]:
    """The files of the wheel by their names, without the list of them."""
    folder = f"{NAME}-{version}.dist-info"
    modules = [path for path in sorted(package.iterdir()) if path.suffix in (".py", ".pyi", ".json", ".typed")]
    soname = f"libmava_tum.so.{version.split('.')[0]}"  # the name that the module loads
    return {**{f"{NAME}/{path.name}": path.read_bytes() for path in modules},
            f"{NAME}/{soname}": library.read_bytes(),
            f"{folder}/METADATA": METADATA.format(version=version).encode(),
            f"{folder}/WHEEL": WHEEL.format(tag=tag).encode()}


def record_of(files: dict[str, bytes], name: str) -> bytes:
    """The list of all files with their checksums, and of itself without."""
    rows = [f"{each},sha256={base64.urlsafe_b64encode(hashlib.sha256(content).digest()).rstrip(b'=').decode()},"
            f"{len(content)}" for each, content in files.items()]
    return "\n".join([*rows, f"{name},,", ""]).encode()


def main(arguments: list[str]) -> int:
    package, library, version, output = arguments
    tag = f"py3-none-manylinux_2_17_{platform.machine()}"
    files = contents(Path(package), Path(library), version, tag)
    record = f"{NAME}-{version}.dist-info/RECORD"
    files[record] = record_of(files, record)
    path = Path(output) / f"{NAME}-{version}-{tag}.whl"
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as wheel:
        for name, content in files.items():
            information = zipfile.ZipInfo(name, TIME)
            information.external_attr = 0o644 << 16
            wheel.writestr(information, content, zipfile.ZIP_DEFLATED)
    print(path)
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
