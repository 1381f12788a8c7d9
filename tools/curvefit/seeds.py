#!/usr/bin/env python3
"""How often the seeds lead a solver to the best fit: a table of rates, resumable.

For each function, each number of terms and each noise, records with realistic parameters are made (records.py).
A success is a least-squares fit by an independent solver (Levenberg-Marquardt of Debian's scipy, derivatives by
differences) that starts from the seeds and ends with a residual at most 5 % above the best one known: that reached
from the true parameters, or theirs. Beside it stand the rates of seeds that are all one (tried on every fourth
record), and the median number of evaluations that the solver needs from either.

    seeds.py [--records N] [--minutes M] [--only F[,F]] [--conditions] [--output FILE]
    seeds.py --report [--output FILE]

Each finished cell is a line of FILE (default build/seeds.txt), and --report puts the lines on the page
docs/seeds.md. What stands in either with that many records is not computed again, so that a fresh clone goes on
where the page ends; remove the lines of a function whose seeds have changed from both."""
import argparse
import os
import re
import time
import warnings

import numpy
import scipy.optimize

import library
import records

ROOT = library.ROOT
SINGLE = [f for f in range(38) if f not in records.MULTI_TERM]
CONDITIONS = ("plain", "reversed", "shuffled", "uneven", "offset", "outlier", "leading")
# Functions whose response has an onset that points may stand before.
ONSET = (7, 8, 11, 13, 14, 15, 16)


def fit(curve, y, start, limit):
    """(residual, evaluations) from a start."""
    def difference(p):
        d = curve.curve(p) - y
        return numpy.where(numpy.isfinite(d), d, 1e150)
    if not numpy.all(numpy.isfinite(start)):
        return numpy.inf, 0
    scale = numpy.where(numpy.asarray(start) != 0, numpy.abs(start), 1.0)
    with warnings.catch_warnings(), numpy.errstate(all="ignore"):
        warnings.simplefilter("ignore")
        try:
            p, _, info, _, _ = scipy.optimize.leastsq(lambda q: difference(q * scale), start / scale,
                                                      full_output=True, maxfev=limit)
            d = difference(p * scale)
            return float(numpy.dot(d, d)), int(info["nfev"])
        except (ValueError, TypeError, FloatingPointError, numpy.linalg.LinAlgError):
            return numpy.inf, 0


def change(record, condition, random):
    """The record under a condition; False where it has no meaning."""
    x = record.x[0]
    if condition == "reversed":
        record.x = [c[::-1].copy() for c in record.x]
    elif condition == "shuffled":
        if record.function in records.MULTI_TERM + tuple(ONSET) + (25,):
            order = random.permutation(len(x) - 1) + 1
            order = numpy.concatenate([[0], order])  # the first point stays the origin
        else:
            order = random.permutation(len(x))
        record.x = [c[order] for c in record.x]
    elif condition == "uneven":
        if len(record.x) > 1 or record.function in (1, 33):
            return False
        moved = x.copy()
        moved[1:-1] += random.uniform(-0.4, 0.4, len(x) - 2) * numpy.diff(x)[:-1]
        record.x = [moved]
    elif condition == "leading":
        return record.function in ONSET
    elif condition == "offset":
        return record.function in records.HAS_OFFSET
    return True


def one(lib, function, terms, noise, condition, seed):
    """(success from the seeds, success from ones, evaluations from the seeds, from ones) or None."""
    record = records.make_record(function, terms, seed)
    random = numpy.random.RandomState(seed + 17)
    if not change(record, condition, random):
        return None
    curve = lib.fit(record)
    curve.prepare(record.x)
    truth = numpy.array(record.flat(), float)
    y = curve.curve(truth)
    span = numpy.ptp(y)
    y = y + noise * span * random.standard_normal(len(y))
    if condition == "offset":
        truth[len(record.params)] += 50 * span
        y = y + 50 * span
    elif condition == "outlier":
        y[random.randint(1, len(y) - 1)] += 3 * span * random.choice([-1, 1])
    elif condition == "leading":
        count = max(1, len(y) // 25)
        step = record.x[0][1] - record.x[0][0]
        record.x = [numpy.concatenate([record.x[0][0] - step * numpy.arange(count, 0, -1), record.x[0]])]
        base = record.offset + noise * span * random.standard_normal(count)
        y = numpy.concatenate([base, y])
        curve.prepare(record.x)
    limit = 200 * (len(truth) + 1)
    best = float(numpy.sum((curve.curve(truth) - y) ** 2))
    best = min(best, fit(curve, y, truth, limit)[0])
    seeds = curve.seeds(record.x, y)
    results = []
    for start in (seeds, numpy.ones(len(truth)) if seed % 4 == 0 else None):
        if start is None:
            results.append((False, 0))
            continue
        residual, count = fit(curve, y, start, limit)
        results.append((residual <= 1.05 * best, count))
    curve.destroy()
    return results[0][0], results[1][0], results[0][1], results[1][1]


def cells(conditions):
    if conditions:
        for terms in (1, 2, 3):
            for condition in CONDITIONS[1:]:
                for function in SINGLE + list(records.MULTI_TERM) if terms == 1 else records.MULTI_TERM:
                    yield function, terms, 0.02, condition
        return
    for terms in (1, 2, 3, 4, 5, 6):
        functions = sorted(SINGLE + list(records.MULTI_TERM)) if terms == 1 else records.MULTI_TERM
        for function in functions:
            for noise in (0.02, 0.05):
                yield function, terms, noise, "plain"


class Cell:
    """One rate: `key` is (function, terms, noise, condition), the others are texts as printed; "-" where a page
    has not kept the number of evaluations."""

    def __init__(self, key, count, ours, naive, calls="-", naive_calls="-"):
        self.key, self.count = key, int(count)
        self.ours, self.naive, self.calls, self.naive_calls = ours, naive, calls, naive_calls

    def line(self):
        return "%s %s %s %s %d %s %s %s %s\n" % (*self.key, self.count, self.ours, self.naive, self.calls,
                                                self.naive_calls)


def cells_of_file(path):
    with open(path, encoding="ascii") as done:
        for line in done:
            function, terms, noise, condition, *rest = line.split()
            yield Cell((function, terms, noise, condition), *rest)


def cells_of_page(path):
    """A page that was written earlier, so that a fresh clone goes on from it."""
    condition = None
    with open(path, encoding="utf-8") as page:
        for line in page:
            if line.startswith("## "):
                condition = next(c for c in CONDITIONS if TITLES[c] == line[3:].strip())
            columns = [c.strip() for c in line.strip().strip("|").split("|")]
            if condition is None or not columns[0].isdigit():
                continue
            function, terms, count, low, high, naive_low, naive_high, calls = columns
            if low:
                yield Cell((function, terms, "0.02", condition), count, low, naive_low, *re.findall(r"\d+", calls))
            if high:
                yield Cell((function, terms, "0.05", condition), count, high, naive_high)


def finished(options):
    """The cells that are there, by key; of two the one with more records, and of equals the later one."""
    cells = {}
    for read, path in ((cells_of_page, options.page), (cells_of_file, options.output)):
        for cell in read(path) if os.path.exists(path) else ():
            if cell.key not in cells or cells[cell.key].count <= cell.count:
                cells[cell.key] = cell
    return cells


def report(done, out):
    """The finished cells as a page."""
    rows = {}
    for (function, terms, noise, condition), cell in done.items():
        rows.setdefault((condition, int(function), int(terms)), {})[noise] = cell
    with open(out, "w", encoding="utf-8") as page:
        page.write(PAGE_HEAD)
        for condition in CONDITIONS:
            of = sorted(key for key in rows if key[0] == condition)
            if not of:
                continue
            page.write("\n## %s\n\n| function | terms | records | 2 %% | 5 %% | ones, 2 %% | ones, 5 %% | "
                       "evaluations (ones) |\n|---|---|---|---|---|---|---|---|\n" % TITLES[condition])
            for key in of:
                low, high = rows[key].get("0.02"), rows[key].get("0.05")
                some = low or high
                page.write("| %d | %d | %d | %s | %s | %s | %s | %s (%s) |\n" % (
                    key[1], key[2], some.count, low.ours if low else "", high.ours if high else "",
                    low.naive if low else "", high.naive if high else "", some.calls, some.naive_calls))


PAGE_HEAD = """# How good the seeds are

Made by `make seeds`, which goes on where it was stopped. For each function and number of terms records with
realistic parameters and Gaussian noise of 2 and of 5 % of the range are made. A success is a least-squares fit by an
independent solver that starts from the seeds and ends with a residual at most 5 % above the best one known, in
percent of the records. Beside it stand seeds that are all one, the solver's own default, and the median number of
evaluations that the solver needs from the seeds at 2 % (and from ones). Combinations that are not in the table have
not been run.

Of a few points with an outlier the best fit may be one that no data of the kind have, such as a pole beside the
outlier (29): no seeds that describe the data lead there.
"""
TITLES = {"plain": "Plain records", "reversed": "Reversed x", "shuffled": "Shuffled points",
          "uneven": "Uneven spacing", "offset": "An offset of 50 ranges", "outlier": "An outlier of 3 ranges",
          "leading": "Points before the event"}


def rate(found, k):
    return 100.0 * sum(f[k] for f in found) / len(found)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--records", type=int, default=200)
    parser.add_argument("--minutes", type=float, default=1e9)
    parser.add_argument("--only", default="")
    parser.add_argument("--conditions", action="store_true")
    parser.add_argument("--library", default=library.DEFAULT)
    parser.add_argument("--output", default=os.path.join(ROOT, "build", "seeds.txt"))
    parser.add_argument("--page", default=os.path.join(ROOT, "docs", "seeds.md"))
    parser.add_argument("--report", action="store_true")
    options = parser.parse_args()
    done = finished(options)
    if options.report:
        report(done, options.page)
        return
    wanted = {int(f) for f in options.only.split(",") if f}
    lib = library.Library(options.library)
    end = time.time() + 60 * options.minutes
    for function, terms, noise, condition in cells(options.conditions):
        if wanted and function not in wanted:
            continue
        key = (str(function), str(terms), "%g" % noise, condition)
        if key in done and done[key].count >= options.records:
            continue
        if time.time() > end:
            print("time is up: run again to go on")
            return
        found = [one(lib, function, terms, noise, condition, 1000 + s) for s in range(options.records)]
        found = [f for f in found if f is not None]
        if not found:
            continue
        naive = found[::4]
        cell = Cell(key, len(found), "%.1f" % rate(found, 0), "%.1f" % rate(naive, 1),
                    "%d" % numpy.median([f[2] for f in found]), "%d" % numpy.median([f[3] for f in naive]))
        print(cell.line(), end="", flush=True)
        with open(options.output, "a", encoding="ascii") as out:
            out.write(cell.line())


if __name__ == "__main__":
    main()
