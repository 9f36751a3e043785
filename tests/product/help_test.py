"""What holds of the help and the tips: help_test.py BUILT_HELP SOURCE_TREE

The help is complete against the sources: each topic number that the program opens has a page, and the topic of a row
of a property sheet tells what the row's list offers and how far its numbers go.
"""
import json
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
        self.title = root.findtext("head/title")
        self.main = root.find("body/main")
        self.anchors = [node.get("id") for node in root.iter() if node.get("id")]
        self.links = [node.get("href") for node in root.iter() if node.get("href")]

    def section(self, anchor):
        """Heading and text of a section, up to the next one."""
        nodes = list(self.main)
        begin = next(i for i, node in enumerate(nodes) if node.get("id") == anchor)
        end = next((i for i in range(begin + 1, len(nodes)) if HEADING.fullmatch(nodes[i].tag)), len(nodes))
        return text_of(*nodes[begin:end])


PAGES = {path.name: BuiltPage(path) for path in HELP.glob("*.html")}
TOPICS = json.loads((HELP / "topics.json").read_text(encoding="utf-8"))


def section_of(topic):
    page, _, anchor = TOPICS[topic]["page"].partition("#")
    return PAGES[page].section(anchor)


def literal(text):
    return text.replace('\\"', '"')


STRING = r'"((?:[^"\\]|\\.)*)"'


class Row:
    """A row of a property sheet, as its source has it."""

    def __init__(self, caption, editor, topic, lists):
        self.caption, self.topic = literal(caption).strip(), topic
        name = re.fullmatch(r"list\((\w+)\)", editor)
        limits = re.fullmatch(r"number\((-?\d+), (-?\d+)\)", editor)
        self.told = [literal(text) for text in re.findall(STRING, lists[name[1]])] if name else []
        if limits:
            self.told.append(f"{limits[1]} to {limits[2]}")


def rows_of(sheet):
    folder = SOURCE / "src/properties"
    texts = [(folder / name).read_text(encoding="utf-8") for name in ("element_rows.h", f"{sheet}_rows.cpp")]
    lists = dict(re.findall(r"auto (\w+) = std::to_array<Choice>\(\{(.*)\}\);", "\n".join(texts)))
    rows = re.findall(rf"^ *\{{{STRING}, +(\w+\([^()]*\)), +(\d+),", texts[1], re.MULTILINE)
    count = int(re.search(r"rows\.size\(\) == (\d+)", texts[1])[1])
    groups = len(re.findall(rf"^ *\{{{STRING}\}},$", texts[1], re.MULTILINE))
    return [Row(*row, lists) for row in rows], count - groups


def opened_topics():
    """Every topic number that the sources name, with the file that names it."""
    found = {}
    commands = (SOURCE / "src/shell/include/shell/command_table.h").read_text(encoding="utf-8")
    for number in re.findall(rf"^ *\{{{STRING}, {STRING}, (?:{STRING}|\{{\}}), (\d+)", commands, re.MULTILINE):
        found[number[-1]] = "command_table.h"
    for path in (SOURCE / "src").rglob("*.cpp"):
        for number in re.findall(r"(?:\w*[tT]opic = |openTopic\()(\d+)", path.read_text(encoding="utf-8")):
            found[number] = path.name
    found.pop("0", None)
    return found


class Topics(unittest.TestCase):
    def test_what_the_program_opens_is_there(self):
        opened = opened_topics()
        for well_known in ("1590", "2280", "1900", "2650"):  # one of each way in which a number stands in the sources
            self.assertIn(well_known, opened)
        for number, where in opened.items():
            with self.subTest(topic=number, opened_in=where):
                self.assertIn(number, TOPICS)

    def test_rows_have_topics_that_tell_their_choices_and_limits(self):
        for sheet in ("menu", "submenu", "item"):
            rows, count = rows_of(sheet)
            self.assertEqual(len(rows), count, f"rows of the {sheet} sheet that were understood")
            for row in rows:
                with self.subTest(sheet=sheet, row=row.caption, topic=row.topic):
                    self.assertIn(row.topic, TOPICS)
                    section = section_of(row.topic)
                    for told in [row.caption, *row.told]:
                        self.assertIn(told, section)

    def test_titles_are_the_headings(self):
        for number, topic in TOPICS.items():
            with self.subTest(topic=number):
                self.assertTrue(section_of(number).startswith(topic["title"]))


class Pages(unittest.TestCase):
    def test_links_lead_somewhere(self):
        for name, page in PAGES.items():
            for link in page.links:
                file, _, anchor = link.partition("#")
                with self.subTest(page=name, link=link):
                    self.assertTrue(not file or (HELP / file).is_file())
                    if anchor:
                        self.assertIn(anchor, PAGES[file or name].anchors)

    def test_anchors_and_titles_are_unique(self):
        for name, page in PAGES.items():
            with self.subTest(page=name):
                self.assertEqual(len(page.anchors), len(set(page.anchors)))
        titles = [page.title for page in PAGES.values()]
        self.assertEqual(len(titles), len(set(titles)))

    def test_the_contents_lead_to_every_page(self):
        reached = {link.partition("#")[0] for link in PAGES["index.html"].links}
        self.assertEqual(reached - {"help.css"}, set(PAGES) - {"index.html"})

    def test_the_project_names_what_is_there(self):
        project = xml.parse(HELP / "nimbrel.qhp").getroot()
        files = {node.text for node in project.iter("file")}
        self.assertEqual(files, {"help.css", *PAGES})
        refs = {node.get("ref") for node in project.iter() if node.get("ref")}
        for ref in refs:
            file, _, anchor = ref.partition("#")
            with self.subTest(ref=ref):
                self.assertIn(file, files)
                self.assertIn(anchor, ["", *PAGES[file].anchors])
        numbers = {node.get("id") for node in project.iter("keyword")} - {None}
        self.assertEqual(numbers, {f"topic-{number}" for number in TOPICS})


class Tips(unittest.TestCase):
    def setUp(self):
        self.bytes = (SOURCE / "product/TIPOFDAY.TXT").read_bytes()
        self.lines = self.bytes.decode("cp1252").split("\r\n")

    def test_each_is_a_line_of_its_own(self):
        self.assertEqual(self.lines.pop(), "", "the last line has its end")
        self.assertEqual(self.bytes.count(b"\n"), len(self.lines), "line ends are CR LF")
        self.assertGreaterEqual(len(set(self.lines)), 60)
        self.assertEqual(len(set(self.lines)), len(self.lines))

    def test_each_reads_on_from_the_question(self):
        for line in filter(None, self.lines):
            with self.subTest(tip=line):
                self.assertRegex(line, r"^(that|how) .{20,230}\?$")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
