"""Makes dictionaries for `encode` and `app_encode` from the field tables."""

from __future__ import annotations

import functools
from collections.abc import Callable
from typing import Any

from hypothesis import given
from hypothesis import strategies as st

from mava_tum.schema import APPLICATION_RECORDS, MESSAGES, Field, Member

Strategy = st.SearchStrategy[Any]
Test = Callable[..., None]

examples_tried = 0


def for_all(**strategies: Strategy) -> Callable[[Test], Test]:
    """A test of hypothesis whose examples are counted."""
    def decorate(test: Test) -> Test:
        @functools.wraps(test)
        def counted(*arguments: Any, **named: Any) -> None:
            global examples_tried
            examples_tried += 1
            test(*arguments, **named)
        return given(**strategies)(counted)
    return decorate


def numbers(bits: int) -> Strategy:
    """Small numbers, numbers where a varint gets longer, and any numbers, with the same probability."""
    edges = sorted({value for shift in range(0, bits + 1, 7) for value in (max(0, (1 << shift) - 1), 1 << shift)
                    if value < 1 << bits} | {(1 << bits) - 1})
    return st.one_of(st.sampled_from(edges), st.integers(0, (1 << bits) - 1))


def texts(most_bytes: int) -> Strategy:
    """A text may have all bytes except NUL."""
    raw = st.one_of(st.binary(max_size=min(most_bytes, 20)), st.just(b"x" * most_bytes))
    return raw.map(lambda content: content.replace(b"\0", b"-").decode("utf-8", "surrogateescape"))


def codec_value(field: Field) -> Strategy:
    makers: dict[str, Callable[[], Strategy]] = {
        "varint": lambda: numbers(field.bits),
        "fixed32": lambda: numbers(field.bits),
        "bytes": lambda: st.binary(max_size=20),
        "text": lambda: texts(300),
        "record": lambda: codec_records(field.of),
        # An empty list has no form on the wire.
        "record_array": lambda: st.lists(codec_records(field.of), min_size=1, max_size=3),
        "text_array": lambda: st.lists(texts(300), min_size=1, max_size=3),
    }
    return makers[field.kind]()


_records: dict[str, Strategy] = {}


def codec_records(message: str) -> Strategy:
    """Any present fields with any values."""
    if message not in _records:
        values = {name: codec_value(field) for name, field in MESSAGES[message].fields.items()}
        _records[message] = st.fixed_dictionaries({}, optional=values)
    return _records[message]


def application_value(member: Member) -> Strategy:
    makers: dict[str, Callable[[], Strategy]] = {
        "number": lambda: numbers(member.bits),
        "number_array": lambda: st.lists(numbers(member.bits), min_size=member.slots, max_size=member.slots),
        "bytes": lambda: st.binary(min_size=member.size, max_size=member.size),
        "text": lambda: texts(member.size - 1),
        "text_array": lambda: st.lists(texts(member.size - 1), max_size=member.slots),
        "record": lambda: application_records(member.of),
        "record_array": lambda: st.lists(application_records(member.of), max_size=min(member.slots, 3)),
    }
    return makers[member.kind]()


def application_records(c_type: str) -> Strategy:
    """All members with any values. Counts follow their lists."""
    if c_type not in _records:
        members = APPLICATION_RECORDS[c_type]
        counts = {member.count for member in members.values() if member.count}
        values = {name: application_value(member) for name, member in members.items() if name not in counts}
        _records[c_type] = st.fixed_dictionaries(values).map(lambda record: with_counts(c_type, record))
    return _records[c_type]


def with_counts(c_type: str, record: dict[str, Any]) -> dict[str, Any]:
    counts = {member.count: len(record[member.name])
              for member in APPLICATION_RECORDS[c_type].values() if member.count}
    return {**record, **counts}
