#!/usr/bin/env python3
"""The limits of the filter and spectrum dialogs, computed a second time in exact fractions and in another way than
the library computes them. Writes tests/sigproc/limits.txt, which the tests compare with the library:

    tools/sigproc/limits.py > tests/sigproc/limits.txt

A line of the first part is: rate, points, then for the families 2 to 9 (9 is none) the lowest and highest lowpass
cutoff and the step of its arrows; 25 rates x 50 points x 8 families. A line of the second part, behind "averaging",
is: points, points of the whole sweep, traces, length, swept, segments checked, overlap checked, traces checked;
then segments, overlap and traces enabled, and the number of segments. Deterministic.
"""
from fractions import Fraction as F
import random

RATES = [0.001, 0.5, 1.0, 3.7, 12.5, 60.0, 99.9, 250.0, 333.3, 1000.0, 1024.0, 2000.0, 4999.5, 5000.0, 8000.0,
         10000.0, 12345.678, 20000.0, 44100.0, 50000.0, 100000.0, 250000.0, 1e6, 1e9, 1e12]
POINTS = [0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 19, 20, 23, 24, 31, 32, 40, 64, 99, 100, 101,
          128, 195, 196, 197, 198, 199, 200, 256, 500, 777, 1000, 1023, 1024, 4096, 8191, 16383, 16384, 20000, 100000,
          1000000, 2 ** 31]
TOP = {2: F(14, 100), 4: F(20, 100), 5: F(20, 100), 6: F(50, 100), 7: F(50, 100), 8: F(15, 100)}


def floor(x):
    return x.numerator // x.denominator


def largest_length(points):
    odd = [n for n in range(3, 100, 2) if n <= points // 2]
    return odd[-1] if len(odd) > 2 else 3


def gaussian_lowest(rate, points):
    whole = F(rate)
    if points == 0:
        share = F(1, 10000)
    elif points < 8:
        share = F(1, 2)
    else:
        quarter = min(points // 4 - 1, 4095)
        millionths = floor(F(1060041454108, 10 ** 12) / quarter * 10 ** 6)
        share = F(max(millionths // 100, 1), 10000)
    share = min(share, F(1, 2))
    low = share * whole
    if low > 1:
        low = F(floor(low) + 1)
        while low > 10 and low % 5 != 0:
            # By ones where that is quick, else in one go.
            low = low + 1 if low < 10 ** 6 else low + (5 - low % 5)
    return max(low, whole / 10000)


def lowpass(family, rate, points):
    whole = F(rate)
    if family == 3:
        low, high = F(3), F(largest_length(points))
    else:
        high = whole * TOP.get(family, TOP[2])
        low = gaussian_lowest(rate, points) if family == 6 else whole / 10000
    return (low, high) if high > low else (high - 1, high)


def step(low, high):
    tens = floor((high - low) / 75)
    if tens <= 0:
        return 1
    while tens % 10 and tens < 100:
        tens += 1
    return min(tens, 100)


def number(x):
    return '%.12g' % float(x)


def averaging(points, whole, length, swept, checked):
    if swept:
        segments = points // length >= 2
        overlap = segments and F(3, 2) * length <= whole
    else:
        segments = points >= 2 * length
        if points < F(3, 2) * length:
            overlap = False
        elif points < 2 * length:
            overlap = True
        else:
            overlap = checked
    return segments, overlap


def segments_of(points, traces, length, on, laps, averaged):
    each = points // length
    if laps:
        each = max((2 * points) // length - 1, 0)
    return {(False, False): traces * each, (False, True): traces, (True, True): 1, (True, False): each}[(on, averaged)]


for rate in RATES:
    for points in POINTS:
        cells = [repr(rate), str(points)]
        for family in range(2, 10):
            low, high = lowpass(family, rate, points)
            cells += [number(low), number(high), str(step(low, high))]
        print(' '.join(cells))
print('averaging')
random.seed(20261122)
for _ in range(2000):
    length = 2 ** random.randint(4, 19)
    near = [length, length * 3 // 2, length * 2, length * 3, 16]
    points = max(0, random.choice([random.choice(near) + random.randint(-2, 2), random.randint(0, 4 * length),
                                   random.randint(0, 10 ** 6)]))
    whole = points + random.choice([0, 0, 1, random.randint(0, points + 1)])
    traces = random.choice([1, 1, 2, 7, 3500])
    swept, segments, overlap, average = (random.random() < 0.5 for _ in range(4))
    can_segments, can_overlap = averaging(points, whole, length, swept, segments)
    can_traces = traces > 1
    count = segments_of(points, traces, length, segments and can_segments, overlap and can_overlap,
                        average and can_traces)
    print(points, whole, traces, length, int(swept), int(segments), int(overlap), int(average), int(can_segments),
          int(can_overlap), int(can_traces), count)
