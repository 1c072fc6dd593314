"""The page of functions that belong together: prototypes, the record that they work on, what each does."""
import re
import textwrap

import man_text
from public_headers import result_codes

CODE_COLUMNS = 44  # a member that is longer has its comment above it
PAGE_COLUMNS = 78


def prototype(function):
    """As a header would have it, but narrower."""
    start, parameters = f"{function.type}{function.name}(", ", ".join(function.parameters) + ");"
    if len(start + parameters) <= PAGE_COLUMNS:
        return [start + parameters]
    # A parameter is not broken.
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
    return ["    " + comment, code]


def record_of(functions, header):
    """The records that the functions take, in the order in which they take them."""
    types = [re.sub(r"^const |[ *]+\w+$", "", parameter) for function in functions for parameter in function.parameters]
    records = {record.name: record for record in header.records}
    return [records[name] for name in dict.fromkeys(types) if name in records]


def record_lines(record):
    members = [line for member in record.members.split("\n") for line in member_lines(member)]
    return [*man_text.comment(record.comment),
            *man_text.code(["typedef struct " + record.tag + " {", *members, "} " + record.name + ";"])]


def enum_lines(header):
    lines = []
    for enum in header.enums:
        values = [line for value in re.split(r"\n|(?<=,) (?=\w)", enum.values)
                  for line in member_lines("    " + value.strip())]
        lines += [*man_text.comment(enum.comment), *man_text.code(["enum {", *values, "};"])]
    return lines


def code_lines(functions, contract):
    """The result codes that the functions name, each with its meaning."""
    text = " ".join(function.comment for function in functions)
    rows = []
    for name, (value, comment) in result_codes(contract).items():
        if name in text:
            meaning = man_text.plain(comment) if comment.startswith("/*") else comment
            rows.append((f"{name} ({value})", meaning[0].upper() + meaning[1:].rstrip(".") + "."))
    return [".SH RETURN VALUE", "The result codes are:", *man_text.terms(rows)] if rows else []


def subject_of(functions, header, records):
    """A header that has but one page is about what that page is about."""
    return records[0].comment if len(functions) < len(header.functions) else header.comment


def function_page(header, functions, headers, release):
    contract = next(other for other in headers if other.path.endswith("codec_contract.h"))
    records = record_of(functions, header)
    subject = subject_of(functions, header, records)
    names = ", ".join(function.name for function in functions)
    body = [".SH NAME", *textwrap.wrap(f"{names} \\- {man_text.first_sentence(subject)}", PAGE_COLUMNS),
            ".SH LIBRARY", "libmava_tum (\\-lmava_tum)", *synopsis(header, functions), ".SH DESCRIPTION"]
    if subject == header.comment:
        body += man_text.comment(subject)
    for record in records:
        body += record_lines(record)
    if functions[0].name.startswith("tum_nal_"):
        body += enum_lines(header)
    for function in functions:
        body += [f".SS {function.name}", *man_text.comment(function.comment)]
    body += [*code_lines(functions, contract), ".SH SEE ALSO", ".BR mava_tum (7)"]
    return man_text.page(functions[0].name, 3, release, body)
