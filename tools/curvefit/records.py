"""Realistic records of every function: parameters as they occur, and the x at which they are recorded."""
import numpy

MULTI_TERM = (3, 9, 10, 11, 12, 14, 15, 16, 17, 18, 27, 28, 34)
HAS_OFFSET = (2, 3, 5, 6, 7, 8, 9, 11, 12, 13, 14, 15, 16, 17, 18, 23, 26, 27, 28, 31, 32, 34, 35)
PARAMS = {0: 2, 1: 2, 2: 3, 3: 3, 4: 3, 5: 3, 6: 3, 7: 4, 8: 2, 9: 2, 10: 2, 11: 2, 12: 2, 13: 3, 14: 2, 15: 2,
          16: 2, 17: 2, 18: 3, 19: 2, 20: 2, 21: 3, 22: 4, 23: 3, 24: 2, 25: 3, 26: 3, 27: 2, 28: 2, 29: 2, 30: 1,
          31: 2, 32: 2, 33: 1, 34: 1, 35: 1, 36: 1, 37: 4}


class Record:
    def __init__(self, function, terms):
        self.function, self.terms = function, terms
        self.params, self.offset, self.slope = [], 0.0, 0.0
        self.x = []  # one array for each variable
        self.a, self.b, self.temperature, self.valence = 3, 1, 20.0, 1

    def flat(self):
        """Grid parameters, offset, slope."""
        tail = [self.offset] if self.function in HAS_OFFSET else []
        return list(self.params) + tail + ([self.slope] if self.function == 14 else [])


class Draw:
    def __init__(self, seed):
        self.random = numpy.random.RandomState(seed)

    def u(self, low, high):
        return float(self.random.uniform(low, high))

    def g(self, low, high):
        return float(numpy.exp(self.random.uniform(numpy.log(low), numpy.log(high))))

    def sign(self):
        return 1.0 if self.random.uniform() < 0.5 else -1.0

    def pick(self, *values):
        return values[self.random.randint(len(values))]

    def shares(self, n, least):
        """n shares of 1, none below `least`."""
        if n == 1:
            return numpy.array([1.0])
        while True:
            shares = self.random.dirichlet(numpy.ones(n))
            shares = least + (1.0 - n * least) * shares
            if shares.min() >= least:
                return shares


def taus_of(draw, span, terms, low, high):
    """Slowest first drawn, then each faster by a ratio; given fastest first."""
    taus = [draw.u(low, high) * span]
    for _ in range(terms - 1):
        taus.append(taus[-1] / draw.u(3.5, 8.0))
    return taus[::-1]


def exponentials(record, draw, amplitude, signed, low=0.15, high=0.45, offset=0.3):
    terms = record.terms
    span = draw.g(10, 2000)
    count = int(draw.g(200, 2000))
    # More terms need more points than the fastest of them spans.
    fine = terms >= 3
    x = numpy.linspace(0, span, max(count, 1000) if fine else count)
    total = draw.g(*amplitude) * (draw.sign() if signed else 1.0)
    amplitudes = total * draw.shares(terms, 0.2 / (terms - 1) if terms > 1 else 1.0)
    record.params = list(amplitudes) + taus_of(draw, span, terms, low, high)
    record.offset = draw.u(-offset, offset) * abs(total)
    record.x = [x]
    return span, total


def make_record(function, terms, seed):
    draw = Draw((seed * 7919 + function * 101 + terms) % (2 ** 31))
    r = Record(function, terms)
    n = terms
    if function == 0:
        r.params = [draw.g(1.2, 12), draw.g(1.2, 12)]
        r.x = [(numpy.arange(50) + 0.5) / 50]
    elif function == 1:
        trials = draw.random.randint(3, 21)
        r.params = [float(trials), draw.u(0.15, 0.85)]
        r.x = [numpy.arange(trials + 5.0)]
    elif function == 2:
        q = draw.g(10, 2000)
        r.params = [q, draw.u(-80, 0), draw.u(5, 20)]
        r.offset = draw.u(-0.2, 0.2) * q
        r.x = [numpy.arange(-140.0, 61, 10)]
    elif function == 3:
        total = draw.sign() * draw.g(0.1, 50)
        amplitudes = total * draw.shares(n, 0.25 / (n - 1) if n > 1 else 1.0)
        low, high = -160.0, 100.0
        if n == 1:
            mids, widths = [draw.u(-70, 10)], [draw.u(5, 15)]
        else:
            if n <= 3:
                while True:
                    mids = sorted(draw.u(-120, 60) for _ in range(n))
                    if min(numpy.diff(mids)) >= 40:
                        break
            else:
                mids = list(numpy.linspace(-130, 70, n) + draw.random.uniform(-4, 4, n))
            widths = [draw.u(4, 10) if n <= 3 else draw.u(3, 5) for _ in range(n)]
        r.params = list(amplitudes) + list(mids) + widths
        r.offset = draw.u(-0.3, 0.3) * abs(total)
        r.x = [numpy.linspace(low, high, 53 if n <= 2 else 131)]
    elif function == 4:
        r.params = [draw.sign() * draw.g(0.1, 50), draw.u(-60, 10), draw.sign() * draw.u(4, 15)]
        r.x = [numpy.arange(-100.0, 61, draw.pick(5, 10))]
    elif function in (5, 6):
        a = draw.sign() * draw.g(0.1, 50)
        r.params = [a, draw.u(-80, 0), draw.u(1.5, 6)]
        r.offset = draw.u(-0.2, 0.2) * abs(a)
        r.temperature = draw.u(10, 37)
        r.x = [numpy.arange(-140.0, 61, 5)]
    elif function == 7:
        a = draw.sign() * draw.g(0.3, 20)
        r.params = [a, draw.g(0.2, 1.5), draw.pick(0.0, 0.05, 0.2, 0.4), draw.g(3, 12)]
        r.a, r.b = draw.pick(1, 2, 3, 4), draw.pick(1, 2)
        r.offset = draw.u(-0.1, 0.1) * abs(a)
        r.x = [numpy.linspace(0, 20, 400)]
    elif function == 8:
        tau = draw.g(0.5, 5)
        r.params = [draw.sign() * draw.g(5, 500), tau]
        r.offset = draw.u(-0.2, 0.2) * abs(r.params[0])
        r.x = [numpy.linspace(0, draw.u(6, 14) * tau, 500)]
    elif function == 9:
        exponentials(r, draw, (1, 1000), False, offset=0.05)
    elif function == 10:
        if n <= 3:
            logs = [draw.u(-0.4, 3 - 0.85 * (n - 1))]
            for _ in range(n - 1):
                logs.append(logs[-1] + draw.u(0.8, 1.1))
        else:
            logs = list(numpy.linspace(-0.8, 2.9, n))
        events = draw.g(300, 5000)
        shares = draw.shares(n, 0.2 / (n - 1) if n > 1 else 1.0)
        r.params = list(events * 0.1 * shares) + [10.0 ** v for v in logs]
        r.x = [numpy.arange(-1.5, 3.501, 0.1)]
    elif function == 11:
        span = draw.g(10, 2000)
        total = draw.sign() * draw.g(0.1, 50)
        low, high = (0.075, 0.225) if n == 1 else (0.1, 0.3)
        r.params = list(total * draw.shares(n, 0.2 / (n - 1) if n > 1 else 1.0)) + \
            taus_of(draw, span, n, low, high)
        r.a = draw.pick(1, 2, 3, 4, 5, 6)
        r.offset = draw.u(-0.2, 0.2) * abs(total)
        r.x = [numpy.linspace(0, span, 600 if n == 1 else 1500)]
    elif function == 12:
        exponentials(r, draw, (10, 1000), False)
        r.x = [r.x[0][:-1] + 0.5 * (r.x[0][1] - r.x[0][0])]
        peak = sum(p / tau for p, tau in zip(r.params[:n], r.params[n:]))
        r.offset = draw.u(0, 0.05) * peak
    elif function == 13:
        decay = draw.g(3, 30)
        r.params = [draw.sign() * draw.g(5, 500), decay / draw.u(3, 30), decay]
        r.offset = draw.u(-0.2, 0.2) * abs(r.params[0])
        r.x = [numpy.linspace(0, draw.u(4, 8) * decay, 600)]
    elif function in (14, 15, 16):
        span, total = exponentials(r, draw, (0.1, 1000), True)
        if function == 14:
            r.slope = draw.u(-0.3, 0.3) * abs(total) / span
        if function == 16:
            r.params[n:] = [1.0 / tau for tau in r.params[n:]][::1]
    elif function == 17:
        exponentials(r, draw, (1, 1.0000001), False, offset=0.2)
        total = sum(r.params[:n])
        r.params = [f / total for f in r.params[:n]] + [1.0 / tau for tau in r.params[n:]]
    elif function == 18:
        area = draw.g(50, 2000)
        if n == 1:
            means, sigmas = [draw.u(1, 7)], [draw.u(0.4, 1.5)]
        else:
            step = 9.0 / n
            means = [-1 + step * (i + 0.5) + draw.u(-0.1, 0.1) * step for i in range(n)]
            sigmas = [draw.u(0.15, 0.28) * step for _ in range(n)]
        r.params = list(area * draw.shares(n, 0.2 / (n - 1) if n > 1 else 1.0)) + means + sigmas
        r.offset = draw.u(0, 0.02) * area / sigmas[0] / 2.5
        r.x = [numpy.linspace(-2, 10, 121)]
    elif function == 19:
        r.params = [draw.g(0.01, 0.2), draw.g(0.05, 0.6)]
        out = numpy.geomspace(1, 120, 12)
        r.x = [out] + [numpy.full(12, c) for c in (140.0, 145.0, 12.0, 120.0, 8.0)]
    elif function == 20:
        r.params = [draw.g(0.3, 1.5), draw.g(0.2, 10)]
        out = numpy.geomspace(0.1, 110, 15)
        fixed = [numpy.full(15, c) for c in (5.0, 140.0, 140.0, 10.0)]
        r.x = fixed + [out, numpy.full(15, 1e-4)]
    elif function in (21, 22, 23):
        half, power = draw.g(0.05, 50), draw.g(0.7, 3.5)
        top = draw.g(1, 1000)
        decades = draw.u(2.4, 4)
        count = draw.random.randint(8, 16)
        r.x = [half * 10.0 ** numpy.linspace(-decades / 2, decades / 2, count)]
        if function == 21:
            r.params = [top, half, power]
        elif function == 22:
            r.params = [draw.u(-0.3, 0.3) * top, top, half, draw.sign() * power]
        else:
            top *= draw.sign()
            r.params = [top, half, power]
            r.offset = draw.u(-0.2, 0.2) * abs(top)
    elif function == 24:
        top, half = draw.g(1, 1000), draw.g(0.05, 50)
        r.params = [top, half]
        r.x = [numpy.linspace(0.1, 3, 12) / half]
    elif function == 25:
        level, rate = draw.g(1, 1e4), draw.g(0.05, 2)
        ratio = draw.g(0.002, 0.2) if draw.sign() > 0 else draw.u(1.5, 4)
        r.params = [level, level * ratio, rate]
        bend = max(numpy.log(max(1 / ratio - 1, 1.0)), 1.0) / rate
        r.x = [numpy.linspace(0, 2.2 * bend, draw.random.randint(15, 60))]
    elif function == 26:
        r.params = [draw.sign() * draw.g(10, 1000), draw.u(-5, 5), draw.u(0.5, 3)]
        r.offset = draw.u(-0.2, 0.2) * abs(r.params[0]) / r.params[2]
        r.x = [numpy.linspace(-10, 10, 101)]
    elif function in (27, 28):
        corners = [draw.g(10, 300)] if n == 1 else [draw.u(10, 40)]
        for _ in range(n - 1):
            corners.append(corners[-1] * draw.u(5, 9) if n <= 2 else corners[-1] * draw.u(5, 9) ** (1.5 / n))
        total = draw.g(0.01, 100)
        shares = total * draw.shares(n, 0.2 / (n - 1) if n > 1 else 1.0)
        second = corners if function == 27 else [1 / (2 * numpy.pi * f) for f in corners]
        r.params = list(shares) + second
        r.offset = draw.u(0, 0.02) * total
        r.x = [numpy.arange(2.0, 1025, 2)]
    elif function == 29:
        half = draw.g(0.05, 50)
        r.params = [draw.g(1, 1000), half]
        r.x = [half * numpy.linspace(0.1, draw.u(3, 10), draw.random.randint(8, 16))]
    elif function == 30:
        r.params = [draw.g(20, 200)]
        r.valence = draw.pick(1, -1, 2)
        r.x = [numpy.geomspace(1, 140, 8)]
    elif function == 31:
        unit, channels = draw.g(0.1, 3), draw.g(30, 3000)
        r.params = [unit, channels]
        r.offset = draw.u(0, 0.03) * unit * unit * channels
        r.x = [numpy.linspace(0, draw.u(0.6, 0.95) * unit * channels, 40)]
    elif function == 32:
        r.params = [draw.u(-0.01, 0.01), draw.u(-1, 1)]
        r.offset = draw.u(-20, 20)
        r.x = [numpy.linspace(-100, 60, 33)]
    elif function == 33:
        r.params = [draw.g(0.3, 12)]
        r.x = [numpy.arange(0.0, 26)]
    elif function == 34:
        top = draw.g(1, 100)
        r.params = [draw.u(-2, 2) / top ** (i + 1) for i in range(n)]
        r.offset = draw.u(-2, 2)
        r.x = [numpy.linspace(-top, top, 60)]
    elif function == 35:
        r.params, r.offset = [draw.u(-3, 3)], draw.u(-50, 50)
        r.x = [numpy.linspace(-10, 40, 40)]
    elif function == 36:
        r.params = [draw.sign() * draw.u(0.1, 3)]
        r.x = [numpy.linspace(-10, 40, 40)]
    elif function == 37:
        r.params = [draw.g(0.05, 1), draw.u(12, 40), draw.g(0.01, 0.3), draw.u(12, 40)]
        r.x = [numpy.arange(-120.0, 61, 10)]
    return r
