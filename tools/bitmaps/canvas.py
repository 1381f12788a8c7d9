"""A bitmap of one bit a pixel with a plot on it, which takes the colours of the control that shows it."""
import os
import struct

import matplotlib
import numpy as np
from PIL import Image, ImageDraw, ImageFont

FONT = os.path.join(matplotlib.get_data_path(), "fonts", "ttf", "DejaVuSans.ttf")


class Canvas:
    """True is ink. Lengths are those of the smaller size and grow with the scale."""

    def __init__(self, size, scale, margins):
        self.scale = scale
        self.width, self.height = size
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
