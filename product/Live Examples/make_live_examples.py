#!/usr/bin/python3
"""Makes the live examples: make_live_examples.py --nbrc PATH OUT_DIR

Makes a page OUT_DIR/FILE/FILE.html for each row of `examples.json`, with two to four frames. Each frame shows `menu.nbr`
with one changed setting, compiled and linked by nbrc; all menus are in OUT_DIR/menus and share libraries and pictures.

A row of the table:

    file, captions   the page, and the captions of the property sheet rows that open it
    text             the explanation on the page
    settings         for each frame its heading, and the value of `property` or an object of values
    with             values for all frames of the page, in addition to those of `always`
    size, page       the size of a frame (a class of example.css) and the other content of its page (a key of PAGES)

Values are given by property name. The prefixes `menu.`, `submenu.` and `item.` select all elements of a kind, the name of
an element selects that element; without a prefix, the kind of the group is selected. A name without the digit of a state
means all three states.
"""
import argparse
import html
import json
import re
import shutil
import subprocess
import tempfile
from pathlib import Path

HERE = Path(__file__).parent
KINDS = {"menu": "M", "submenu": "S", "item": "I"}
# Properties that menu files put between exclamation marks.
MARKED = {"menuname", "SubmenuName", "ItemName1", "ItemName2", "ItemName3", "StatusBarText"}

PAGES = {
    "": "",
    "light": '<style>body {{ background: #f1f3f5 }}</style>\n',  # for text on the page itself
    "long": '<div class="long"><p>Scroll me, down and to the right.</p></div>\n',
    "box": '<div class="box">A box of the page</div>\n',
    "caller": '<p><button type="button" onclick="nbrShowMenu(\'{name}\')">Show menu</button></p>\n<p id="told"></p>\n',
    "told": '<p id="told"></p>\n',
    "places": '<p class="below" id="tea">Tea, a place of this page</p>\n',
    "frame": '<iframe name="content" title="content" class="inner" src="choose.html"></iframe>\n',
}

FRAME = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>{title}</title>
<link rel="stylesheet" href="example.css">
</head>
<body class="frame">
{body}</body>
</html>
"""

EXAMPLE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>{title}</title>
<link rel="stylesheet" href="../menus/example.css">
</head>
<body>
<h1>{title}</h1>
<p>{text}</p>
<div class="settings">
{frames}</div>
</body>
</html>
"""

FIGURE = """<figure class="{size}">
<figcaption>{heading}</figcaption>
<iframe title="{title}: {heading}" src="../menus/{name}.html"></iframe>
</figure>
"""


class Menu:
    """The menu on which all examples are based, with its pictures."""

    def __init__(self, nbrc, path):
        self.lines = path.read_bytes().decode("cp1252").split("\r\n")
        shown = subprocess.run([nbrc, "show", "--json", path], check=True, capture_output=True, text=True).stdout
        self.elements = json.loads(shown)["elements"]

    def text(self, values, kind):
        """Returns the menu file with these values. Values without a prefix apply to elements of the kind."""
        lines = list(self.lines)
        elements = {element["key"]: dict(element["properties"]) for element in self.elements}
        for name, value in values.items():
            wanted, _, name = name.rpartition(".")
            keys = self.keys(wanted or kind)
            for key in keys:
                put(elements[key], name, value)
        for key, properties in elements.items():
            lines[lines.index(key) + 1] = record(key[0], properties)
        return "\r\n".join(lines)

    def keys(self, wanted):
        keys = [element["key"] for element in self.elements
                if element["key"][0] == KINDS.get(wanted) or element["text"] == wanted and element["key"][0] == "I"]
        if not keys:
            raise ValueError(f"no element {wanted}")
        return keys


def put(properties, name, value):
    names = [name] if name in properties else [f"{name}{state}" for state in (1, 2, 3)]
    for each in names:
        if each not in properties:
            raise ValueError(f"no property {name}")
        properties[each] = value


def record(kind, properties):
    def stored(name, value):
        text = str(value).replace(",", "\xb3")
        return f"!{text}!" if name in MARKED else text
    return ",".join([*(stored(name, value) for name, value in properties.items()), f"[nbrE{kind}]"])


class Maker:
    def __init__(self, nbrc, source, out):
        self.nbrc = nbrc
        self.source = source
        self.menus = out / "menus"
        self.out = out
        self.menu = Menu(nbrc, source)

    def run(self, *words):
        subprocess.run([self.nbrc, *words], check=True, stdout=subprocess.DEVNULL)

    def add_frame(self, name, title, page, menu_text):
        """Makes a page in `menus` that shows one menu."""
        self.source.write_bytes(menu_text.encode("cp1252"))
        script = self.menus / f"{name}.js"
        target = self.menus / f"{name}.html"
        self.run("compile", self.source, "--to", script)
        target.write_text(FRAME.format(title=title, body=PAGES[page].format(name=name)), encoding="utf-8")
        self.run("link", script, target)

    def add_example(self, kind, group, example):
        title = html.escape(" / ".join(caption.strip() for caption in example["captions"]))
        figures = []
        for number, (setting, value) in enumerate(example["settings"].items(), 1):
            name = f"{example['file'].removeprefix('LE_')}_{number}"
            heading = html.escape(setting)
            own = value if isinstance(value, dict) else {example["property"]: value}
            values = group["always"] | example.get("with", {}) | own
            self.add_frame(name, heading, example.get("page", ""), self.menu.text(values, kind))
            figures.append(FIGURE.format(size=example.get("size", "third"), heading=heading, title=title, name=name))
        folder = self.out / example["file"]
        folder.mkdir()
        text = " ".join([example["text"], group.get("hint", "")]).strip()
        page = EXAMPLE.format(title=title, text=text, frames="".join(figures))
        (folder / f"{example['file']}.html").write_text(page, encoding="utf-8")


def clear(out):
    """Removes only what an earlier run has made."""
    for folder in [*out.glob("LE_*"), out / "menus"]:
        shutil.rmtree(folder, ignore_errors=True)


def with_shared_folders(text):
    """Sets the two lines of the menu file that name the shared folders."""
    lines = text.split("\r\n")
    lines[3:5] = ["libraries", "pictures"]
    return "\r\n".join(lines)


def make(nbrc, rsvg_convert, out):
    clear(out)
    (out / "menus").mkdir(parents=True)
    for file in [HERE / "example.css", *(HERE / "pages").iterdir()]:
        shutil.copy(file, out / "menus")
    with tempfile.TemporaryDirectory() as folder:
        source = Path(folder) / "menu.nbr"
        source.write_bytes(with_shared_folders((HERE / "menu.nbr").read_bytes().decode("cp1252")).encode("cp1252"))
        pictures = Path(folder) / "pictures"
        pictures.mkdir()
        for drawing in sorted((HERE / "pictures-src").glob("*.svg")):
            subprocess.run([rsvg_convert, "-o", pictures / f"{drawing.stem}.png", drawing], check=True)
        maker = Maker(nbrc, source, out)
        for kind, group in json.loads((HERE / "examples.json").read_text(encoding="utf-8")).items():
            for example in group["examples"]:
                maker.add_example(kind, group, example)


def main():
    words = argparse.ArgumentParser(description="Makes the live examples of the property sheets.")
    words.add_argument("out", type=Path)
    words.add_argument("--nbrc", required=True)
    words.add_argument("--rsvg-convert", default="rsvg-convert")
    given = words.parse_args()
    make(given.nbrc, given.rsvg_convert, given.out)


if __name__ == "__main__":
    main()
