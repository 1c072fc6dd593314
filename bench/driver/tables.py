"""Results as tables of text: for the terminal and for pages, and the insertion of generated text into pages."""

import re

from plan import OPERATIONS, SETS, SIDES, SUMMARY, WORKLOAD_OF_NAME, WORKLOADS


def print_aligned(rows):
    """The first column to the left, all others to the right."""
    widths = [max(len(row[column]) for row in rows) for column in range(len(rows[0]))]
    for row in rows:
        others = (text.rjust(width) for text, width in zip(row[1:], widths[1:]))
        print("  ".join((row[0].ljust(widths[0]), *others)).rstrip())


def markdown(rows, aligned="---:|"):
    """The first row is the title; the first column to the left, all others to the right."""
    title, *rest = rows
    lines = ["| " + " | ".join(title) + " |", "|---|" + aligned * (len(title) - 1)]
    return "\n".join([*lines, *("| " + " | ".join(row) + " |" for row in rest)])


def markdown_of_words(rows):
    """The same with all columns to the left."""
    return markdown(rows, "---|")


def fenced(text):
    lines = [line.rstrip() for line in text.splitlines()]
    return "\n".join(["<!-- code: drawing -->", "```text", *lines, "```"])


def fill(page, blocks):
    """The page with the text between `<!-- bench: name -->` and `<!-- bench end -->` replaced by blocks[name].

    Raises ValueError for a place that no block fills.
    """
    wanted = re.findall(r"<!-- bench: (\S+) -->", page)
    missing = set(wanted) - set(blocks)
    if missing or len(wanted) != len(set(wanted)):
        raise ValueError(f"places without a block, or named twice: {sorted(missing) or wanted}")
    for name in wanted:
        pattern = re.compile(rf"(<!-- bench: {re.escape(name)} -->\n).*?(<!-- bench end -->)", re.DOTALL)
        page, count = pattern.subn(lambda found, name=name: f"{found[1]}\n{blocks[name]}\n\n{found[2]}", page)
        if count != 1:
            raise ValueError(f"the place for {name} has no end")
    return page


def _time(nanoseconds):
    if nanoseconds >= 10_000:
        return f"{nanoseconds / 1000:,.0f} µs"
    return f"{nanoseconds / 1000:.2f} µs" if nanoseconds >= 1000 else f"{nanoseconds:.0f} ns"


def summary_rows(results):
    """A row for each of the five workloads: the time of ours on realistic content, and times protobuf on both sets."""
    found = {(*result.cell, result.operation): result
             for result in results if SUMMARY.get(result.operation) == result.other}
    rows = [["message", *(OPERATIONS[operation].split(":")[0].removesuffix(" and free") for operation in SUMMARY)]]
    for workload in WORKLOADS:
        row = [workload.title]
        for operation in SUMMARY:
            realistic, random = (found.get((workload.name, content, operation)) for content in ("realistic", "random"))
            if realistic and random:
                row.append(f"{_time(realistic.ours_nanoseconds)}, {realistic.ratio:.2f} / {random.ratio:.2f}")
        if len(row) == len(rows[0]):
            rows.append(row)
    return rows


def _sides(results):
    present = {(result.ours, result.other) for result in results}
    return sorted(present, key=lambda sides: SIDES.index(sides[1]))


def operation_rows(results, operation):
    """A row per corpus, with all quartiles; empty if nothing was measured."""
    of_operation = [result for result in results if result.operation == operation]
    rows = [["message", "side", "ns", "against", "ns", "times as fast", "quartiles", "by link order", "pairs"]]
    order = {(name, content): place for place, (name, content) in enumerate(
        (workload.name, content) for workload in WORKLOADS for content in workload.sets)}
    for result in sorted(of_operation, key=lambda each: (order[each.cell], SIDES.index(each.other))):
        rows.append([
            f"{WORKLOAD_OF_NAME[result.workload].title}, {result.set}", result.ours, f"{result.ours_nanoseconds:,.0f}",
            result.other, f"{result.other_nanoseconds:,.0f}", f"{result.ratio:.2f}",
            f"{result.lower:.2f}-{result.upper:.2f}", " ".join(f"{ratio:.2f}" for ratio in result.by_order),
            str(result.pairs),
        ])
    return rows if len(rows) > 1 else []


def page_rows(results, operation, sides):
    """A row per workload with all sets: times as fast as each of `sides`, realistic / random / fixed."""
    found = {(*result.cell, result.other): result for result in results if result.operation == operation}
    sides = [side for side in sides if any(key[2] == side for key in found)]
    rows = [["message", *sides]]
    for workload in WORKLOADS:
        if len(workload.sets) == len(SETS):
            cells = ([found.get((workload.name, content, side)) for content in SETS] for side in sides)
            rows.append([workload.label, *(
                " / ".join(f"{result.ratio:.2f}" for result in cell) if all(cell) else "-" for cell in cells)])
    return rows


def spread_sentence(results):
    """The distances of the quartiles, as shares of the medians."""
    widths = sorted((result.upper - result.lower) / result.ratio for result in results)
    widest = max(results, key=lambda result: (result.upper - result.lower) / result.ratio)
    return (f"The quartiles of a figure are at most {widths[len(widths) // 2]:.0%} of it apart for half of the figures, and\n"
            f"{widths[9 * len(widths) // 10]:.0%} for nine of ten. The widest: {widest.lower:.2f} to {widest.upper:.2f}, "
            f"{widest.operation.replace('_', ' ')} of `{widest.workload}`.")
