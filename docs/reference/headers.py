# SPDX-License-Identifier: MIT
"""Reads a public header into the pieces that a reference shows: its opening block, its ruled
groups, and each declaration with the comment above it and the one behind it.

The grammar of declarations is that of tools/catalogue_headers.py, whose reader this one listens to.

Needs Python 3 and nothing else.
"""
import pathlib
import re
import sys
from typing import NamedTuple, Tuple

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
INCLUDE = ROOT / "include"
sys.path.insert(0, str(ROOT / "tools"))
import catalogue_headers  # noqa: E402, since the path comes first

# Lists for the library's own use, which declare nothing.
UNSHOWN = ("HostMacros.h", "ConstantNames.h", "Names.h")

RULE = re.compile(r"-{4} (.*?) -{4,}$|-{4} (.*?) -{4}$")
MACROS = re.compile(r"\b(KTQTBASE_EXPORT|__extension__)\b|\[\[\w+\]\]")
PORTING = re.compile(r"KTQTBASE_PORTING_(\w+)\((\w+), *(.*)\)$", re.DOTALL)
DROPPED = re.compile(
    r"extern template|using (?:std::|[^=]*$)|friend|(class|struct|union) *\w*$|.*= delete$")
OUTSIDE = re.compile(r"[\w>]::~?(\w+|operator[^\w\s(]+)\($")
IN_PARENTHESES = re.compile(r"\((\w+)\)(?=\()")
INITIALISERS = re.compile(r"(?<=\))( noexcept)? *:(?!:).*$")
# Of the characters that end a statement, those in a comment behind one are other ones meanwhile.
HIDDEN = str.maketrans("{};", "\ue000\ue001\ue002")
SHOWN = str.maketrans("\ue000\ue001\ue002", "{};")


class Piece(NamedTuple):
    """A part of a header. Its kind is that of the catalogue's entries, or one of its own, such as
    "field"; code is the declaration without its body, or of an "other" name the function's own."""
    kind: str
    code: str = ""
    name: str = ""
    scope: str = ""
    comment: Tuple[str, ...] = ()
    behind: str = ""

    def full_name(self):
        return "::".join(filter(None, (self.scope, self.name)))


class Reader(catalogue_headers.HeaderReader):
    """Notes down in order what the catalogue's reader comes past."""

    def __init__(self, path):
        super().__init__(path, INCLUDE)
        self.pieces = []
        self.opening = self.read_opening()
        self.used = self.above
        self.shown = {}

    def read_opening(self):
        """The block at the top, behind the licence, as lines without slashes."""
        ends = next(i for i, line in enumerate(self.lines) if not line.startswith("//"))
        block = [catalogue_headers.COMMENT.sub("", line, count=1) for line in self.lines[2:ends]]
        self.lines = self.lines[ends:]
        return tuple(block)

    def read_line(self, text, before):
        if catalogue_headers.ACCESS.match(text):
            self.pieces.append(Piece("access", text))
        code, slashes, behind = text.partition("//")
        count = len(self.pieces)
        super().read_line(text, before)
        if code.strip() and slashes:
            self.add_behind(behind.strip(), count)

    def add_behind(self, text, count):
        if len(self.pieces) > count:
            self.pieces[-1] = self.pieces[-1]._replace(behind=text)
        elif self.scopes and self.scopes[-1][0] == "enum":
            self.statement += f" /**< {text.translate(HIDDEN)} */ "

    def read_directive(self, text):
        count = len(self.found)
        super().read_directive(text)
        for macro in self.found[count:]:
            self.pieces.append(Piece("macro", text.rstrip("\\ "), macro.name, "", self.above))
            self.used = self.above

    def read_code(self, text):
        if not text and self.above is not self.used and self.above:
            self.read_note(self.above)
        super().read_code(text)

    def read_note(self, lines):
        rule = RULE.match(lines[0])
        self.used = self.above
        if rule:
            name = rule[1] or rule[2]
            self.pieces.append(Piece("group", "", name, self.scope(), lines[1:]))
        else:
            self.pieces.append(Piece("note", comment=lines))

    def end_statement(self, character):
        raw = " ".join(MACROS.sub(" ", self.statement).split()).translate(SHOWN)
        comment, scope, depth, count = self.comment, self.scope(), len(self.scopes), len(self.found)
        closed = self.scopes[-1] if character == "}" and self.scopes else None
        super().end_statement(character)
        found = self.found[count:]
        opens = len(self.scopes) > depth
        if raw:
            self.used = comment
            self.add_piece(raw, found, scope, comment, opens)
        if opens:
            self.above = self.used = ()
        if closed:
            self.pieces.append(Piece("close", name=closed[1], code=closed[0]))

    def open_brace(self, statement):
        if statement in ("union", "struct"):
            self.scopes.append(("part", ""))
        else:
            super().open_brace(statement)

    def add_piece(self, raw, found, scope, comment, opens):
        if opens and self.scopes[-1][0] == "part":
            return
        porting = PORTING.match(raw)
        if porting:
            self.add_porting(*porting.groups(), comment)
        elif opens:
            kind = found[0].kind if found else "namespace"
            self.pieces.append(Piece(kind, raw, self.scopes[-1][1], scope, comment))
        elif found and found[0].kind == "constant" and found[0].scope != scope or "/**<" in raw:
            self.pieces.append(Piece("enumerators", raw, "", scope, comment))
        else:
            self.add_declaration(raw, found, scope, comment)

    def add_declaration(self, raw, found, scope, comment):
        raw = INITIALISERS.sub(r"\1", IN_PARENTHESES.sub(r" \1", raw))
        opening = raw.find("(")
        if DROPPED.match(raw) or OUTSIDE.search(raw[:opening + 1]) or raw in ("u", "}"):
            return
        if found:
            kind, name = found[0].kind, found[0].name
        elif "operator" in raw or "~" in raw:
            kind, name = "operator", raw
            comment = () if "~" in raw and self.pieces[-1].comment is comment else comment
        else:
            kind, name = "field", raw
        if kind == "field" and self.shown.setdefault((scope, name), comment) is not comment:
            return
        self.pieces.append(Piece(kind, raw, name, scope, comment))

    def add_porting(self, line, name, rest, comment):
        if line == "TYPE":
            self.pieces.append(Piece("type", f"using {name} = {rest}", name, "", comment))
        elif line == "CONSTANT":
            kind, _, value = rest.partition(",")
            code = f"constexpr {kind} {name} ={value}"
            self.pieces.append(Piece("constant", code, name, "", comment))
        elif line == "USING" and name != catalogue_headers.PORTING_SPACE:
            self.pieces.append(Piece("other", f"{name}::{rest}", rest))
        elif line != "USING":
            self.pieces.append(Piece("other", rest.split(",")[0], name))


class Header(NamedTuple):
    """A header with its pieces, and what it is called below the include folder."""
    name: str
    opening: Tuple[str, ...]
    pieces: Tuple[Piece, ...]


def read_header(path):
    reader = Reader(path)
    reader.declarations()
    name = str(path.relative_to(INCLUDE / "KtQtBase"))
    return Header(name, reader.opening, tuple(reader.pieces))


def read_all():
    """All headers, in the order of their names."""
    paths = sorted((INCLUDE / "KtQtBase").glob("**/*.h"))
    return [read_header(path) for path in paths if path.name not in UNSHOWN]
