"""A manual page for functions that belong together: prototypes, their record, and a description of each."""
import re
import textwrap

import man_text
from comment_blocks import sentence

CODE_COLUMNS = 44  # a member that is longer has its comment above it
PAGE_COLUMNS = 78


def prototype(function):
    """As in a header, but narrower."""
    start, parameters = f"{function.type}{function.name}(", ", ".join(function.parameters) + ");"
    if len(start + parameters) <= PAGE_COLUMNS:
        return [start + parameters]
    # No line break inside a parameter.
    joined = textwrap.wrap(re.sub(r"(?<!,) ", "\0", parameters), PAGE_COLUMNS - 4)
    return [start, *("    " + line.replace("\0", " ") for line in joined)]


def synopsis(header, functions):
    lines = [".SH SYNOPSIS", ".nf", f".B #include <{header.path}>"]
    for function in functions:
        lines += [".PP", *(f".B {man_text.quoted(line)}" for line in prototype(function))]
    return [*lines, ".fi"]


def member_lines(line):
    """A line of a record's definition, on a page of eighty columns."""
    found = re.match(r"^(\s+\S.*?)\s+(/\*.*\*/)$", line)
    if not found:
        return [line]
    code, comment = found.groups()
    if len(code) < CODE_COLUMNS and CODE_COLUMNS + len(comment) <= PAGE_COLUMNS:
        return [code.ljust(CODE_COLUMNS) + comment]
    joined = comment.replace(" */", "\0*/")
    above = textwrap.wrap(joined, PAGE_COLUMNS, initial_indent="    ", subsequent_indent="     * ")
    return [*(line.replace("\0", " ") for line in above), code]


def record_of(functions, header):
    """The records in the parameters of the functions and their callbacks, in this order."""
    takers = [*functions, *header.callbacks]
    types = [re.sub(r"^const |[ *]+\w+$", "", parameter) for function in takers for parameter in function.parameters]
    records = {record.name: record for record in header.records}
    return [records[name] for name in dict.fromkeys(types) if name in records]


def record_lines(record):
    members = [line for member in record.body.split("\n") for line in member_lines(member)]
    return [*man_text.comment(record.comment),
            *man_text.code(["typedef struct " + record.tag + " {", *members, "} " + record.name + ";"])]


def enum_lines(header):
    lines = []
    for enum in header.enums:
        one_to_a_line = r"\n" if "\n" in enum.values else r"(?<=,) "
        values = [line for value in re.split(one_to_a_line, enum.values)
                  for line in member_lines("    " + value.strip())]
        lines += [*man_text.comment(enum.comment), *man_text.code(["enum {", *values, "};"])]
    return lines


def callback_lines(header):
    return [line for callback in header.callbacks
            for line in (*man_text.comment(callback.comment), *man_text.code(prototype(callback)))]


def code_lines(functions, codes):
    """The result codes of the functions, with their meanings."""
    text = " ".join(function.comment for function in functions)
    rows = []
    for name, code in codes.items():
        if name in text:
            rows.append((f"{name} ({code.value})", sentence(man_text.plain(code.comment))))
    return [".SH RETURN VALUE", "The result codes are:", *man_text.terms(rows)] if rows else []


def subject_of(functions, header, records):
    """If a header has one page only, the header's subject is that of the page."""
    return records[0].comment if len(functions) < len(header.functions) else header.comment


def title_of(function):
    """A short title of the page, which fits twice in a line of 80 columns."""
    name = re.sub(r"^mava_tum_|_decode_ext$", "", function.name)
    return re.sub(r"^tum_nal_data_gpb_encode_tum_", "nal_", name)


def function_page(header, functions, library, release):
    records = record_of(functions, header)
    subject = subject_of(functions, header, records)
    names = ", ".join(function.name for function in functions)
    body = [".SH NAME", *textwrap.wrap(f"{names} \\- {man_text.first_sentence(subject)}", PAGE_COLUMNS),
            *man_text.library(library.name), *synopsis(header, functions), ".SH DESCRIPTION"]
    if subject == header.comment:
        body += man_text.comment(subject)
    for record in records:
        body += record_lines(record)
    body += [*enum_lines(header), *callback_lines(header)]
    for function in functions:
        body += [f".SS {function.name}", *man_text.comment(function.comment)]
    body += [*code_lines(functions, library.codes), *man_text.see_also(f"{library.name} (7)")]
    return man_text.page(title_of(functions[0]), 3, release, body)
