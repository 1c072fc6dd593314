#!/usr/bin/env python3
"""Prints a header of the C++ layer for Doxygen, which calls it for each file that it reads.

    cpp_header_filter.py HEADER

Comments become Doxygen's: a comment on its own lines belongs to the code below, one after code to that code. Two kinds
of members have no comment in the headers; here they get a sentence:

    begin(), size(), operator bool, value_type, ...    as in the standard library
    set_field_5(), edit_field_5(), add_field_5(), ...   the functions of all editors

Every line keeps its number.
"""
import os
import re
import sys

COMMENT = re.compile(r"^( *)//( .*)?$")
NO_COMMENT = re.compile(r"^ *// (----|clang-format)")  # between two messages
BEHIND_CODE = re.compile(r"^(.*\S) +// (.*)$")

CONTAINER = "As in a container of the standard library."
OPTIONAL = "As std::optional has it: whether the field is present, and what it holds."
ITERATOR = "As a random-access iterator has it."
KEPT = " When a block is refused, the field stays as it is."
MEANINGS = [(re.compile(pattern), meaning) for pattern, meaning in (
    (r"^    using (element_type|value_type|iterator) = ", CONTAINER),
    (r"^        using \w+ = ", ITERATOR),
    (r"^ .*[ *](begin|end|size|empty|data)\(\) const noexcept$", CONTAINER),
    (r"^    (explicit operator bool|bool has_value)\(\) const noexcept$", OPTIONAL),
    (r"^    (const )?Derived [&*]?operator(\*|->)\(\) const ?&{0,2} ?noexcept$", OPTIONAL),
    (r"^    \w.* && noexcept \{ return access::lasting<", "The same, refused for a record that ends with the statement."),
    (r"^        (friend |)(bool|value_type|iterator|difference_type) &?operator\S+\(", ITERATOR),
    (r"^    friend bool operator!=\(", "The opposite of operator==()."),
    (r"^    void set_\w+\(exact_number<", "Sets `{}`; without a value, makes it absent."),
    (r"^    result set_\w+\(std::optional<", "Sets `{}` to a copy; without a value, makes it absent." + KEPT),
    (r"^    result set_\w+\(argument_span<", "Sets `{}` to copies; without any, makes it absent." + KEPT),
    (r"^    \w+ edit_\w+\(\)", "Makes `{}` present, and lets it be changed."),
    (r"^    void clear_\w+\(\)", "Empties `{}` and makes it absent."),
    (r"^    std::optional<\w+> add_\w+\(\)", "Adds an element without content to `{}`; nothing when a block is refused."),
    (r"^    result resize_\w+\(", "Keeps so many elements of `{}`; new ones have no content." + KEPT),
    (r"^    \w+ make_\w+\(exact_number<std::uint64_t> count\)",
     "Gives `{}` so many elements without content, and lets them be changed; none make it absent. When the block is "
     "refused, the field stays as it is and the list is empty."),
)]


def escaped(text):
    return re.sub(r"([<>])", r"\\\1", text)


def meaning_of(line):
    for pattern, meaning in MEANINGS:
        if pattern.match(line):
            field = re.search(r"\b(?:set|edit|clear|add|resize|make)_(\w+)\(", line)
            return meaning.format(field.group(1) if field else "")
    return None


def filtered(lines):
    """A comment is above a declaration, or above the `template <...>` of one."""
    is_documented = False
    for line in lines:
        found = COMMENT.match(line)
        if found and not NO_COMMENT.match(line):
            is_documented = True
            yield f"{found.group(1)}///{escaped(found.group(2) or '')}"
            continue
        meaning = None if is_documented else meaning_of(line)
        is_documented = is_documented and line.lstrip().startswith("template <")
        found = BEHIND_CODE.match(line)
        if meaning:
            yield f"/** {meaning} */{line}"
        else:
            yield f"{found.group(1)} ///< {escaped(found.group(2))}" if found and not NO_COMMENT.match(line) else line


def main(path):
    with open(path, encoding="utf-8") as header:
        lines = header.read().split("\n")
    if lines[0].startswith("// "):
        lines[0] = f"// @file {os.path.basename(path)} {lines[0][3:]}"
    sys.stdout.write("\n".join(filtered(lines)))


if __name__ == "__main__":
    main(sys.argv[1])
