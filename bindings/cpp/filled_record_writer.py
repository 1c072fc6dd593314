"""Writes test code that sets every field of every message with its setter and reads it with its getter."""
from layer_writer import NUMBER_TYPES

HEAD = """\
// Every field of every message, set and looked at through the C++ layer. Written by bindings/cpp/make_cpp_layer.
#ifndef FILLED_RECORDS_H
#define FILLED_RECORDS_H

#include "field_values.h"

#include <tuple>

namespace mava_tum_test
{
"""

TAIL = """\
} // namespace mava_tum_test

#endif
"""


def fill_line(field):
    n, name = field.number, field.name
    if field.kind in NUMBER_TYPES:
        return f"    target.set_{name}(number_{64 if '64' in field.kind else 32}({n}));"
    if field.kind in ("text", "bytes", "array of texts"):
        value = {"text": "text_value", "bytes": "bytes_value", "array of texts": "texts_value"}[field.kind]
        return f"    EXPECT_EQ(target.set_{name}({value}({n})), tum::result::ok);"
    nested = field.of
    if field.kind == "record":
        return f"    fill_{nested}(target.edit_{name}());"
    return (f"    fill_{nested}(target.make_{name}(list_length - 1)[0]);\n"
            f"    fill_{nested}(target.add_{name}().value());")


def expect_filled_line(field):
    n, name = field.number, field.name
    if field.kind in NUMBER_TYPES:
        return f"    EXPECT_EQ(source.{name}(), number_{64 if '64' in field.kind else 32}({n}));"
    if field.kind == "text":
        return f"    EXPECT_EQ(source.{name}(), text_value({n}));"
    if field.kind == "bytes":
        return f"    EXPECT_TRUE(is_bytes_value(source.{name}(), {n}));"
    if field.kind == "array of texts":
        return f"    EXPECT_TRUE(is_texts_value(source.{name}(), {n}));"
    nested = field.of
    if field.kind == "record":
        return (f"    EXPECT_TRUE(source.{name}().has_value());\n"
                f"    expect_filled_{nested}(source.{name}());")
    return (f"    EXPECT_EQ(source.{name}().size(), list_length);\n"
            f"    for (const auto element : source.{name}())\n"
            f"        expect_filled_{nested}(element);")


def expect_absent_line(field):
    name = field.name
    if field.kind.startswith("array"):
        return f"    EXPECT_TRUE(source.{name}().empty());"
    lines = f"    EXPECT_FALSE(source.{name}().has_value());"
    if field.kind == "record":
        lines += f"\n    expect_absent_{field.of}(source.{name}());"
    return lines


def empty_line(field):
    """Makes the field absent again."""
    name = field.name
    if field.kind == "record":
        return f"    target.clear_{name}();"
    if field.kind == "array of records":
        return f"    target.clear_{name}();"
    if field.kind == "array of texts":
        return f"    EXPECT_EQ(target.set_{name}({{}}), tum::result::ok);"
    if field.kind in NUMBER_TYPES:
        return f"    target.set_{name}(std::nullopt);"
    return f"    EXPECT_EQ(target.set_{name}(std::nullopt), tum::result::ok);"


def function(name, parameter, lines, target):
    yield "template <class Target>"
    yield f"void {name}_{target}({parameter})"
    yield "{"
    yield from lines
    yield "}"
    yield ""


def message_lines(message):
    name = message.name
    for verb, parameter, line in (("fill", "Target &&target", fill_line),
                                  ("empty", "Target &target", empty_line),
                                  ("expect_filled", "const Target &source", expect_filled_line),
                                  ("expect_absent", "const Target &source", expect_absent_line)):
        yield from function(verb, parameter, [line(field) for field in message.fields], name)
        owner = "const tum::" if verb.startswith("expect") else "tum::"
        yield f"inline void {verb}({owner}{name} &record)"
        yield "{"
        yield f"    {verb}_{name}(record);"
        yield "}"
        yield ""


def filled_records(messages):
    names = [f"tum::{message.name}" for message in messages]
    lines = [line for message in messages for line in message_lines(message)]
    lines += ["template <class Record>", "constexpr const char *name_of = nullptr;", ""]
    lines += [f'template <>\ninline constexpr const char *name_of<{name}> = "{name[len("tum::"):]}";' for name in names]
    lines += ["", "using every_message = std::tuple<" + ",\n    ".join(names) + ">;", ""]
    return HEAD + "\n" + "\n".join(lines) + "\n" + TAIL
