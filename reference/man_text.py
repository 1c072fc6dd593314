"""Writes text as a manual page with the man(7) macros, without warnings of mandoc or groff."""
import re
import textwrap

from comment_blocks import blocks_of

WIDTH = 78  # of a line of source


def escaped(text):
    return text.replace("\\", "\\e")


def guarded(line):
    """Escapes a line of text that begins like a request."""
    return "\\&" + line if line[:1] in (".", "'") else line


def marked(text):
    """`code` in bold."""
    parts = escaped(text).split("`")
    return "".join(f"\\fB{part}\\fP" if number % 2 else part for number, part in enumerate(parts))


def sentences(text):
    """Each starts a line, as mandoc requires."""
    return re.split(r"(?<=[.?!])\s+", text.strip())


def wrapped(text):
    """No line breaks inside code."""
    joined = re.sub(r"`[^`]*`", lambda code: code.group().replace(" ", "\0"), text)
    return [guarded(line.replace("\0", " ")) for sentence in sentences(joined)
            for line in textwrap.wrap(marked(sentence), WIDTH, break_long_words=False, break_on_hyphens=False)]


def quoted(text):
    return '"' + escaped(text).replace('"', '""') + '"'


def plain(text):
    """The first paragraph of a comment."""
    return blocks_of(text)[0].text


def code(lines):
    return [".PP", ".nf", *(guarded(escaped(line).replace("-", "\\-")) for line in lines), ".fi"]


def terms(rows):
    return [line for term, meaning in rows for line in (".TP", guarded(marked(f"`{term}`")), *wrapped(meaning))]


def comment(text):
    """The lines of a header's comment."""
    lines = []
    for block in blocks_of(text):
        if block.kind == "heading":
            lines.append(f".SS {escaped(block.text)}")
        elif block.kind == "terms":
            lines += terms(block.rows)
        elif block.kind == "code":
            lines += code(block.lines)
        else:
            lines += [".PP", *wrapped(block.text)]
    return lines


def first_sentence(text):
    """For the NAME section: without a full stop and without a capital at the beginning."""
    text = sentences(plain(text))[0].rstrip(".").replace("`", "")
    is_a_name = text[1:2].isupper() or not text[0].isalpha()
    return escaped(text if is_a_name else text[0].lower() + text[1:])


def library(name):
    return [".SH LIBRARY", f"lib{name} (\\-l{name})"]


def see_also(*pages):
    """Each as "mava_tum (7)"."""
    return [".SH SEE ALSO", *(f".BR {page}," for page in pages[:-1]), f".BR {pages[-1]}"]


def page(title, section, release, body):
    """Names are not hyphenated. The first paragraph below a heading needs no macro."""
    version, date = release
    lines = [f'.TH {title.upper()} {section} {date} "mava_tum {version}" "mava_tum"', ".nh", ".ad l"]
    for line in body:
        if line != ".PP" or not lines[-1].startswith((".SH", ".SS")):
            lines.append(line)
    return "\n".join([*lines, ""])
