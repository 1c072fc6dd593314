"""Tables in Markdown, and the places in a page where generated text belongs."""

import re


def table(rows):
    """The first row is the title; the first column to the left, all others to the right."""
    title, *rest = rows
    lines = ["| " + " | ".join(title) + " |", "|---|" + "---:|" * (len(title) - 1)]
    lines += ["| " + " | ".join(row) + " |" for row in rest]
    return "\n".join(lines)


def text_table(rows):
    """The same with all columns to the left: for rows of words."""
    return table(rows).replace("---:|", "---|")


def fenced(text):
    lines = [line.rstrip() for line in text.splitlines()]
    return "\n".join(["<!-- code: drawing -->", "```text", *lines, "```"])


def fill(page, blocks):
    """The page with the text between `<!-- bench: name -->` and `<!-- bench end -->` replaced by blocks[name]."""
    wanted = re.findall(r"<!-- bench: (\S+) -->", page)
    missing = set(wanted) ^ set(blocks)
    if missing or len(wanted) != len(set(wanted)):
        raise ValueError(f"blocks without a place in the page, or places without a block: {sorted(missing)}")
    for name, block in blocks.items():
        pattern = re.compile(rf"(<!-- bench: {re.escape(name)} -->\n).*?(<!-- bench end -->)", re.DOTALL)
        page, count = pattern.subn(lambda found, block=block: f"{found[1]}\n{block}\n\n{found[2]}", page)
        if count != 1:
            raise ValueError(f"the place for {name} has no end")
    return page
