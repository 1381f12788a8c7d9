"""What each arrangement of the filter dialog does to the spectrum, at two sizes: the gain, in equal steps of amplitude,
over the frequency. Lowpass and highpass are drawn as Bessel filters of eight poles."""
import math

import numpy as np
from scipy import signal

from canvas import Canvas

FOLDER = "filters"
SCRIPT = "filter_pictures.rc"
HEAD = ["// The response of each filter arrangement, in the order of the dialog's buttons, which",
        "// tools/bitmaps/make_pictures.py draws, and lists here. The larger form of each is 200 further on."]

SIZES = {1.0: (160, 92), 1.5: (246, 142)}
FIRST, LARGER = 2630, 200
HALF_POWER = math.sqrt(0.5)
TOP = 1.1  # gain at the upper end
NAMES = ["bandpass", "highpass", "lowpass", "interference", "notch"]
# The axis: three decades around the middle, or the harmonics of the mains.
DECADES = 1.5
BAND = 0.75  # decades from the middle to a cutoff of the bandpass
NOTCH_WIDTH = 0.6  # of the center
HARMONICS, TOOTH_WIDTH = 4, 0.12


def bessel_gain(f):
    """Half power at 1."""
    zeros, poles, gain = signal.besselap(8, norm="mag")
    _, h = signal.freqs_zpk(zeros, poles, gain, worN=np.ravel(f))
    return abs(h).reshape(np.shape(f))


def notch_gain(f, center, width):
    return abs(center * center - f * f) / np.sqrt((center * center - f * f) ** 2 + (width * f) ** 2)


def comb_gain(f):
    """A notch at every harmonic of 1, without the ripple that a comb has between its teeth."""
    gain = np.ones_like(f)
    for k in range(1, HARMONICS + 1):
        gain = gain * notch_gain(f, k, TOOTH_WIDTH)
    return gain


def gain_of(name, parts):
    """`parts` runs from 0 to 1 over the axis."""
    if name == "interference":
        return comb_gain(parts * (HARMONICS + 0.5))
    f = 10 ** ((parts - 0.5) * 2 * DECADES)
    if name == "lowpass":
        return bessel_gain(f)
    if name == "highpass":
        return bessel_gain(1 / f)
    if name == "bandpass":
        return bessel_gain(f / 10 ** BAND) * bessel_gain(10 ** -BAND / f)
    return notch_gain(f, 1.0, NOTCH_WIDTH)


def draw(name, scale):
    canvas = Canvas(SIZES[scale], scale, (36, 10, 4, 20))
    canvas.axes()
    canvas.tick_beside(1.0 / TOP, "0 dB")
    canvas.tick_beside(HALF_POWER / TOP, "-3")
    canvas.dots(HALF_POWER / TOP)
    if name == "interference":
        for k in range(1, HARMONICS + 1):
            canvas.tick_below(k / (HARMONICS + 0.5), "f" if k == 1 else "%d f" % k)
    elif name == "bandpass":
        for side in (-1, 1):
            canvas.tick_below(0.5 + side * BAND / (2 * DECADES), "cutoff")
    else:
        canvas.tick_below(0.5, "center" if name == "notch" else "cutoff")
    canvas.curve(lambda parts: gain_of(name, parts) / TOP)
    return canvas


def pictures():
    """(id, file name, canvas) of every picture."""
    for number, name in enumerate(NAMES):
        for larger, scale, ending in ((0, 1.0, ""), (LARGER, 1.5, "_larger")):
            yield FIRST + number + larger, "%s%s.bmp" % (name, ending), draw(name, scale)
