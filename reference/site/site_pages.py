"""The pages of the site, their content and links."""
from collections import namedtuple
from dataclasses import dataclass, field
import html
import os
import re

from markdown_it import MarkdownIt
from pygments import highlight
from pygments.formatters import HtmlFormatter
from pygments.lexers import get_lexer_by_name, get_lexer_for_filename
from pygments.util import ClassNotFound

from page_template import MANY_COLUMNS

TABLE = re.compile(r"<table>.*?</table>", re.DOTALL)
HEADER = re.compile(r"<th[^>]*>(.*?)</th>", re.DOTALL)
COMMENT = re.compile(r"<!--.*?-->\s*", re.DOTALL)
EXTERNAL = re.compile(r"^[a-z]+:")
# Files that a browser shows or saves.
COPIED = (".svg", ".png", ".pcap", ".pcapng", ".bin")

Entry = namedtuple("Entry", "path title target")
Group = namedtuple("Group", "title entries")


@dataclass
class Page:
    """`path` is the file or folder in the project, `target` the file of the site. `headings` are (level, anchor, words)
    of the second and third level; `sections`, (anchor, words, text), are all of it, for the search."""

    path: str
    target: str
    title: str = ""
    body: str = ""
    headings: list = field(default_factory=list)
    sections: list = field(default_factory=list)

    def link_to(self, target):
        return os.path.relpath(target, os.path.dirname(self.target) or ".")


def slug(words, taken):
    """The anchor of a heading, as on the platforms that show Markdown."""
    base = re.sub(r"[^\w\- ]", "", words.lower()).replace(" ", "-")
    found, number = base, 0
    while found in taken:
        number += 1
        found = f"{base}-{number}"
    taken.add(found)
    return found


def labelled(table):
    """A table with the column's heading in each cell, for narrow screens, where it becomes a list."""
    labels = [re.sub(r"<[^>]+>", "", cell).replace('"', "&quot;") for cell in HEADER.findall(table[0])]
    row = re.compile(r"<tr>(.*?)</tr>", re.DOTALL)

    def label(found):
        place = iter(labels)
        return re.sub(r"<td", lambda _: f'<td data-label="{next(place, "")}"', found[0])
    many = " many" if len(labels) > MANY_COLUMNS else ""
    return f'<div class="table{many}">{row.sub(label, table[0])}</div>'


def colour(text, lexer_name):
    try:
        lexer = get_lexer_by_name({"output": "text", "": "text"}.get(lexer_name, lexer_name))
    except ClassNotFound:
        lexer = get_lexer_by_name("text")
    kind = "output" if lexer_name == "output" else "code"
    return f'<div class="{kind}">{highlight(text, lexer, HtmlFormatter(cssclass="highlight"))}</div>\n'


class Site:
    def __init__(self, project):
        self.project = os.path.realpath(project)
        self.markdown = MarkdownIt("commonmark", {"highlight": None}).enable("table")
        self.markdown.add_render_rule("fence", self.render_fence)
        self.pages = {}
        self.copied = set()
        self.waiting = []
        self.navigation = [Group("Start", [Entry("README.md", "What it is", "index.html")]), *self.read_order()]
        for group in self.navigation:
            for entry in group.entries:
                self.require(entry.path)

    @staticmethod
    def render_fence(_renderer, tokens, index, _options, _environment):
        return colour(tokens[index].content, tokens[index].info.strip())

    def read(self, path):
        with open(os.path.join(self.project, path), encoding="utf-8") as file:
            return file.read()

    def read_order(self):
        """The numbered lists of docs/README.md, each with the line above it: the first link of an item is its page."""
        groups, words, inside = [], "", False
        for token in self.markdown.parse(self.read("docs/README.md")):
            if token.type == "ordered_list_open":
                groups.append(Group(words.rstrip(":"), []))
                inside = True
            elif token.type == "ordered_list_close":
                inside = False
            elif token.type == "list_item_open":
                expecting = True
            elif token.type == "inline" and not inside:
                words = token.content
            elif token.type == "inline" and expecting:
                expecting = False
                link = next(child.attrs["href"] for child in token.children if child.type == "link_open")
                path = os.path.normpath(os.path.join("docs", link))
                groups[-1].entries.append(Entry(path, self.title_of(path), self.target_of(path)))
        return groups

    def title_of(self, path):
        if not path.endswith(".md"):
            return os.path.basename(path).capitalize()
        return re.search(r"^# (.*)$", self.read(path), re.MULTILINE).group(1)

    def target_of(self, path):
        """The file of the site that shows a file or a folder of the project."""
        if path.endswith(COPIED):
            return path
        if os.path.isdir(os.path.join(self.project, path)):
            return os.path.join(path, "index.html")
        folder, name = os.path.split(path)
        if name == "README.md":
            return os.path.join(folder, "index.html")
        return path.removesuffix(".md") + ".html"

    def require(self, path):
        """Adds a page for a path if there is none; returns the file that shows it."""
        target = self.target_of(path)
        if path.endswith(COPIED):
            self.copied.add(path)
        elif target not in self.pages:
            readme = os.path.join(path, "README.md")
            if os.path.isdir(os.path.join(self.project, path)) and os.path.exists(os.path.join(self.project, readme)):
                path = readme
            self.pages[target] = Page(path, target)
            self.waiting.append(self.pages[target])
        return target

    def all_pages(self):
        """Every page; a linked page comes after the page that links it."""
        while self.waiting:
            page = self.waiting.pop(0)
            full = os.path.join(self.project, page.path)
            if os.path.isdir(full):
                self.list_folder(page, full)
            elif page.path.endswith(".md"):
                self.render_page(page)
            else:
                self.show_source(page)
            yield page

    def render_page(self, page):
        tokens = self.markdown.parse(COMMENT.sub("", self.read(page.path)))
        self.find_sections(page, tokens)
        for token in tokens:
            for child in token.children or []:
                for name in ("href", "src"):
                    if name in child.attrs:
                        child.attrs[name] = self.rewritten(page, child.attrs[name])
        body = self.markdown.renderer.render(tokens, self.markdown.options, {})
        page.body = TABLE.sub(labelled, body)

    @staticmethod
    def find_sections(page, tokens):
        """Sets the anchor of each heading, and collects the page's headings and the text below each."""
        taken = set()
        for token, following in zip(tokens, tokens[1:]):
            if token.type == "heading_open":
                words = "".join(child.content for child in following.children if child.type in ("text", "code_inline"))
                token.attrs["id"] = slug(words, taken)
                page.title = page.title or words
                if token.tag in ("h2", "h3"):
                    page.headings.append((int(token.tag[1]), token.attrs["id"], words))
                page.sections.append((token.attrs["id"] if token.tag != "h1" else "", words, ""))
            elif token.type in ("inline", "fence") and page.sections:
                anchor, words, text = page.sections[-1]
                page.sections[-1] = (anchor, words, f"{text} {token.content}")

    def rewritten(self, page, link):
        """A link of a page, as one of the site."""
        if EXTERNAL.match(link) or link.startswith("#"):
            return link
        path, hash_sign, anchor = link.partition("#")
        path = os.path.normpath(os.path.join(os.path.dirname(page.path), path))
        if path.startswith("..") or not os.path.exists(os.path.join(self.project, path)):
            raise SystemExit(f"{page.path}: {link} leads nowhere")
        return page.link_to(self.require(path)) + hash_sign + anchor

    def show_source(self, page):
        page.title = page.path
        text = self.read(page.path)
        try:
            lexer = get_lexer_for_filename(page.path, text)
        except ClassNotFound:
            lexer = get_lexer_by_name("bash" if text.startswith("#!") else "text")
        formatter = HtmlFormatter(linenos="inline", cssclass="highlight")
        code = highlight(text, lexer, formatter)
        page.body = f"<h1>{html.escape(page.path)}</h1>\n<div class=\"code\">{code}</div>\n"

    def list_folder(self, page, full):
        page.title = page.path + "/"
        names = sorted(name for name in os.listdir(full) if not name.startswith((".", "__")))
        rows = []
        for name in names:
            path = os.path.join(page.path, name)
            shown = self.title_of(path) if name.endswith(".md") else name
            rows.append(f'<li><a href="{page.link_to(self.require(path))}">{html.escape(shown)}</a></li>')
        page.body = f"<h1>{html.escape(page.title)}</h1>\n<ul>\n" + "\n".join(rows) + "\n</ul>\n"
