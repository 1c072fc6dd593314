"""Plots: times as fast as a reused protobuf message, and time against length of the worst inputs."""

import math
import re

from plan import OPERATIONS, SUMMARY, WORKLOADS
from scale_table import GROWING

WIDTH = 860
LEFT, RIGHT, TOP = 150, 40, 66
BAR, GAP = 12, 8
COLOURS = {"realistic": "#1b4f8a", "random": "#5b8fc9"}


class Drawing:
    def __init__(self, width, height):
        self._parts = [
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
            f'viewBox="0 0 {width} {height}" font-family="sans-serif" font-size="12">',
            f'<rect width="{width}" height="{height}" fill="white"/>',
        ]

    def rectangle(self, x, y, width, height, colour):
        self._parts.append(f'<rect x="{x:.1f}" y="{y:.1f}" width="{width:.1f}" height="{height:.1f}" fill="{colour}"/>')

    def text(self, x, y, text, anchor="start", size=12):
        self._parts.append(f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" font-size="{size}">{text}</text>')

    def line(self, points, colour, width=1):
        path = " ".join(f"{x:.1f},{y:.1f}" for x, y in points)
        self._parts.append(f'<polyline points="{path}" fill="none" stroke="{colour}" stroke-width="{width}"/>')

    def write(self, path):
        path.write_text("\n".join([*self._parts, "</svg>"]) + "\n", encoding="utf-8")


def _panel(drawing, y, operation, found, scale):
    """Returns where the next panel may begin."""
    drawing.text(16, y, OPERATIONS[operation], size=13)
    y += 10
    for workload in WORKLOADS:
        ratios = {content: found[key] for content in COLOURS if (key := (workload.name, content, operation)) in found}
        if not ratios:
            continue
        drawing.text(LEFT - 8, y + BAR + 4, workload.title, anchor="end", size=11)
        for content, ratio in ratios.items():
            drawing.rectangle(LEFT, y, scale * ratio, BAR - 1, COLOURS[content])
            drawing.text(LEFT + scale * ratio + 4, y + BAR - 3, f"{ratio:.2f}", size=10)
            y += BAR
        y += GAP
    return y + 14


def write_plots(results, directory):
    found = {(*result.cell, result.operation): result.ratio
             for result in results if SUMMARY.get(result.operation) == result.other and result.set in COLOURS}
    if not found:
        return
    operations = [operation for operation in SUMMARY if any(key[2] == operation for key in found)]
    scale = (WIDTH - LEFT - RIGHT) / max(found.values())
    rows = {(key[0], key[2]) for key in found}
    height = TOP + len(rows) * (len(COLOURS) * BAR + GAP) + len(operations) * 24
    drawing = Drawing(WIDTH, height)
    drawing.text(16, 24, "Times as fast as protobuf C++ with a reused message (1 is equally fast)", size=15)
    for place, (content, colour) in enumerate(COLOURS.items()):
        drawing.rectangle(LEFT + 110 * place, 34, 10, 10, colour)
        drawing.text(LEFT + 110 * place + 14, 43, content, size=11)
    y = TOP
    for operation in operations:
        y = _panel(drawing, y, operation, found, scale)
    drawing.line([(LEFT + scale, TOP), (LEFT + scale, height - 10)], "#b3541e", 1)
    directory.mkdir(parents=True, exist_ok=True)
    drawing.write(directory / "times-protobuf.svg")


# For the plots of growth.
HEIGHT, BOTTOM = 520, 470
AXIS, EDGE, HEAD = 80, 30, 84
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
    """The kind of input, without the field."""
    return re.sub(r" (of field \d+|\d+ deep)", "", entry["kind"])


def _size(size):
    return f"{size // 1024:,} KiB" if size >= 1024 else f"{size:,}"


def _time(nanoseconds):
    for unit, length in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= length:
            return f"{nanoseconds / length:g} {unit}"
    return f"{nanoseconds:g} ns"


def _kinds_legend(drawing, colours):
    x, y = AXIS, 44
    for kind, colour in colours.items():
        width = 26 + 6.2 * len(kind)
        if x + width > WIDTH - EDGE:
            x, y = AXIS, y + 16
        drawing.line([(x, y - 4), (x + 12, y - 4)], colour, 3)
        drawing.text(x + 16, y, kind, size=11)
        x += width


def _axes(drawing, across, up):
    drawing.line([(AXIS, HEAD), (AXIS, BOTTOM), (WIDTH - EDGE, BOTTOM)], "#444444")
    for power in range(8, 23, 2):
        x = across.place(2 ** power)
        if AXIS <= x <= WIDTH - EDGE:
            drawing.line([(x, HEAD), (x, BOTTOM)], "#eeeeee")
            drawing.text(x, BOTTOM + 18, _size(2 ** power), anchor="middle", size=11)
    for time in up.decades():
        drawing.line([(AXIS, up.place(time)), (WIDTH - EDGE, up.place(time))], "#eeeeee")
        drawing.text(AXIS - 6, up.place(time) + 4, _time(time), anchor="end", size=11)


def _guides(drawing, across, up, points):
    """Below all lines: linear and quadratic growth, for comparison."""
    least = min(time for size, time in points if size >= 4096) * 0.8
    for power, name in ((1, "linear"), (2, "square")):
        size = 4096
        while across.place(2 * size) <= WIDTH - EDGE and up.place(least * (2 * size / 4096) ** power) >= HEAD:
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
    across = LogScale(*sizes, AXIS, WIDTH - EDGE)
    up = LogScale(*times, BOTTOM, HEAD)
    drawing = Drawing(WIDTH, HEIGHT)
    title = f"{GROWING[operation]}: time against length of the input, a line per message and kind of input"
    drawing.text(16, 24, title, size=15)
    _kinds_legend(drawing, colours)
    _axes(drawing, across, up)
    for entry in entries:
        line = [(across.place(size), up.place(time)) for size, time in entry["points"]]
        drawing.line(line, colours[_kind(entry)], 0.7)
    _guides(drawing, across, up, points)
    drawing.write(path)


def write_scale_plots(series, directory):
    directory.mkdir(parents=True, exist_ok=True)
    for operation in GROWING:
        _plot_growth(series, operation, directory / f"scale-{operation.replace(' ', '-')}.svg")
