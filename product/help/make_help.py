#!/usr/bin/python3
"""Makes the help from its pages: make_help.py OUT_DIR --shortcuts FILE [--qch FILE --generator PATH]

Writes to OUT_DIR an HTML page for each page in `pages`, `index.html`, the style sheet and the Qt help project
`nimbrel.qhp`; with --qch it also runs Qt's generator to compile the project. A page begins with

    title: the title of the page
    topics: NUMBER ANCHOR, one per line: the topics that the program opens by number
    keywords: WORDS [#ANCHOR], one per line: index entries besides the headings

A line `{shortcuts PLACE}` in a table stands for the rows of the program's own shortcuts that work there, from FILE.
Links are written `page.md`, `page.md#anchor` or `topic:NUMBER`; a dead link is an error. `contents.txt` has the order
of the pages: the titles of the parts, each followed by the indented names of its pages.
"""
import argparse
import html
import re
import shutil
import subprocess
import sys
from dataclasses import dataclass
from pathlib import Path
from xml.sax.saxutils import quoteattr

import markdown

HERE = Path(__file__).parent
STYLE = "help.css"
INDEX = "index.html"

FRAME = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8" />
<meta name="viewport" content="width=device-width, initial-scale=1" />
<meta name="color-scheme" content="light dark" />
<title>{title}</title>
<link rel="stylesheet" type="text/css" href="{style}" />
</head>
<body>
{above}<main>
<h1>{heading}</h1>
{body}
</main>
{below}</body>
</html>
"""


@dataclass
class Page:
    name: str
    title: str
    topics: dict      # number: anchor
    keywords: list    # (words, anchor or "")
    sections: list    # (anchor, heading), top level only
    headings: dict    # anchor: heading, all levels
    body: str         # HTML, with the links of the source

    @property
    def file(self):
        return self.name + ".html"


class Fault(Exception):
    pass


def flattened(tokens):
    for token in tokens:
        yield token["id"], html.unescape(token["name"])
        yield from flattened(token["children"])


def keyword(line):
    words, _, anchor = line.partition(" #")
    return words.strip(), anchor


def with_shortcuts(text, lines):
    """Replaces `{shortcuts PLACE}` by rows of a table."""
    def rows(place):
        for line in lines:
            where, keys, caption, topic = line.split("\t")
            if where != place:
                continue
            keys = ", ".join(f"<kbd>{key.strip()}</kbd>" for key in keys.split(";"))
            caption = caption.removesuffix("...")
            yield f"| {keys} | " + (f"[{caption}](topic:{topic})" if topic != "0" else caption) + " |"
    return re.sub(r"^\{shortcuts (\w+)\}$", lambda found: "\n".join(rows(found[1])), text, flags=re.MULTILINE)


def read_page(path, shortcuts):
    converter = markdown.Markdown(extensions=["meta", "toc", "attr_list", "tables", "def_list", "fenced_code"])
    body = converter.convert(with_shortcuts(path.read_text(encoding="utf-8"), shortcuts))
    topics = dict(line.split() for line in converter.Meta.get("topics", []))
    headings = list(flattened(converter.toc_tokens))
    if len(dict(headings)) < len(headings):
        raise Fault(f"{path.name}: two headings have the same anchor")
    page = Page(
        name=path.stem,
        title=converter.Meta["title"][0],
        topics={int(number): anchor for number, anchor in topics.items()},
        keywords=[keyword(line) for line in converter.Meta.get("keywords", [])],
        sections=[(token["id"], html.unescape(token["name"])) for token in converter.toc_tokens],
        headings=dict(headings),
        body=body)
    for anchor in [*page.topics.values(), *(anchor for _, anchor in page.keywords if anchor)]:
        if anchor not in page.headings:
            raise Fault(f"{path.name}: there is no heading #{anchor}")
    return page


def read_contents(path):
    """Returns the parts in order, as (title, names of pages)."""
    parts = []
    for line in path.read_text(encoding="utf-8").splitlines():
        if line.startswith(" "):
            parts[-1][1].append(line.strip())
        elif line:
            parts.append((line, []))
    return parts


class Help:
    def __init__(self, source, shortcuts):
        self.parts = read_contents(source / "contents.txt")
        self.order = [name for _, names in self.parts for name in names]
        self.pages = {path.stem: read_page(path, shortcuts) for path in sorted((source / "pages").glob("*.md"))}
        if sorted(self.order) != sorted(self.pages):
            raise Fault(f"contents.txt and pages differ in {set(self.order) ^ set(self.pages)}")
        if len({page.title for page in self.pages.values()}) < len(self.pages):
            raise Fault("two pages have the same title")
        self.topics = {}  # number: (page, anchor)
        for page in self.pages.values():
            for number, anchor in page.topics.items():
                if number in self.topics:
                    raise Fault(f"{page.name}: topic {number} is defined twice")
                self.topics[number] = (page, anchor)

    def target(self, link, page):
        """Translates a link of a page to an address in the built help."""
        if link.startswith("topic:"):
            found = self.topics.get(int(link[6:]))
            if found is None:
                raise Fault(f"{page.name}: there is no topic {link[6:]}")
            return found[0].file + "#" + found[1]
        name, _, anchor = link.partition("#")
        target = self.pages.get(name.removesuffix(".md")) if name else page
        if target is None or (anchor and anchor not in target.headings):
            raise Fault(f"{page.name}: the link {link} leads nowhere")
        return (target.file if name else "") + ("#" + anchor if anchor else "")

    def body(self, page):
        return re.sub(r'href="([^"]*)"', lambda link: f'href="{self.target(link[1], page)}"', page.body)


def link(file, title):
    return f'<a href="{file}">{html.escape(title)}</a>'


def frame(heading, title, body, above="", below=""):
    return FRAME.format(title=html.escape(title), style=STYLE, heading=html.escape(heading), body=body, above=above,
                        below=below)


def page_text(manual, page):
    place = manual.order.index(page.name)
    ways = [link(INDEX, "Contents")]
    if place > 0:
        before = manual.pages[manual.order[place - 1]]
        ways.append("Back: " + link(before.file, before.title))
    if place + 1 < len(manual.order):
        after = manual.pages[manual.order[place + 1]]
        ways.append("Next: " + link(after.file, after.title))
    above = f"<nav><p class=\"ways\">{ways[0]}</p></nav>\n"
    below = "<nav><hr />\n<p class=\"ways\">" + " &#160; ".join(ways) + "</p></nav>\n"
    return frame(page.title, page.title + " - Nimbrel Help", manual.body(page), above, below)


def index_text(manual):
    lines = []
    for title, names in manual.parts:
        lines.append(f"<h2>{html.escape(title)}</h2>\n<ul>")
        for page in map(manual.pages.get, names):
            sections = [f"<li>{link(page.file + '#' + anchor, heading)}</li>" for anchor, heading in page.sections
                        if anchor in page.topics.values()]
            below = "\n<ul>\n" + "\n".join(sections) + "\n</ul>\n" if sections else ""
            lines.append(f"<li>{link(page.file, page.title)}{below}</li>")
        lines.append("</ul>")
    return frame("Nimbrel Help", "Nimbrel Help", "\n".join(lines))


def toc_lines(manual):
    yield f'<section title="Nimbrel Help" ref="{INDEX}">'
    for title, names in manual.parts:
        yield f'<section title={quoteattr(title)} ref="{manual.pages[names[0]].file}">'
        for page in map(manual.pages.get, names):
            yield f'<section title={quoteattr(page.title)} ref="{page.file}">'
            for anchor, heading in page.sections:
                yield f'<section title={quoteattr(heading)} ref="{page.file}#{anchor}"/>'
            yield "</section>"
        yield "</section>"
    yield "</section>"


def keyword_lines(manual):
    entries = set()
    for page in manual.pages.values():
        entries.add((page.title, "", page.file))
        entries |= {(words, "", page.file + ("#" + anchor if anchor else "")) for words, anchor in page.keywords}
        entries |= {(heading, "", f"{page.file}#{anchor}") for anchor, heading in page.sections
                    if anchor not in page.topics.values()}
    for number, (page, anchor) in manual.topics.items():
        entries.add((page.headings[anchor], f"topic-{number}", f"{page.file}#{anchor}"))
    for name, key, ref in sorted(entries, key=lambda entry: (entry[0].lower(), entry)):
        yield f'<keyword name={quoteattr(name)}' + (f' id="{key}"' if key else "") + f' ref="{ref}"/>'


def project_text(manual):
    files = [INDEX, STYLE, *(page.file for page in manual.pages.values())]
    return "\n".join([
        '<?xml version="1.0" encoding="UTF-8"?>', '<QtHelpProject version="1.0">',
        "<namespace>nimbrel.help</namespace>", "<virtualFolder>help</virtualFolder>", "<filterSection>",
        "<toc>", *toc_lines(manual), "</toc>", "<keywords>", *keyword_lines(manual), "</keywords>",
        "<files>", *(f"<file>{file}</file>" for file in files), "</files>",
        "</filterSection>", "</QtHelpProject>", ""])


def main():
    words = argparse.ArgumentParser(description="Makes the help from its pages.")
    words.add_argument("out", type=Path)
    words.add_argument("--shortcuts", type=Path, required=True, help="what list_shortcuts prints")
    words.add_argument("--qch", type=Path, help="the compiled help file to make")
    words.add_argument("--generator", default="qhelpgenerator", help="Qt's help generator")
    given = words.parse_args()
    try:
        manual = Help(HERE, given.shortcuts.read_text(encoding="utf-8").splitlines())
        made = {page.file: page_text(manual, page) for page in manual.pages.values()}
    except Fault as fault:
        sys.exit(f"make_help: {fault}")
    made |= {INDEX: index_text(manual), "nimbrel.qhp": project_text(manual)}
    given.out.mkdir(parents=True, exist_ok=True)
    for name, text in made.items():
        (given.out / name).write_text(text, encoding="utf-8")
    shutil.copyfile(HERE / STYLE, given.out / STYLE)
    if given.qch:
        project = str(given.out / "nimbrel.qhp")
        subprocess.run([given.generator, "-s", project, "-o", str(given.qch)], check=True)


if __name__ == "__main__":
    main()
