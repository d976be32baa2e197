#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Prints a public header in the form that Doxygen reads: its declarations without their bodies, and
the plain comments as blocks with Doxygen's commands. Doxygen's Doxyfile names it as the filter.

    docs/reference/filter.py HEADER

Needs Python 3 and nothing else.
"""
import pathlib
import re
import sys

sys.dont_write_bytecode = True
import comments  # noqa: E402, so that no cache is left among the sources
import headers  # noqa: E402
from blocks import Writer  # noqa: E402
from catalogue import Catalogue  # noqa: E402

# An enumerator with nothing behind it.
UNSAID_VALUE = re.compile(r"(\w+ = \w+)(,|$)(?! */\*\*<)")
CALLABLE = ("function", "method", "operator")


def as_comment(lines):
    return [f"/// {line}".rstrip() for line in lines]


class Filter:
    """Writes one header's pieces, one below the other."""

    def __init__(self, header, others):
        self.header = header
        self.writer = Writer(Catalogue(), header.name)
        self.others = others
        self.lines = []
        self.in_group = False
        self.before = None
        self.topic = comments.describe(header.opening).brief

    def write(self):
        for piece in self.header.pieces:
            getattr(self, "write_" + piece.kind, self.write_declaration)(piece)
        return "\n".join(self.lines) + "\n"

    def write_access(self, piece):
        self.lines.append(piece.code)

    def write_namespace(self, piece):
        self.before = None
        if piece.name != "KtPorting":
            self.lines.append(piece.code + " {")

    def write_close(self, piece):
        self.end_group()
        if piece.code == "namespace" and piece.name != "KtPorting":
            self.lines.append("}")
        elif piece.code in ("class", "struct", "enum"):
            self.lines.append("};")

    def end_group(self):
        if self.in_group:
            self.lines.append("/// @}")
        self.in_group = False

    # Outside of classes the groups are the families.
    def write_group(self, piece):
        self.before = None
        self.topic = piece.name if not piece.scope else self.topic
        if piece.scope:
            self.end_group()
            self.lines += as_comment(self.writer.group_comment(piece)) + ["/// @{", ""]
            self.in_group = True

    def write_note(self, piece):
        self.before = None

    def write_enumerators(self, piece):
        self.lines.append(UNSAID_VALUE.sub(rf"\1\2 /**< A value of {piece.scope}. */ ", piece.code))

    def on_topic(self, piece):
        """A name that nothing is said of has the title of its group, and the class that a header is
        all about that header's first sentence."""
        brief = self.topic
        if piece.kind == "class":
            brief = comments.describe(self.header.opening).brief
        return piece if piece.comment or piece.behind else piece._replace(comment=(brief,))

    def write_class(self, piece):
        piece = self.on_topic(piece)
        self.lines += as_comment(self.writer.plain_comment(piece)) + [piece.code + " {"]

    write_record = write_class

    def write_type(self, piece):
        if piece.code.startswith("enum"):
            self.write_class(piece)
        else:
            self.write_declaration(piece)

    def write_macro(self, piece):
        piece = self.on_topic(piece)
        self.lines += as_comment(self.writer.plain_comment(piece)) + [piece.code]

    def write_field(self, piece):
        behind = f" ///< {self.writer.behind(piece)}" if piece.behind else ""
        self.lines += as_comment(self.writer.field_comment(piece))
        self.lines.append(f"{piece.code};{behind}")

    def write_other(self, piece):
        self.lines += self.writer.another_name(piece, self.others[piece.code])

    def write_declaration(self, piece):
        is_function = piece.kind in CALLABLE
        piece = self.with_comment(piece) if is_function else self.on_topic(piece)
        self.before = piece if is_function else None
        comment = self.writer.function_comment if is_function else self.writer.plain_comment
        self.lines += as_comment(comment(piece)) + [piece.code + ";"]

    def with_comment(self, piece):
        """A function of a namespace has the comment of the global one; one that stands by itself
        below another, since the formatter sets bodies apart, has the comment of that one."""
        if piece.comment or "~" in piece.code:
            return piece
        twin = self.others.get(piece.name)
        if piece.scope and twin and piece.kind == "function":
            return piece._replace(comment=twin.comment)
        return piece._replace(comment=self.before.comment) if self.before else piece


def functions_by_name(header):
    """The first declaration of each function by its full name: those of this header, and of all
    others if it has other names for them."""
    others = any(piece.kind == "other" for piece in header.pieces)
    found = {}
    for one in headers.read_all() if others else [header]:
        for piece in one.pieces:
            if piece.kind == "function" and piece.comment:
                found.setdefault(piece.full_name(), piece)
    return found


def main():
    header = headers.read_header(pathlib.Path(sys.argv[1]).resolve())
    sys.stdout.write(Filter(header, functions_by_name(header)).write())


if __name__ == "__main__":
    main()
