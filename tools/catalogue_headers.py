# SPDX-License-Identifier: MIT
"""Reads the public headers: what they declare, and what the comment above it says.

The grammar is the layout of the headers in include/: a comment belongs to the declarations that
follow it without a blank line, and a sentence of it begins with a label such as "Inert:" and ends
at the next label, at a row or at the end of the comment.

Needs Python 3 and nothing else.
"""
import itertools
import pathlib
import re
from typing import NamedTuple, Tuple

ENDS_SENTENCE = re.compile(r"(Inert|On Windows|Kept|Result[^:]*):| |$")
COMMENT = re.compile(r"// ?")
ACCESS = re.compile(r"(public|protected|private)\b.*:$")
DROPPED = re.compile(r"\b(KTQTBASE_EXPORT|__extension__)\b|\btemplate *<[^>]*>|\[\[\w+\]\]")
SCOPE = re.compile(r"(namespace|class|struct|union|enum|extern(?= *\"))(?: class)?\b *(\w*)")
FUNCTION = re.compile(r"\w+\((\w+)\) *\(|(~?\w+) *\(")
SKIPPED = re.compile(r"$|extern template|using [^=]*$|friend|(class|struct|union) *\w*$|"
                     r".*= delete$|.*\boperator\b")
CONSTANT = re.compile(r"(?:static |inline )*(?:constexpr|inline const)\b[^(]*?\b(\w+)(?: *=.*)?$")
GLOBAL = re.compile(r"(?:extern|static)\b[^(=]*\b(\w+)$")
TYPE = re.compile(r"using (\w+) *=|typedef\b.*\b(\w+)$")
# The names of the library's own macros are its business, except those that tell its version.
MACRO = re.compile(r"#define ((?!KTQTBASE_)\w+|KTQTBASE_VERSION(?!_H\b)\w*)")
TYPE_KINDS = {"class": "class", "struct": "record", "enum": "type"}

# What strict mode says of a function; a test of the headers compares it with the comment.
INERT = re.compile(r'^ *KTQTBASE_INERT\((?:\s*"(?:[^"\\\n]|\\.)*")+\)\n', re.MULTILINE)

OTHER_INERT = re.compile(
    r'^KTQTBASE_PORTING_INERT\(\s*(\w+),\s+(\w+),(?:\s*"(?:[^"\\\n]|\\.)*")+\);', re.MULTILINE)

# A line of the porting headers, and the namespace of what they give at global scope, too.
PORTING = re.compile(r"KTQTBASE_PORTING_(\w+)\((\w+), *(\w+)")
PORTING_KINDS = {"TYPE": "type", "CONSTANT": "constant"}
PORTING_SPACE = "KtPorting"


class Declaration(NamedTuple):
    """A name that a header declares, with the lines of the comment above it."""
    name: str
    scope: str
    kind: str
    header: str
    comment: Tuple[str, ...]

    def says(self, label):
        """What the comment says behind a label, its lines joined; empty without that label."""
        lines = itertools.dropwhile(lambda line: not line.startswith(label + ":"), self.comment)
        first = next(lines, "").partition(":")[2]
        rest = itertools.takewhile(lambda line: not ENDS_SENTENCE.match(line), lines)
        return " ".join([first, *rest]).strip()


class OtherName(NamedTuple):
    """A name that the porting headers give to a function of another name or scope."""
    name: str
    header: str
    scope: str
    function: str


class HeaderReader:
    """Reads one header from its first character to its last."""

    def __init__(self, path, root):
        self.header = str(path.relative_to(root))
        text = INERT.sub("", path.read_text(encoding="utf-8"))
        self.lines = OTHER_INERT.sub(r"KTQTBASE_PORTING_INERT(\1, \2);", text).splitlines()
        self.found = []
        self.other_names = []
        self.scopes = []
        self.skipped_braces = 0
        self.in_directive = False
        self.statement = ""
        self.comment = ()
        self.above = ()

    def declarations(self):
        before = ""
        for line in self.lines:
            self.read_line(line.strip(), before)
            before = line.strip()
        return self.found

    def read_line(self, text, before):
        if text.startswith("#") or self.in_directive:
            self.read_directive(text)
        elif text.startswith("//"):
            kept = self.above if before.startswith("//") else ()
            self.above = kept + (COMMENT.sub("", text, count=1),)
        elif not ACCESS.match(text):
            self.read_code(text.partition("//")[0])

    def read_directive(self, text):
        self.in_directive = text.endswith("\\")
        macro = MACRO.match(text)
        if macro:
            self.found.append(Declaration(macro[1], "", "macro", self.header, self.above))

    def read_code(self, text):
        if not text:
            self.above = ()
        for character in text + " ":
            self.read_character(character)

    def read_character(self, character):
        if self.skipped_braces:
            self.skipped_braces += {"{": 1, "}": -1}.get(character, 0)
        elif character in "{};":
            self.end_statement(character)
        else:
            self.add(character)

    def add(self, character):
        if not self.statement.strip():
            self.comment = self.above
        self.statement += character

    def end_statement(self, character):
        statement = " ".join(DROPPED.sub(" ", self.statement).split())
        self.statement = ""
        if self.scopes and self.scopes[-1][0] == "enum":
            self.read_enumerators(statement)
        elif character == "{":
            self.open_brace(statement)
        else:
            self.read_statement(statement)
        if character == "}" and self.scopes:
            self.scopes.pop()

    def read_enumerators(self, statement):
        for name in re.findall(r"(?:^|,) *(\w+)", statement):
            self.declare(name, "constant", self.scope(1))

    def open_brace(self, statement):
        opened = SCOPE.match(statement)
        if opened:
            self.open_scope(opened[1], opened[2])
        else:
            self.skipped_braces = 1
            self.read_statement(statement)

    def open_scope(self, word, name):
        if word in TYPE_KINDS and name:
            self.declare(name, TYPE_KINDS[word], self.scope())
        self.scopes.append((word, name))

    def scope(self, left_out=0):
        """The namespace or class that is open, without the innermost ones that are left out."""
        names = [name for _, name in self.scopes[:len(self.scopes) - left_out] if name]
        return "::".join(name for name in names if name != PORTING_SPACE)

    def in_type(self):
        return bool(self.scopes) and self.scopes[-1][0] in ("class", "struct")

    def declare(self, name, kind, scope):
        self.found.append(Declaration(name, scope, kind, self.header, self.comment))

    def read_porting(self, line, first, second):
        if line in PORTING_KINDS:
            self.declare(first, PORTING_KINDS[line], "")
        elif line != "USING":
            self.other_names.append(OtherName(first, self.header, "", second))
        elif first != PORTING_SPACE:
            self.other_names.append(OtherName(second, self.header, first, second))

    def read_statement(self, statement):
        porting = PORTING.match(statement)
        if porting:
            self.read_porting(*porting.groups())
            return
        if SKIPPED.match(statement):
            return
        for pattern, kind in ((TYPE, "type"), (CONSTANT, "constant"), (GLOBAL, "global")):
            found = pattern.match(statement)
            if found:
                self.declare(next(filter(None, found.groups())), kind, self.scope())
                return
        self.read_function(statement)

    def read_function(self, statement):
        found = FUNCTION.search(statement)
        if not found:
            return
        name = found[1] or found[2]
        defined_outside = statement[:found.start()].endswith("::")
        if not defined_outside and not name.startswith("~"):
            self.declare(name, "method" if self.in_type() else "function", self.scope())


def named_otherwise(found, other_names):
    """The functions that have other names, too, declared under these."""
    functions = {(declaration.scope, declaration.name): declaration for declaration in found}
    for other in other_names:
        function = functions[other.scope, other.function]
        if not function.comment:
            function = functions["", other.function]
        yield function._replace(name=other.name, scope="", header=other.header)


def read_headers(root):
    """All declarations of the public headers below a folder, in the order of their files."""
    include = pathlib.Path(root)
    readers = [HeaderReader(path, include) for path in sorted(include.glob("KtQtBase/**/*.h"))]
    found = [declaration for reader in readers for declaration in reader.declarations()]
    others = [other for reader in readers for other in reader.other_names]
    return [*found, *named_otherwise(found, others)]
