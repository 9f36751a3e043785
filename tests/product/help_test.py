"""Tests of the help and the tips: help_test.py BUILT_HELP SOURCE_TREE

Each topic number that the sources open has a topic, and the topic of a row of a property sheet names the row's choices
and limits. make_help.py itself rejects dead links in the pages, and headings and topics that occur twice.
"""
import re
import sys
import unittest
import xml.etree.ElementTree as xml
from pathlib import Path

HELP, SOURCE = (Path(argument) for argument in sys.argv[1:3]) if len(sys.argv) > 2 else sys.exit(__doc__)

HEADING = re.compile("h[12]")


def text_of(*nodes):
    return " ".join("".join("".join(node.itertext()) for node in nodes).split())


class BuiltPage:
    def __init__(self, path):
        root = xml.fromstring(path.read_text(encoding="utf-8"))
        self.main = root.find("body/main")
        self.anchors = [node.get("id") for node in root.iter() if node.get("id")]
        self.links = [node.get("href") for node in root.iter() if node.get("href")]

    def section(self, anchor):
        """The heading and text of a section."""
        nodes = list(self.main)
        begin = next(i for i, node in enumerate(nodes) if node.get("id") == anchor)
        end = next((i for i in range(begin + 1, len(nodes)) if HEADING.fullmatch(nodes[i].tag)), len(nodes))
        return text_of(*nodes[begin:end])


PAGES = {path.name: BuiltPage(path) for path in HELP.glob("*.html")}
PROJECT = xml.parse(HELP / "nimbrel.qhp").getroot()
TOPICS = {node.get("id").removeprefix("topic-"): node for node in PROJECT.iter("keyword") if node.get("id")}


def section_of(topic):
    page, _, anchor = TOPICS[topic].get("ref").partition("#")
    return PAGES[page].section(anchor)


def literal(text):
    return text.replace('\\"', '"')


STRING = r'"((?:[^"\\]|\\.)*)"'


class Row:
    """A row of a property sheet, parsed from its source."""

    def __init__(self, caption, editor, topic, lists):
        self.caption, self.topic = literal(caption).strip(), topic
        name = re.fullmatch(r"list\((\w+)\)", editor)
        limits = re.fullmatch(r"number\((-?\d+), (-?\d+)\)", editor)
        self.named = [literal(text) for text in re.findall(STRING, lists[name[1]])] if name else []
        if limits:
            self.named.append(f"{limits[1]} to {limits[2]}")


def rows_of(sheet):
    folder = SOURCE / "src/properties"
    texts = [next(folder.rglob(name)).read_text(encoding="utf-8") for name in ("element_rows.h", f"{sheet}_rows.cpp")]
    lists = dict(re.findall(r"auto (\w+) = std::to_array<Choice>\(\{(.*)\}\);", "\n".join(texts)))
    rows = re.findall(rf"^ *\{{{STRING}, +(\w+\([^()]*\)), +(\d+),", texts[1], re.MULTILINE)
    count = int(re.search(r"rows\.size\(\) == (\d+)", texts[1])[1])
    groups = len(re.findall(rf"^ *\{{{STRING}\}},$", texts[1], re.MULTILINE))
    return [Row(*row, lists) for row in rows], count - groups


def opened_topics():
    """Every topic number in the sources, with the file that contains it."""
    found = {}
    commands = (SOURCE / "src/shell/command_table.cpp").read_text(encoding="utf-8")
    for number in re.findall(rf"^ *\{{{STRING}, {STRING}, (?:{STRING}|\{{\}}), (\d+)", commands, re.MULTILINE):
        found[number[-1]] = "command_table.cpp"
    for path in (SOURCE / "src").rglob("*.cpp"):
        for number in re.findall(r"(?:\w*[tT]opic = |openTopic\()(\d+)", path.read_text(encoding="utf-8")):
            found[number] = path.name
    found.pop("0", None)
    return found


class Topics(unittest.TestCase):
    def test_every_opened_topic_exists(self):
        opened = opened_topics()
        for well_known in ("1590", "2280", "1900", "2650"):  # one for each way of writing a number in the sources
            self.assertIn(well_known, opened)
        for number, where in opened.items():
            with self.subTest(topic=number, opened_in=where):
                self.assertIn(number, TOPICS)

    def test_topics_of_rows_name_choices_and_limits(self):
        for sheet in ("menu", "submenu", "item"):
            rows, count = rows_of(sheet)
            self.assertEqual(len(rows), count, f"parsed rows of the {sheet} sheet")
            for row in rows:
                with self.subTest(sheet=sheet, row=row.caption, topic=row.topic):
                    self.assertIn(row.topic, TOPICS)
                    section = section_of(row.topic)
                    for text in [row.caption, *row.named]:
                        self.assertIn(text, section)

    def test_index_entries_are_the_headings(self):
        for number, topic in TOPICS.items():
            with self.subTest(topic=number):
                self.assertTrue(section_of(number).startswith(topic.get("name")))


class Pages(unittest.TestCase):
    def test_links_lead_somewhere(self):
        links = [(name, link) for name, page in PAGES.items() for link in page.links]
        links += [("index.html", node.get("ref")) for node in PROJECT.iter() if node.get("ref")]
        for page, link in links:
            file, _, anchor = link.partition("#")
            with self.subTest(page=page, link=link):
                self.assertTrue(not file or (HELP / file).is_file())
                if anchor:
                    self.assertIn(anchor, PAGES[file or page].anchors)

    def test_contents_and_project_name_every_page(self):
        reached = {link.partition("#")[0] for link in PAGES["index.html"].links}
        self.assertEqual(reached - {"help.css"}, set(PAGES) - {"index.html"})
        self.assertEqual({node.text for node in PROJECT.iter("file")}, {"help.css", *PAGES})


class Tips(unittest.TestCase):
    def test_each_line_completes_the_question(self):
        tips = (SOURCE / "product/TIPOFDAY.TXT").read_bytes().decode("cp1252")
        self.assertTrue(tips.endswith("\r\n"))
        self.assertNotRegex(tips, r"[^\r]\n")
        lines = tips.split("\r\n")[:-1]
        self.assertEqual(len(set(lines)), len(lines))
        for line in filter(None, lines):
            with self.subTest(tip=line):
                self.assertRegex(line, r"^(that|how) .{20,230}\?$")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
