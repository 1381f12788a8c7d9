#!/usr/bin/env python3
"""Draws the pictures that the tests of the framework show, from formulas.

bell.wmf is a placeable metafile: the curve exp(-x^2/2) over its axis, in units of 1/1440 inch.
wrong_key.wmf, zero_size.wmf and short.wmf are the same file with one fault each. ramp.bmp is a grey
ramp with a mark in each corner, 24 x 16 points, ramp_larger.bmp of 48 x 32. Run it in its own folder; the results are kept beside it.
"""
import math
import struct

WIDTH, HEIGHT, INCH = 2880, 1440, 1440


def record(function, *words):
    """One metafile record: its length in words, its function, its parameters in reverse order."""
    return struct.pack('<IH', 3 + len(words), function) + struct.pack('<%dh' % len(words), *words)


def polyline(points):
    flat = [coordinate for point in points for coordinate in point]
    return record(0x0325, len(points), *flat)


def pen(width):
    return record(0x02FA, 0, width, 0, 0, 0)  # solid, black


def bell():
    steps = 96
    curve = []
    for step in range(steps + 1):
        x = -3.5 + 7.0 * step / steps
        curve.append((round(WIDTH * step / steps), round(HEIGHT * (0.9 - 0.8 * math.exp(-x * x / 2)))))
    base = round(HEIGHT * 0.9)
    records = [
        record(0x0103, 8),               # anisotropic
        record(0x020B, 0, 0),            # window origin
        record(0x020C, HEIGHT, WIDTH),   # window extent
        pen(30), record(0x012D, 0),      # a pen of 30 units, selected
        polyline(curve),
        pen(15), record(0x012D, 1),
        polyline([(0, base), (WIDTH, base)]),
        polyline([(WIDTH // 2, base), (WIDTH // 2, round(HEIGHT * 0.1))]),
        record(0x0000),
    ]
    body = b''.join(records)
    largest = max(len(r) for r in records) // 2
    header = struct.pack('<HHHIHIH', 1, 9, 0x0300, (18 + len(body)) // 2, 2, largest, 0)
    return header + body


def placeable(bits, key=0x9AC6CDD7, width=WIDTH, height=HEIGHT):
    head = struct.pack('<IHhhhhHI', key, 0, 0, 0, width, height, INCH, 0)
    checksum = 0
    for word in struct.unpack('<10H', head):
        checksum ^= word
    return head + struct.pack('<H', checksum) + bits


def ramp(width=24, height=16):
    rows = b''
    for y in range(height):
        for x in range(width):
            grey = 255 * x // (width - 1)
            corner = x in (0, width - 1) and y in (0, height - 1)
            rows += bytes((0, 0, 255)) if corner else bytes((grey, grey, grey))
    head = struct.pack('<IiiHHIIiiII', 40, width, height, 1, 24, 0, len(rows), 2835, 2835, 0, 0)
    return struct.pack('<2sIHHI', b'BM', 14 + len(head) + len(rows), 0, 0, 14 + len(head)) + head + rows


if __name__ == '__main__':
    bits = bell()
    pictures = {
        'bell.wmf': placeable(bits),
        'wrong_key.wmf': placeable(bits, key=0x9AC6CDD6),
        'zero_size.wmf': placeable(bits, height=0),
        'short.wmf': placeable(bits)[:20],
        'ramp.bmp': ramp(),
        'ramp_larger.bmp': ramp(48, 32),
    }
    for name, data in pictures.items():
        with open(name, 'wb') as out:
            out.write(data)
