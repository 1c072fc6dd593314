"""Plots as SVG: for each operation and set of content the peers' times as multiples of ours; the replay by its size."""

import math
import statistics

from plan import OPERATIONS, SIDES

COLOURS = {
    "ours": "#1b4f8a", "ours bump": "#1b4f8a", "ours arena": "#3a6ca8", "ours calloc": "#5b8fc9",
    "memcpy": "#999999", "heap calls": "#bbbbbb",
    "protobuf reused": "#b3541e", "protobuf new": "#d98a4e", "protobuf arena": "#eec39a",
    "proto2 reused": "#a03d5c", "proto2 new": "#d99bb0",
    "protozero": "#3c7a3c", "nanopb": "#8a5fa8", "protobuf-c malloc": "#a8975f", "protobuf-c bump": "#d6c88f",
}

WIDTH = 860
LEFT = 190  # room for the names of the workloads
RIGHT = 60  # room for the figure behind the longest bar
BAR = 13
GAP = 14
TOP = 76  # room for the title and two lines of legend
LONGEST = 10  # a peer that takes longer gets a bar that is cut: the others would be too short to compare


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


def _legend(drawing, sides):
    x, y = LEFT, 44
    for side in sides:
        width = 24 + 6.5 * len(side)
        if x + width > WIDTH:
            x, y = LEFT, y + 16
        drawing.rectangle(x, y - 9, 10, 10, COLOURS[side])
        drawing.text(x + 14, y, side, size=11)
        x += width


def _multiples(measurements, cells, operation):
    """[(cell, {side: times as long as ours})]"""
    baseline_side = OPERATIONS[operation][1]
    groups = []
    for cell in cells:
        baseline = (cell.workload.name, cell.set, operation, baseline_side)
        sides = {}
        for side in SIDES:
            key = (cell.workload.name, cell.set, operation, side)
            if measurements.has(key) and measurements.has(baseline):
                sides[side] = statistics.median(measurements.times_as_fast(baseline, [key]))
        if len(sides) > 1:
            groups.append((cell, sides))
    return groups


def _plot_operation(measurements, cells, operation, content_set, directory):
    groups = _multiples(measurements, [cell for cell in cells if cell.set == content_set], operation)
    if not groups:
        return
    longest = min(LONGEST, max(max(sides.values()) for _, sides in groups))
    height = TOP + sum(GAP + BAR * len(sides) for _, sides in groups) + GAP
    drawing = Drawing(WIDTH, height)
    title, baseline = OPERATIONS[operation]
    heading = f"{title}, {content_set} content: time as a multiple of {baseline} (shorter is faster)"
    drawing.text(16, 24, heading, size=15)
    _legend(drawing, [side for side in SIDES if any(side in sides for _, sides in groups)])
    y = TOP
    for cell, sides in groups:
        drawing.text(LEFT - 8, y + BAR * len(sides) / 2 + 4, cell.workload.title, anchor="end")
        for side, multiple in sides.items():
            width = (WIDTH - LEFT - RIGHT) * min(multiple, longest) / longest
            drawing.rectangle(LEFT, y, width, BAR - 2, COLOURS[side])
            cut = " (cut)" if multiple > longest else ""
            drawing.text(LEFT + width + 4, y + BAR - 4, f"{multiple:.2f}{cut}", size=10)
            y += BAR
        y += GAP
    drawing.write(directory / f"{operation.replace('_', '-')}-{content_set}.svg")


def _replay_lines(measurements, cells, operation):
    """{side: [(sessions, nanoseconds per session)]}"""
    lines = {}
    replays = sorted({cell.workload.sessions: cell for cell in cells if "replay" in cell.workload.name}.items())
    for sessions, cell in replays:
        for side in SIDES:
            key = (cell.workload.name, cell.set, operation, side)
            if measurements.has(key):
                lines.setdefault(side, []).append((sessions, measurements.median(key)))
    return {side: points for side, points in lines.items() if len(points) > 1}


def _plot_replay(measurements, cells, operation, directory):
    lines = _replay_lines(measurements, cells, operation)
    if not lines:
        return
    height, bottom = 360, 310
    highest = max(time for points in lines.values() for _, time in points)
    most = max(sessions for points in lines.values() for sessions, _ in points)
    drawing = Drawing(WIDTH, height)
    title = OPERATIONS[operation][0]
    drawing.text(16, 24, f"{title} of a replay: nanoseconds per session by sessions in the message", size=15)
    _legend(drawing, lines)

    def place(sessions, time):
        share = math.log10(sessions) / max(1.0, math.log10(most))
        return 70 + (WIDTH - 140) * share, bottom - (bottom - TOP) * time / highest

    drawing.line([(70, TOP), (70, bottom), (WIDTH - 70, bottom)], "#444444")
    for sessions in sorted({sessions for points in lines.values() for sessions, _ in points}):
        drawing.text(place(sessions, 0)[0], bottom + 18, f"{sessions:,}", anchor="middle")
    for side, points in lines.items():
        drawing.line([place(*point) for point in points], COLOURS[side], 2)
        x, y = place(*points[-1])
        drawing.text(x + 6, y + 4, f"{points[-1][1]:,.0f}", size=10)
    drawing.write(directory / f"replay-{operation}.svg")


def write_plots(measurements, cells, directory):
    directory.mkdir(parents=True, exist_ok=True)
    for operation in ("decode", "encode", "duplicate", "encode_adapter", "decode_adapter"):
        for content_set in ("fixed", "realistic", "random"):
            _plot_operation(measurements, cells, operation, content_set, directory)
    for operation in ("decode", "encode", "duplicate"):
        _plot_replay(measurements, cells, operation, directory)
