"""The memory of a decoded record: the record itself, and every block behind it."""
from collections import namedtuple

from svg_picture import Picture

ROW, GAP = 30, 20
RECORD, BLOCK, TEXT = (24, 330), (430, 210), (696, 160)  # left edge and width of each column
TOP = 92


# The output of picture_facts: the offsets and pointers of a decoded record.
Row = namedtuple("Row", "where name offset size content target")


def read_tables(path):
    """A table without the alias bit, and one with it; each a list of rows by the place that contains them."""
    tables = []
    with open(path, encoding="utf-8") as file:
        for line in file.read().splitlines():
            if line.startswith("#"):
                tables.append([])
                continue
            where, name, offset, size, content, target = line.split("\t")
            tables[-1].append(Row(where, name, int(offset), int(size), content, target))
    return tables


def whole(table, where):
    return next(row for row in table if row.where == where and row.name == "whole")


def members(table, where):
    return [row for row in table if row.where == where and row.name != "whole"]


def blocks(table):
    return [row for row in table if row.where.startswith("block") and row.name == "whole"]


def rows_with_gaps(rows, size):
    """The rows in order, and None with a number of bytes for each gap."""
    found, at = [], 0
    for row in rows:
        if row.offset > at:
            found.append((None, row.offset - at))
        found.append((row, row.size))
        at = row.offset + row.size
    if at < size:
        found.append((None, size - at))
    return found


def draw_members(picture, table, where, column, top, kind):
    """Draws the content of a place; returns its height and the middle of each member."""
    left, width = column
    middles, y = {}, top
    for row, size in rows_with_gaps(members(table, where), whole(table, where).size):
        height = ROW if row else GAP
        picture.rect(left, y, width, height, kind, radius=0, dashed=row is None)
        if row is None:
            picture.text(left + width / 2, y + 14, f"{size} bytes", "small faint", "middle")
        else:
            picture.text(left + 8, y + 19, str(row.offset), "small faint code")
            picture.text(left + 42, y + 19, row.name, "code small" if len(row.name) > 20 else "code")
            if row.target == "-":
                picture.text(left + width - 8, y + 19, row.content, "small faint code", "end")
            else:
                words = "pointer" if row.size == 8 else "pointer, length"
                picture.text(left + width - 8, y + 19, words, "small faint", "end")
            middles[row.name] = y + ROW / 2
        y += height
    return y - top, middles


def draw_leaf(picture, block, column, middle):
    """A block that holds a text or bytes."""
    left, width = column
    picture.rect(left, middle - 22, width, 44, "block")
    picture.text(left + 10, middle - 3, block.content, "code small")
    ends = " with its NUL" if block.content.startswith('"') else ""
    picture.text(left + 10, middle + 14, f"{block.size} bytes{ends}", "small faint")


def step(picture, start, end):
    """From the right edge of a member to the left edge of a block, straight or by a corner halfway."""
    (x1, y1), (x2, y2) = start, end
    half = (x1 + x2) / 2
    picture.arrow([start, end] if y1 == y2 else [start, (half, y1), (half, y2), end], "block")


def draw_array(picture, table, block, top):
    """A block with records in it, and the texts that they own; returns its height."""
    left, width = BLOCK
    picture.text(left, top - 8, f"{block.content} = {block.size} bytes", "small faint")
    height, middles = draw_members(picture, table, block.where, BLOCK, top, "block")
    for row in members(table, block.where):
        if row.target.startswith("block"):
            draw_leaf(picture, whole(table, row.target), TEXT, middles[row.name])
            picture.arrow([(left + width, middles[row.name]), (TEXT[0], middles[row.name])], "block")
    return height


def draw(table):
    record, taken = whole(table, "record"), blocks(table)
    total = sum(block.size for block in taken)
    picture = Picture(880, 500, "The memory of a decoded session",
                      "The codec record lies where the caller has put it; bytes, texts and arrays are blocks from the "
                      "caller's allocator, to which members of the record point.")
    picture.text(RECORD[0], 56, "on the caller's stack, or wherever it likes:", "small faint")
    picture.text(RECORD[0], 76, f"{record.content}, {record.size} bytes", "strong")
    picture.text(BLOCK[0], 56, f"from alloc_fn, in {len(taken)} calls:", "small faint")
    picture.text(BLOCK[0], 76, f"{total} bytes", "strong")
    height, middles = draw_members(picture, table, "record", RECORD, TOP, "plain")
    right, below = RECORD[0] + RECORD[1], TOP
    for row in members(table, "record"):
        if not row.target.startswith("block"):
            continue
        block, middle = whole(table, row.target), middles[row.name]
        if members(table, block.where):
            top = max(middle - ROW / 2, below + 26)
            step(picture, (right, middle), (BLOCK[0], top + ROW / 2))
            below = top + draw_array(picture, table, block, top)
        else:
            step(picture, (right, middle), (BLOCK[0], middle))
            draw_leaf(picture, block, BLOCK, middle)
            below = middle + 22
    bottom = max(TOP + height, below) + 30
    picture.text(RECORD[0], bottom, "Numbers at the left are offsets in bytes. Dashed: other members, and padding.",
                 "small faint")
    return picture.cut(bottom + 18)
