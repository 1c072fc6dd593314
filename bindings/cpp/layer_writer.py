"""Writes the classes of the C++ layer for the messages of one header of the codec."""
from header_reader import HeaderError

# Names of the classes' own members, which no field may have.
RESERVED = {
    "decode", "encode", "encode_to", "gather", "encoded_size", "copy_from", "clone", "clear", "compact",
    "has_fields_of", "view", "c_record", "mutable_c_record", "own_blocks", "has_value", "holds_record", "c", "blocks",
}

LICENCE = "// SPDX-" "License-Identifier: Apache-2.0"  # in two parts: it is not about this file

NUMBER_TYPES = {"varint": "std::uint32_t", "64-bit varint": "std::uint64_t", "fixed32": "std::uint32_t"}


def getter(field):
    """The type and the call of a getter."""
    n, name = field.number, field.name
    if field.kind in NUMBER_TYPES:
        return f"std::optional<{NUMBER_TYPES[field.kind]}>", f"access::number_of<{n}>(c(), c().{name})"
    if field.kind == "text":
        return "std::optional<std::string_view>", f"access::text_of<{n}>(c(), c().{name})"
    if field.kind == "bytes":
        return "std::optional<bytes_view>", f"access::bytes_of<{n}>(c(), c().{name})"
    if field.kind == "record":
        view = f"{field.of}_view"
        return view, f"access::record_of<{n}, {view}>(c(), c().{name})"
    items = "text_list" if field.kind == "array of texts" else f"{field.of}_list"
    return items, f"access::list_of<{n}, {items}>(c(), c().{name}, c().{field.count})"


def setters(field):
    """Type, name, parameter and call of each function that changes the field."""
    n, name = field.number, field.name
    if field.kind in NUMBER_TYPES:
        return [("void", f"set_{name}(exact_number<{NUMBER_TYPES[field.kind]}> value)",
                 f"change::set_number<{n}>(c(), c().{name}, value);")]
    if field.kind == "text":
        return [("result", f"set_{name}(std::optional<std::string_view> text)",
                 f"return change::set_text<{n}>(c(), c().{name}, blocks(), text);")]
    if field.kind == "bytes":
        return [("result", f"set_{name}(std::optional<bytes_argument> bytes)",
                 f"return change::set_bytes<{n}>(c(), c().{name}, blocks(), bytes);")]
    if field.kind == "record":
        editor = f"{field.of}_editor"
        return [(editor, f"edit_{name}()",
                 f"return change::edit_record<{n}, {editor}>(c(), c().{name}, blocks());"),
                ("void", f"clear_{name}()", f"change::clear_record<{n}>(c(), c().{name});")]
    target = f"c(), c().{name}, c().{field.count}, blocks()"
    if field.kind == "array of texts":
        return [("result", f"set_{name}(argument_span<const std::string_view> texts)",
                 f"return change::set_texts<{n}>({target}, texts);")]
    editors, editor = f"{field.of}_editors", f"{field.of}_editor"
    return [(editors, f"make_{name}(exact_number<std::uint64_t> count)",
             f"return change::make_list<{n}, {editors}>({target}, count.number());"),
            (editors, f"edit_{name}()", f"return change::edit_list<{n}, {editors}>({target});"),
            (f"std::optional<{editor}>", f"add_{name}()", f"return change::add_element<{n}, {editor}>({target});"),
            ("result", f"resize_{name}(exact_number<std::uint64_t> count)",
             f"return change::resize_list<{n}>({target}, count.number());"),
            ("void", f"clear_{name}()", f"change::clear_list<{n}>({target.removesuffix(', blocks()')});")]


def functions(type_name, declaration, qualifier, call, refers_to_record):
    """The lines of a function. If its result refers to the record, it has another overload for temporary records."""
    if not refers_to_record:
        yield f"    {type_name} {declaration}{qualifier} noexcept {{ {call} }}"
        return
    name, parameters = declaration.split("(", 1)
    argument = parameters.rstrip(")").split(" ")[-1]
    yield f"    {type_name} {declaration}{qualifier} & noexcept {{ {call} }}"
    yield (f"    {type_name} {declaration}{qualifier} && noexcept "
           f"{{ return access::lasting<Derived>(*this).{name}({argument}); }}")


def fields_class(message):
    yield f"// The fields of {message.name}. Derived has c_record()."
    yield "template <class Derived>"
    yield f"class {message.name}_fields"
    yield "{"
    yield "public:"
    for field in message.fields:
        type_name, call = getter(field)
        note = f"; {field.note}" if field.note else ""
        yield f"    // {field.number}: {field.kind}{note}"
        yield from functions(type_name, f"{field.name}()", " const", f"return {call};", field.kind not in NUMBER_TYPES)
    yield "    // Whether all fields are those of `other`."
    equal = " && ".join(f"{field.name}() == other.{field.name}()" for field in message.fields)
    yield f"    bool has_fields_of(const {message.name}_fields &other) const noexcept {{ return {equal}; }}"
    yield ""
    yield "private:"
    yield (f"    const {message.c_type} &c() const noexcept "
           "{ return static_cast<const Derived &>(*this).c_record(); }")
    yield "};"


def changes_class(message):
    yield f"// Sets the fields of {message.name}. Derived has mutable_c_record() and own_blocks()."
    yield "template <class Derived>"
    yield f"class {message.name}_changes"
    yield "{"
    yield "public:"
    changes = [change for field in message.fields for change in setters(field)]
    for type_name, declaration, call in changes:
        yield from functions(type_name, declaration, "", call, type_name not in ("void", "result"))
    yield ""
    yield "private:"
    yield f"    {message.c_type} &c() noexcept {{ return static_cast<Derived &>(*this).mutable_c_record(); }}"
    if any("blocks()" in call for _, _, call in changes):
        yield "    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }"
    yield "};"


def most_segments(message):
    """Each bytes field is a segment, with one before, between and after them; 0 if the message cannot be gathered."""
    bytes_fields = sum(field.kind == "bytes" for field in message.fields)
    return 0 if not bytes_fields or any(field.of for field in message.fields) else 2 * bytes_fields + 1


def codec_class(message, owns_memory):
    name, record = message.name, message.c_type
    yield f"class {name};"
    yield f"class {name}_view;"
    yield f"class {name}_editor;"
    yield ""
    yield "template <>"
    yield f"struct codec_of<{record}> {{"
    yield f"    using owner = {name};"
    yield f"    using view = {name}_view;"
    yield f"    using editor = {name}_editor;"
    yield f'    static constexpr const char *name = "{name}";'
    yield f"    static constexpr bool owns_memory = {'true' if owns_memory else 'false'};"
    yield f"    static constexpr std::size_t most_segments = {most_segments(message)};"
    for function in ("decode", "encode", "duplicate"):
        suffix = "" if function == "duplicate" else "_ext"
        yield f"    static constexpr auto {function} = {record}_{function}{suffix};"
    yield "};"


def using_classes(message):
    name, record = message.name, message.c_type
    yield f"// A {name} that lies somewhere else, to be read."
    yield f"class {name}_view : public record_view<{name}_view, {record}>,"
    yield f"    public {name}_fields<{name}_view>"
    yield "{"
    yield "public:"
    yield "    using record_view::record_view;"
    yield "};"
    yield ""
    yield f"// A {name} that lies inside of another record, to be changed."
    yield f"class {name}_editor : public record_editor<{name}_editor, {record}>,"
    yield f"    public {name}_fields<{name}_editor>, public {name}_changes<{name}_editor>"
    yield "{"
    yield "public:"
    yield "    using record_editor::record_editor;"
    yield "};"
    yield ""
    yield f"// An array of {name}, to be read."
    yield f"using {name}_list = record_list<{name}_view, {record}>;"
    yield f"// An array of {name}, to be changed."
    yield f"using {name}_editors = editor_list<{name}_editor, {record}>;"
    yield ""
    yield f"// {message.summary}"
    yield f"class {name} : public owning_record<{name}, {record}>,"
    yield f"    public {name}_fields<{name}>, public {name}_changes<{name}>"
    yield "{"
    yield "public:"
    yield "    using owning_record::owning_record;"
    yield "};"


def message_lines(message, owns_memory):
    taken = RESERVED.intersection(field.name for field in message.fields)
    if taken:
        raise HeaderError(f"{message.c_type}: the C++ layer has a member of its own called {taken.pop()}")
    yield f"// ---- {message.name} ".ljust(119, "-")
    yield ""
    for part in (codec_class(message, owns_memory), fields_class(message), changes_class(message),
                 using_classes(message)):
        yield from part
        yield ""


ADAPTERS_HEAD = """\
// Application records to and from wire bytes, with the adapters of tum_nal/; generated from their headers by
// bindings/cpp/make_cpp_layer.
//
//     tum_nal_data_session_context session{{}};
//     const std::vector<std::uint8_t> wire = tum::encode(session);
//     const auto received = tum::decode<tum_nal_data_session_context>(wire);
//
// An adapter reports no fault: adapter_contract.h. Change the headers or the generator, not this file.
#ifndef MAVA_TUM_CPP_ADAPTERS_HPP
#define MAVA_TUM_CPP_ADAPTERS_HPP
{licence}

#include "mava_tum/cpp/encoding.hpp"
{includes}

#include <algorithm>
#include <cstring>

namespace mava_tum::cpp
{{

// What the layer knows of an application record: its adapters, and the bytes of the largest message. A record with the
// adapters of two messages has those of one: they do the same.
template <class Record>
struct adapter_of;

"""

ADAPTERS_TAIL = """\
// As much of `size` as an adapter can be told of.
inline std::uint32_t within_32_bits(std::size_t size) noexcept
{
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(size, UINT32_MAX));
}

// Allocates nothing. `buffer` must not overlap `record`.
template <class Record, auto adapter = adapter_of<Record>::encode>
encoded encode(const Record &record, span<std::uint8_t> buffer) noexcept
{
    const std::uint64_t size = adapter(&record, buffer.data(), within_32_bits(buffer.size()));
    return {size, size <= buffer.size()};
}

// Gives `container`, of bytes of any type, exactly the message; what it held before is gone. Needs a stack for the
// largest message.
template <class Record, class Container, auto adapter = adapter_of<Record>::encode>
void encode_to(const Record &record, Container &container)
{
    std::array<std::uint8_t, adapter_of<Record>::max_size> buffer;
    const auto size = static_cast<std::size_t>(encode(record, buffer).size);
    container.resize(size);
    if (size != 0)
        std::memcpy(container.data(), buffer.data(), size);
}

// The message in a vector of its own.
template <class Record, auto adapter = adapter_of<Record>::encode>
std::vector<std::uint8_t> encode(const Record &record)
{
    std::vector<std::uint8_t> wire;
    encode_to(record, wire);
    return wire;
}

// Overwrites `record` completely.
template <class Record, auto adapter = adapter_of<Record>::decode>
void decode(bytes_argument wire, Record &record) noexcept
{
    adapter(wire.data(), within_32_bits(wire.size()), &record);
}

// The same, for a record that is named by its type alone.
template <class Record, auto adapter = adapter_of<Record>::decode>
Record decode(bytes_argument wire) noexcept
{
    Record record;
    adapter(wire.data(), within_32_bits(wire.size()), &record);
    return record;
}

} // namespace mava_tum::cpp

#endif
"""


def adapters_header(library):
    """The adapters of each application record."""
    functions = {}
    for adapter in reversed(library.adapters_in_documented_order()):
        functions.setdefault(adapter.sent, {}).update(
            encode=adapter.encode.name, max_size=f"TUM_NAL_{adapter.name.upper()}_MAX_SIZE")
        functions.setdefault(adapter.received, {}).update(decode=adapter.decode.name)
    names = {function.name for function in (a.encode for a in library.adapters.values())}
    paths = sorted(header.path for header in library.headers if names & {each.name for each in header.functions})
    text = ADAPTERS_HEAD.format(licence=LICENCE, includes="\n".join(f'#include "{path}"' for path in paths))
    for record, members in reversed(functions.items()):
        text += f"template <>\nstruct adapter_of<{record}> {{\n"
        for member, value in sorted(members.items()):
            kind = "std::size_t" if member == "max_size" else "auto"
            text += f"    static constexpr {kind} {member} = {value};\n"
        text += "};\n\n"
    return text + ADAPTERS_TAIL


def layer_header(messages, owning):
    """The classes of the messages of one header."""
    header = messages[0].header
    others = [path.removeprefix("mava_tum/").removesuffix(".h") for path in header.includes]
    guard = f"MAVA_TUM_CPP_{header.stem.upper()}_HPP"
    lines = [
        f"// Classes over the records of mava_tum/{header.stem}.h, generated from it by bindings/cpp/make_cpp_layer.",
        "//",
        "// That header says what the fields are. Change it or the generator, not this file.",
        f"#ifndef {guard}", f"#define {guard}", LICENCE, "",
        *(f'#include "mava_tum/cpp/{stem}.hpp"'
          for stem in sorted([stem for stem in others if stem != "codec_contract"] + ["field_access", "field_change", "owning_record", "record_editor",
                                                "record_view"])),
        f'#include "mava_tum/{header.stem}.h"', "",
        "// clang-format off", "namespace mava_tum::cpp", "{", "",
    ]
    for message in messages:
        lines += message_lines(message, message.name in owning)
    lines += ["} // namespace mava_tum::cpp", "// clang-format on", "", "#endif"]
    return "\n".join(lines) + "\n"
