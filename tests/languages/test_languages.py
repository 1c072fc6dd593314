"""Do programs with code that is generated from mava_tum.proto exchange every message with ours?

Each peer (peer.py, peer.go) decodes our bytes, drops unknown fields, and encodes the message again."""

from __future__ import annotations

import os
import subprocess
import sys
from collections.abc import Iterator
from pathlib import Path
from typing import Any

import mava_tum
import pytest
from mava_tum.schema import APPLICATION_RECORDS, ADAPTERS, MESSAGES, Field, Member

PEERS = {name: os.environ[variable] for name, variable in
         {"python": "MAVA_TUM_PEER_PYTHON", "go": "MAVA_TUM_PEER_GO"}.items() if variable in os.environ}
RECONCILIATION = os.environ["MAVA_TUM_RECONCILIATION"]
SOURCE = Path(__file__).parents[2]
sys.path.insert(0, str(SOURCE / "catalogue"))

from library_tables import read_library  # noqa: E402  (found by the line above)

CARRIED = {name: adapter.message for name, adapter in read_library(SOURCE / "include").adapters.items()}


def full_value(field: Field) -> Any:
    makers = {
        "varint": lambda: (1 << field.bits) - field.number,
        "fixed32": lambda: 0x110200C0 + field.number,
        "bytes": lambda: bytes(range(field.number, field.number + 16)),
        "text": lambda: f"text {field.number} \u00fc",
        "record": lambda: full_fields(field.of),
        "record_array": lambda: [full_fields(field.of), {}],
        "text_array": lambda: ["one", "", "three"],
    }
    return makers[field.kind]()


def full_fields(message: str) -> dict[str, Any]:
    return {name: full_value(field) for name, field in MESSAGES[message].fields.items()}


def member_value(member: Member, number: int) -> Any:
    makers = {
        "number": lambda: min(number, (1 << member.bits) - 1),
        "number_array": lambda: list(range(member.slots)),
        "bytes": lambda: bytes(range(member.size)),
        "text": lambda: f"text {number}"[:member.size - 1],
        "text_array": lambda: ["one"] * member.slots,
        "record": lambda: full_members(member.of),
        "record_array": lambda: [full_members(member.of)] * member.slots,
    }
    return makers[member.kind]()


def full_members(c_type: str) -> dict[str, Any]:
    """Every member with a value, every list full. All features are on."""
    members = APPLICATION_RECORDS[c_type]
    counts = {member.count: member.slots for member in members.values() if member.count}
    values = {name: member_value(member, number) for number, (name, member) in enumerate(members.items(), 1)}
    values.update(counts)
    values.update({name: (1 << members[name].bits) - 1
                   for name in ("feature_mask", "accounting_flags") if name in members})
    return values


def top_fields(wire: bytes) -> Iterator[tuple[int, bytes]]:
    """The fields of a message with their tags. Their content is not split."""
    def varint(at: int) -> tuple[int, int]:
        value = shift = 0
        while wire[at] & 0x80:
            value |= (wire[at] & 0x7F) << shift
            at, shift = at + 1, shift + 7
        return value | wire[at] << shift, at + 1

    at = 0
    while at < len(wire):
        start = at
        tag, at = varint(at)
        value, behind = (0, at + 4) if tag % 8 == 5 else varint(at)
        at = behind + (value if tag % 8 == 2 else 0)
        yield tag, wire[start:at]


def turned(wire: bytes) -> bytes:
    """The same message with its fields from the last to the first; the elements of a list keep their order. A peer that
    does not read these fields does not write the same bytes again."""
    fields: dict[int, bytes] = {}
    for tag, field in top_fields(wire):
        fields[tag] = fields.get(tag, b"") + field
    return b"".join(reversed(fields.values()))


def exchanged(peer: str, messages: list[tuple[str, bytes]]) -> list[bytes]:
    lines = "".join(f"{name} {wire.hex()}\n" for name, wire in messages)
    answer = subprocess.run([PEERS[peer], "exchange"], input=lines, capture_output=True, text=True, check=False)
    assert answer.returncode == 0, answer.stderr
    return [bytes.fromhex(line) for line in answer.stdout.split("\n")[:-1]]


@pytest.mark.parametrize("peer", PEERS)
def test_every_message_with_every_field_comes_back(peer: str) -> None:
    ours = {name: mava_tum.encode(name, full_fields(name)) for name in MESSAGES}
    assert len(ours) == 40
    assert any(turned(wire) != wire for wire in ours.values())
    theirs = exchanged(peer, [(name, turned(wire)) for name, wire in ours.items()])
    assert theirs == list(ours.values())
    for name, wire in zip(ours, theirs):
        assert mava_tum.decode(name, wire) == full_fields(name)


@pytest.mark.parametrize("peer", PEERS)
def test_what_the_adapters_send_comes_back_to_them(peer: str) -> None:
    sent = {name: mava_tum.app_encode(name, full_members(adapter.encode)) for name, adapter in ADAPTERS.items()}
    assert len(sent) == 19
    theirs = exchanged(peer, [(CARRIED[name], turned(wire)) for name, wire in sent.items()])
    for (name, wire), again in zip(sent.items(), theirs):
        assert wire
        assert again == wire
        assert mava_tum.app_decode(name, again) == mava_tum.app_decode(name, wire)


def test_go_keeps_a_text_that_is_not_utf8() -> None:
    if "go" not in PEERS:
        pytest.skip("no Go here")
    wire = bytes.fromhex("12 02 C0 AF")
    assert exchanged("go", [("subscriber_httpr", wire)]) == [wire]


@pytest.mark.parametrize("peer", PEERS)
def test_a_reconciliation_is_answered_and_both_sides_hold_the_same_bytes(peer: str, tmp_path: Path) -> None:
    shipped = Path(RECONCILIATION).parent / "subscribers.csv"
    chosen = tmp_path / "subscribers.csv"
    chosen.write_text("".join(shipped.read_text().splitlines(keepends=True)[:200]))
    run = subprocess.run([RECONCILIATION, "--receiver", PEERS[peer], str(chosen)], capture_output=True, text=True,
                         check=False)
    assert run.returncode == 0, run.stdout + run.stderr
