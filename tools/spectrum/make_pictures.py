#!/usr/bin/env python3
"""Draws shape and magnitude of every spectral window, at two sizes, from the formulas of windows.py: bitmaps of one bit
a pixel, which take the colours of the control that shows them, and the resource script that lists them.

Kaiser and Poisson have a series by the integer part of alpha; its first picture is drawn for 0.5. Needs Debian's
python3-matplotlib, whose fonts are used, with python3-numpy and python3-pil, and python3-scipy for the check of the
formulas.

    make_pictures.py [--check] [--sheet FILE.png [--larger]]

--check compares instead of writing; --sheet puts all pictures, read back from their files, on one sheet."""
import argparse
import os
import struct
import sys

import matplotlib
import numpy as np
from PIL import Image, ImageDraw, ImageFont

import windows

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
FOLDER = os.path.join(ROOT, "resources", "pictures", "windows")
SCRIPT = os.path.join(ROOT, "resources", "spectrum_pictures.rc")
FONT = os.path.join(matplotlib.get_data_path(), "fonts", "ttf", "DejaVuSans.ttf")

FIXED_SHAPES, FIXED_MAGNITUDES = 2500, 2520
SERIES = {"kaiser": (2540, 2560), "poisson": (2580, 2600)}
LARGER = 200
SERIES_COUNT = 11
BINS, FLOOR = 16, -120.0


class Canvas:
    """True is ink. Lengths are those of the smaller size and grow with the scale."""

    def __init__(self, scale, margins, sizes=((176, 126), (264, 190))):
        self.scale = scale
        self.width, self.height = sizes[0] if scale == 1 else sizes[1]
        self.left, right, self.top, bottom = (round(m * scale) for m in margins)
        self.right, self.bottom = self.width - 1 - right, self.height - 1 - bottom
        self.pen = round(scale)
        self.image = Image.new("1", (self.width, self.height), 0)
        self.draw = ImageDraw.Draw(self.image)
        self.draw.fontmode = "1"
        self.font = ImageFont.truetype(FONT, round(10 * scale))
        self.tick = round(3 * scale)

    def text(self, x, y, text, anchor):
        self.draw.text((x, y), text, fill=1, font=self.font, anchor=anchor)

    def axes(self):
        self.draw.line([(self.left, self.top), (self.left, self.bottom)], fill=1)
        self.draw.line([(self.left, self.bottom), (self.right, self.bottom)], fill=1)

    def x_at(self, part):
        return self.left + part * (self.right - self.left)

    def y_at(self, part):
        """0 is the bottom, 1 the top."""
        return self.bottom - part * (self.bottom - self.top)

    def tick_below(self, part, label=""):
        x = round(self.x_at(part))
        self.draw.line([(x, self.bottom), (x, self.bottom + self.tick)], fill=1)
        if label:
            self.text(x + 1, self.bottom + self.tick + round(2 * self.scale), label, "mt")

    def tick_beside(self, part, label=""):
        y = round(self.y_at(part))
        self.draw.line([(self.left - self.tick, y), (self.left, y)], fill=1)
        if label:
            self.text(self.left - self.tick - round(2 * self.scale), y, label, "rm")

    def dots(self, part):
        y = round(self.y_at(part))
        for x in range(self.left + 3, self.right + 1, 3):
            self.draw.point((x, y), fill=1)

    def curve(self, value):
        """value(parts) gives heights, 0 to 1, of an array of places, 0 to 1: every column of pixels is inked over
        what the curve covers in it."""
        columns = np.arange(self.left, self.right + 1)
        samples = columns[:, None] + np.linspace(-0.5, 0.5, 9)[None, :]
        parts = np.clip((samples - self.left) / (self.right - self.left), 0, 1)
        heights = np.clip(value(parts), 0, 1)
        y = self.bottom - heights * (self.bottom - self.top)
        for x, low, high in zip(columns, y.min(axis=1), y.max(axis=1)):
            self.draw.rectangle([int(x), int(np.floor(low + 0.5)), int(x) + self.pen - 1,
                                 int(np.floor(high + 0.5)) + self.pen - 1], fill=1)

    def bitmap(self):
        """The bytes of the file. A fourth byte of a colour that is not 0 would make it a bitmap of colours."""
        stride = (self.width + 31) // 32 * 4
        ink = np.zeros((self.height, stride * 8), dtype=bool)
        ink[:, :self.width] = ~np.array(self.image)
        ink[:, self.width:] = False
        rows = np.packbits(ink, axis=1)[::-1].tobytes()
        header = struct.pack("<IiiHHIIiiII", 40, self.width, self.height, 1, 1, 0, len(rows), 0, 0, 2, 0)
        colours = bytes([0, 0, 0, 0, 255, 255, 255, 0])
        offset = 14 + len(header) + len(colours)
        return struct.pack("<2sIHHI", b"BM", offset + len(rows), 0, 0, offset) + header + colours + rows


def alpha_text(canvas, index):
    if index is not None:
        canvas.text(canvas.right + round(4 * canvas.scale), round(2 * canvas.scale),
                    "alpha = %s" % ("0.5" if index == 0 else index), "rt")


def draw_shape(name, alpha, index, scale):
    canvas = Canvas(scale, (18, 12, 16, 20))
    canvas.axes()
    for part, label in ((0, "0"), (0.5, "N/2"), (1, "N")):
        canvas.tick_below(part, label)
    for part, label in ((0, "0"), (0.5, ""), (1, "1")):
        canvas.tick_beside(part, label)
    alpha_text(canvas, index)
    canvas.curve(lambda parts: windows.weights(name, 2 * parts - 1, alpha))
    edge = float(windows.weights(name, -1.0, alpha))
    if edge > 0.001:
        y = round(canvas.y_at(min(edge, 1.0)))
        for x in (canvas.left, canvas.right):
            canvas.draw.rectangle([x, y, x + canvas.pen - 1, canvas.bottom], fill=1)
    return canvas


def draw_magnitude(name, alpha, index, scale):
    canvas = Canvas(scale, (34, 8, 16, 20))
    canvas.axes()
    for k in range(0, BINS + 1, 4):
        # The unit stands in the place of the last label but one.
        canvas.tick_below(k / BINS, "bins" if k == BINS - 4 else str(k))
    for level in range(0, int(FLOOR) - 1, -20):
        canvas.tick_beside(1 - level / FLOOR, str(level) if level % 40 == 0 else "")
    canvas.text(canvas.left - canvas.tick - round(2 * scale), round(2 * scale), "dB", "rt")
    for level in (-40, -80):
        canvas.dots(1 - level / FLOOR)
    alpha_text(canvas, index)

    def heights(parts):
        values = windows.transform(name, parts * BINS, alpha)
        level = 1 - windows.decibels(name, parts * BINS, alpha) / FLOOR
        # A null lies between two samples: it goes down to the floor.
        change = np.sign(values[:, 1:]) != np.sign(values[:, :-1])
        level[:, 1:][change] = 0.0
        return level
    canvas.curve(heights)
    return canvas


def pictures():
    """(id, file name, canvas) of every picture."""
    rows = []
    for number, name in enumerate(windows.NAMES):
        if name in SERIES:
            rows += [(SERIES[name], k, name, 0.5 if k == 0 else float(k), k) for k in range(SERIES_COUNT)]
        else:
            rows.append(((FIXED_SHAPES, FIXED_MAGNITUDES), number, name, 0.0, None))
    for (shapes, magnitudes), offset, name, alpha, index in rows:
        stem = name if index is None else "%s_%d" % (name, index)
        for first, kind, draw in ((shapes, "shape", draw_shape), (magnitudes, "magnitude", draw_magnitude)):
            for larger, scale, ending in ((0, 1.0, ""), (LARGER, 1.5, "_larger")):
                yield first + offset + larger, "%s_%s%s.bmp" % (stem, kind, ending), draw(name, alpha, index, scale)


def script(listed):
    lines = ["// Shape and magnitude of the spectral windows, which tools/spectrum/make_pictures.py draws, and lists here:",
             "// of the types 0 to 9 from 2500 and 2520, of the series by alpha from 2540 and 2560 (Kaiser) and from 2580",
             "// and 2600 (Poisson). The larger form of each is 200 further on.", ""]
    lines += ['%d BITMAP "pictures/windows/%s"' % (number, file) for number, file in sorted(listed)]
    return "\n".join(lines) + "\n"


def sheet(path, larger):
    entries = [(number, file) for number, file, _ in pictures() if file.endswith("_larger.bmp") == larger]
    images = [Image.open(os.path.join(FOLDER, file)).convert("L") for _, file in sorted(entries)]
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
    files = {os.path.join(FOLDER, file): canvas.bitmap() for _, file, canvas in pictures()}
    files[SCRIPT] = script((number, file) for number, file, _ in pictures()).encode("ascii")
    wrong = 0
    os.makedirs(FOLDER, exist_ok=True)
    for path, data in files.items():
        if not options.check:
            with open(path, "wb") as out:
                out.write(data)
            continue
        if not os.path.exists(path) or open(path, "rb").read() != data:
            print("out of date: " + os.path.relpath(path, ROOT))
            wrong = 1
    sys.exit(wrong)


if __name__ == "__main__":
    main()
