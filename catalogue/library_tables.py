"""Messages, adapters and application records of the public headers, as tables. The comment beside a member has what its
declaration does not: number, kind and bit of a field, the field that a member is received from."""

from __future__ import annotations

import re
from dataclasses import dataclass
from pathlib import Path

from header_reader import Function, Header, HeaderError, Member, Record, plain_text, read_headers

MESSAGE_PREFIX = "mava_tum_"
RECORD_PREFIX = "tum_nal_data_"
FUNCTIONS = ("decode_ext", "encode_ext", "duplicate", "free_ext")
BITS = {"uint8_t": 8, "uint16_t": 16, "uint32_t": 32, "uint64_t": 64}
IPV6_BYTES = 16

FIELD = re.compile(r"(\d+): ([a-z0-9 -]+), bit (\d+)(?:; (.*))?")
ADAPTER = re.compile(r"tum_nal_data_gpb_(encode|decode)_tum_(\w+)")
CARRIED = re.compile(r"(?:one|the) (\w+) message\b")
NUMBER = re.compile(r"(\d+)(?: to \d+)?(?::|$)")
LIST_OF_MESSAGES = re.compile(r"^ \* +messages +header\n(.*?)\n \*\n", re.DOTALL | re.MULTILINE)

# The name of a kind in the headers -> its C type ("": the record of any message), its pointers.
KINDS = {
    "varint": ("uint32_t", 0),
    "64-bit varint": ("uint64_t", 0),
    "fixed32": ("uint32_t", 0),
    "bytes": ("mava_tum_bytes", 0),
    "text": ("char", 1),
    "record": ("", 0),
    "array of records": ("", 1),
    "array of texts": ("char", 2),
}
# The bytes fields that hold IPv6 addresses: neither the wire nor the headers show it. In application records, they have
# 16 bytes; a test compares. The others are identifiers, or have no member (L26).
IPV6_FIELDS = {
    "subscriber_v6": (2, 3, 4, 6), "l2tp_data": (4, 5), "subscriber_li": (8,), "subscriber_route_ipv6": (3, 5)}
NUMBER_KINDS = ("varint", "64-bit varint", "fixed32")
ARRAY_KINDS = ("array of records", "array of texts")


@dataclass(frozen=True)
class Field:
    """A field of a message: `c_type` is that of its member without pointers, `count` the member that counts an array,
    `note` the text of its comment after the bit."""

    number: int
    name: str
    kind: str
    c_type: str
    note: str
    count: str

    @property
    def bits(self) -> int:
        return BITS[self.c_type] if self.kind in NUMBER_KINDS else 0

    @property
    def of(self) -> str:
        """The message of a record or of the elements of an array of them; "" otherwise."""
        return message_name(self.c_type) if self.kind in ("record", "array of records") else ""

    @property
    def is_ipv4(self) -> bool:
        return "IPv4" in self.note


@dataclass(frozen=True)
class Message:
    """`functions` by the ends of their names, as in FUNCTIONS."""

    c_type: str
    summary: str
    header: Header
    fields: list[Field]
    functions: dict[str, Function]

    @property
    def name(self) -> str:
        return message_name(self.c_type)

    def address_of(self, field: Field) -> str:
        """ipv4, ipv6 or ""."""
        if field.number in IPV6_FIELDS.get(self.name, ()):
            return "ipv6"
        return "ipv4" if field.is_ipv4 else ""


@dataclass(frozen=True)
class ApplicationMember:
    """A member of an application record. `kind` is number, numbers, bytes, text, texts, record or records; `address`
    ipv4, ipv6 or ""; `count` the member that counts the elements of an array. `number` is that of the field that it is
    received from, of an array of numbers the first; 0 if it is not received or the header does not name the field."""

    declared: Member
    kind: str
    address: str
    count: str
    number: int

    @property
    def name(self) -> str:
        return self.declared.name

    @property
    def is_reserved(self) -> bool:
        """Neither read nor set."""
        return self.name.startswith("reserved_")


@dataclass(frozen=True)
class Adapter:
    """`sent` and `received` are the C types of the two directions."""

    name: str
    message: str
    encode: Function
    decode: Function
    sent: str
    received: str


@dataclass
class Library:
    """Messages by name and application records by C type, both in the order of their definition; adapters by name in
    that of their declaration."""

    headers: list[Header]
    messages: dict[str, Message]
    records: dict[str, list[ApplicationMember]]
    adapters: dict[str, Adapter]

    def in_documented_order(self) -> list[Message]:
        """The messages in the order of the list in codec_contract.h."""
        return [self.messages[name] for name in documented_messages(self)]

    def adapters_in_documented_order(self) -> list[Adapter]:
        """Adapters by header, in the order of the first message that each carries."""
        places = {message.name: place for place, message in enumerate(self.in_documented_order())}
        groups: dict[str, list[Adapter]] = {}
        for header in self.headers:
            names = {function.name for function in header.functions}
            groups[header.path] = [each for each in self.adapters.values() if each.encode.name in names]
        in_order = sorted(filter(None, groups.values()), key=lambda group: min(places[each.message] for each in group))
        return [each for group in in_order for each in group]

    def messages_with(self, *kinds: str) -> set[str]:
        """The messages that have a field of this kind, at any depth."""
        found: set[str] = set()
        for message in self.messages.values():
            if any(each.kind in kinds or each.of in found for each in message.fields):
                found.add(message.name)
        return found


def message_name(c_type: str) -> str:
    return c_type.removeprefix(MESSAGE_PREFIX)


# ---- messages ----


def is_declared_as(member: Member, kind: str) -> bool:
    c_type, pointers = KINDS[kind]
    right_type = member.c_type == c_type if c_type else message_name(member.c_type) not in (member.c_type, "bytes")
    return right_type and member.pointers == pointers and not member.sizes


def describe_field(member: Member, expected_number: int, count: str) -> Field:
    said = FIELD.fullmatch(member.comment)
    if not said or said[2] not in KINDS:
        raise HeaderError(f"the comment of {member.name} is not 'number: kind, bit n': {member.comment}")
    number, kind, bit = int(said[1]), said[2], int(said[3])
    if number != expected_number or bit != number - 1:
        raise HeaderError(f"{member.name} has number {number} and bit {bit}, in the place of field {expected_number}")
    if not is_declared_as(member, kind):
        raise HeaderError(f"{member.name} is not declared as its kind says: {member.comment}")
    return Field(number, member.name, kind, member.c_type, said[4] or "", count)


def count_behind(member: Member, following: Member) -> str:
    names = (member.name + "_count", member.name.removesuffix("s") + "_count")
    if following.c_type != "uint32_t" or following.name not in names:
        raise HeaderError(f"{member.name} is not followed by its count")
    return following.name


def describe_fields(members: list[Member]) -> list[Field]:
    *values, mask = members
    if mask.name != "presence_mask" or mask.c_type not in BITS:
        raise HeaderError(f"{mask.name} stands where presence_mask should")
    fields: list[Field] = []
    rest = iter(values)
    for member in rest:
        count = count_behind(member, next(rest, mask)) if "array of" in member.comment else ""
        fields.append(describe_field(member, len(fields) + 1, count))
    if len(fields) > BITS[mask.c_type]:
        raise HeaderError(f"{len(fields)} fields do not fit the {BITS[mask.c_type]} bits of presence_mask")
    return fields


def describe_message(record: Record, header: Header) -> Message:
    functions = {each.name: each for each in header.functions}
    try:
        return Message(record.name, plain_text(record.comment), header, describe_fields(record.members),
                       {end: functions[f"{record.name}_{end}"] for end in FUNCTIONS})
    except (HeaderError, KeyError) as error:
        raise HeaderError(f"{record.name}: {error}") from error


def messages_in(headers: list[Header]) -> dict[str, Message]:
    """A record belongs to a message if it has its own functions."""
    messages = {}
    for header in headers:
        decoded = {each.name.removesuffix("_decode_ext") for each in header.functions}
        messages.update({message_name(record.name): describe_message(record, header)
                         for record in header.records if record.name in decoded})
    return messages


def full_name(name: str, before: str, known: dict[str, Message]) -> str:
    """In the list, `_acl` after `subscriber_qos` means `subscriber_acl`."""
    if not name.startswith("_"):
        return name
    parts = before.split("_")
    for kept in range(len(parts) - 1, 0, -1):
        candidate = "_".join(parts[:kept]) + name
        if candidate in known:
            return candidate
    raise HeaderError(f"the list of messages has '{name}' behind {before}, which is no message")


def documented_messages(library: Library) -> list[str]:
    """The names in the list of codec_contract.h, which are those of all messages."""
    contract = next(header for header in library.headers if header.stem == "codec_contract")
    found = LIST_OF_MESSAGES.search(contract.comment)
    names: list[str] = []
    for name in re.findall(r"\w+", re.sub(r"\w+\.h\b", "", found[1]) if found else ""):
        names.append(full_name(name, names[-1] if names else "", library.messages))
    if sorted(names) != sorted(library.messages):
        differing = ", ".join(sorted(set(names) ^ set(library.messages))) or "one of them twice"
        raise HeaderError(f"{contract.path}: its list of messages is not that of the other headers: {differing}")
    return names


# ---- application records ----


def kind_of(member: Member) -> str:
    if member.pointers:
        raise HeaderError(f"{member.name} is a pointer")
    dimensions = len(member.sizes)
    kinds = {"char": ["", "text", "texts"], "uint8_t": ["number", "bytes"]}.get(member.c_type)
    if kinds is None and member.c_type in BITS:
        kinds = ["number", "numbers"]
    if kinds is None and member.c_type.startswith(RECORD_PREFIX):
        kinds = ["record", "records"]
    if kinds is None or dimensions >= len(kinds) or not kinds[dimensions]:
        raise HeaderError(f"{member.name} has a type that no kind stands for")
    return kinds[dimensions]


def address_of(kind: str, member: Member) -> str:
    """IPv4 addresses are the numbers whose byte order is given; sixteen bytes are an IPv6 address."""
    if kind == "number" and "host byte order" in member.comment:
        return "ipv4"
    return "ipv6" if kind == "bytes" and member.sizes == (IPV6_BYTES,) else ""


def count_of(member: Member, members: list[Member]) -> str:
    names = (member.name + "_count", member.name.removesuffix("s") + "_count")
    for each in members:
        if each.name in names and each.c_type in BITS and not each.sizes:
            return each.name
    raise HeaderError(f"nothing counts the elements of {member.name}")


def received_number(member: Member) -> int:
    elsewhere = re.search(r"received from field (\d+)", member.comment)
    if elsewhere:
        return int(elsewhere[1])
    number = NUMBER.match(member.comment)
    return int(number[1]) if number and not re.search("not received|received in", member.comment) else 0


def describe_record(record: Record) -> list[ApplicationMember]:
    members = []
    try:
        for declared in record.members:
            kind = kind_of(declared)
            count = count_of(declared, record.members) if kind in ("records", "texts") else ""
            members.append(ApplicationMember(declared, kind, address_of(kind, declared), count,
                                             received_number(declared)))
    except HeaderError as error:
        raise HeaderError(f"{record.name}: {error}") from error
    return members


# ---- adapters ----


def record_of(function: Function) -> str:
    c_type = next((c_type for c_type, name in function.named_parameters() if name == "record"), None)
    if c_type is None:
        raise HeaderError(f"{function.name} takes no record")
    return c_type.removeprefix("const ").rstrip("*")


def carried_by(name: str, pair: dict[str, Function], messages: dict[str, Message]) -> str:
    """The message that an adapter carries, which the comments of both its functions name."""
    said = [CARRIED.search(plain_text(function.comment)) for function in pair.values()]
    carried = {each[1] if each else "" for each in said}
    if len(carried) != 1 or not carried <= set(messages):
        raise HeaderError(f"the comments of the adapter {name} do not name one message that it carries")
    return carried.pop()


def adapters_in(headers: list[Header], messages: dict[str, Message]) -> dict[str, Adapter]:
    pairs: dict[str, dict[str, Function]] = {}
    for function in (each for header in headers for each in header.functions):
        said = ADAPTER.fullmatch(function.name)
        if said:
            pairs.setdefault(said[2], {})[said[1]] = function
    one_way = [name for name, pair in pairs.items() if len(pair) != 2]
    if one_way:
        raise HeaderError(f"adapters with one direction only: {', '.join(one_way)}")
    return {name: Adapter(name, carried_by(name, pair, messages), pair["encode"], pair["decode"],
                          record_of(pair["encode"]), record_of(pair["decode"])) for name, pair in pairs.items()}


def library_of(headers: list[Header]) -> Library:
    messages = messages_in(headers)
    records = {record.name: describe_record(record) for header in headers for record in header.records
               if record.name.startswith(RECORD_PREFIX)}
    return Library(headers, messages, records, adapters_in(headers, messages))


def read_library(include_folder: Path) -> Library:
    return library_of(read_headers(include_folder))
