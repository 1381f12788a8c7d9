#!/usr/bin/env python3
"""Sets the formulas of resources/pictures/equations.txt and writes each as a placeable metafile of filled outlines,
and as a drawing for the guide.

All pictures have one frame of 6 to 1, in which the formula stands in the middle: a control of that shape shows
every one undistorted and in the same type size, but for those that must be set smaller to fit. Needs Debian's
python3-matplotlib, whose typesetter and fonts are used.

    make_pictures.py [--check] [--sheet FILE.png [--scale S]]

--check compares instead of writing; --sheet draws all pictures, read back from their files, on one sheet."""
import argparse
import os
import struct
import sys

import matplotlib
import numpy
from matplotlib.font_manager import FontProperties
from matplotlib.path import Path
from matplotlib.textpath import text_to_path

import equations

FOLDER = os.path.join(equations.ROOT, "resources", "pictures")
GUIDE_FOLDER = os.path.join(equations.ROOT, "docs", "pictures", "equations")
WIDTH, HEIGHT, INCH = 24000, 4000, 4000  # 6 by 1 inch
MARGIN = 240
EM = INCH * 23 / 72  # 23 points: the widest formulas and the sums just fit
LINE_GAP = 0.25 * EM
FLATNESS = 8  # steps of a curve
KEY = 0x9AC6CDD7

matplotlib.rcParams["mathtext.fontset"] = "stix"


def polygons_of(path):
    """Closed polygons of a path of lines and curves."""
    polygons, current = [], []

    def bend(*points):
        points = [numpy.array(p) for p in points]
        for k in range(1, FLATNESS + 1):
            t = k / FLATNESS
            level = points
            while len(level) > 1:
                level = [(1 - t) * a + t * b for a, b in zip(level, level[1:])]
            current.append(level[0])

    for vertices, code in path.iter_segments(curves=True, simplify=False):
        v = vertices.reshape(-1, 2)
        if code == Path.MOVETO:
            if len(current) > 2:
                polygons.append(current)
            current = [v[0]]
        elif code == Path.LINETO:
            current.append(v[0])
        elif code in (Path.CURVE3, Path.CURVE4):
            bend(current[-1], *v)
        elif code == Path.CLOSEPOLY:
            if len(current) > 2:
                polygons.append(current)
            current = []
    if len(current) > 2:
        polygons.append(current)
    return [numpy.array(p) for p in polygons]


def set_line(tex):
    """[outlines of one glyph or rule, ...] of one line, in ems, the baseline at 0."""
    font = FontProperties(size=text_to_path.FONT_SCALE)
    glyphs, table, rules = text_to_path.get_glyphs_mathtext(font, "$%s$" % tex)
    scale = 1.0 / text_to_path.FONT_SCALE
    shapes = []
    for glyph, x, y, size in glyphs:
        vertices, codes = table[glyph]
        if len(vertices) == 0:
            continue
        path = Path(numpy.array(vertices) * size + (x, y), codes)
        shapes.append([p * scale for p in polygons_of(path)])
    for vertices, codes in rules:
        shapes.append([p * scale for p in polygons_of(Path(vertices, codes))])
    return [s for s in shapes if s]


def bounds(shapes):
    points = numpy.concatenate([p for shape in shapes for p in shape])
    return points.min(axis=0), points.max(axis=0)


def lay_out(lines):
    """Outlines in frame units, y downwards."""
    placed, top = [], 0.0
    for tex in lines:
        shapes = set_line(tex)
        low, high = bounds(shapes)
        placed.append([[(p - (low[0] + high[0]) / 2 * numpy.array([1, 0])) * (1, -1) + (0, top + high[1])
                        for p in shape] for shape in shapes])
        top += high[1] - low[1] + LINE_GAP / EM
    shapes = [shape for line in placed for shape in line]
    low, high = bounds(shapes)
    size = high - low
    scale = min(EM, (WIDTH - 2 * MARGIN) / size[0], (HEIGHT - 2 * MARGIN) / size[1])
    middle = (low + high) / 2
    return [[(p - middle) * scale + (WIDTH / 2, HEIGHT / 2) for p in shape] for shape in shapes], scale


def record(function, *words):
    return struct.pack("<IH", 3 + len(words), function) + struct.pack("<%dh" % len(words), *words)


def metafile(shapes):
    """The bytes of the placeable metafile."""
    records = [record(0x0103, 8),                    # SetMapMode, anisotropic
               record(0x020B, 0, 0),                 # SetWindowOrg
               record(0x020C, HEIGHT, WIDTH),        # SetWindowExt
               record(0x0106, 2),                    # SetPolyFillMode, winding
               record(0x02FC, 0, 0, 0, 0),           # CreateBrushIndirect, solid black
               record(0x012D, 0),                    # SelectObject
               record(0x02FA, 0, 0, 0, 0, 0),        # CreatePenIndirect, one pixel
               record(0x012D, 1)]
    for shape in shapes:
        words = [len(shape)] + [len(p) for p in shape]
        for polygon in shape:
            for x, y in polygon:
                words += [int(round(x)), int(round(y))]
        records.append(record(0x0538, *words))       # PolyPolygon
    records.append(record(0x0000))
    body = b"".join(records)
    largest = max(len(r) for r in records) // 2
    header = struct.pack("<HHHIHIH", 1, 9, 0x0300, 9 + len(body) // 2, 2, largest, 0)
    placeable = struct.pack("<IHhhhhHI", KEY, 0, 0, 0, WIDTH, HEIGHT, INCH, 0)
    checksum = 0
    for (word,) in struct.iter_unpack("<H", placeable):
        checksum ^= word
    return placeable + struct.pack("<H", checksum) + header + body


def drawing(shapes):
    """The same outlines for the guide, as a scalable drawing of half the frame's height or what is needed."""
    top = min(p[:, 1].min() for shape in shapes for p in shape) - MARGIN
    bottom = max(p[:, 1].max() for shape in shapes for p in shape) + MARGIN
    left = min(p[:, 0].min() for shape in shapes for p in shape) - MARGIN
    right = max(p[:, 0].max() for shape in shapes for p in shape) + MARGIN
    scale = 10.0
    outlines = "".join("M" + "L".join("%d %d" % ((x - left) / scale, (y - top) / scale) for x, y in p) + "Z"
                       for shape in shapes for p in shape)
    width, height = (right - left) / scale, (bottom - top) / scale
    return ('<svg xmlns="http://www.w3.org/2000/svg" width="%d" height="%d" viewBox="0 0 %d %d">'
            '<rect width="100%%" height="100%%" fill="white"/><path d="%s"/></svg>\n'
            % (width / 5, height / 5, width, height, outlines))


def read_polygons(data):
    """The polygons of a metafile, for the sheet."""
    at, found = 22 + 18, []
    while True:
        size, function = struct.unpack_from("<IH", data, at)
        if function == 0:
            return found
        if function == 0x0538:
            words = struct.unpack_from("<%dh" % (size - 3), data, at + 6)
            counts, points = words[1:1 + words[0]], words[1 + words[0]:]
            shape, start = [], 0
            for count in counts:
                shape.append(numpy.array(points[2 * start:2 * (start + count)]).reshape(-1, 2))
                start += count
            found.append(shape)
        at += 2 * size


def draw_sheet(names, path, scale):
    from matplotlib.backends.backend_agg import FigureCanvasAgg
    from matplotlib.figure import Figure
    from matplotlib.patches import PathPatch
    columns = 2
    rows = (len(names) + columns - 1) // columns
    width, height = 576 * scale, 96 * scale
    figure = Figure(figsize=(columns * (width + 12) / 100, rows * (height + 24) / 100), dpi=100)
    for k, name in enumerate(names):
        with open(os.path.join(FOLDER, name.lower() + ".wmf"), "rb") as picture:
            shapes = read_polygons(picture.read())
        axes = figure.add_axes([(k % columns) / columns + 0.004, 1 - (k // columns + 0.95) / rows,
                                width / (columns * (width + 12)), height / (rows * (height + 24))])
        axes.set_xlim(0, WIDTH)
        axes.set_ylim(HEIGHT, 0)
        axes.set_xticks([])
        axes.set_yticks([])
        axes.set_title(name, fontsize=7 * scale, pad=2)
        for shape in shapes:
            path_of = Path.make_compound_path(*[Path(numpy.vstack([p, p[:1]]), closed=True) for p in shape])
            axes.add_patch(PathPatch(path_of, facecolor="black", linewidth=0, snap=False))
    FigureCanvasAgg(figure).print_png(path)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--check", action="store_true")
    parser.add_argument("--sheet")
    parser.add_argument("--scale", type=float, default=1.0)
    options = parser.parse_args()
    pictures = equations.read_table()
    if options.sheet:
        draw_sheet([p.name for p in pictures], options.sheet, options.scale)
        return
    wrong = 0
    for picture in pictures:
        shapes, scale = lay_out(picture.lines)
        data = metafile(shapes)
        path = os.path.join(FOLDER, picture.name.lower() + ".wmf")
        guide_path = os.path.join(GUIDE_FOLDER, picture.name.lower() + ".svg")
        if options.check:
            with open(path, "rb") as old:
                if old.read() != data:
                    print("out of date: " + path)
                    wrong = 1
            continue
        with open(path, "wb") as out:
            out.write(data)
        os.makedirs(GUIDE_FOLDER, exist_ok=True)
        with open(guide_path, "w", encoding="ascii") as out:
            out.write(drawing(shapes))
        print("%-14s %6d bytes, type %.0f %%" % (picture.name, len(data), 100 * scale / EM))
    sys.exit(wrong)


if __name__ == "__main__":
    main()
