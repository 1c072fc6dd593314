"""The bytes of a session on the wire: as one strip, and field by field."""
from svg_picture import Picture
from wire_fields import flattened, take_apart

CELL, STRIP_CELL, ROW = 25, 15.6, 30
LEFT, CELLS_LEFT, STEP = 24, 66, 25
WORDS_LEFT = 566


def roles(fields):
    """The role of every byte, from the first to the last."""
    found = {}
    for each in flattened(fields):
        at = each.start
        for role, part in (("tag", each.tag), ("length", each.length), ("value", each.value)):
            for _ in part:
                found[at] = role
                at += 1
    return [found[at] for at in sorted(found)]


def draw_strip(picture, fields, top):
    every = roles(fields)
    for at, role in enumerate(every):
        picture.rect(LEFT + at * STRIP_CELL, top, STRIP_CELL, 20, role, radius=0)
    for at in range(0, len(every), 8):
        picture.text(LEFT + at * STRIP_CELL, top + 34, str(at), "small faint code")


def draw_legend(picture, top):
    for x, role, words in ((24, "tag", "tag: field number x 8 + wire type"), (300, "length", "length in bytes"),
                           (470, "value", "value")):
        picture.rect(x, top, 18, 14, role)
        picture.text(x + 26, top + 12, words, "small")


def draw_cells(picture, each, x, y):
    """Tag and length, and the value where nothing is nested in it."""
    parts = [("tag", each.tag), ("length", each.length), ("value", b"" if each.nested else each.value)]
    for role, part in parts:
        for byte in part:
            picture.rect(x, y, CELL, 22, role, radius=0)
            picture.text(x + CELL / 2, y + 16, f"{byte:02X}", "code", "middle")
            letter = chr(byte) if each.kind == "text" and role == "value" else ""
            picture.text(x + CELL / 2, y + 32, letter, "small faint code", "middle")
            x += CELL


def height_of(each):
    """A text has its letters below its bytes."""
    return ROW + 8 if each.kind == "text" else ROW


def draw_rows(picture, fields, top):
    y = top
    for each in flattened(fields):
        x = CELLS_LEFT + each.depth * STEP
        picture.text(LEFT, y + 16, str(each.start), "small faint code")
        draw_cells(picture, each, x, y)
        picture.text(WORDS_LEFT + each.depth * 14, y + 16, f"{each.number}  {each.name}", "code")
        picture.text(856, y + 16, each.meaning(), "small faint", "end")
        if each.nested:
            last = y + sum(height_of(inner) for inner in list(flattened([each]))[:-1])
            picture.line([(x + CELL / 2, y + 22), (x + CELL / 2, last + 11), (x + CELL - 2, last + 11)], "length")
        y += height_of(each)
    return y


def draw(wire, schema):
    fields = take_apart(wire, schema, "session_context")
    top = 148
    height = top + sum(height_of(each) for each in flattened(fields)) + 14
    picture = Picture(880, height, f"A session on the wire: {len(wire)} bytes",
                      "Every byte of the message that the first example sends, as tag, length or value, with the field "
                      "that it belongs to. Nested records are indented below the field that holds them.")
    draw_strip(picture, fields, 44)
    draw_legend(picture, 92)
    picture.text(LEFT, top - 14, "at", "small faint")
    picture.text(CELLS_LEFT, top - 14, "bytes, in hex", "small faint")
    picture.text(WORDS_LEFT, top - 14, "field of session_context; indented: of the record in it", "small faint")
    draw_rows(picture, fields, top)
    return picture
