#!/usr/bin/env python3
"""Computes what filters should give, with scipy and by other ways than the library's, for tests/filter/truth.txt.

The lowpass filters that copy an analog time course come from scipy's analog prototypes: their response is the analog
one folded at the sampling frequency, their traces are convolved with the sampled impulse response. Bilinear filters
are scipy's own designs. The interference filter is a least-squares fit of every single window. Beyond its ends a trace
goes on at the mean of its end points, for as long as the filter remembers.

    make_truth.py [--check]

--check compares with the file instead of writing it. Needs Debian's python3-numpy and python3-scipy."""
import math
import os
import sys

import numpy as np
from scipy import optimize, signal

OUT = os.path.join(os.path.dirname(__file__), "..", "..", "tests", "filter", "truth.txt")
BESSEL, BOXCAR, BUTTERWORTH, CHEBYSHEV, GAUSSIAN, RC, RC8 = range(2, 9)


# --- Analog lowpass filters with half power at 1 rad/s and gain 1 at 0 Hz.

def analog_poles(family):
    if family == BESSEL:
        _, poles, _ = signal.besselap(8, norm="mag")
    elif family == BUTTERWORTH:
        _, poles, _ = signal.buttap(8)
    else:
        _, poles, _ = signal.cheb1ap(8, 0.1)
    half = optimize.brentq(lambda w: abs(analog_gain(poles, 1j * w)) ** 2 - 0.5, 0.5, 2.0, xtol=1e-15)
    return poles / half


def analog_gain(poles, s):
    gain = np.ones_like(np.asarray(s, dtype=complex))
    for pole in poles:
        gain = gain * (-pole / (s - pole))
    return gain


def folded(gain, f):
    """The response of a sampled analog filter: gain(i f / cutoff) repeated at every multiple of the sampling
    frequency and added up."""
    total = np.zeros_like(np.asarray(f, dtype=complex))
    for m in range(-300, 301):
        total = total + gain(np.asarray(f) + m)
    return total


def rc8_rate(cutoff):
    """The rate c of t^7 exp(-c t), sampled, that puts the half-power point at the cutoff."""
    def error(scale):
        gain = rc8_gain(2 * math.pi * cutoff * scale / math.sqrt(2 ** 0.125 - 1))
        return abs(folded(gain, cutoff) / folded(gain, 0.0)) ** 2 - 0.5
    return 2 * math.pi * cutoff / math.sqrt(2 ** 0.125 - 1) * optimize.brentq(error, 0.9, 1.1, xtol=1e-15)


def rc8_gain(rate):
    return lambda f: (rate / (rate + 2j * math.pi * np.asarray(f))) ** 8


def lowpass_gain(family, cutoff):
    if family == RC8:
        return rc8_gain(rc8_rate(cutoff))
    poles = analog_poles(family)
    return lambda f: analog_gain(poles, 1j * np.asarray(f) / cutoff)


def sampled_impulse_response(family, cutoff, count):
    n = np.arange(count)
    if family == RC8:
        rate = rc8_rate(cutoff)
        response = (n * rate) ** 7 * np.exp(-rate * n)
    else:
        poles = analog_poles(family)
        response = np.zeros(count, dtype=complex)
        for k, pole in enumerate(poles):
            others = np.delete(poles, k)
            residue = np.prod(-poles) / np.prod(pole - others)
            response += residue * np.exp(pole * 2 * math.pi * cutoff * n)
        response = response.real
    return response / response.sum()


# --- Filters that are made as filters of sampled data.

def rc_pole(cutoff):
    """The pole at which (1 - a) / (1 - a/z) has half power at the cutoff."""
    z = np.exp(2j * math.pi * cutoff)
    return optimize.brentq(lambda a: abs((1 - a) / (1 - a / z)) ** 2 - 0.5, 1e-9, 1 - 1e-9, xtol=1e-16)


def gaussian_weights(cutoff):
    deviation = 0.1325051817635 / cutoff
    half = max(2, int(4 * deviation))

    def weights(s):
        bell = signal.windows.gaussian(2 * half + 1, s)
        return bell / bell.sum()

    def error(s):
        _, response = signal.freqz(weights(s), worN=[2 * math.pi * cutoff])
        return abs(response[0]) - math.sqrt(0.5)
    return weights(optimize.brentq(error, 0.99 * deviation, 2 * deviation, xtol=1e-15))


def recursive(section, family, corner, width):
    """(b, a) or second-order sections of a recursive filter that is not a copy of an analog time course."""
    if section == "notch":
        b, a = signal.iirnotch(corner, corner / width, fs=1.0)
        return signal.tf2sos(b, a)
    if section == "highpass" and family == BESSEL:
        return signal.bessel(8, corner, "highpass", output="sos", norm="mag", fs=1.0)
    pole = rc_pole(corner)
    if section == "highpass":
        return np.array([[math.sqrt(pole), -math.sqrt(pole), 0, 1, -pole, 0]])
    return np.array([[1 - pole, 0, 0, 1, -pole, 0]])


def response(section, family, corner, width, points, f):
    if section == "lowpass" and family in (BESSEL, BUTTERWORTH, CHEBYSHEV, RC8):
        gain = lowpass_gain(family, corner)
        return folded(gain, f) / folded(gain, 0.0)
    if section == "lowpass" and family in (GAUSSIAN, BOXCAR):
        weights = gaussian_weights(corner) if family == GAUSSIAN else np.ones(points) / points
        _, h = signal.freqz(weights, worN=2 * np.pi * f)
        return h * np.exp(2j * np.pi * f * (len(weights) // 2))
    if section == "highpass" and family == BESSEL:
        # The bilinear transform moves frequencies as the tangent does. At 0 there is nothing left.
        with np.errstate(divide="ignore", invalid="ignore"):
            h = analog_gain(analog_poles(family), math.tan(math.pi * corner) / (1j * np.tan(math.pi * f)))
        return np.where(f == 0, 0.0, h)
    _, h = signal.sosfreqz(recursive(section, family, corner, width), worN=2 * np.pi * f)
    return h


# --- Traces.

def levels(x, count):
    count = min(max(int(count), 1), len(x))
    return x[:count].mean(), x[-count:].mean()


def tenth(corner):
    return math.ceil(0.1 / corner * (1 - 1e-7))


def apply_section(x, fs, section, s):
    if section == "adaptive":
        return interference(x, fs, s)
    corner = s.get("corner", 0.0) / fs
    width = s.get("width", 0.0) / fs
    family = s.get("family", 0)
    memory = 400000 if corner < 0.001 else 60000
    if section == "lowpass" and family in (GAUSSIAN, BOXCAR):
        if family == BOXCAR:
            weights = np.ones(s["points"]) / s["points"]
            first, last = levels(x, math.ceil(s["points"] / 4))
        else:
            weights = gaussian_weights(corner)
            first, last = levels(x, tenth(corner))
        half = len(weights) // 2
        longer = np.concatenate([np.full(half, first), x, np.full(half, last)])
        return np.convolve(longer, weights, "valid")
    if section == "notch":
        first, _ = levels(x, math.ceil(1 / corner * (1 - 1e-7)))
    else:
        first, _ = levels(x, tenth(corner))
    longer = np.concatenate([np.full(memory, first), x])
    if section == "lowpass" and family != RC:
        h = sampled_impulse_response(family, corner, memory)
        return signal.fftconvolve(longer - first, h)[memory:memory + len(x)] + first
    return signal.sosfilt(recursive(section, family, corner, width), longer)[memory:]


def interference(x, fs, s):
    period = fs / (60.0 if s["reference"] == 1 else 50.0)
    half = int((s["cycles"] * period - 1) / 2)
    last = min(s["end"], int(0.49 * period), half)
    if last < s["start"]:
        return x.copy()
    m = np.arange(-half, half + 1)
    columns = [np.ones_like(m, dtype=float)]
    for l in range(1, last + 1):
        columns += [np.cos(2 * np.pi * l * m / period), np.sin(2 * np.pi * l * m / period)]
    design = np.column_stack(columns)
    unwanted = np.zeros(design.shape[1])
    unwanted[2 * s["start"] - 1:] = 1.0

    def fit(window):
        return design @ (np.linalg.lstsq(design, window, rcond=None)[0] * unwanted)
    if s["compensate"]:
        y = x.copy()
        y[:half] -= fit(x[:2 * half + 1])[:half]
        y[len(x) - half:] -= fit(x[len(x) - 2 * half - 1:])[half + 1:]
        inner = range(half, len(x) - half)
        longer = x
        shift = 0
    else:
        first, last_level = levels(x, math.ceil(period))
        longer = np.concatenate([np.full(half, first), x, np.full(half, last_level)])
        y = x.copy()
        inner = range(len(x))
        shift = half
    for i in inner:
        y[i] = x[i] - fit(longer[i + shift - half:i + shift + half + 1])[half]
    return y


# --- The file.

def record_line(fs, lowpass=None, highpass=None, notch=None, adaptive=None):
    """All fields of a record in one line; a section that is not selected has zeros."""
    low, high, mid, line = lowpass or {}, highpass or {}, notch or {}, adaptive or {}
    fields = [fs, int(lowpass is not None), low.get("family", 0), low.get("corner", 0), low.get("points", 0),
              low.get("order", 0), int(highpass is not None), high.get("family", 0), high.get("corner", 0),
              high.get("order", 0), int(notch is not None), mid.get("corner", 0), mid.get("width", 0),
              mid.get("order", 0), int(adaptive is not None), line.get("reference", 0), line.get("start", 0),
              line.get("end", 0), line.get("cycles", 0), int(line.get("compensate", 0))]
    return " ".join(repr(f) for f in fields)


def responses():
    out = []
    rows = [("lowpass", family, corner, 0.0, 0)
            for family, limit in ((BESSEL, 0.14), (BUTTERWORTH, 0.2), (CHEBYSHEV, 0.2), (RC, 0.5), (RC8, 0.15),
                                  (GAUSSIAN, 0.5))
            for corner in (0.0001, 0.001, 0.01, 0.1, limit)]
    rows += [("lowpass", BOXCAR, 0.0, 0.0, points) for points in (3, 11, 99)]
    rows += [("highpass", family, corner, 0.0, 0)
             for family, limit in ((BESSEL, 0.14), (RC, 0.5)) for corner in (0.0001, 0.001, 0.01, 0.1, limit)]
    rows += [("notch", 0, corner, width, 0)
             for corner, width in ((0.001, 0.0005), (0.01, 0.001), (0.1, 0.03), (0.3, 0.2), (0.05, 0.49))]
    for section, family, corner, width, points in rows:
        center = corner if corner > 0 else 1 / points
        f = center * np.array([0.0, 0.1, 0.3, 0.5, 0.8, 0.9, 0.99, 1.0, 1.01, 1.1, 1.3, 1.7, 2.0, 3.0, 5.0, 10.0])
        f = np.append(f[f < 0.5], 0.5)
        h = response(section, family, corner, width, points, f)
        settings = {"family": family, "corner": corner, "width": width, "points": points}
        out.append(f"response {len(f)} " + record_line(1.0, **{section: settings}))
        out += [f"{a!r} {float(b.real)!r} {float(b.imag)!r}" for a, b in zip(f.tolist(), h)]
    return out


def traces():
    random = np.random.default_rng(12)
    n = 240
    t = np.arange(n)
    x = np.round(-60 + 8 * (t > 130) + 0.02 * t + 3 * np.sin(2 * np.pi * t / 20.2)
                 + random.normal(size=n), 3)
    low = [{"family": family, "corner": corner} for family, corner in
           ((BESSEL, 100.0), (BUTTERWORTH, 300.0), (CHEBYSHEV, 700.0), (RC, 20.0), (RC, 2000.0), (RC8, 50.0),
            (RC8, 600.0), (GAUSSIAN, 40.0), (GAUSSIAN, 1700.0))]
    low += [{"family": BOXCAR, "points": 3}, {"family": BOXCAR, "points": 45}]
    high = [{"family": BESSEL, "corner": 200.0}, {"family": BESSEL, "corner": 500.0}, {"family": RC, "corner": 90.0}]
    mid = [{"corner": 200.0, "width": 40.0}, {"corner": 700.0, "width": 300.0}]
    rows = [(4000.0, {"lowpass": s}) for s in low]
    rows += [(4000.0, {"highpass": s}) for s in high]
    rows += [(4000.0, {"notch": s}) for s in mid]
    for compensate in (False, True):
        for fs, reference, start, end, cycles in ((1010.0, 0, 1, 5, 4), (1010.0, 0, 3, 5, 4), (1212.5, 1, 1, 100, 3),
                                                  (1010.0, 0, 1, 1, 1)):
            rows.append((fs, {"adaptive": {"reference": reference, "start": start, "end": end, "cycles": cycles,
                                           "compensate": compensate}}))
    both = {"lowpass": {"family": BUTTERWORTH, "corner": 500.0, "order": 2},
            "highpass": {"family": RC, "corner": 30.0, "order": 2}}
    rows.append((4000.0, both))
    other_way = {key: dict(s) for key, s in both.items()}
    other_way["highpass"]["order"] = 1
    rows.append((4000.0, other_way))
    rows.append((1010.0, {"lowpass": {"family": GAUSSIAN, "corner": 200.0, "order": 3},
                          "highpass": {"family": RC, "corner": 10.0, "order": 2},
                          "notch": {"corner": 120.0, "width": 10.0, "order": 1},
                          "adaptive": {"reference": 0, "start": 1, "end": 4, "cycles": 3, "compensate": True}}))
    out = [f"data {n}"] + [repr(v) for v in x.tolist()]
    rank = ("lowpass", "highpass", "notch", "adaptive")
    for fs, sections in rows:
        y = x
        names = sorted(sections, key=lambda name: (name == "adaptive", sections[name].get("order", 0),
                                                   rank.index(name)))
        for name in names:
            y = apply_section(y, fs, name, sections[name])
        out.append(f"trace {n} " + record_line(fs, **sections))
        out += [repr(v) for v in np.asarray(y).tolist()]
    return out


def close(a, b):
    """Whether two files agree but for the last digits, which differ between machines."""
    if len(a) != len(b):
        return False
    for one, other in zip(a, b):
        for p, q in zip(one.split(), other.split()):
            try:
                if abs(float(p) - float(q)) > 1e-10:
                    return False
            except ValueError:
                if p != q:
                    return False
    return True


def main():
    lines = ["# Made by tools/filter/make_truth.py. A record: fs, lowpass (selected family corner points order),",
             "# highpass (selected family corner order), notch (selected center width order), interference (selected",
             "# reference first last cycles compensate). A response: frequency / fs, real and imaginary part."]
    lines += responses() + traces()
    if "--check" in sys.argv:
        with open(OUT, encoding="ascii") as f:
            if not close([line for line in f.read().splitlines() if line[0] != "#"],
                         [line for line in lines if line[0] != "#"]):
                sys.exit(f"{OUT} is not what this script makes")
        return
    with open(OUT, "w", encoding="ascii", newline="\n") as f:
        f.write("\n".join(lines) + "\n")


main()
