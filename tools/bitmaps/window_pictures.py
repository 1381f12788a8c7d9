"""Shape and magnitude of every spectral window, at two sizes, from the formulas of windows.py.

Kaiser and Poisson have a series by the integer part of alpha; its first picture is drawn for 0.5."""
import numpy as np

import windows
from canvas import Canvas

FOLDER = "windows"
SCRIPT = "spectrum_pictures.rc"
HEAD = ["// Shape and magnitude of the spectral windows, which tools/bitmaps/make_pictures.py draws, and lists here:",
        "// of the types 0 to 9 from 2500 and 2520, of the series by alpha from 2540 and 2560 (Kaiser) and from 2580",
        "// and 2600 (Poisson). The larger form of each is 200 further on."]

SIZES = {1.0: (176, 126), 1.5: (264, 190)}
FIXED_SHAPES, FIXED_MAGNITUDES = 2500, 2520
SERIES = {"kaiser": (2540, 2560), "poisson": (2580, 2600)}
LARGER = 200
SERIES_COUNT = 11
BINS, FLOOR = 16, -120.0


def alpha_text(canvas, index):
    if index is not None:
        canvas.text(canvas.right + round(4 * canvas.scale), round(2 * canvas.scale),
                    "alpha = %s" % ("0.5" if index == 0 else index), "rt")


def draw_shape(name, alpha, index, scale):
    canvas = Canvas(SIZES[scale], scale, (18, 12, 16, 20))
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
    canvas = Canvas(SIZES[scale], scale, (34, 8, 16, 20))
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
