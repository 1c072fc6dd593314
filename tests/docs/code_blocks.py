"""Finds the code blocks of a Markdown page, and the instructions for each.

A hidden comment directly above a block has the instructions:

    <!-- code: instruction; instruction text around the block for the compiler, with one line "@block@" -->

README.md in this folder lists the instructions.
"""
from dataclasses import dataclass, field
import re

from markdown_it import MarkdownIt

MARK = "@block@"
COMMENT = re.compile(r"^\s*<!--\s*code:(.*?)-->\s*$", re.DOTALL)

# The instructions, and whether each has a value.
INSTRUCTIONS = {
    "save": True,  # into the page's folder, under this name, for a command further down
    "from": True,  # these lines stand in that file of the tree, whose own tests run it
    "part": True,  # of a program in several blocks, by its name
    "end": True,  # the last part: the program is complete
    "inside": False,  # sees the headers of src/ and links the static library
    "exits": True,  # the status that running it ends with, if not 0
    "not run": True,  # the reason; the compiler sees it all the same, commands must exist
    "drawing": False,  # text, or what no program says
}


class PageError(Exception):
    """An invalid comment or block: where, and what to do."""


@dataclass
class Block:
    """One code block; `line` is that of its first line on the page, counted from 1."""

    page: str
    line: int
    language: str
    text: str
    instructions: dict = field(default_factory=dict)
    around: str = ""
    expected: "Block | None" = None

    @property
    def place(self):
        return f"{self.page}:{self.line}"

    def source(self):
        """The text for the compiler; line numbers in its messages are those of the page."""
        directive = f'#line {self.line} "{self.page}"\n' if self.language in ("c", "cpp") else ""
        own = directive + self.text
        return self.around.replace(MARK + "\n", own) if self.around else own


def parse_instructions(comment, place):
    """The instructions of a comment, and the text around the block."""
    first, _, around = comment.partition("\n")
    found = {}
    # A reason may hold any character: it is always the last instruction.
    first, colon, reason = first.partition("not run:")
    if colon:
        found["not run"] = reason.strip()
        if not found["not run"]:
            raise PageError(f"{place}: what is not run needs a reason")
    for instruction in filter(None, (part.strip() for part in first.split(";"))):
        name, _, value = instruction.partition(" ")
        if INSTRUCTIONS.get(name) is not bool(value.strip()):
            raise PageError(f"{place}: no instruction is called '{instruction}'; there are {', '.join(INSTRUCTIONS)}")
        found[name] = value.strip()
    if around.strip() and around.splitlines().count(MARK) != 1:
        raise PageError(f"{place}: the text around the block needs one line {MARK}")
    return found, around


def is_output(block):
    return block.language in ("output", "text") and "drawing" not in block.instructions


def is_run(block):
    not_here = {"not run", "save", "from", "part"} & set(block.instructions)
    return block.language in ("c", "cpp", "sh", "python") and not not_here


def pair_with_output(blocks, section_of):
    """Sets the expected output of each block: the next block, in the same section."""
    for block, following in zip(blocks, blocks[1:]):
        same_section = section_of[block.line] == section_of[following.line]
        if is_output(following) and same_section and is_run(block):
            block.expected = following
    shown = {id(block.expected) for block in blocks}
    for block in blocks:
        if block.language == "output" and id(block) not in shown:
            raise PageError(f"{block.place}: an output, and no block above it in this section that is run")


def blocks_of_page(path, page):
    """All code blocks of the file, in order, each with its output."""
    with open(path, encoding="utf-8") as file:
        tokens = MarkdownIt("commonmark").enable("table").parse(file.read())
    blocks, section_of, section, comment = [], {}, 0, None
    for token in tokens:
        place = f"{page}:{token.map[0] + 1}" if token.map else page
        if token.type == "html_block" and "<!-- code:" in token.content:
            match = COMMENT.match(token.content)
            if not match or comment:
                raise PageError(f"{place}: a comment about code stands alone, directly above its block")
            comment = (match.group(1), place)
            continue
        if token.type == "code_block":
            raise PageError(f"{place}: an indented block says nothing about its language; fence it")
        if token.type == "fence":
            block = Block(page, token.map[0] + 2, token.info.strip(), token.content)
            if comment:
                block.instructions, block.around = parse_instructions(*comment)
            blocks.append(block)
            section_of[block.line] = section
        elif comment:
            raise PageError(f"{comment[1]}: a comment about code, and no block below it")
        section += token.type == "heading_open"
        comment = None
    pair_with_output(blocks, section_of)
    return blocks
