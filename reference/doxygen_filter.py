#!/usr/bin/env python3
"""Prints a public header for Doxygen, which calls it for each file that it reads.

    doxygen_filter.py HEADER

The comments of the headers have no marks for a tool. Their position shows what they belong to:

    /* ... */  as the first thing of a file            the file
    /* ... */  on lines of its own                     the declaration below
    /* ... */  the same, inside of a structure         all members as far as the next empty line
    /* ... */  the same, above `enum { A, B };`        each of the values too
    uint32_t member; /* ... */                         this member

Every line keeps its number, so that warnings name the right line.
"""
import os
import re
import sys

from comment_blocks import blocks_of

DIVIDER = "/* ----"  # between two messages of a header; documents nothing
BEHIND_CODE = re.compile(r"^(.*\S)\s+/\* (.*) \*/$")
ONE_LINE_ENUM = re.compile(r"^enum \{ (.*) \};$")


def escaped(text):
    """Escapes angle brackets, which Doxygen would read as markup, except within backquotes."""
    parts = text.split("`")
    return "`".join(part if number % 2 else re.sub(r"([<>])", r"\\\1", part) for number, part in enumerate(parts))


def rendered(block):
    """Lines for Doxygen, at most as many as the block has in the header."""
    if block.kind == "heading":
        return [f"<h3>{escaped(block.text)}</h3>"]
    if block.kind == "paragraph":
        return [f"<p>{escaped(block.text)}</p>"]
    lines = block.lines or [f"<dt>{escaped(term)}</dt><dd>{escaped(meaning)}</dd>" for term, meaning in block.rows]
    start, end = ("@verbatim ", " @endverbatim") if block.kind == "code" else ("<dl>", "</dl>")
    lines = [start + lines[0], *lines[1:]]
    return [*lines[:-1], lines[-1] + end]


def as_doxygen(comment, command=""):
    lines = [line for block in blocks_of(comment) for line in rendered(block)]
    lines += [""] * (comment.count("\n") + 1 - len(lines))
    return f"/** {command}" + "\n * ".join(lines) + " */"


def plain_text(comment):
    return escaped(" ".join(block.text for block in blocks_of(comment)))


class Filter:
    def __init__(self, name, source):
        self.file_command = f"@file {name} " if source.startswith("/*") else ""  # for the first comment
        self.lines = iter(source.split("\n"))
        self.above = ""  # the comment on the lines just above
        self.group = ""  # inside of a structure: the comment above this group of members
        self.in_structure = False

    def output(self):
        return "\n".join(map(self.filtered, self.lines))

    def filtered(self, line):
        text = line.strip()
        if text.startswith("/*") and not text.startswith(DIVIDER):
            return self.comment(line)
        self.in_structure = line.startswith("typedef struct") or self.in_structure and not line.startswith("}")
        self.group = self.group if self.in_structure and text else ""
        above, self.above = self.above, ""
        if ONE_LINE_ENUM.match(line):
            return self.one_line_enum(line, above)
        return self.code(line)

    def comment(self, line):
        whole = [line]
        while not whole[-1].endswith("*/"):
            whole.append(next(self.lines))
        self.above = "\n".join(whole)
        if self.in_structure:
            self.group = plain_text(self.above)
            return self.above
        command, self.file_command = self.file_command, ""
        return as_doxygen(self.above, command)

    def one_line_enum(self, line, above):
        values = ONE_LINE_ENUM.match(line).group(1).split(", ")
        meaning = f" /**< {plain_text(above)} */" if above else ""
        return "enum { " + ", ".join(value + meaning for value in values) + " };"

    def code(self, line):
        found = BEHIND_CODE.match(line)
        if found and not line.startswith("/*"):
            meaning = " ".join(filter(None, [self.group, escaped(found.group(2))]))
            return f"{found.group(1)} /**< {meaning} */"
        return f"{line} /**< {self.group} */" if self.group and line.endswith(";") else line


if __name__ == "__main__":
    with open(sys.argv[1], encoding="utf-8") as header:
        sys.stdout.write(Filter(os.path.basename(sys.argv[1]), header.read()).output())
