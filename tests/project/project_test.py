"""What holds of the project as a whole: the layers of src, the manual page, the staged program."""
import os
import re
import subprocess
import unittest
from pathlib import Path

SOURCE = Path(os.environ["NIMBREL_SOURCE"])
STAGE = Path(os.environ["NIMBREL_STAGE"])

# What each folder of src may include beside itself. The arrows only ever point down.
LAYERS = {
    "text": [],
    "platform": ["text"],
    "model": ["text"],
    "persistence": ["model", "platform", "text"],
    "compiler": ["model", "platform", "text"],
    "linking": ["platform", "text"],
    "preview": ["compiler", "model", "platform", "text"],
    "properties": ["model", "platform", "text"],
    "gallery": ["compiler", "persistence", "model", "platform", "text"],
    "shell": ["gallery", "properties", "preview", "linking", "persistence", "compiler", "model", "platform", "text"],
    "desktop": ["shell", "gallery", "properties", "linking", "preview", "compiler", "model", "platform", "text"],
    "cli": ["shell", "gallery", "properties", "persistence", "compiler", "linking", "preview", "model", "platform", "text"],
}
PROGRAMS = ["cli", "desktop"]


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


class Includes(unittest.TestCase):
    def test_every_folder_has_its_layer(self):
        folders = {path.parent.name for path in (SOURCE / "src").glob("*/CMakeLists.txt")}
        self.assertEqual(folders, set(LAYERS))

    def test_arrows_point_down(self):
        for path in sorted((SOURCE / "src").rglob("*.[ch]*")):
            folder, *below = path.relative_to(SOURCE / "src").parts
            for kind, name in re.findall(r'^\s*#\s*include\s*([<"])(.+)[>"]', path.read_text(), re.MULTILINE):
                with self.subTest(file=str(path), include=name):
                    allowed = self.own if kind == '"' else self.foreign
                    self.assertTrue(allowed(name, folder, below))

    def own(self, name, folder, below):
        if name.startswith("platform/posix/") and folder not in PROGRAMS:
            return below[0] == "posix"
        # product.h alone is made by the build.
        return name.split("/")[0] in [folder, *LAYERS[folder]] and (
            name == "text/product.h" or (SOURCE / "src" / name).is_file())

    def foreign(self, name, folder, below):
        if re.fullmatch(r"Q\w+|Qt\w*/.*", name):
            return folder == "desktop"
        # The library names the standard library alone, and the system in one folder.
        return folder in PROGRAMS or below[0] == "posix" or re.fullmatch("[a-z_]+", name)

    def test_links_follow_the_layers(self):
        for folder, layers in LAYERS.items():
            for name in re.findall(r"\bnimbrel_(\w+)", (SOURCE / "src" / folder / "CMakeLists.txt").read_text()):
                with self.subTest(folder=folder, link=name):
                    self.assertIn({"library": folder, "posix": "platform"}.get(name, name), [folder, *layers])


class Documents(unittest.TestCase):
    def test_their_links_lead_somewhere(self):
        elsewhere = {"build", "node_modules", "out"}
        for page in SOURCE.rglob("*.md"):
            name = page.relative_to(SOURCE).as_posix()
            if name.split("/")[0] in elsewhere or name.startswith("product/help/pages/"):
                continue  # pages of the help are made by a script that stops at a dead link
            for target in re.findall(r"\]\(([^)#]+)(?:#[^)]*)?\)", page.read_text()):
                with self.subTest(page=name, link=target):
                    self.assertTrue("://" in target or (page.parent / target).exists())

    def test_the_desktop_takes_what_is_installed_for_it(self):
        folder = SOURCE / "packaging/desktop"
        output("desktop-file-validate", *map(str, folder.glob("*.desktop")))
        output("mandoc", "-T", "lint", "-W", "warning", str(SOURCE / "packaging/man/Nimbrel.1"))
        output("xmllint", "--noout", str(folder / "nimbrel.xml"))
        output("appstreamcli", "validate", "--no-net",
               str(STAGE.parent / "packaging/example.nimbrel.Nimbrel.metainfo.xml"))


class Manual(unittest.TestCase):
    def test_it_is_well_formed_and_whole(self):
        page = str(SOURCE / "packaging/man/nbrc.1")
        output("mandoc", "-T", "lint", "-W", "warning", page)
        text = re.sub(".\b", "", output("mandoc", "-T", "ascii", page))  # bold is a letter over itself
        nbrc = STAGE / "nbrc"
        commands = re.findall(r"^  ([a-z]+) ", output(nbrc, "--help").split("Subcommands:")[1], re.MULTILINE)
        self.assertIn("compile", commands)
        for words in [[], *([command] for command in commands)]:
            named = [" ".join(["nbrc", *words])] if words else []
            for name in named + re.findall(r"--[a-z-]+", output(nbrc, *words, "--help")):
                with self.subTest(command=words, name=name):
                    self.assertIn(name, text)


class Stage(unittest.TestCase):
    def test_it_is_laid_out_as_on_a_users_machine(self):
        files = ["nbrc", "dot.gif", *(f"libraries/nbrlib{n}.js" for n in range(6))]
        for name in files:
            with self.subTest(file=name):
                self.assertGreater((STAGE / name).stat().st_size, 0)
        self.assertTrue(list((STAGE / "Examples").glob("*/*.nbr")))


if __name__ == "__main__":
    unittest.main()
