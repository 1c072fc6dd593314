"""The frame of each page: navigation, links to the next and previous page, light and dark styles."""
from collections import namedtuple
import html

from pygments.formatters import HtmlFormatter

Beside = namedtuple("Beside", "title words target")  # what is no page of the site

STYLE = """
:root { color-scheme: light dark; --page: #ffffff; --words: #1f2328; --faint: #59636e; --line: #d0d7de;
  --soft: #f6f8fa; --link: #0b57d0; }
@media (prefers-color-scheme: dark) { :root { --page: #0d1117; --words: #e6edf3; --faint: #9da7b3; --line: #30363d;
  --soft: #161b22; --link: #79b8ff; } }
* { box-sizing: border-box; }
body { margin: 0; background: var(--page); color: var(--words); font: 16px/1.6 system-ui, "DejaVu Sans", sans-serif;
  display: grid; grid-template-columns: 16rem minmax(0, 1fr) 14rem; min-height: 100vh; }
nav, aside { padding: 1.5rem 1rem; font-size: 0.9rem; }
nav { border-right: 1px solid var(--line); background: var(--soft); }
nav .stay, aside .stay { position: sticky; top: 1.5rem; max-height: calc(100vh - 3rem); overflow-y: auto; }
nav strong, aside strong { display: block; margin: 1rem 0 0.25rem; color: var(--faint); font-weight: 600; }
nav a, aside a { display: block; padding: 0.15rem 0.5rem; border-radius: 4px; color: var(--words);
  text-decoration: none; overflow-wrap: anywhere; }
aside .inner { padding-left: 1.4rem; }
nav a:hover, nav a[aria-current], aside a:hover { background: var(--line); }
#search { width: 100%; padding: 0.3rem 0.5rem; font: inherit; color: inherit; background: var(--page);
  border: 1px solid var(--line); border-radius: 4px; }
#found a { border-bottom: 1px solid var(--line); } #found b { display: block; }
#menu, label[for=menu] { display: none; }
main { max-width: 68rem; min-width: 0; padding: 2rem 2.5rem 4rem; overflow-wrap: break-word; }
a { color: var(--link); }
h1 { line-height: 1.2; } h2 { margin-top: 2.5rem; border-bottom: 1px solid var(--line); padding-bottom: 0.2rem; }
code, pre { font-family: "DejaVu Sans Mono", Consolas, monospace; font-size: 0.86em; }
:not(pre) > code { background: var(--soft); border: 1px solid var(--line); border-radius: 4px; padding: 0 0.25em;
  overflow-wrap: anywhere; }
pre { margin: 0; padding: 0.8rem 1rem; overflow-x: auto; line-height: 1.45; }
.code, .output { position: relative; border: 1px solid var(--line); border-radius: 6px; margin: 1rem 0;
  background: var(--soft); }
.output { border-left: 4px solid var(--faint); background: var(--page); }
.copy { position: absolute; top: 0.3rem; right: 0.3rem; font-size: 0.8rem; opacity: 0.6; } .copy:hover { opacity: 1; }
.highlight, .highlight pre { background: transparent; }
.highlight .linenos { color: var(--faint); padding-right: 1em; user-select: none; }
img { max-width: 100%; height: auto; }
.table { overflow-x: auto; margin: 1rem 0; }
table { border-collapse: collapse; font-size: 0.92em; }
th, td { border: 1px solid var(--line); padding: 0.35rem 0.6rem; vertical-align: top; min-width: 120px; }
th { background: var(--soft); text-align: left; }
footer { display: flex; justify-content: space-between; margin-top: 3rem; border-top: 1px solid var(--line);
  padding-top: 1rem; }
@media (max-width: 75rem) { body { grid-template-columns: 16rem minmax(0, 1fr); } aside { display: none; } }
@media (max-width: 60rem) { body { display: block; } nav { border: 0; padding: 1rem; } nav .stay { position: static;
  max-height: none; } label[for=menu] { display: block; padding: 0.5rem 0; } .pages { display: none; }
  #menu:checked ~ .pages { display: block; } main { padding: 1rem; } }
STACK_NARROW
STACK_WIDE
@media print { nav, aside, footer, .copy { display: none; } body { display: block; } }
"""
# A table that does not fit becomes a list: one box for each row, with the heading of its column before each cell.
STACK = """@media (max-width: %s) { %s thead { display: none; } %s tr { display: block; margin: 0 0 0.8rem;
  border: 1px solid var(--line); border-radius: 6px; } %s table, %s tbody { display: block; }
  %s td { display: block; border: 0; text-align: left !important; } %s td:empty { display: none; }
  %s td::before { content: attr(data-label); display: block; color: var(--faint); font-size: 0.85em; } }"""
# With 120 pixels per column: a table with more columns does not fit beside navigation and contents.
MANY_COLUMNS = 6


def stacked(width, tables):
    return STACK % (width, *[tables] * 7)


def stylesheet():
    """The style sheet, with the colours of code for light and dark mode."""
    light = HtmlFormatter(style="default").get_style_defs(".highlight")
    dark = HtmlFormatter(style="github-dark").get_style_defs(".highlight")
    keep = "\n".join(line for line in light.splitlines() if line.startswith(".highlight ."))
    keep_dark = "\n".join(line for line in dark.splitlines() if line.startswith(".highlight ."))
    style = STYLE.replace("STACK_NARROW", stacked("48rem", ".table"))
    style = style.replace("STACK_WIDE", stacked("90rem", ".many"))
    return f"{style}{keep}\n@media (prefers-color-scheme: dark) {{\n{keep_dark}\n}}\n"


def navigation_html(page, navigation, beside):
    lines = []
    for group in navigation:
        lines.append(f"<strong>{html.escape(group.title)}</strong>")
        for entry in group.entries:
            here = ' aria-current="page"' if entry.target == page.target else ""
            lines.append(f'<a href="{page.link_to(entry.target)}"{here}>{html.escape(entry.title)}</a>')
    lines += [f'<strong>{each.title}</strong>\n<a href="{page.link_to(each.target)}">{each.words}</a>' for each in beside]
    return "\n".join(lines)


def way_on_html(page, navigation):
    """The previous and the next page, in reading order."""
    entries = [entry for group in navigation for entry in group.entries]
    places = [place for place, entry in enumerate(entries) if entry.target == page.target]
    if not places:
        return ""
    before = entries[places[0] - 1] if places[0] > 0 else None
    behind = entries[places[0] + 1] if places[0] + 1 < len(entries) else None
    links = [f'<a href="{page.link_to(entry.target)}">{words.format(html.escape(entry.title))}</a>' if entry
             else "<span></span>" for entry, words in ((before, "&larr; {}"), (behind, "{} &rarr;"))]
    return "<footer>" + "".join(links) + "</footer>"


def contents_html(page):
    """The headings of the page, shown beside it."""
    if len(page.headings) < 3:
        return ""
    links = [f'<a href="#{anchor}"{" class=inner" if level == 3 else ""}>{html.escape(words)}</a>'
             for level, anchor, words in page.headings]
    return '<strong>On this page</strong>\n' + "\n".join(links)


def page_html(page, navigation, beside, version):
    top = page.link_to("index.html").removesuffix("index.html")
    return f"""<!DOCTYPE html>
<html lang="en" data-top="{top}">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{html.escape(page.title)} - mava_tum</title>
<link rel="stylesheet" href="{page.link_to('style.css')}">
</head>
<body>
<nav><div class="stay">
<p>mava_tum {html.escape(version)}</p>
<input id="search" type="search" placeholder="Search (/)" aria-label="Search">
<div id="found"></div>
<label for="menu">Pages</label><input id="menu" type="checkbox">
<div class="pages">
{navigation_html(page, navigation, beside)}
</div>
</div></nav>
<main>
{page.body}
{way_on_html(page, navigation)}
</main>
<aside><div class="stay">
{contents_html(page)}
</div></aside>
<script src="{page.link_to('search-index.js')}"></script>
<script src="{page.link_to('site.js')}"></script>
</body>
</html>
"""
