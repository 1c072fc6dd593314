"""For each field of a message, the member of the application record that receives it, and the limit of its value."""

from __future__ import annotations

import re
from dataclasses import dataclass, field

from header_reader import HeaderError
from library_tables import RECORD_PREFIX, ApplicationMember, Library, Message

SESSION = RECORD_PREFIX + "session_context"

# Members of a session have the field number in their names, and begin with the name of its record.
SESSION_PARTS = {
    "ipv4": (8,), "ipv6": (9,), "session_data": (10,), "ppp": (10, 3), "l2tp": (10, 4), "vlan": (10, 10), "acl": (12,),
    "redirect": (13,), "intercept": (14,), "urpf_1": (15,), "urpf_2": (16,), "icmp_1": (17,), "icmp_2": (18,),
    "mtu_1": (19,), "mtu_2": (20,), "mtu_3": (21,), "accounting": (22,), "session": ()}
# The exceptions.
SESSION_MEMBERS = {
    "feature_mask": (5,), "ipv4_address": (8, 2), "ppp_identifier": (10, 3, 5), "l2tp_kind": (10, 4, 1),
    "l2tp_name": (10, 4, 19), "session_name": (10, 5), "session_identifier": (10, 6), "session_label": (10, 7),
    "session_text": (10, 8), "session_value_9": (10, 9), "intercept_identifier": (14, 4),
    "intercept_ipv4_address": (14, 7), "intercept_ipv6_address": (14, 8), "icmp_1_value": (17, 1),
    "icmp_2_value": (18, 1), "mtu_1_value": (19, 1), "mtu_2_value": (20, 1), "mtu_3_value": (21, 1),
    "accounting_flags": (22, 1), "qos": (11,), "ipv4_routes": (23,), "ipv6_routes": (24,)}

# L24: arrives only if this field of the same record is present, too.
ONLY_WITH = {"ipv6_value_5": 3, "ipv6_value_7": 6}
# L22: texts that are truncated before the end of their array, by the size of the array.
CHARACTERS = {36: 32, 68: 64}

KINDS = {"numbers": "number", "ipv6": "bytes", "records": "list"}


@dataclass
class Limit:
    """The receiver of field `number`: a member, an element of an array of numbers, or, without a member, the members
    that receive the fields of the nested record."""

    number: int
    member: ApplicationMember | None = None
    element: int = 0
    parts: list[Limit] = field(default_factory=list)


def session_path(member: ApplicationMember) -> tuple[int, ...]:
    """The numbers of the fields that lead to it."""
    if member.name in SESSION_MEMBERS:
        return SESSION_MEMBERS[member.name]
    for beginning in sorted(SESSION_PARTS, key=len, reverse=True):
        number = re.fullmatch(rf"{beginning}_[a-z0-9]+_(\d+)", member.name)
        if number:
            return (*SESSION_PARTS[beginning], int(number[1]))
    raise HeaderError(f"{SESSION}.{member.name}: its name does not tell its field")


def add_limit(limits: list[Limit], path: tuple[int, ...], member: ApplicationMember) -> None:
    first, *rest = path
    if not rest:
        limits.append(Limit(first, member))
        return
    part = next((each for each in limits if each.number == first and not each.member), None)
    if part is None:
        part = Limit(first)
        limits.append(part)
    add_limit(part.parts, tuple(rest), member)


def limits_of(c_type: str, members: list[ApplicationMember]) -> list[Limit]:
    limits: list[Limit] = []
    counts = {member.count for member in members}
    for member in members:
        if c_type == SESSION and not member.is_reserved and member.name not in counts:
            add_limit(limits, session_path(member), member)
        elif member.kind == "numbers":
            limits += [Limit(member.number + element, member, element) for element in range(member.declared.sizes[0])]
        elif member.number:
            limits.append(Limit(member.number, member))
    return limits


class LimitWriter:
    """Writes the limits of each received record as rows of C++; nested records come first."""

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
        if limit.member is None:
            inner = f"{table}_{limit.number}"
            self.write_table(inner, c_type, limit.parts, nested)
            return f"    {{{limit.number}, limit_kind::record, 0, nullptr, 0, 0, 0, 0, 0, 0, {inner}}},"
        return self.member_row(c_type, limit.number, limit.member, limit.element, nested)

    def member_row(self, c_type: str, number: int, member: ApplicationMember, element: int,
                   nested: Message | None) -> str:
        is_nested = member.kind in ("record", "records")
        inner = self.write_record(member.declared.c_type, nested) if is_nested else "{}"
        kind = KINDS.get(member.kind, member.kind)
        whole = f"{c_type}::{member.name}"
        one = f"{whole}[0]" if member.kind in ("numbers", "records", "texts") else whole
        count = f"8 * sizeof({c_type}::{member.count}), offsetof({c_type}, {member.count})" if member.count else "0, 0"
        characters = CHARACTERS.get((0, *member.declared.sizes)[-1], f"sizeof({one}) - 1")
        allowed = {"number": f"8 * sizeof({one})", "text": characters, "bytes": f"sizeof({whole})", "record": "0",
                   "list": f"sizeof({whole}) / sizeof({one})", "texts": f"sizeof({whole}) / sizeof({one})"}[kind]
        return (f'    {{{number}, limit_kind::{kind}, {allowed}, "{member.name}", '
                f"offsetof({c_type}, {member.name}) + {element} * sizeof({one}), sizeof({one}), "
                f"{ONLY_WITH.get(member.name, 0)}, {count}, {characters if kind == 'texts' else 0}, {inner}}},")
