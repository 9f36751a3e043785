"""Tests of the gallery's styles: gallery_test.py NBRC STAGE

Every style can be applied to a menu, has legible text in each state, and names existing pictures."""
import json
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

NBRC, STAGE = (Path(argument).resolve() for argument in sys.argv[1:3]) if len(sys.argv) > 2 else sys.exit(__doc__)
GALLERY = Path(__file__).parents[2] / "product" / "gallery"
LEAST_CONTRAST = 4.5


def luminance(colour):
    parts = [int(colour[i:i + 2], 16) / 255 for i in (1, 3, 5)]
    linear = [part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4 for part in parts]
    return sum(weight * part for weight, part in zip((0.2126, 0.7152, 0.0722), linear))


def contrast(one, other):
    lighter, darker = sorted((luminance(one), luminance(other)), reverse=True)
    return (lighter + 0.05) / (darker + 0.05)


def dressed(name, folder):
    """Applies the style to the default menu and returns the properties of its main menu and first item."""
    plain, out = folder / "plain.nbr", folder / "dressed.nbr"
    if not plain.exists():
        subprocess.run([NBRC, "new", plain], check=True)
    subprocess.run([NBRC, "--home", STAGE, "style", "apply", name, plain, "--to", out], check=True)
    run = subprocess.run([NBRC, "show", "--json", out], check=True, capture_output=True, text=True)
    elements = {element["key"]: element["properties"] for element in json.loads(run.stdout)["elements"]}
    return elements["M0"], elements["I1"]


class Gallery(unittest.TestCase):
    names = sorted(path.stem for path in (STAGE / "gallery").glob("*.nbs"))

    def test_text_is_legible_in_every_state(self):
        self.assertGreater(len(self.names), 0)
        # The text on a pattern must contrast with both of its colours.
        table = json.loads((GALLERY / "styles.json").read_text(encoding="utf-8"))["styles"]
        patterned = {style["name"]: [(text, style["pattern"][1]) for text, own in zip(style["text"], style["item"]) if not own]
                     for style in table if "pattern" in style}
        with tempfile.TemporaryDirectory() as folder:
            for name in self.names:
                menu, item = dressed(name, Path(folder))
                texts = [(menu["TitleFontColor"], menu["TitleBGColor"])]
                texts += [(text, line) for text, line in patterned.get(name, [])]
                texts += [(item[f"FontColor{state}"], item[f"BGColor{state}"]) for state in (1, 2, 3)]
                for text, background in texts:
                    with self.subTest(style=name, text=text, background=background):
                        shown = menu["BGColor"] if background == "n" else background
                        self.assertGreaterEqual(contrast(text, shown), LEAST_CONTRAST)

    def test_pictures_exist(self):
        for name in self.names:
            listed = (STAGE / "gallery" / f"{name}.nbs").read_text(encoding="cp1252").splitlines()[1]
            pictures = [path.replace("\\", "/") for path in listed.split(None, 1)[1].rstrip(",").split(",")]
            self.assertGreater(len(pictures), 1, name)
            for picture in pictures:
                self.assertTrue((STAGE / "gallery" / picture).is_file(), picture)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
