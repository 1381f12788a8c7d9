"""Reads resources/pictures/equations.txt and evaluates its formulas in as many digits as mpmath is told.

The text of the picture itself is what is evaluated: fractions, sums over terms, powers, subscripted names. A
product without a sign binds closer than an inline division, as on paper: x/2a is x/(2a)."""
import os
import re

import mpmath

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..")
TABLE = os.path.join(ROOT, "resources", "pictures", "equations.txt")

GREEK = {"alpha": "α", "beta": "β", "delta": "δ", "tau": "τ", "sigma": "σ", "mu": "μ", "lambda": "λ",
         "infty": "∞", "pi": "π"}
GAS = mpmath.mpf("8.31446261815324")
FARADAY = mpmath.mpf("96485.3321233100184") / 1000  # per mC, so that RT/F is in mV


class Picture:
    def __init__(self, name, function, method):
        self.name, self.function, self.method = name, function, method
        self.lines, self.symbols = [], {}


def read_table(path=TABLE):
    pictures = []
    with open(path, encoding="utf-8") as table:
        for line in table:
            line = line.rstrip("\n")
            if not line or line.startswith("#"):
                continue
            if line.startswith("EQ_"):
                name, function, method = line.split()
                pictures.append(Picture(name, None if function == "none" else int(function), method))
            elif line.startswith("tex "):
                pictures[-1].lines.append(line[4:])
            elif line.startswith("symbols"):
                pictures[-1].symbols = dict(part.split("=") for part in line.split()[1:])
            else:
                raise ValueError("not understood: " + line)
    return pictures


# --- From text to a tree ------------------------------------------------------------------------------------

TOKEN = re.compile(r"\\[A-Za-z]+|\\.|[0-9]+(?:\.[0-9]+)?|.")
BLANKS = {r"\,", r"\ ", " ", r"\left", r"\right"}


def tokens_of(tex):
    return [t for t in TOKEN.findall(tex) if t not in BLANKS]


class Reader:
    """Recursive descent over the tokens; nodes are tuples."""

    def __init__(self, tokens, names):
        self.tokens, self.at, self.names = tokens, 0, names

    def peek(self, ahead=0):
        place = self.at + ahead
        return self.tokens[place] if place < len(self.tokens) else None

    def take(self, wanted=None):
        token = self.peek()
        if token is None or (wanted is not None and token != wanted):
            raise ValueError("expected %s at %s" % (wanted, self.tokens[self.at:]))
        self.at += 1
        return token

    def group(self):
        self.take("{")
        node = self.sum()
        self.take("}")
        return node

    def raw_group(self):
        """The text of a subscript."""
        self.take("{")
        text = ""
        while self.peek() != "}":
            token = self.take()
            if token == r"\mathrm":
                text += self.raw_group()
            elif token.startswith("\\"):
                text += GREEK[token[1:]]
            else:
                text += token
        self.take("}")
        return text

    def sum(self):
        node = None
        sign = "+"
        if self.peek() == "-":
            sign = self.take()
        node = self.ratio()
        if sign == "-":
            node = ("neg", node)
        while self.peek() in ("+", "-"):
            sign = self.take()
            node = ("add" if sign == "+" else "sub", node, self.ratio())
        return node

    def ratio(self):
        node = self.product()
        while self.peek() == "/":
            self.take()
            node = ("div", node, self.product())
        return node

    def starts_factor(self):
        token = self.peek()
        return token is not None and token not in ("+", "-", "/", ")", "]", "}", ",", "=")

    def product(self):
        node = self.factor()
        while self.starts_factor():
            node = ("mul", node, self.factor())
        return node

    def factor(self):
        node = self.atom()
        while self.peek() in ("^", "!"):
            if self.take() == "!":
                node = ("factorial", node)
            else:
                node = ("pow", node, self.group())
        return node

    def atom(self):
        token = self.peek()
        if token == r"\sum":
            self.take()
            for mark in ("_", "^"):
                self.take(mark)
                self.raw_group()
            return ("sum", self.ratio_of_product())
        if token == r"\dfrac":
            self.take()
            return ("div", self.group(), self.group())
        if token == r"\sqrt":
            self.take()
            return ("sqrt", self.group())
        if token == r"\ln":
            self.take()
            return ("ln", self.factor())
        if token == r"\Gamma":
            self.take()
            return ("gamma", self.factor())
        if token == "B" and self.peek(1) == "(":
            self.at += 2
            first = self.sum()
            self.take(",")
            second = self.sum()
            self.take(")")
            return ("beta", first, second)
        if token == "(" or (token == "[" and self.peek(1) != r"\mathrm"):
            self.take()
            node = self.sum()
            self.take(")" if token == "(" else "]")
            return node
        if token == "[":
            self.take()
            self.take(r"\mathrm")
            name = "[" + self.raw_group() + "]"
            self.take("]")
            return ("name", self.subscript(name))
        if re.match(r"[0-9]", token):
            return ("number", self.take())
        self.take()
        name = GREEK[token[1:]] if token.startswith("\\") else token
        if name == "z" and self.peek() == r"\delta":
            self.take()
            return ("name", "zδ")
        name = self.subscript(name)
        if name in ("e", "π"):
            return ("constant", name)
        return ("name", name)

    def ratio_of_product(self):
        return self.ratio()

    def subscript(self, name):
        if self.peek() == "_":
            self.take()
            name += "_" + self.raw_group()
        return name


def definitions_of(picture):
    """{name: tree}; the formula itself has the name "". A mere condition or renaming is left out."""
    found = {}
    for line in picture.lines:
        for part in re.split(r",\\ (?:\\ )?", line):
            left, right = part.split("=", 1) if not part.startswith(r"\sum") else (None, None)
            if left is None or left in (r"\alpha", r"\beta"):
                continue  # a condition; a ratio that is a parameter itself
            left_name = left if left in ("u", "M", "B(a,b)") else ""
            found[left_name] = Reader(tokens_of(right), picture.symbols).sum()
    return found


# --- From a tree to a value ---------------------------------------------------------------------------------

class Case:
    """What the names of a formula stand for."""

    def __init__(self, terms=1, params=(), offset=0, slope=0, x=(0,), temperature=20, valence=1, a=1, b=1):
        self.terms, self.params, self.offset, self.slope = terms, list(params), offset, slope
        self.x, self.temperature, self.valence, self.a, self.b = list(x), temperature, valence, a, b


class Formula:
    def __init__(self, picture):
        self.picture = picture
        self.definitions = definitions_of(picture)

    def name(self, name, case, term):
        if name == "i" and term is not None:
            return mpmath.mpf(term + 1)
        if name in ("u", "M_o", "M_i") and self.picture.name == "EQ_EXTGHK":
            if name == "u":
                return self.value(self.definitions["u"], case, term)
            side = name[-1]
            return self.name("[K]_" + side, case, term) + \
                self.name("α", case, term) * self.name("[Na]_" + side, case, term)
        what = self.picture.symbols[name]
        if what.isdigit():
            return mpmath.mpf(case.params[int(what) * case.terms + (term or 0)])
        if what == "x":
            return mpmath.mpf(case.x[0])
        if what == "1/x":
            return 1 / mpmath.mpf(case.x[0])
        if re.match(r"x[0-5]$", what):
            return mpmath.mpf(case.x[int(what[1])])
        return {"C": lambda: mpmath.mpf(case.offset), "m": lambda: mpmath.mpf(case.slope),
                "T": lambda: mpmath.mpf(case.temperature) + mpmath.mpf("273.15"),
                "z": lambda: mpmath.mpf(case.valence), "a": lambda: mpmath.mpf(case.a),
                "b": lambda: mpmath.mpf(case.b), "R": lambda: GAS, "F": lambda: FARADAY}[what]()

    def value(self, node, case, term=None):
        kind = node[0]
        if kind == "number":
            return mpmath.mpf(node[1])
        if kind == "constant":
            return mpmath.e if node[1] == "e" else mpmath.pi
        if kind == "name":
            return self.name(node[1], case, term)
        if kind == "sum":
            return mpmath.fsum(self.value(node[1], case, i) for i in range(case.terms))
        if kind == "pow" and node[1] == ("constant", "e"):
            return mpmath.exp(self.value(node[2], case, term))
        parts = [self.value(part, case, term) for part in node[1:]]
        return {"add": lambda a, b: a + b, "sub": lambda a, b: a - b, "mul": lambda a, b: a * b,
                "div": lambda a, b: a / b, "neg": lambda a: -a, "pow": lambda a, b: mpmath.power(a, b),
                "sqrt": mpmath.sqrt, "ln": mpmath.log, "gamma": mpmath.gamma,
                "factorial": lambda a: mpmath.gamma(a + 1),
                "beta": lambda a, b: mpmath.gamma(a) * mpmath.gamma(b) / mpmath.gamma(a + b)}[kind](*parts)

    def __call__(self, case):
        return self.value(self.definitions[""], case)


def formulas():
    """{(function, method): Formula}"""
    return {(p.function, p.method): Formula(p) for p in read_table() if p.function is not None}
