"""What is around the content of each page: navigation, the way on, and the look in light and dark surroundings."""
import html

from pygments.formatters import HtmlFormatter

STYLE = """
:root { color-scheme: light dark; --page: #ffffff; --words: #1f2328; --faint: #59636e; --line: #d0d7de;
  --soft: #f6f8fa; --link: #0b57d0; }
@media (prefers-color-scheme: dark) { :root { --page: #0d1117; --words: #e6edf3; --faint: #9da7b3; --line: #30363d;
  --soft: #161b22; --link: #79b8ff; } }
* { box-sizing: border-box; }
body { margin: 0; background: var(--page); color: var(--words); font: 16px/1.6 system-ui, "DejaVu Sans", sans-serif;
  display: grid; grid-template-columns: 17rem minmax(0, 1fr); min-height: 100vh; }
nav { border-right: 1px solid var(--line); padding: 1.5rem 1rem; background: var(--soft); font-size: 0.9rem; }
nav .stay { position: sticky; top: 1.5rem; }
nav strong { display: block; margin: 1rem 0 0.25rem; color: var(--faint); font-weight: 600; }
nav a { display: block; padding: 0.15rem 0.5rem; border-radius: 4px; color: var(--words); text-decoration: none; }
nav a:hover, nav a[aria-current] { background: var(--line); }
main { max-width: 68rem; padding: 2rem 2.5rem 4rem; }
a { color: var(--link); }
h1 { line-height: 1.2; } h2 { margin-top: 2.5rem; border-bottom: 1px solid var(--line); padding-bottom: 0.2rem; }
code, pre { font-family: "DejaVu Sans Mono", Consolas, monospace; font-size: 0.86em; }
:not(pre) > code { background: var(--soft); border: 1px solid var(--line); border-radius: 4px; padding: 0 0.25em; }
pre { margin: 0; padding: 0.8rem 1rem; overflow-x: auto; line-height: 1.45; }
.code, .output { border: 1px solid var(--line); border-radius: 6px; margin: 1rem 0; background: var(--soft); }
.output { border-left: 4px solid var(--faint); background: var(--page); }
.highlight, .highlight pre { background: transparent; }
.highlight .linenos { color: var(--faint); padding-right: 1em; user-select: none; }
img { max-width: 100%; height: auto; }
.table { overflow-x: auto; margin: 1rem 0; }
table { border-collapse: collapse; font-size: 0.92em; }
th, td { border: 1px solid var(--line); padding: 0.35rem 0.6rem; vertical-align: top; }
th { background: var(--soft); text-align: left; }
footer { display: flex; justify-content: space-between; margin-top: 3rem; border-top: 1px solid var(--line);
  padding-top: 1rem; }
@media (max-width: 50rem) { body { display: block; } nav { border: 0; } main { padding: 1rem; } }
@media print { nav, footer { display: none; } body { display: block; } }
"""


def stylesheet():
    """With the colours of code for light and for dark surroundings."""
    light = HtmlFormatter(style="default").get_style_defs(".highlight")
    dark = HtmlFormatter(style="github-dark").get_style_defs(".highlight")
    keep = "\n".join(line for line in light.splitlines() if line.startswith(".highlight ."))
    keep_dark = "\n".join(line for line in dark.splitlines() if line.startswith(".highlight ."))
    return f"{STYLE}{keep}\n@media (prefers-color-scheme: dark) {{\n{keep_dark}\n}}\n"


def navigation_html(page, navigation, reference):
    lines = []
    for group in navigation:
        lines.append(f"<strong>{html.escape(group.title)}</strong>")
        for entry in group.entries:
            here = ' aria-current="page"' if entry.target == page.target else ""
            lines.append(f'<a href="{page.link_to(entry.target)}"{here}>{html.escape(entry.title)}</a>')
    if reference:
        lines.append(f'<strong>Reference</strong>\n<a href="{page.link_to(reference)}">Functions and records</a>')
    return "\n".join(lines)


def way_on_html(page, navigation):
    """The pages before and behind this one, in reading order."""
    entries = [entry for group in navigation for entry in group.entries]
    places = [place for place, entry in enumerate(entries) if entry.target == page.target]
    if not places:
        return ""
    before = entries[places[0] - 1] if places[0] > 0 else None
    behind = entries[places[0] + 1] if places[0] + 1 < len(entries) else None
    links = [f'<a href="{page.link_to(entry.target)}">{words.format(html.escape(entry.title))}</a>' if entry
             else "<span></span>" for entry, words in ((before, "&larr; {}"), (behind, "{} &rarr;"))]
    return "<footer>" + "".join(links) + "</footer>"


def page_html(page, navigation, reference):
    return f"""<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{html.escape(page.title)} - mava_tum</title>
<link rel="stylesheet" href="{page.link_to('style.css')}">
</head>
<body>
<nav><div class="stay">
{navigation_html(page, navigation, reference)}
</div></nav>
<main>
{page.body}
{way_on_html(page, navigation)}
</main>
</body>
</html>
"""
