"""A picture in SVG that can be read in light and in dark surroundings, and that is the same bytes on every machine."""
from xml.sax.saxutils import escape

# name: fill and line in light surroundings, then in dark ones.
COLOURS = {
    "page": ("#ffffff", "#d0d7de", "#0d1117", "#30363d"),
    "plain": ("#f6f8fa", "#8c959f", "#161b22", "#6e7681"),
    "tag": ("#dbeafe", "#2563eb", "#16325c", "#60a5fa"),
    "length": ("#fef3c7", "#b45309", "#4a3209", "#f0b429"),
    "value": ("#dcfce7", "#15803d", "#12391f", "#4ade80"),
    "block": ("#ede9fe", "#6d28d9", "#33265c", "#a78bfa"),
    "input": ("#dcfce7", "#15803d", "#12391f", "#4ade80"),
}
WORDS = ("#1f2328", "#e6edf3")
FAINT = ("#59636e", "#9da7b3")
# The width of a letter for a size of 1, on the safe side of the usual fonts.
LETTER = 0.6


def style():
    """One rule for each class, first for light surroundings, then for dark ones."""
    def rules(shade):
        found = []
        for name, colours in COLOURS.items():
            fill, line = colours[2 * shade:2 * shade + 2]
            found += [f".{name}{{fill:{fill};stroke:{line}}}", f".{name}-line{{fill:none;stroke:{line}}}",
                      f".{name}-tip{{fill:{line}}}"]
        return found + [f"text{{fill:{WORDS[shade]}}}", f".faint{{fill:{FAINT[shade]}}}"]
    fixed = ["text{font-family:'DejaVu Sans',Verdana,sans-serif;font-size:12px}", ".strong{font-weight:bold}",
             ".title{font-size:15px;font-weight:bold}",
             ".code{font-family:'DejaVu Sans Mono',Consolas,monospace}", ".small{font-size:11px}"]
    dark = "@media (prefers-color-scheme:dark){" + "".join(rules(1)) + "}"
    return "\n".join(fixed + rules(0) + [dark])


class Picture:
    def __init__(self, width, height, title, description):
        self.width, self.height = width, height
        self.title, self.description = title, description
        self.parts = []
        self.text(24, 28, title, "title")

    def rect(self, x, y, width, height, kind, radius=3, dashed=False):
        dash = ' stroke-dasharray="4 3"' if dashed else ""
        self.parts.append(f'<rect class="{kind}" x="{x:g}" y="{y:g}" width="{width:g}" height="{height:g}" '
                          f'rx="{radius}"{dash}/>')

    def text(self, x, y, words, kind="", anchor="start"):
        if words:
            self.parts.append(f'<text class="{kind}" x="{x:g}" y="{y:g}" text-anchor="{anchor}" '
                              f'xml:space="preserve">{escape(words)}</text>')

    def line(self, points, kind):
        """Through the points; no tip."""
        path = " ".join(f"{x:g},{y:g}" for x, y in points)
        self.parts.append(f'<polyline class="{kind}-line" points="{path}"/>')

    def arrow(self, points, kind, both=False):
        """Through the points, with a tip at the end, or at both."""
        self.line(points, kind)
        self.tip(points[-2], points[-1], kind)
        if both:
            self.tip(points[1], points[0], kind)

    def tip(self, source, target, kind):
        across, down = target[0] - source[0], target[1] - source[1]
        length = (across ** 2 + down ** 2) ** 0.5
        across, down = across / length, down / length
        x, y = target
        left = (x - 8 * across - 4 * down, y - 8 * down + 4 * across)
        right = (x - 8 * across + 4 * down, y - 8 * down - 4 * across)
        corners = " ".join(f"{px:.1f},{py:.1f}" for px, py in (target, left, right))
        self.parts.append(f'<polygon class="{kind}-tip" points="{corners}"/>')

    def cut(self, height):
        """The same picture, as high as it turned out to be."""
        self.height = height
        return self

    def svg(self):
        head = (f'<svg xmlns="http://www.w3.org/2000/svg" width="{self.width}" height="{self.height}" '
                f'viewBox="0 0 {self.width} {self.height}" role="img">')
        page = (f'<rect class="page" x="0.5" y="0.5" width="{self.width - 1}" height="{self.height - 1}" rx="8"/>')
        return "\n".join([head, f"<title>{escape(self.title)}</title>", f"<desc>{escape(self.description)}</desc>",
                          f"<style>\n{style()}\n</style>", page, *self.parts, "</svg>"]) + "\n"
