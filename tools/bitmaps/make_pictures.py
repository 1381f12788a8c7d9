#!/usr/bin/env python3
"""Draws the bitmaps, spectral windows, filter responses and brackets, from their formulas, and writes the
resource scripts that list them. Needs Debian's python3-matplotlib, whose fonts are used, python3-numpy, python3-pil
and python3-scipy.

    make_pictures.py [--check] [--sheet FILE.png [--larger]]

--check compares instead of writing; --sheet puts all pictures, read back from their files, on one sheet."""
import argparse
import os
import sys

from PIL import Image

import bracket_pictures
import filter_pictures
import window_pictures
import windows

RESOURCES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "resources")
SETS = (window_pictures, filter_pictures, bracket_pictures)


def folder_of(drawn):
    return os.path.join(RESOURCES, "pictures", drawn.FOLDER)


def script(drawn, listed):
    lines = drawn.HEAD + [""]
    lines += ['%d BITMAP "pictures/%s/%s"' % (number, drawn.FOLDER, file) for number, file in sorted(listed)]
    return "\n".join(lines) + "\n"


def sheet(path, larger):
    images = []
    for drawn in SETS:
        names = sorted((number, file) for number, file, _ in drawn.pictures() if file.endswith("_larger.bmp") == larger)
        images += [Image.open(os.path.join(folder_of(drawn), file)).convert("L") for _, file in names]
    width, height = images[0].size
    columns = 6
    out = Image.new("L", (columns * (width + 4), -(-len(images) // columns) * (height + 4)), 160)
    for k, image in enumerate(images):
        out.paste(image, (k % columns * (width + 4) + 2, k // columns * (height + 4) + 2))
    out.save(path)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--sheet")
    parser.add_argument("--larger", action="store_true")
    options = parser.parse_args()
    windows.check()
    if options.sheet:
        sheet(options.sheet, options.larger)
        return
    files = {}
    for drawn in SETS:
        os.makedirs(folder_of(drawn), exist_ok=True)
        listed = []
        for number, file, canvas in drawn.pictures():
            files[os.path.join(folder_of(drawn), file)] = canvas.bitmap()
            listed.append((number, file))
        files[os.path.join(RESOURCES, drawn.SCRIPT)] = script(drawn, listed).encode("ascii")
    wrong = 0
    for path, data in files.items():
        if not options.check:
            with open(path, "wb") as out:
                out.write(data)
            continue
        if not os.path.exists(path) or open(path, "rb").read() != data:
            print("out of date: " + os.path.relpath(path, RESOURCES))
            wrong = 1
    sys.exit(wrong)


main()
