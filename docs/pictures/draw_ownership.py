"""The owners of memory: three ways to receive the same kind of message."""
from draw_record_memory import blocks, members, whole
from svg_picture import Picture

PANEL, LEFT = 278, 24
KINDS = {"field_6": "bytes", "session_data.field_5": "text", "qos": "array"}


def box(picture, x, y, width, height, kind, words, below=""):
    picture.rect(x, y, width, height, kind)
    picture.text(x + 10, y + 19, words, "strong small")
    picture.text(x + 10, y + 35, below, "small faint")


def draw_head(picture, x, title, call):
    picture.text(x, 62, title, "strong")
    picture.text(x, 82, call, "code small faint")


def sizes_behind(table, row):
    """The sizes of the blocks of a member, direct or through another block."""
    inner = [each.target for each in members(table, row.target) if each.target.startswith("block")]
    return " + ".join(str(whole(table, place).size) for place in [row.target, *inner]) + " bytes"


def draw_pointer(picture, x, y, table, row):
    """A member with a pointer, and what it points to."""
    picture.rect(x + 8, y, 84, 26, "page")
    picture.text(x + 16, y + 17, KINDS[row.name], "small")
    if row.target.startswith("input"):
        picture.arrow([(x + 92, y + 13), (x + 112, y + 13), (x + 112, 142)], "input")
        return
    picture.arrow([(x + 92, y + 13), (x + 126, y + 13)], "block")
    picture.rect(x + 126, y, 122, 26, "block")
    picture.text(x + 134, y + 17, sizes_behind(table, row), "small")


def draw_codec_panel(picture, x, table):
    """Input above, record at the left, blocks at the right; an arrow for each pointer of the record."""
    pointers = [row for row in members(table, "record") if row.name in KINDS]
    borrowed = any(row.target.startswith("input") for row in pointers)
    box(picture, x, 98, PANEL - 30, 44, "input", f"your input, {whole(table, 'input').size} bytes",
        "must outlive the record" if borrowed else "read; may go after the call")
    box(picture, x, 172, 100, 166, "plain", "your record", f"{whole(table, 'record').size} bytes")
    for place, row in enumerate(pointers):
        draw_pointer(picture, x, 232 + 34 * place, table, row)
    picture.text(x, 362, f"{len(blocks(table))} blocks from alloc_fn;", "small")


def draw_adapter_panel(picture, x):
    box(picture, x, 98, PANEL - 30, 44, "input", "your input", "read; may go after the call")
    box(picture, x, 172, PANEL - 30, 166, "plain", "your application record", "flat: no pointers at all")
    for y, words in ((232, "numbers"), (266, "char arrays, cut to fit"), (300, "counts and slots")):
        picture.rect(x + 8, y, PANEL - 46, 26, "page")
        picture.text(x + 16, y + 17, words, "small")
    picture.text(x, 362, "no block from any allocator;", "small")


def draw_legend(picture, y):
    for x, kind, words in ((24, "plain", "yours, for as long as you like"), (290, "input", "your input"),
                           (450, "block", "from your alloc_fn: the record's, until _free_ext")):
        picture.rect(x, y, 18, 14, kind)
        picture.text(x + 26, y + 12, words, "small")


def draw(tables):
    copied, aliased = tables
    picture = Picture(880, 464, "Who owns the memory of a decoded message",
                      "Without the alias bit every bytes field, text and array is a block of the record's; with it "
                      "bytes fields point into the input; an application record owns nothing.")
    panels = [LEFT + i * (PANEL + 4) for i in range(3)]
    draw_head(picture, panels[0], "decode", "..._decode_ext(flags 0)")
    draw_codec_panel(picture, panels[0], copied)
    picture.text(panels[0], 380, "give back: _free_ext(flags 0)", "small strong")
    draw_head(picture, panels[1], "decode with the alias bit", "..._decode_ext(MAVA_TUM_ALIAS)")
    draw_codec_panel(picture, panels[1], aliased)
    picture.text(panels[1], 380, "give back: _free_ext(MAVA_TUM_ALIAS)", "small strong")
    draw_head(picture, panels[2], "decode adapter", "tum_nal_data_gpb_decode_...")
    draw_adapter_panel(picture, panels[2])
    picture.text(panels[2], 380, "give back: nothing", "small strong")
    draw_legend(picture, 408)
    picture.text(LEFT, 446, "A duplicate is like the picture at the left, whatever its source was.", "small faint")
    return picture
