"""Does a type checker accept right uses of the module and reject wrong ones?"""

from __future__ import annotations

import subprocess
import sys
import typing
from pathlib import Path

import pytest

import mava_tum
from mava_tum import types

GOOD = """\
import mava_tum
from mava_tum.types import Stats

stats: Stats = {"field_1": 3}
number: int = mava_tum.decode("stats", mava_tum.encode("stats", stats))["field_1"]
name: str = mava_tum.app_decode("session_context", b"")["session_name"]
for each in mava_tum.messages():
    mava_tum.decode(each, b"")
mava_tum.decode(str(number), b"", memory_limit=None)
"""
BAD = {
    'stats: Stats = {"feild_1": 3}': 'Extra key "feild_1"',
    'session: SessionContext = {"qos": [{"field_3": 5}]}': '"field_3" has type "str"',
    'mava_tum.decode("stats", b"")["ipv4_address"]': 'has no key "ipv4_address"',
    'text: str = mava_tum.decode("stats", b"")["field_1"]': "Incompatible types in assignment",
    'mava_tum.decode("stats", "text")': "No overload variant",
    'name: MessageName = "stat"': "Incompatible types in assignment",
}


def checked(folder: Path, program: str) -> list[str]:
    path = folder / "program.py"
    path.write_text(program, encoding="utf-8")
    done = subprocess.run([sys.executable, "-m", "mypy", "--strict", "--follow-imports=silent",
                           f"--cache-dir={folder / 'cache'}", str(path)],
                          capture_output=True, text=True, check=False, timeout=600,
                          env={"MYPYPATH": str(Path(mava_tum.__file__).parents[1]), "PATH": "/usr/bin:/bin"})
    assert done.returncode in (0, 1), done.stderr
    return [line for line in done.stdout.splitlines() if "error:" in line]


def test_mypy_accepts_what_is_right_and_refuses_each_mistake(tmp_path: Path) -> None:
    pytest.importorskip("mypy")
    head = "import mava_tum\nfrom mava_tum.types import MessageName, SessionContext, Stats\n"
    assert checked(tmp_path, GOOD) == []
    errors = checked(tmp_path, head + "\n".join(BAD) + "\n")
    assert len(errors) == len(BAD), errors
    for line, words in zip(errors, BAD.values()):
        assert words in line


def test_every_message_and_record_has_a_type_with_its_fields() -> None:
    for message in mava_tum.messages():
        name = "".join(part.capitalize() for part in message.split("_"))
        assert set(getattr(types, name).__annotations__) == {field.name for field in mava_tum.fields(message)}
    assert typing.get_args(types.MessageName) == mava_tum.messages()
    assert typing.get_args(types.AdapterName) == mava_tum.adapters()
