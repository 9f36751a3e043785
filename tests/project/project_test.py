"""Tests of the whole project: its documents, the manual pages, the staged program."""
import os
import re
import subprocess
import unittest
from pathlib import Path

SOURCE = Path(os.environ["NIMBREL_SOURCE"])
STAGE = Path(os.environ["NIMBREL_STAGE"])

def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


class Documents(unittest.TestCase):
    def test_links_lead_somewhere(self):
        elsewhere = {"build", "node_modules", "out"}
        for page in SOURCE.rglob("*.md"):
            name = page.relative_to(SOURCE).as_posix()
            if name.split("/")[0] in elsewhere or name.startswith("product/help/pages/"):
                continue  # make_help.py checks the links of help pages
            for target in re.findall(r"\]\(([^)#]+)(?:#[^)]*)?\)", page.read_text()):
                with self.subTest(page=name, link=target):
                    self.assertTrue("://" in target or (page.parent / target).exists())

    def test_installed_desktop_files_are_valid(self):
        folder = SOURCE / "packaging/desktop"
        output("desktop-file-validate", *map(str, folder.glob("*.desktop")))
        output("mandoc", "-T", "lint", "-W", "warning", str(SOURCE / "packaging/man/Nimbrel.1"))
        output("xmllint", "--noout", str(folder / "nimbrel.xml"))
        output("appstreamcli", "validate", "--no-net",
               str(STAGE.parent / "packaging/example.nimbrel.Nimbrel.metainfo.xml"))


class Manual(unittest.TestCase):
    def test_names_every_command_and_option(self):
        page = str(SOURCE / "packaging/man/nbrc.1")
        output("mandoc", "-T", "lint", "-W", "warning", page)
        text = re.sub(".\b", "", output("mandoc", "-T", "ascii", page))  # bold text overstrikes each letter
        nbrc = STAGE / "nbrc"
        commands = re.findall(r"^  ([a-z]+) ", output(nbrc, "--help").split("Subcommands:")[1], re.MULTILINE)
        self.assertIn("compile", commands)
        for words in [[], *([command] for command in commands)]:
            named = [" ".join(["nbrc", *words])] if words else []
            for name in named + re.findall(r"--[a-z-]+", output(nbrc, *words, "--help")):
                with self.subTest(command=words, name=name):
                    self.assertIn(name, text)


if __name__ == "__main__":
    unittest.main()
