"""Which fields of a message arrive in which members of an application record, and how much of each fits there."""

from __future__ import annotations

import re
from dataclasses import dataclass, field

from header_reader import HeaderError
from library_tables import RECORD_PREFIX, Library, Message, Slot

SESSION = RECORD_PREFIX + "session_context"

# The members of a session have the number of their field in their names, and its record in what they begin with.
SESSION_PARTS = {
    "ipv4": (8,), "ipv6": (9,), "session_data": (10,), "ppp": (10, 3), "l2tp": (10, 4), "vlan": (10, 10), "acl": (12,),
    "redirect": (13,), "intercept": (14,), "urpf_1": (15,), "urpf_2": (16,), "icmp_1": (17,), "icmp_2": (18,),
    "mtu_1": (19,), "mtu_2": (20,), "mtu_3": (21,), "accounting": (22,), "session": ()}
# These do not.
SESSION_MEMBERS = {
    "feature_mask": (5,), "ipv4_address": (8, 2), "ppp_identifier": (10, 3, 5), "l2tp_kind": (10, 4, 1),
    "l2tp_name": (10, 4, 19), "session_name": (10, 5), "session_identifier": (10, 6), "session_label": (10, 7),
    "session_text": (10, 8), "session_value_9": (10, 9), "intercept_identifier": (14, 4),
    "intercept_ipv4_address": (14, 7), "intercept_ipv6_address": (14, 8), "icmp_1_value": (17, 1),
    "icmp_2_value": (18, 1), "mtu_1_value": (19, 1), "mtu_2_value": (20, 1), "mtu_3_value": (21, 1),
    "accounting_flags": (22, 1), "qos": (11,), "ipv4_routes": (23,), "ipv6_routes": (24,)}

# L24: arrives only when this field of the same record is there too.
ONLY_WITH = {"ipv6_value_5": 3, "ipv6_value_7": 6}
# L22: texts that are cut before their array ends, by the size of the array.
CHARACTERS = {36: 32, 68: 64}

KINDS = {"numbers": "number", "ipv6": "bytes", "records": "list"}


@dataclass
class Limit:
    """What takes field `number`: a member, of an array of numbers one element, or, without a slot, the members that
    take the fields of the nested record."""

    number: int
    slot: Slot | None = None
    element: int = 0
    parts: list[Limit] = field(default_factory=list)


def session_path(slot: Slot) -> tuple[int, ...]:
    """The numbers of the fields that lead to it."""
    if slot.name in SESSION_MEMBERS:
        return SESSION_MEMBERS[slot.name]
    for beginning in sorted(SESSION_PARTS, key=len, reverse=True):
        number = re.fullmatch(rf"{beginning}_[a-z0-9]+_(\d+)", slot.name)
        if number:
            return (*SESSION_PARTS[beginning], int(number[1]))
    raise HeaderError(f"{SESSION}.{slot.name}: its name does not tell its field")


def add_limit(limits: list[Limit], path: tuple[int, ...], slot: Slot) -> None:
    first, *rest = path
    if not rest:
        limits.append(Limit(first, slot))
        return
    part = next((each for each in limits if each.number == first and not each.slot), None)
    if part is None:
        part = Limit(first)
        limits.append(part)
    add_limit(part.parts, tuple(rest), slot)


def limits_of(c_type: str, slots: list[Slot]) -> list[Limit]:
    limits: list[Limit] = []
    counts = {slot.count for slot in slots}
    for slot in slots:
        if c_type == SESSION and not slot.is_reserved and slot.name not in counts:
            add_limit(limits, session_path(slot), slot)
        elif slot.kind == "numbers":
            limits += [Limit(slot.number + element, slot, element) for element in range(slot.member.sizes[0])]
        elif slot.number:
            limits.append(Limit(slot.number, slot))
    return limits


class LimitWriter:
    """Writes the limits of each record that is received as rows of C++, what is inside of it before it."""

    def __init__(self, library: Library) -> None:
        self.library = library
        self.lines: list[str] = []
        self.names: dict[str, str] = {}
        for adapter in library.adapters.values():
            self.write_record(adapter.received, library.messages[adapter.message])

    def write_record(self, c_type: str, message: Message) -> str:
        name = c_type.removeprefix(RECORD_PREFIX) + "_limits"
        if c_type not in self.names:
            self.names[c_type] = name
            self.write_table(name, c_type, limits_of(c_type, self.library.records[c_type]), message)
        return name

    def write_table(self, name: str, c_type: str, limits: list[Limit], message: Message) -> None:
        rows = [self.row(name, c_type, limit, message) for limit in limits]
        self.lines += ["", f"inline constexpr member_limit {name}[] = {{", *rows, "};"]

    def row(self, table: str, c_type: str, limit: Limit, message: Message) -> str:
        if not 0 < limit.number <= len(message.fields):
            raise HeaderError(f"{c_type}: {message.name} has no field {limit.number}")
        nested = self.library.messages.get(message.fields[limit.number - 1].of)
        if limit.slot is None:
            inner = f"{table}_{limit.number}"
            self.write_table(inner, c_type, limit.parts, nested)
            return f"    {{{limit.number}, limit_kind::record, 0, nullptr, 0, 0, 0, 0, 0, 0, {inner}}},"
        slot = limit.slot
        inner = self.write_record(slot.member.c_type, nested) if slot.kind in ("record", "records") else "{}"
        member, kind = f"{c_type}::{slot.name}", KINDS.get(slot.kind, slot.kind)
        element = f"{member}[0]" if slot.kind in ("numbers", "records", "texts") else member
        offset = f"offsetof({c_type}, {slot.name}) + {limit.element} * sizeof({element})"
        count = f"8 * sizeof({c_type}::{slot.count}), offsetof({c_type}, {slot.count})" if slot.count else "0, 0"
        characters = CHARACTERS.get(slot.member.sizes[-1] if slot.member.sizes else 0, f"sizeof({element}) - 1")
        allowed = {"number": f"8 * sizeof({element})", "text": characters, "bytes": f"sizeof({member})", "record": "0",
                   "list": f"sizeof({member}) / sizeof({element})",
                   "texts": f"sizeof({member}) / sizeof({element})"}[kind]
        return (f'    {{{limit.number}, limit_kind::{kind}, {allowed}, "{slot.name}", {offset}, sizeof({element}), '
                f"{ONLY_WITH.get(slot.name, 0)}, {count}, {characters if kind == 'texts' else 0}, {inner}}},")
