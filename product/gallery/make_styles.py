#!/usr/bin/python3
"""Makes the styles of the gallery from styles.json: make_styles.py --nbrc PATH --rsvg-convert PATH --home STAGE WORK_DIR

A macro sets each style on a new menu through the program's property sheets and saves it as an author would, so the
program itself writes the style file. The arrows are drawn here, in the colours of the style's texts.
"""
import argparse
import json
import subprocess
from pathlib import Path

HERE = Path(__file__).parent
STATES = (1, 3, 4)  # columns of an item's sheet

# What a style sets, with the captions of the rows.
MENU = {"titlePadding": "Title Padding", "titleFont": "Title Text Font", "titleSize": "Title Text Size", "titleBold": "Title Text Bold",
        "titleText": "Title Text Color", "titleBg": "Title BG Color", "bg": "Main Menu BG Color", "bgImage": "Main Menu BG Image",
        "borderStyle": "Main Menu Border Style", "borderWidth": "Main Menu Border Width", "borderColour": "Main Menu Border Color",
        "gap": "Distance Between Items"}
ITEM = {"alignment": "Item Content Alignment", "padding": "Item Padding", "font": "Item Text Font", "size": "Item Text Size",
        "bold": "Item Text Bold", "underline": "Item Text Underlined", "text": "Item Text Color", "arrow": "\"Has Submenu\" Image",
        "borderStyle": "Item Border Style", "borderWidth": "Item Border Width", "borderColour": "Item Border Color", "bg": "Item BG Color"}

ARROWS = {
    "triangle": '<path d="M3 1.5 7.5 5 3 8.5z" fill="{0}"/>',
    "chevron": '<path d="m3 1.5 4 3.5-4 3.5" fill="none" stroke="{0}" stroke-width="1.6"/>',
}
# Background tiles: side in pixels, and the drawing on the colour of the menu.
PATTERNS = {
    "grid": (16, '<path d="M0 .5h16M.5 0v16" stroke="{0}"/>'),
    "lines": (4, '<path d="M0 .5h4" stroke="{0}"/>'),
    "weave": (8, '<path d="M0 0h4v4H0zM4 4h4v4H4z" fill="{0}"/>'),
}
BORDERS = {"none", "solid", "outset", "inset"}


def styles():
    table = json.loads((HERE / "styles.json").read_text(encoding="utf-8"))
    whole = [table["defaults"] | style for style in table["styles"]]
    for style in whole:
        for kind in (style["border"][0], style["itemBorder"][0]):
            if kind not in BORDERS:  # the sheet would replace it silently
                raise SystemExit(f"{style['name']}: no border is {kind}")
    return whole


def quoted(text):
    return '"' + str(text).replace("\\", "\\\\").replace('"', '\\"') + '"'


def picture(name, size, body, converter, folder):
    drawing = folder / f"{name}.svg"
    made = drawing.with_suffix(".png")
    text = f'<svg xmlns="http://www.w3.org/2000/svg" width="{size}" height="{size}" viewBox="0 0 {size} {size}">{body}</svg>\n'
    if not made.exists() or drawing.read_text(encoding="utf-8") != text:
        drawing.write_text(text, encoding="utf-8")
        subprocess.run([converter, "-o", made, drawing], check=True)
    return str(made).replace("/", "\\")  # the form of paths in sheets


def arrow(style, colour, converter, folder):
    return picture(f"arrow-{style['arrow']}-{colour[1:]}", 10, ARROWS[style["arrow"]].format(colour), converter, folder)


def pattern(style, converter, folder):
    kind, colour = style["pattern"]
    size, drawn = PATTERNS[kind]
    return picture(f"{kind}-{colour[1:]}", size, drawn.format(colour), converter, folder)


def play(nbrc, home, macro):
    return subprocess.run([nbrc, "--home", home, "play", "-"], input=macro, capture_output=True, encoding="utf-8")


def rows_of_sheets(nbrc, home):
    """The numbers of the rows by caption, for the sheets of the main menu and of an item."""
    printed = play(nbrc, home, "select M0\nprint sheet\nselect I1\nprint sheet\n").stdout.splitlines()
    sheets = [json.loads(line)["sheet"]["rows"] for line in printed]
    return [{row["caption"]: number for number, row in enumerate(rows)} for rows in sheets]


def macro_of(style, rows, converter, folder):
    """Returns the statements that apply the style to a new menu and save it."""
    menu_rows, item_rows = rows

    def edit(row, column, value):
        return f"edit {row} {column} {quoted(value)}"

    border, over = style["border"], 1
    title = {"titlePadding": style["padding"] - 2, "titleFont": style["font"], "titleSize": style["size"], "titleBold": "yes",
             "titleText": style["text"][over], "titleBg": style["item"][over] or style["bg"], "bg": style["bg"],
             "borderStyle": border[0], "borderWidth": border[1], "borderColour": border[2], "gap": style["gap"]}
    if "pattern" in style:
        title["bgImage"] = pattern(style, converter, folder)
    lines = ["select M0"]
    lines += [edit(menu_rows[MENU[name]], 1, value) for name, value in title.items()]
    lines.append("select I1")
    kind, width, colours = style["itemBorder"]
    for state, column in enumerate(STATES):
        item = {"alignment": "Left", "padding": style["padding"], "font": style["font"], "size": style["size"],
                "bold": style["bold"][state], "underline": style.get("underline", ["no"] * 3)[state],
                "text": style["text"][state], "arrow": arrow(style, style["text"][state], converter, folder),
                "borderStyle": kind, "borderWidth": width, "borderColour": colours[state],
                "bg": style["item"][state]}
        lines += [edit(item_rows[ITEM[name]], column, value) for name, value in item.items()]
    lines += ["form frmSaveStyle " + quoted("txtStyleName=" + style["name"]) + " btnOk!", "run mnuStyleSaveStyle"]
    return [*lines, "answer No", "run mnuFileNew"]


def main():
    words = argparse.ArgumentParser(description="Makes the styles of the gallery.")
    words.add_argument("--nbrc", type=Path, required=True)
    words.add_argument("--rsvg-convert", required=True)
    words.add_argument("--home", type=Path, required=True, help="the program's folder; the styles go to its gallery")
    words.add_argument("work", type=Path)
    given = words.parse_args()
    given.work.mkdir(parents=True, exist_ok=True)
    for style in styles():  # an existing style would bring up a question
        (given.home / "gallery" / (style["name"] + ".nbs")).unlink(missing_ok=True)
    rows = rows_of_sheets(given.nbrc, given.home)
    lines = [line for style in styles() for line in macro_of(style, rows, given.rsvg_convert, given.work.resolve())]
    run = play(given.nbrc, given.home, "\n".join(lines) + "\n")
    saved = run.stdout.count("Style created successfully")
    if run.returncode != 0 or saved != len(styles()):
        raise SystemExit(f"{saved} of {len(styles())} styles were saved\n{run.stderr}{run.stdout[-2000:]}")


if __name__ == "__main__":
    main()
