#!/usr/bin/env python3
"""Writes tests/curvefit/figures.txt: values and derivatives of every function in 50 digits, computed from the
formulas of the equation pictures. Needs Debian's python3-mpmath and python3-numpy.

Lines: "equations SUM" (a checksum of the table that the figures were computed from); then for each case
"case FUNCTION METHOD MINIM TERMS POWER_A POWER_B TEMPERATURE VALENCE", "params ..." (flat, with offset and slope),
and for each point "x ... | value | size | derivatives by the grid parameters", the size being the sum of the
absolute values of the parts where they can cancel."""
import os
import zlib

import mpmath
import numpy

import equations
import records

OUT = os.path.join(equations.ROOT, "tests", "curvefit", "figures.txt")
mpmath.mp.dps = 50
CHEBYSHEV, LIKELIHOOD = 3, 1


def pictures_of(function):
    """(method, minimisation, name of the method in the table)"""
    if function in (3, 11):
        return [(0, 0, "other"), (CHEBYSHEV, 0, "chebyshev")]
    if function == 12:
        return [(0, 0, "offset"), (1, LIKELIHOOD, "no-offset")]
    return [(0, 0, "any")]


def terms_of(function, name):
    if function in records.MULTI_TERM and name != "chebyshev":
        return (1, 2, 3, 6)
    return (1,)


def points_of(record, draw):
    """25 to 40 points: spread over the record, off its grid, and the ends."""
    x = record.x[0]
    if len(record.x) > 1:
        rows = [[float(c[i]) for c in record.x] for i in range(len(x))]
        while len(rows) < 26:
            row = [float(draw.g(0.3, 3) * c[draw.random.randint(len(x))]) for c in record.x]
            rows.append(row)
        # Near 0 mV, where the quotient keeps few digits.
        rows.append([100.0, 100.0 * (1 + 2.0 ** -40), 10.0, 10.0, 5.0, 5.0])
        return rows
    low, high = float(x[0]), float(x[-1])
    if record.function in (1, 33):
        values = [float(v) for v in x] + [draw.u(low, high) for _ in range(26)]
    else:
        values = [low, high] + [low + (high - low) * draw.random.uniform() ** 2 for _ in range(24)]
        values += [low + (high - low) * 2.0 ** -k for k in (10, 30)]
    if record.function in (21, 22, 23, 29, 30):
        values = [abs(v) for v in values if v != 0] + [low * 1e-6, high * 1e6]
    if record.function == 1:
        values = [v for v in values if v < record.params[0] + 1]
    return [[v] for v in values]


def text(value):
    return mpmath.nstr(mpmath.mpf(value), 20)


def case_lines(function, method, minim, name, formula, terms, seed):
    record = records.make_record(function, terms, seed)
    draw = records.Draw(seed + 1000 * function)
    if name == "no-offset":
        record.offset = 0.0
    flat = record.flat()
    if name == "no-offset":
        flat = flat[:-1]
    lines = ["case %d %d %d %d %d %d %r %d" % (function, method, minim, terms, record.a, record.b,
                                                record.temperature, record.valence),
             "params " + " ".join(repr(float(v)) for v in flat)]

    def value(params, offset, slope, x):
        return formula(equations.Case(terms, params, offset, slope, x, record.temperature, record.valence,
                                      record.a, record.b))

    for x in points_of(record, draw):
        y = value(record.params, record.offset, record.slope, x)
        # The parts: each term by itself, offset and slope.
        size = abs(y)
        if terms > 1 or record.offset or record.slope:
            size = abs(mpmath.mpf(record.offset)) + abs(mpmath.mpf(record.slope) * x[0])
            for t in range(terms):
                alone = [p if i % terms == t or i >= terms else 0.0 for i, p in enumerate(record.params)]
                size += abs(value(alone, 0, 0, x))
        derivatives = []
        for k in range(len(record.params)):
            def by(p, k=k):
                changed = list(record.params)
                changed[k] = p
                return value(changed, record.offset, record.slope, x)
            derivatives.append(mpmath.diff(by, mpmath.mpf(record.params[k]), h=mpmath.mpf(10) ** -22 *
                                           (abs(record.params[k]) or 1)))
        lines.append("x %s | %s | %s | %s" % (" ".join(repr(float(v)) for v in x), text(y), text(size),
                                              " ".join(text(d) for d in derivatives)))
    return lines


def checksum():
    with open(equations.TABLE, "rb") as table:
        return zlib.crc32(table.read())


def main():
    formulas = equations.formulas()
    lines = ["equations %d" % checksum()]
    for function in range(38):
        for method, minim, name in pictures_of(function):
            for terms in terms_of(function, name):
                lines += case_lines(function, method, minim, name, formulas[(function, name)], terms, 5 + terms)
    with open(OUT, "w", encoding="utf-8") as out:
        out.write("\n".join(lines) + "\n")


if __name__ == "__main__":
    numpy.seterr(all="raise")
    main()
