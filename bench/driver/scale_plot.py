"""Plots of scale as SVG: time against length of the worst inputs, and cost per session against sessions."""

import math
import re
import statistics

from scale_table import GROWING, REPLAY_SIDES
from svg_plot import COLOURS, WIDTH, Drawing

HEIGHT = 520
LEFT, RIGHT, TOP, BOTTOM = 80, 30, 84, 470
REPLAY_RIGHT = 120  # room for the names of the lines
REPLAY_COLOURS = {"encode": "#b3541e", "size_request": "#d98a4e"}
KIND_COLOURS = (
    "#1b4f8a", "#b3541e", "#3c7a3c", "#8a5fa8", "#a03d5c", "#a8975f", "#5b8fc9", "#777777", "#d98a4e", "#4aa3a3",
    "#222222",
)


class LogScale:
    def __init__(self, least, most, from_pixel, to_pixel):
        self._least, self._most = math.log10(least), math.log10(most)
        self._from, self._to = from_pixel, to_pixel

    def place(self, value):
        share = (math.log10(value) - self._least) / (self._most - self._least)
        return self._from + (self._to - self._from) * share

    def decades(self):
        return [10 ** power for power in range(math.ceil(self._least), math.floor(self._most) + 1)]


def _kind(entry):
    """Without the field it is about."""
    return re.sub(r" (of field \d+|\d+ deep)", "", entry["kind"])


def _size(size):
    return f"{size // 1024:,} KiB" if size >= 1024 else f"{size:,}"


def _time(nanoseconds):
    for unit, length in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= length:
            return f"{nanoseconds / length:g} {unit}"
    return f"{nanoseconds:g} ns"


def _legend(drawing, colours):
    x, y = LEFT, 44
    for kind, colour in colours.items():
        width = 26 + 6.2 * len(kind)
        if x + width > WIDTH - RIGHT:
            x, y = LEFT, y + 16
        drawing.line([(x, y - 4), (x + 12, y - 4)], colour, 3)
        drawing.text(x + 16, y, kind, size=11)
        x += width


def _axes(drawing, across, up):
    drawing.line([(LEFT, TOP), (LEFT, BOTTOM), (WIDTH - RIGHT, BOTTOM)], "#444444")
    for power in range(8, 23, 2):
        x = across.place(2 ** power)
        if LEFT <= x <= WIDTH - RIGHT:
            drawing.line([(x, TOP), (x, BOTTOM)], "#eeeeee")
            drawing.text(x, BOTTOM + 18, _size(2 ** power), anchor="middle", size=11)
    for time in up.decades():
        drawing.line([(LEFT, up.place(time)), (WIDTH - RIGHT, up.place(time))], "#eeeeee")
        drawing.text(LEFT - 6, up.place(time) + 4, _time(time), anchor="end", size=11)


def _guides(drawing, across, up, points):
    """Below all lines, how a time grows with the length and with its square."""
    least = min(time for size, time in points if size >= 4096) * 0.8
    for power, name in ((1, "linear"), (2, "square")):
        size = 4096
        while across.place(2 * size) <= WIDTH - RIGHT and up.place(least * (2 * size / 4096) ** power) >= TOP:
            size *= 2
        ends = [(4096, least), (size, least * (size / 4096) ** power)]
        drawing.line([(across.place(size), up.place(time)) for size, time in ends], "#000000", 2.5)
        drawing.text(across.place(size) + 4, up.place(ends[1][1]) + 14, name, anchor="end", size=12)


def _plot_growth(series, operation, path):
    entries = [entry for entry in series if entry["operation"] == operation]
    kinds = sorted({_kind(entry) for entry in entries})
    colours = dict(zip(kinds, KIND_COLOURS))
    points = [point for entry in entries for point in entry["points"]]
    sizes = (min(size for size, _ in points), max(size for size, _ in points))
    times = (min(time for _, time in points) / 2, max(time for _, time in points))
    across = LogScale(*sizes, LEFT, WIDTH - RIGHT)
    up = LogScale(*times, BOTTOM, TOP)
    drawing = Drawing(WIDTH, HEIGHT)
    title = f"{GROWING[operation]}: time against length of the input, a line per message and kind of input"
    drawing.text(16, 24, title, size=15)
    _legend(drawing, colours)
    _axes(drawing, across, up)
    for entry in entries:
        line = [(across.place(size), up.place(time)) for size, time in entry["points"]]
        drawing.line(line, colours[_kind(entry)], 0.7)
    _guides(drawing, across, up, points)
    drawing.write(path)


def _labels_apart(labels):
    """[(y, text)] from the lowest to the highest, moved up where they would overlap."""
    placed = []
    for y, text in sorted(labels, reverse=True):
        placed.append((min(y, placed[-1][0] - 14) if placed else y, text))
    return placed


def _replay_axes(drawing, across, height, highest):
    for sessions in across.decades():
        drawing.text(across.place(sessions), BOTTOM + 18, f"{sessions:,}", anchor="middle", size=11)
    for time in range(0, int(highest) + 1, 50):
        drawing.line([(LEFT, height(time)), (WIDTH - REPLAY_RIGHT, height(time))], "#eeeeee")
        drawing.text(LEFT - 6, height(time) + 4, f"{time} ns", anchor="end", size=11)
    drawing.line([(LEFT, TOP), (LEFT, BOTTOM), (WIDTH - REPLAY_RIGHT, BOTTOM)], "#444444")


def _plot_replay(replay, path):
    medians = {
        key: [(sessions, statistics.median(times[key])) for sessions, times in sorted(replay.items())]
        for key in REPLAY_SIDES
    }
    highest = max(time for points in medians.values() for _, time in points)
    across = LogScale(1, max(replay), LEFT, WIDTH - REPLAY_RIGHT)

    def height(time):
        return BOTTOM - (BOTTOM - TOP) * time / highest

    drawing = Drawing(WIDTH, HEIGHT)
    drawing.text(16, 24, "Cost per session of a replay: nanoseconds by sessions in the message", size=15)
    _replay_axes(drawing, across, height, highest)
    labels = []
    for (operation, side), points in medians.items():
        colour = REPLAY_COLOURS.get(operation) or COLOURS[side]
        drawing.line([(across.place(sessions), height(time)) for sessions, time in points], colour, 2)
        labels.append((height(points[-1][1]) + 4, f"{REPLAY_SIDES[operation, side]} {points[-1][1]:,.0f}"))
    for y, text in _labels_apart(labels):
        drawing.text(WIDTH - REPLAY_RIGHT + 6, y, text, size=11)
    drawing.write(path)


def write_scale_plots(replay, series, directory):
    directory.mkdir(parents=True, exist_ok=True)
    _plot_replay(replay, directory / "scale-replay.svg")
    for operation in GROWING:
        _plot_growth(series, operation, directory / f"scale-{operation.replace(' ', '-')}.svg")
