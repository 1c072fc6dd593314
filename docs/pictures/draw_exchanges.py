"""Which message goes which way, in the order of a session's life; reference/message_reference.toml says so."""
from svg_picture import Picture

WIDTH, STEP, LEFT = 272, 26, 24


def draw_exchange(picture, x, y, title, messages):
    """`messages`: "> name" goes to the right, "< name" back. Returns where the next one below may start."""
    height = STEP * len(messages) + 12
    picture.text(x, y + 14, title, "strong")
    picture.line([(x, y + 24), (x, y + 24 + height)], "plain")
    picture.line([(x + WIDTH - 32, y + 24), (x + WIDTH - 32, y + 24 + height)], "plain")
    for place, (direction, message) in enumerate(each.split() for each in messages):
        at = y + 24 + STEP * (place + 1)
        ends = [(x, at), (x + WIDTH - 32, at)]
        picture.arrow(*((ends, "tag") if direction == ">" else (ends[::-1], "value")))
        picture.text(x + (WIDTH - 32) / 2, at - 5, message, "code small", "middle")
    return y + height + 44


def draw(exchanges):
    picture = Picture(LEFT + 3 * WIDTH, 0, "The exchanges", "For each exchange the messages in their order, from one "
                      "process to the other and back.")
    below = [44, 44, 44]
    for each in exchanges:
        column = each["column"]
        below[column] = draw_exchange(picture, LEFT + column * WIDTH, below[column], each["title"], each["messages"])
    return picture.cut(max(below))
