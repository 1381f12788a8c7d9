"""Finds the places of a source folder where a mutant can stand, with the compiler's own syntax tree."""
import os
import re

from clang import cindex
from clang.cindex import CursorKind as K, TypeKind as T

COMPARE = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
LOGIC = {"&&": "||", "||": "&&"}
ARITHMETIC = {"+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "&": "|", "|": "&", "^": "&", "<<": ">>", ">>": "<<"}
NUMBERS = {T.BOOL, T.CHAR_U, T.UCHAR, T.USHORT, T.UINT, T.ULONG, T.ULONGLONG, T.CHAR_S, T.SCHAR, T.WCHAR, T.SHORT,
           T.INT, T.LONG, T.LONGLONG, T.FLOAT, T.DOUBLE, T.LONGDOUBLE, T.ENUM, T.CHAR16, T.CHAR32, T.DEPENDENT}
BODIES = {K.COMPOUND_STMT, K.CASE_STMT, K.DEFAULT_STMT, K.LABEL_STMT}


class Place:
    """A change of the text start..end of a file. kind: 'value' (alt instead of the text), 'negate', 'drop'
    (an expression that is a statement), 'leave' (a statement of flow), 'declared' (negates a condition that
    declares a name). Places of one group are one mutant: the two ends of an exchange."""

    def __init__(self, file, start, end, kind, alt, what, group=None):
        self.file, self.start, self.end, self.kind, self.alt, self.what = file, start, end, kind, alt, what
        self.group = group

    def key(self):
        return (self.file, self.start, self.end, self.kind, self.alt)


class Constant:
    """A variable or function that is declared constexpr, and what the word becomes where mutants run in it."""

    def __init__(self, name, word, variable, span):
        self.name, self.word, self.variable, self.span = name, word, variable, span


class Finder:
    """Places of the files of src/<folder>, headers included. Left alone are: what must be known at compile time
    (case labels, bounds of arrays, values of enumerations, assertions of layout) and what a macro's body holds."""

    def __init__(self, root, folder):
        self.root, self.folder = root, folder
        self.top = os.path.join(root, "src", folder) + os.sep
        self.text = {}
        self.places = {}
        self.constants = {}  # (file, offset of the word constexpr) -> Constant
        self.fixed = set()  # names that bounds of arrays and case labels are made of
        self.asserts = set()  # (file, start, end)
        self.seen = set()

    def run(self):
        names = sorted(n for n in os.listdir(self.top) if n.endswith((".h", ".cpp")))
        index = cindex.Index.create()
        arguments = ["-xc++", "-std=c++20", "-I" + self.root + "/src", "-I" + self.root + "/include",
                     "-I" + self.root + "/resources", "-ferror-limit=0"]
        headers = "".join('#include "%s/%s"\n' % (self.folder, n) for n in names if n.endswith(".h"))
        units = [(self.top + n, None) for n in names if n.endswith(".cpp")]
        units.append((self.top + "all_headers.cpp", headers))
        for path, text in units:
            unsaved = [(path, text)] if text is not None else None
            unit = index.parse(path, args=arguments, unsaved_files=unsaved)
            for diagnostic in unit.diagnostics:
                if diagnostic.severity >= cindex.Diagnostic.Error and self.top in str(diagnostic.location.file):
                    raise SystemExit("mutate: %s" % diagnostic)
            for cursor in unit.cursor.get_children():
                if self.own(cursor):
                    self.visit(cursor, None)
        return self

    # --- text
    def own(self, cursor):
        file = cursor.location.file
        return file is not None and file.name.startswith(self.top) and not file.name.endswith("all_headers.cpp")

    def source(self, path):
        if path not in self.text:
            self.text[path] = open(path, "rb").read().decode("latin-1")
        return self.text[path]

    def span(self, cursor):
        extent = cursor.extent
        if extent.start.file is None or extent.end.file is None or extent.start.file.name != extent.end.file.name:
            return None
        path = extent.start.file.name
        if not path.startswith(self.top) or extent.end.offset <= extent.start.offset:
            return None
        return path, extent.start.offset, extent.end.offset

    def add(self, span, kind, alt, what, group=None):
        place = Place(span[0], span[1], span[2], kind, alt, what, group)
        self.places.setdefault(place.key(), place)

    def raw(self, span):
        return self.source(span[0])[span[1]:span[2]]

    # --- the walk
    def visit(self, cursor, parent):
        kind = cursor.kind
        span = self.span(cursor)
        if kind == K.STATIC_ASSERT:
            if span:
                self.asserts.add(span)
            return
        if kind in (K.ENUM_CONSTANT_DECL, K.FRIEND_DECL, K.TYPE_ALIAS_DECL, K.TYPEDEF_DECL):
            return
        children = list(cursor.get_children())
        if span:
            mark = (kind, span, cursor.spelling)
            if mark in self.seen and kind not in (K.UNEXPOSED_EXPR,):
                return
            self.seen.add(mark)
            self.note_constexpr(cursor, span)
            self.statements(cursor, children, span)
            self.expression(cursor, children, span, parent)
        skip_first = kind == K.CASE_STMT
        for i, child in enumerate(children):
            bound = kind in (K.VAR_DECL, K.FIELD_DECL, K.PARM_DECL) and child.kind.is_expression() \
                and not self.initialises(child)
            if bound or (skip_first and i == 0):
                self.fixed |= {c.spelling for c in child.walk_preorder() if c.kind == K.DECL_REF_EXPR}
                continue
            self.visit(child, cursor)

    def initialises(self, child):
        span = self.span(child)
        if not span:
            return True
        before = self.source(span[0])[:span[1]].rstrip()
        return before.endswith(("=", "{", "(", ","))

    def note_constexpr(self, cursor, span):
        if cursor.kind not in (K.VAR_DECL, K.FUNCTION_DECL, K.CXX_METHOD, K.CONSTRUCTOR, K.FUNCTION_TEMPLATE,
                               K.CONVERSION_FUNCTION):
            return
        head = self.source(span[0])[span[1]:cursor.location.offset]
        found = re.search(r"\bconstexpr\b", head)
        if not found:
            return
        variable = cursor.kind == K.VAR_DECL
        scope = cursor.semantic_parent.kind
        local = scope not in (K.TRANSLATION_UNIT, K.NAMESPACE, K.CLASS_DECL, K.STRUCT_DECL, K.CLASS_TEMPLATE)
        member = scope in (K.CLASS_DECL, K.STRUCT_DECL, K.CLASS_TEMPLATE)
        has = lambda word: re.search(r"\b%s\b" % word, head)
        if local:
            new = ""
        elif variable and member:
            new = "" if has("inline") else "inline"
        elif variable:
            new = "" if has("inline") or has("static") else "static"
        else:
            new = "" if has("inline") or cursor.kind == K.FUNCTION_TEMPLATE else "inline"
        if variable and "*" not in head and not has("const") and cursor.type.kind != T.CONSTANTARRAY:
            new += " const"
        self.constants[(span[0], span[1] + found.start())] = Constant(cursor.spelling, new.strip(), variable, span)

    def statements(self, cursor, children, span):
        kind = cursor.kind
        bodies = []
        if kind in BODIES:
            bodies = children[1:] if kind == K.CASE_STMT else children
        elif kind in (K.IF_STMT, K.WHILE_STMT, K.FOR_STMT, K.CXX_FOR_RANGE_STMT, K.SWITCH_STMT):
            bodies = self.condition(cursor, children, span)
        elif kind == K.DO_STMT:
            bodies = children[:1]
            if len(children) > 1:
                self.negate(children[1])
        for body in bodies:
            self.statement(body)

    def statement(self, body):
        span = self.span(body)
        if not span:
            return
        raw = self.raw(span)
        if body.kind.is_expression():
            if body.kind != K.LAMBDA_EXPR:
                self.add(span, "drop", None, "drop `%s`" % flat(raw))
        elif body.kind in (K.BREAK_STMT, K.CONTINUE_STMT) or (body.kind == K.RETURN_STMT and raw == "return"):
            end = self.source(span[0]).index(";", span[2]) + 1
            self.add((span[0], span[1], end), "leave", None, "drop `%s`" % flat(raw))
        if body.kind == K.RETURN_STMT:
            value = list(body.get_children())
            if value and value[0].type.get_canonical().kind == T.BOOL and value[0].kind != K.CXX_BOOL_LITERAL_EXPR:
                self.negate(value[0])

    def condition(self, cursor, children, span):
        """Adds the mutants of the condition of a statement; returns the statements that it governs."""
        text = self.source(span[0])
        head = re.compile(r"(if|while|for|switch)\s*(constexpr)?\s*\(").match(text, span[1])
        if not head:
            return []
        close = matching(text, head.end() - 1)
        inside = [c for c in children if self.span(c) and self.span(c)[1] < close]
        bodies = [c for c in children if self.span(c) and self.span(c)[1] >= close]
        if cursor.kind == K.IF_STMT and inside and not head.group(2):
            last = inside[-1]
            if last.kind.is_expression():
                declared = [c for c in inside if c.kind == K.VAR_DECL]
                if declared and ";" not in text[head.end():close]:
                    last = declared[-1]
                else:
                    self.negate(last)
            if last.kind == K.VAR_DECL and ";" not in text[head.end():close]:
                name = last.spelling
                self.add((span[0], close, close), "declared", name, "negate `%s`" % flat(text[head.end():close]))
        elif cursor.kind == K.WHILE_STMT and inside and inside[-1].kind.is_expression():
            self.negate(inside[-1])
        elif cursor.kind == K.FOR_STMT:
            first = text.index(";", head.end())
            second = text.find(";", first + 1, close)
            for child in inside:
                place = self.span(child)
                if second > 0 and first < place[1] and place[2] <= second:
                    self.negate(child)
        return bodies

    def negate(self, cursor):
        span = self.span(cursor)
        if span:
            self.add(span, "negate", None, "negate `%s`" % flat(self.raw(span)))

    def expression(self, cursor, children, span, parent):
        kind = cursor.kind
        raw = self.raw(span)
        if kind in (K.INTEGER_LITERAL, K.FLOATING_LITERAL, K.CHARACTER_LITERAL, K.CXX_BOOL_LITERAL_EXPR,
                    K.STRING_LITERAL):
            alt = other_constant(kind, raw)
            if alt is not None:
                self.add(span, "value", alt, "`%s` -> `%s`" % (flat(raw), flat(alt)))
        elif kind == K.CONDITIONAL_OPERATOR and children:
            self.negate(children[0])
        elif kind in (K.BINARY_OPERATOR, K.COMPOUND_ASSIGNMENT_OPERATOR) and len(children) == 2:
            self.binary(children[0], children[1], span)
        elif kind == K.UNARY_OPERATOR and len(children) == 1:
            self.unary(children[0], span, raw)
        elif kind == K.CALL_EXPR:
            arguments = list(cursor.get_arguments())
            if cursor.spelling.startswith("operator") and len(arguments) == 2:
                if cursor.spelling[8:] in COMPARE:
                    self.binary(arguments[0], arguments[1], span)
            elif not cursor.spelling.startswith("operator"):
                self.exchange(arguments)
        elif kind == K.DECL_REF_EXPR:
            self.enumerator(cursor, span, raw)
        if kind == K.UNARY_OPERATOR and raw.startswith("&") and len(children) == 1:
            self.field(children[0], span, raw)
        elif raw.startswith("offsetof(") and raw.endswith(")"):
            self.offset(cursor, span, raw)

    def binary(self, left, right, span):
        a, b = self.span(left), self.span(right)
        if not a or not b or a[2] > b[1]:
            return
        text = self.source(span[0])
        op = text[a[2]:b[1]].strip()
        left_raw, right_raw = text[span[1]:a[2]], text[b[1]:span[2]]
        new = None
        if op in COMPARE:
            new = COMPARE[op]
        elif op in LOGIC:
            new = LOGIC[op]
        else:
            base = op[:-1] if op.endswith("=") else op
            kinds = (left.type.get_canonical().kind, right.type.get_canonical().kind)
            pointer = base in "+-" and kinds[0] == T.POINTER and kinds[1] in NUMBERS
            if base in ARITHMETIC and (pointer or (kinds[0] in NUMBERS and kinds[1] in NUMBERS)):
                new = ARITHMETIC[base] + ("=" if op.endswith("=") else "")
        if new:
            alt = "%s %s %s" % (left_raw, new, right_raw)
            self.add(span, "value", alt, "`%s` -> `%s`" % (flat(self.raw(span)), new))

    def unary(self, operand, span, raw):
        inner = self.span(operand)
        if not inner:
            return
        if raw.startswith("!"):
            self.add(span, "value", "static_cast<bool>(%s)" % raw[1:], "`%s` -> without `!`" % flat(raw))
        elif raw[0] in "-~" and not raw.startswith("--"):
            self.add(span, "value", "(%s)" % raw[1:], "`%s` -> without `%s`" % (flat(raw), raw[0]))

    def exchange(self, arguments):
        for i in range(len(arguments) - 1):
            a, b = arguments[i], arguments[i + 1]
            if a is None or b is None:
                continue
            s, t = self.span(a), self.span(b)
            if not s or not t or s[2] > t[1]:
                continue
            one, two = self.raw(s), self.raw(t)
            if one == two or one.startswith(("{", "[")) or two.startswith(("{", "[")):
                continue
            if plain(a.type) != plain(b.type):
                continue
            what = "exchange `%s`, `%s`" % (flat(one), flat(two))
            group = (s[0], s[1], t[2], what)
            self.add(s, "value", two, what, group)
            self.add(t, "value", one, what, group)

    def enumerator(self, cursor, span, raw):
        """A named constant becomes the next one of its enumeration."""
        target = cursor.referenced
        if target is None or target.kind != K.ENUM_CONSTANT_DECL or not raw.endswith(target.spelling):
            return
        names = [c.spelling for c in target.semantic_parent.get_children() if c.kind == K.ENUM_CONSTANT_DECL]
        if len(names) > 1:
            other = names[(names.index(target.spelling) + 1) % len(names)]
            alt = raw[:len(raw) - len(target.spelling)] + other
            self.add(span, "value", alt, "`%s` -> `%s`" % (raw, alt))

    def offset(self, cursor, span, raw):
        """The offset of a member becomes that of the member behind it."""
        found = re.match(r"offsetof\((.*[,.\s])(\w+)((?:\[\w+\])*)\)$", raw, re.S)
        targets = [c.referenced for c in cursor.get_children() if c.referenced is not None]
        if not found or not targets or targets[-1].kind != K.FIELD_DECL or targets[-1].spelling != found.group(2):
            return
        names = [c.spelling for c in targets[-1].semantic_parent.get_children() if c.kind == K.FIELD_DECL]
        if len(names) > 1:
            other = names[(names.index(found.group(2)) + 1) % len(names)]
            self.add(span, "value", "offsetof(%s%s)" % (found.group(1), other), "`%s` -> %s" % (flat(raw), other))

    def field(self, operand, span, raw):
        """A pointer to a member becomes one to the next member of the same type."""
        target = operand.referenced
        if target is None or target.kind != K.FIELD_DECL:
            return
        found = re.match(r"&\s*((?:\w+\s*::\s*)+)(\w+)$", raw)
        if not found:
            return
        fields = [c for c in target.semantic_parent.get_children() if c.kind == K.FIELD_DECL and
                  c.type.get_canonical().spelling == target.type.get_canonical().spelling]
        names = [c.spelling for c in fields]
        if len(names) > 1:
            other = names[(names.index(target.spelling) + 1) % len(names)]
            alt = "&%s%s" % (found.group(1), other)
            self.add(span, "value", alt, "`%s` -> `%s`" % (raw, alt))


def plain(kind):
    name = kind.get_canonical().spelling
    return re.sub(r"\bconst\b|[&\s]", "", name)


def flat(text):
    text = re.sub(r"\s+", " ", text)
    return text if len(text) <= 90 else text[:87] + "..."


def matching(text, opening):
    """The offset of the parenthesis that closes the one at `opening`; strings and comments are passed over."""
    depth = 0
    i = opening
    while i < len(text):
        c = text[i]
        if text.startswith("//", i):
            i = text.index("\n", i)
        elif c in "\"'" and not (c == "'" and i and text[i - 1].isalnum()):
            j = i + 1
            while text[j] != c:
                j += 2 if text[j] == "\\" else 1
            i = j
        elif c == "(":
            depth += 1
        elif c == ")":
            depth -= 1
            if depth == 0:
                return i
        i += 1
    return len(text)


def other_constant(kind, raw):
    if raw in ("true", "false"):
        return "false" if raw == "true" else "true"
    if kind == K.INTEGER_LITERAL:
        if re.match(r"^[0-9]", raw):
            return "(%s + 1)" % raw
        return "(%s + 1)" % raw if re.match(r"^[A-Z][A-Z0-9_]+$", raw) else None
    if kind == K.FLOATING_LITERAL and re.match(r"^[0-9.]", raw):
        return "(%s + 1)" % raw
    if kind == K.CHARACTER_LITERAL and raw.startswith("'"):
        return "static_cast<char>(%s + 1)" % raw
    if kind == K.STRING_LITERAL and re.match(r'^"(?!\s*")', raw) and not re.search(r'"\s*\n?\s*"', raw):
        first = raw[1]
        if first == "\\":
            return None if raw[2] in "x01234567" else '"' + "~" + raw[3:]
        return '"' + ("~" if first != "~" else "#") + raw[2:]
    if kind == K.STRING_LITERAL and raw == '""':
        return '"~"'
    return None
