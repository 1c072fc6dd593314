#!/usr/bin/env python3
"""Puts the page together: one file with the module, the scripts and the style in it, which may load nothing.

    build_page.py MODULE.wasm LENIENCY.md VERSION OUTPUT.html
"""
import base64
import gzip
import hashlib
import json
import pathlib
import re
import sys

HERE = pathlib.Path(__file__).resolve().parent
MOST_BYTES = 1 << 20


def source(name):
    return (HERE / name).read_text(encoding="utf-8")


def hash_of(text):
    digest = hashlib.sha256(text.encode("utf-8")).digest()
    return "'sha256-" + base64.b64encode(digest).decode() + "'"


def policy(script, style):
    """Only what is in the file runs, and nothing is loaded from anywhere."""
    return "; ".join([
        "default-src 'none'", f"script-src {hash_of(script)} 'wasm-unsafe-eval'", f"style-src {hash_of(style)}",
        "worker-src blob:", "img-src data:", "base-uri 'none'", "form-action 'none'"])


def rules(leniency):
    """The entries of docs/leniency.md by their number, without their tests."""
    entries = re.findall(r"^### (L\d+): (.*)\n((?:(?!#).*\n)*)", leniency, re.MULTILINE)
    if not entries:
        sys.exit("build_page.py: docs/leniency.md has no entries")
    return {number: {"name": name, "text": text_of(body)} for number, name, body in entries}


def text_of(body):
    """Paragraphs, each a line."""
    paragraphs = [" ".join(each.split()) for each in body.replace("`", "").split("\n\n")]
    return "\n".join(each for each in paragraphs if each and not re.match("Tests?:", each))


def inside_script(text):
    """The text, after a check that it cannot end its script element."""
    if re.search(r"</script|<!--", text, re.IGNORECASE):
        sys.exit("build_page.py: a source would end its script element")
    return text


def main():
    module, leniency, version, output = sys.argv[1:]
    script = inside_script("\n" + "".join(source(name) for name in ("view.js", "edit.js", "page.js")))
    template = source("page.html")
    style = re.search(r"<style>(.*?)</style>", template, re.DOTALL)[1]
    values = {
        "POLICY": policy(script, style),
        "VERSION": version,
        "RULES": inside_script(json.dumps(rules(pathlib.Path(leniency).read_text(encoding="utf-8"))).replace("<", "\\u003c")),
        "MODULE": base64.b64encode(gzip.compress(pathlib.Path(module).read_bytes(), 9, mtime=0)).decode(),
        "WORKER": inside_script(source("worker.js")),
        "SCRIPT": script,
    }
    page = re.sub(r"@([A-Z]+)@", lambda match: values[match[1]], template).encode("utf-8")
    if len(page) > MOST_BYTES:
        sys.exit(f"build_page.py: the page has {len(page)} bytes, more than {MOST_BYTES}")
    pathlib.Path(output).write_bytes(page)


if __name__ == "__main__":
    main()
