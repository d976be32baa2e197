#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Cuts the cells of the gallery out of its picture, for the pages of the drawing calls.

    docs/reference/pictures.py docs/gallery.png FOLDER

pictures.json says which cells show a call: a section, a row, and the first and the last column. The
measures are those of examples/gallery; a cell without its frame where it should be is an error.

Needs Python 3 and its imaging library (PIL).
"""
import json
import pathlib
import sys

MARGIN, HEADING, CELL, HEIGHT, GAP, ROW_WIDTH = 12, 26, 112, 72, 16, 8 * 128
STEP = HEIGHT + 50
FRAME = (0xD8, 0xD8, 0xD8)
LIST = pathlib.Path(__file__).resolve().with_name("pictures.json")


def plan():
    return json.loads(LIST.read_text(encoding="utf-8"))


def names_of(call):
    """The files that show a call."""
    return [f"{call}-{number}.png" for number, _ in enumerate(plan()["calls"].get(call, []))]


def tops(sections):
    top = MARGIN
    for name, section in sections.items():
        yield name, top
        top += HEADING + section["rows"] * STEP + 8


def box(sections, name, row, first, last):
    """Left, top, right and bottom of cells side by side, with their frames and labels."""
    top = dict(tops(sections))[name] + HEADING + 8 + row * STEP
    step = ROW_WIDTH // sections[name]["columns"]
    left = MARGIN + 8 + first * step
    return left - 4, top - 4, left + (last - first + 1) * step - GAP + 5, top + HEIGHT + 36


def cut(picture, sections, cells, path):
    place = box(sections, *cells)
    corners = (place[:2], (place[2] - 1, place[1]))
    if any(picture.getpixel(corner)[:3] != FRAME for corner in corners):
        sys.exit(f"{path.name}: there is no cell at {place} of the gallery; see {LIST}")
    picture.crop(place).quantize(64).save(path, optimize=True)


def main():
    from PIL import Image
    picture = Image.open(sys.argv[1]).convert("RGB")
    folder = pathlib.Path(sys.argv[2])
    folder.mkdir(parents=True, exist_ok=True)
    for call, places in plan()["calls"].items():
        for name, cells in zip(names_of(call), places):
            cut(picture, plan()["sections"], cells, folder / name)


if __name__ == "__main__":
    main()
