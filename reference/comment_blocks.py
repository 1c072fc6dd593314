"""The text of a comment in a public header, as blocks for a page.

The headers have no marks for a tool; the indentation of a line shows what it is:

    Heading                        text at the margin, without a full stop, above indented text
      Text of a paragraph, which
      goes on here.
        term      what it means    indented by four or more, with a gap in the middle: a list of terms
                  and more of it
        uint32_t declared;         the same, but with a semicolon at its end: code
"""
import re
from dataclasses import dataclass, field

DEEP = 4  # from this indentation, a line belongs to a list or to code


@dataclass
class Block:
    kind: str  # heading, paragraph, code, terms
    text: str = ""
    lines: list = field(default_factory=list)  # of code
    rows: list = field(default_factory=list)  # of terms: [term, meaning]


def sentence(text):
    """Whether it is short, as after a term or a value."""
    return text[0].upper() + text[1:].rstrip(".") + "."


def comment_lines(comment):
    """The lines of a C comment without its marks, with their indentation."""
    body = re.sub(r"\s*\*/\s*$", "", re.sub(r"^\s*/\*", "", comment))
    lines = [re.sub(r"^\s*\* ?", "", line) if number else line.removeprefix(" ")
             for number, line in enumerate(body.split("\n"))]
    return [line.rstrip() for line in lines]


def indent_of(line):
    return len(line) - len(line.lstrip())


def runs_of_lines(lines):
    """Groups of lines without an empty line between them, either all deeply indented or none."""
    run = []
    for line in lines + [""]:
        if run and (not line or (indent_of(line) >= DEEP) != (indent_of(run[0]) >= DEEP)):
            yield run
            run = []
        if line:
            run.append(line)


def terms_of(lines):
    """[term, meaning] for each line that starts one; None if the lines are no such list."""
    rows, gap_end = [], 0
    margin = min(map(indent_of, lines))
    for line in lines:
        if rows and indent_of(line) == gap_end:
            rows[-1][1] += " " + line.strip()
        elif rows and indent_of(line) > margin:
            rows[-1][0] += " " + line.strip()
        else:
            start = re.match(r"\s*(\S+(?: \S+)*) {2,}(?=\S)", line)
            if not start or line.endswith(";"):
                return None
            gap_end = start.end()
            rows.append([start.group(1), re.sub(r" {2,}", "; ", line[gap_end:])])
    return rows


def shallow_blocks(run):
    if len(run) > 1 and indent_of(run[0]) == 0 and indent_of(run[1]) > 0 and not run[0].endswith("."):
        yield Block("heading", run[0].strip())
        run = run[1:]
    yield Block("paragraph", " ".join(line.strip() for line in run))


def blocks_of(comment):
    blocks = []
    for run in runs_of_lines(comment_lines(comment)):
        if indent_of(run[0]) < DEEP:
            blocks += shallow_blocks(run)
            continue
        rows = terms_of(run)
        margin = min(map(indent_of, run))
        blocks.append(Block("terms", rows=rows) if rows else Block("code", lines=[line[margin:] for line in run]))
    return blocks
