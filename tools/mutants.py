# SPDX-License-Identifier: MIT
"""Every small change of a C++ source that tests/ should notice: its mutants.

A small lexer tells code from comments, strings and directives; the rest follows from the layout
that clang-format gives every file here: an operator with two operands has blanks on both sides,
which the brackets of a template and the marks of pointers and references never have.
"""
import bisect
import dataclasses
import hashlib
import re

TOKEN = re.compile(r"""
    (?P<skip>\s+|//[^\n]*|/\*.*?\*/|^[ \t]*\#(?:[^\n\\]|\\.)*)
    |(?P<string>(?:u8|[uUL])?(?:R"(?P<mark>[^(]*)\(.*?\)(?P=mark)"|"(?:[^"\\\n]|\\.)*"))
    |(?P<char>(?:u8|[uUL])?'(?:[^'\\\n]|\\.)+')
    |(?P<number>\.?\d(?:[\w.']|[eEpP][+-])*)
    |(?P<word>[A-Za-z_]\w*)
    |(?P<sign><<=|>>=|->\*|\.\.\.|::|->|\+\+|--|&&|\|\||[-+*/%&|^<>=!]=|<<|>>|.)
    """, re.X | re.S | re.M)

SWAPS = {
    "<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"), "==": ("!=",),
    "!=": ("==",), "&&": ("||",), "||": ("&&",), "+": ("-",), "-": ("+",), "*": ("/",),
    "/": ("*",), "%": ("*",), "&": ("|",), "|": ("&",), "^": ("&",), "<<": (">>",),
    ">>": ("<<",), "+=": ("-=",), "-=": ("+=",), "*=": ("/=",), "/=": ("*=",), "|=": ("&=",),
    "&=": ("|=",), "^=": ("|=",), "<<=": (">>=",), ">>=": ("<<=",),
}
STEPS = {"++": "--", "--": "++"}
TRUTH = {"true": "false", "false": "true"}
INTEGER = re.compile(r"(0[xX][0-9a-fA-F]+|\d+)([uUlL]*)")
REAL = re.compile(r"(\d+\.\d*|\.\d+)([fFlL]?)")
PAIRS = {"(": ")", "[": "]", "{": "}"}
HEADS = {"if", "for", "while", "switch"}
BEFORE_BODY = {")", "]", "else", "do", "try", "const", "noexcept", "override", "mutable"}
SCOPES = {"namespace", "class", "struct", "union", "enum", "extern"}
NOT_REMOVED = {"using", "static_assert", "typedef", "goto", "auto"}
ENDS_OPERAND = {"&&", "||", "?", ":", ",", ";", "=", "return", ")", "]", "}"}
EMPTY = {"nullptr", "true", "false", "0", 'L""', '""', "{}", ""}


@dataclasses.dataclass
class Token:
    kind: str
    text: str
    start: int
    end: int


@dataclasses.dataclass
class Mutant:
    """A change of a file: what stands from start to end becomes text."""
    file: str
    kind: str
    start: int
    end: int
    text: str
    line: int = 0
    function: str = ""
    before: str = ""
    after: str = ""
    key: str = ""

    def applied(self, source):
        return source[:self.start] + self.text + source[self.end:]


class Source:
    """The tokens of a source, with the bracket that closes each opening one."""

    def __init__(self, name, text):
        self.name, self.text = name, text
        self.tokens = [Token(m.lastgroup, m[m.lastgroup], m.start(), m.end())
                       for m in TOKEN.finditer(text) if m.lastgroup != "skip"]
        self.lines = [0] + [m.end() for m in re.finditer("\n", text)]
        self.closing = {}
        self.pair()
        self.silent = self.static_asserts()
        self.bodies = {}
        self.find_bodies()

    def pair(self):
        open_ones = []
        for number, token in enumerate(self.tokens):
            if token.kind == "sign" and token.text in PAIRS:
                open_ones.append(number)
            elif token.kind == "sign" and token.text in PAIRS.values():
                self.closing[open_ones.pop()] = number

    def at(self, number):
        return self.tokens[number].text if 0 <= number < len(self.tokens) else ""

    def static_asserts(self):
        """The numbers of the tokens that only the compiler reads."""
        return {inside for number, token in enumerate(self.tokens) if token.text == "static_assert"
                for inside in range(number, self.closing[number + 1] + 1)}

    def head(self, number):
        """The first token of what stands before a brace."""
        first = number
        while first > 0 and self.at(first - 1) not in (";", "{", "}"):
            first -= 1
        return first

    def is_body(self, number):
        first = self.head(number)
        if self.at(first) in SCOPES and "(" not in map(self.at, range(first, number)):
            return False
        return self.at(number - 1) in BEFORE_BODY

    def find_bodies(self):
        """Each brace that opens statements, with the name of the function that they are in."""
        ends = []
        for number, token in enumerate(self.tokens):
            while ends and ends[-1][0] < number:
                ends.pop()
            if token.text == "{" and token.kind == "sign" and self.is_body(number):
                name = ends[-1][1] if ends else self.function_name(number)
                self.bodies[number] = name
                ends.append((self.closing[number], name))

    def function_name(self, number):
        for inside in range(self.head(number), number):
            if self.at(inside + 1) == "(":
                start = inside
                while self.at(start - 1) in ("::", "~") or self.at(start) in ("::", "~"):
                    start -= 1
                return "".join(map(self.at, range(start, inside + 1)))
        return ""

    def function_at(self, position):
        for number, name in self.bodies.items():
            opening, closing = self.tokens[number], self.tokens[self.closing[number]]
            if opening.start <= position < closing.end:
                return name
        return ""

    def line(self, position):
        return bisect.bisect_right(self.lines, position)

    def is_spaced(self, number):
        token = self.tokens[number]
        return self.text[token.start - 1].isspace() and self.text[token.end].isspace()

    def until(self, number, ends):
        """The first token from a number on, outside of brackets, that is one of the ends."""
        while number < len(self.tokens) and self.at(number) not in ends:
            number = self.closing.get(number, number) + 1
        return number

    def back_until(self, number, ends):
        opening = {closing: start for start, closing in self.closing.items()}
        while number >= 0 and (number in opening or self.at(number) not in ends):
            number = opening.get(number, number) - 1
        return number


def span(source, kind, first, last, text):
    return Mutant(source.name, kind, source.tokens[first].start, source.tokens[last].end, text)


def is_unary(source, number):
    before = source.tokens[number - 1]
    is_sign = before.kind == "sign" and before.text not in (")", "]")
    has_blank = source.text[source.tokens[number].end].isspace()
    return (is_sign or before.text == "return") and not has_blank


def operators(source, number, token):
    if source.at(number - 1) == "operator":
        return
    if token.text in SWAPS and source.is_spaced(number):
        for text in SWAPS[token.text]:
            yield span(source, "operator", number, number, text)
    elif token.text in STEPS:
        yield span(source, "operator", number, number, STEPS[token.text])
    elif token.text in "!-~" and is_unary(source, number) and source.at(number - 1) != "::":
        yield span(source, "operator", number, number, "")


def neighbours(number):
    """An integer literal, one more and one less."""
    digits, suffix = INTEGER.fullmatch(number).groups()
    value = int(digits, 0) if digits.lower().startswith("0x") else int(digits)
    form = "0x{:X}" if digits.lower().startswith("0x") else "{}"
    return [form.format(near) + suffix for near in (value + 1, value - 1) if near >= 0]


def constants(source, number, token):
    if token.kind == "number" and INTEGER.fullmatch(token.text):
        is_pure = source.at(number - 1) == "=" and source.at(number - 2) in BEFORE_BODY
        for text in [] if is_pure else neighbours(token.text):
            yield span(source, "constant", number, number, text)
    elif token.kind == "number" and REAL.fullmatch(token.text):
        digits, suffix = REAL.fullmatch(token.text).groups()
        yield span(source, "constant", number, number, f"{float(digits) + 1}{suffix}")
    elif token.kind == "char":
        prefix = token.text.partition("'")[0]
        yield span(source, "constant", number, number, prefix + r"'\x01'")
    elif token.text in TRUTH and token.kind == "word":
        yield span(source, "constant", number, number, TRUTH[token.text])


def whole_conditions(source, number, token):
    if token.text not in ("if", "while") or token.kind != "word":
        return
    opening = number + 1 + (source.at(number + 1) == "constexpr")
    closing = source.closing[opening]
    if {";", "="} & set(map(source.at, range(opening, closing))):
        return
    for text in ("true", "false") if token.text == "if" else ("false",):
        yield span(source, "condition", opening + 1, closing - 1, text)


def operands(source, number, token):
    """One side of && or || without effect."""
    if token.text not in ("&&", "||") or not source.is_spaced(number):
        return
    neutral = "true" if token.text == "&&" else "false"
    first = source.back_until(number - 1, ENDS_OPERAND | {"(", "[", "{"}) + 1
    last = source.until(number + 1, ENDS_OPERAND) - 1
    yield span(source, "condition", first, number - 1, neutral)
    yield span(source, "condition", number + 1, last, neutral)


def choices(source, number, token):
    """The two results of ?: in each other's place."""
    if token.text != "?":
        return
    colon, depth = number + 1, 0
    while depth or source.at(colon) != ":":
        depth += (source.at(colon) == "?") - (source.at(colon) == ":")
        colon = source.closing.get(colon, colon) + 1
    last = source.until(colon + 1, {",", ";", ")", "]", "}"}) - 1
    one = source.text[source.tokens[number + 1].start:source.tokens[colon - 1].end]
    other = source.text[source.tokens[colon + 1].start:source.tokens[last].end]
    yield span(source, "condition", number + 1, last, f"{other} : {one}")


def results(source, number, token):
    if token.text != "return" or token.kind != "word":
        return
    end = source.until(number, {";"})
    text = "".join(map(source.at, range(number + 1, end)))
    if text not in EMPTY:
        yield span(source, "result", number + 1, end - 1, "{}")


def first_statement(source, number):
    """Where the statement behind a head, a label or else begins."""
    while True:
        if source.at(number) in HEADS:
            opening = source.until(number, {"("})
            number = source.closing[opening] + 1
        elif source.at(number) in ("else", "do", "try"):
            number += 1
        elif source.at(number) in ("case", "default"):
            number = source.until(number, {":"}) + 1
        else:
            return number


def is_needed_declaration(source, first):
    """Whether a statement declares a name that is used. What only guards a scope can be removed."""
    stop = source.until(first, {"=", "(", "[", "{", ";"})
    name, before = source.tokens[stop - 1], source.tokens[stop - 2]
    if stop - first < 2 or name.kind != "word" or source.at(first) in ("delete", "throw"):
        return False
    if before.kind != "word" and before.text not in (">", "*", "&"):
        return False
    return sum(token.text == name.text for token in source.tokens) > 1


def statements(source, body):
    number, end = body + 1, source.closing[body]
    while number < end:
        number = first_statement(source, number)
        if number >= end:
            return
        if source.at(number) not in ("{", "}"):
            last = source.until(number, {";"})
            yield number, last
            number = last
        number += 1


def is_removed(source, first, last):
    word = source.at(first)
    if word in NOT_REMOVED or (word == "return" and last > first + 1) or first == last:
        return False
    return first not in source.silent and not is_needed_declaration(source, first)


def removals(source):
    seen = set()
    for body in source.bodies:
        for first, last in statements(source, body):
            if first not in seen and is_removed(source, first, last):
                seen.add(first)
                yield span(source, "statement", first, last, ";")


def changes(source):
    for number, token in enumerate(source.tokens):
        if number not in source.silent:
            for change in (operators, constants, whole_conditions, operands, choices, results):
                yield from change(source, number, token)
    yield from removals(source)


def joined(text, first, last):
    """Whole lines of a text, on one line."""
    lines = text[text.rfind("\n", 0, first) + 1:(text + "\n").index("\n", last)].split("\n")
    return " ".join(line.strip() for line in lines)


def described(source, mutant):
    """The mutant with what tells it to people, and with a key that lasts while the file does."""
    mutant.line = source.line(mutant.start)
    mutant.function = source.function_at(mutant.start)
    changed = mutant.applied(source.text)
    mutant.before = joined(source.text, mutant.start, mutant.end)
    mutant.after = joined(changed, mutant.start, mutant.start + len(mutant.text))
    identity = f"{mutant.file}\n{mutant.start}\n{changed}"
    mutant.key = hashlib.sha256(identity.encode()).hexdigest()[:16]
    return mutant


def mutants(name, text):
    """All mutants of a source, those that change it in the same way once."""
    source = Source(name, text)
    found = {}
    for change in changes(source):
        mutant = described(source, change)
        found.setdefault(mutant.applied(text), mutant)
    return sorted(found.values(), key=lambda mutant: (mutant.start, mutant.end, mutant.text))
