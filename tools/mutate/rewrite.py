"""Writes the changed copies of a folder: every mutant in place, chosen by its number at run time."""
import os
import re


def one_line(text):
    return re.sub(r"//[^\n]*\n", " ", text).replace("\n", " ")


class Rewriter:
    """`mutants`: list of lists of places, one list for each mutant; `numbers`: their numbers."""

    def __init__(self, finder, mutants, numbers, kept):
        self.finder, self.kept = finder, kept
        self.at = {}  # file -> {(start, end): [(number, place)]}
        for number, places in zip(numbers, mutants):
            for place in places:
                self.at.setdefault(place.file, {}).setdefault((place.start, place.end), []).append((number, place))

    def write(self, folder_out):
        os.makedirs(folder_out, exist_ok=True)
        top = self.finder.top
        wanted = set()
        for name in sorted(os.listdir(top)):
            if not name.endswith((".h", ".cpp")):
                continue
            wanted.add(name)
            path = os.path.join(top, name)
            text = self.render_file(path).encode("latin-1")
            out = os.path.join(folder_out, name)
            if not os.path.exists(out) or open(out, "rb").read() != text:
                with open(out, "wb") as file:
                    file.write(text)
        for name in os.listdir(folder_out):
            if name not in wanted:
                os.remove(os.path.join(folder_out, name))

    def render_file(self, path):
        text = self.finder.source(path)
        edits = dict(self.at.get(path, {}))
        spans = sorted(edits, key=lambda s: (s[0], -s[1]))
        words = {}
        for (file, offset), constant in self.finder.constants.items():
            if file == path and constant.name not in self.kept:
                words[offset] = constant.word
        for file, start, end in self.finder.asserts:
            if file == path:
                # The lines stay where they are, so that the compiler's complaints find their place.
                words[start] = (end, "\n" * text.count("\n", start, end))
        return self.render(text, 0, len(text), spans, edits, words)

    def render(self, text, start, end, spans, edits, words):
        out, position = [], start
        while spans:
            span = spans[0]
            inner = []
            rest = spans[1:]
            k = 0
            while k < len(rest) and rest[k][0] < span[1]:
                if rest[k][1] <= span[1]:
                    inner.append(rest[k])
                # A span that crosses another one comes from a macro; it is left out.
                k += 1
            out.append(self.plain(text, position, span[0], words))
            body = self.render(text, span[0], span[1], inner, edits, words)
            out.append(self.wrap(body, edits[span]))
            position = span[1]
            spans = rest[k:]
        out.append(self.plain(text, position, end, words))
        return "".join(out)

    def plain(self, text, start, end, words):
        out = []
        for offset in sorted(o for o in words if start <= o < end):
            new = words[offset]
            if isinstance(new, tuple):
                stop, new = new
            else:
                stop = offset + len("constexpr")
            if offset < start:
                continue
            out.append(text[start:offset] + new)
            start = stop
        out.append(text[start:end])
        return "".join(out)

    def wrap(self, body, mutants):
        ask = self.ask
        values = [(n, p) for n, p in mutants if p.kind == "value"]
        if values:
            chain = "".join("%s?(%s):" % (ask(n, p), one_line(p.alt)) for n, p in values)
            body = "(%s(%s))" % (chain, body)
        for number, place in mutants:
            if place.kind == "negate":
                body = "(%s!=static_cast<bool>(%s))" % (ask(number, place), body)
            elif place.kind == "drop":
                body = "(%s?(void)0:(void)(%s))" % (ask(number, place), body)
            elif place.kind == "leave":
                body = "{if(!%s){%s}}" % (ask(number, place), body)
            elif place.kind == "declared":
                body = "; (%s!=static_cast<bool>(%s))" % (ask(number, place), place.alt)
        return body

    def ask(self, number, place):
        """In a function that is still constexpr the switch must pass the compiler's own evaluation."""
        for constant in self.finder.constants.values():
            file, start, end = constant.span
            if constant.name in self.kept and file == place.file and start <= place.start and place.end <= end:
                return "ZxMc(%d)" % number
        return "ZxM(%d)" % number
