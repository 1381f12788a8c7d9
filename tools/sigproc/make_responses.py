#!/usr/bin/env python3
"""Draws the responses of the filter dialog's arrangements, at two sizes: bitmaps of one bit a pixel as those of the
spectral windows, and the resource script that lists them. Needs what tools/spectrum/make_pictures.py needs.

    make_responses.py [--check]

--check compares instead of writing."""
import os
import sys

import numpy as np

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "..", "spectrum"))
from make_pictures import Canvas, LARGER, ROOT  # noqa: E402

FOLDER = os.path.join(ROOT, "resources", "pictures", "filters")
SCRIPT = os.path.join(ROOT, "resources", "filter_pictures.rc")
FIRST = 2630
SIZES = ((160, 94), (240, 141))


def lowpass(f, corner):
    return 1 / np.sqrt(1 + (f / corner) ** 8)


def highpass(f, corner):
    return 1 / np.sqrt(1 + (corner / f) ** 8)


def notch(f, center):
    gap = f * f - center * center
    return np.abs(gap) / np.hypot(gap, f * center / 2)


def comb(part):
    """Over a linear axis from 0 to 6 times the line's frequency, of which five harmonics are taken out."""
    place = part * 6
    return 1 - sum(np.exp(-((place - k) / 0.07) ** 2) for k in range(1, 6))


def decades(part):
    """Of a logarithmic axis from 0.01 to 100."""
    return 10.0 ** (4 * part - 2)


# In the order of the buttons.
RESPONSES = (("bandpass", lambda x: highpass(decades(x), 0.1) * lowpass(decades(x), 10)),
             ("highpass", lambda x: highpass(decades(x), 1)),
             ("lowpass", lambda x: lowpass(decades(x), 1)),
             ("interference", comb),
             ("notch", lambda x: notch(decades(x), 1)))


def draw(response, scale):
    canvas = Canvas(scale, (20, 10, 8, 18), SIZES)
    canvas.axes()
    for part in (0, 1):
        canvas.tick_beside(part * 0.92, str(part))
    canvas.text(canvas.right, canvas.bottom + round(4 * scale), "frequency", "rt")
    canvas.curve(lambda parts: 0.92 * response(parts))
    return canvas


def main():
    files = {}
    lines = ["// The responses of the filter dialog's arrangements, which tools/sigproc/make_responses.py draws, and lists",
             "// here in the order of their buttons. The larger form of each is 200 further on.", ""]
    for larger, scale, ending in ((0, 1.0, ""), (LARGER, 1.5, "_larger")):
        for k, (name, response) in enumerate(RESPONSES):
            file = "%s%s.bmp" % (name, ending)
            files[os.path.join(FOLDER, file)] = draw(response, scale).bitmap()
            lines.append('%d BITMAP "pictures/filters/%s"' % (FIRST + k + larger, file))
    files[SCRIPT] = ("\n".join(lines) + "\n").encode("ascii")
    os.makedirs(FOLDER, exist_ok=True)
    wrong = []
    for path, data in files.items():
        if "--check" not in sys.argv[1:]:
            with open(path, "wb") as out:
                out.write(data)
        elif not os.path.exists(path) or open(path, "rb").read() != data:
            wrong.append(os.path.relpath(path, ROOT))
    for path in wrong:
        print("%s is not what would be drawn" % path)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
