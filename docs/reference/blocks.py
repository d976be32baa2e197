# SPDX-License-Identifier: MIT
"""Writes the comment of a declaration as lines with Doxygen's commands, in the order of a
reference: brief, arguments, result, rows, errors, remarks, "Kept:", "On Windows:".

Needs Python 3 and nothing else.
"""
import re

import comments
from catalogue import anchor
from markup import Prose, code, escaped, link
from pictures import names_of

NESTED = re.compile(r"(\w[\w ]*?) {2,}(\S.*)$")
LAST_WORD = re.compile(r"(\w+)(?:\[\w*\])?$")


def arguments_of(declaration):
    """The names of a function's arguments."""
    inside = declaration[declaration.find("(") + 1:declaration.rfind(")")]
    depth = 0
    parts = [""]
    for character in inside:
        depth += {"(": 1, "<": 1, ")": -1, ">": -1}.get(character, 0)
        if character == "," and not depth:
            parts.append("")
        else:
            parts[-1] += character
    found = (LAST_WORD.search(part.partition("=")[0].strip()) for part in parts)
    return [name[1] for name in found if name]


def badge(status):
    return f'<span class="status {status}">{status}</span>'


def table(kind, heads, rows):
    """The lines of a table, whose cells hold markup already."""
    head = "".join(f"<th>{text}</th>" for text in heads)
    lines = [f'<table class="{kind}">', f"<tr>{head}</tr>"]
    for row in rows:
        lines.append("<tr>" + "".join(f"<td>{cell}</td>" for cell in row) + "</tr>")
    return [*lines, "</table>"]


def given_table(rows):
    if not rows:
        return []
    cells = [(code(row.given), code(row.result)) for row in rows]
    return ["", *table("rows", ("Input", "Result"), cells), ""]


class Writer:
    """Writes the comments of one header."""

    # Headers that only include others, with the family that they tell the rules of.
    UMBRELLAS = {"PainterWrapper.h": "drawing", "PathName.h": "paths", "Porting.h": "porting"}

    def __init__(self, catalogue, header):
        self.catalogue = catalogue
        self.header = header
        self.anchored = set()

    # ---- What is not a function ------------------------------------------------------------------

    def group_comment(self, piece):
        text = Prose(self.catalogue, piece.scope)
        return [f"@name {escaped(piece.name)}", *self.passage(piece.comment, text)]

    def passage(self, lines, prose):
        """A text of several paragraphs, with its lists, rows and tables."""
        written = []
        for block in comments.parse(lines, with_code=True):
            written += [""] + self.part(block, prose)
        return written

    def part(self, block, prose):
        drawn = ("rows", "arguments", "code", "table")
        text = "" if block.kind in drawn else comments.joined(block)
        if block.kind == "table":
            return ["@code{.unparsed}", *block.items, "@endcode"]
        if block.kind == "code":
            return ["@code{.cpp}", *block.items, "@endcode"]
        if block.kind == "rows":
            return given_table(block.items)
        if block.kind == "arguments":
            return self.members(block.items, prose)
        if block.kind == "list":
            return ["<ul>", *(f"<li>{prose.write(item)}</li>" for item in block.items), "</ul>"]
        return [prose.write(text) if block.kind == "text" else
                f"<b>{block.kind}:</b> {prose.write(text)}"]

    def in_group(self, piece):
        family = self.catalogue.family(piece.full_name(), self.header)
        own_page = piece.scope in self.catalogue.namespaces or not piece.scope
        return [f"@ingroup {group(family)}"] if family and own_page else []

    def status_of(self, piece, told):
        """What the comment itself says, since overloads share one entry of the catalogue."""
        labels = [label for label, _ in told.labels]
        if piece.full_name() not in self.catalogue.entries:
            return None
        return "inert" if "Inert" in labels else "differs" if "On Windows" in labels else "works"

    def plain_comment(self, piece):
        """Of a type, a constant, a macro or an object."""
        told = comments.describe(piece.comment)
        prose = Prose(self.catalogue, piece.scope, piece.full_name())
        status = self.status_of(piece, told)
        sign = badge(status) + " " if status in ("differs", "inert") else ""
        brief = told.brief or piece.behind
        lines = self.in_group(piece)
        lines += [f"@brief {sign}{prose.write(brief)}"] if brief else []
        again = brief if piece.kind in ("class", "record") else ""
        lines += ["", prose.write(f"{again} {told.more}")] if again or told.more else []
        return lines + self.details(told, prose, piece)

    def field_comment(self, piece):
        return self.plain_comment(piece) if piece.comment and not piece.behind else []

    def behind(self, piece):
        return Prose(self.catalogue, piece.scope).write(comments.capital(piece.behind) + ".")

    # ---- Functions -------------------------------------------------------------------------------

    def another_name(self, piece, target):
        name = piece.name
        declaration = re.sub(rf"\b{target.name}\b(?=\()", name, target.code)
        told = comments.describe(target.comment)
        prose = Prose(self.catalogue, "", name)
        status = self.catalogue.entries[name]["status"]
        lines = [f"@ingroup {group('porting')}",
                 f"@brief {badge(status)} Another name of {link(target.full_name())}.",
                 f"@anchor {anchor(name)}", "", prose.write(told.brief)]
        entry = self.catalogue.entries[name]
        lines += self.instead(entry, told, prose) + self.included(entry)
        return [f"/// {line}".rstrip() for line in lines] + [declaration + ";"]

    def function_comment(self, piece):
        told = comments.describe(piece.comment)
        prose = Prose(self.catalogue, piece.scope, piece.full_name())
        status = self.status_of(piece, told)
        sign = badge(status) + " " if status else ""
        lines = self.in_group(piece)
        brief = prose.write(told.brief)
        lines += [f"@brief {sign}{brief}"] if told.brief or sign else []
        lines += ["", f"{sign}{brief} {prose.write(told.more)}", *self.anchor_of(piece)]
        lines += self.parameters(told, prose, arguments_of(piece.code))
        for label, text in told.results:
            label = label.replace("Result, ", "").replace("Result", "")
            lines.append("@return " + (f"{escaped(label)}: " if label else "") +
                         prose.write(comments.capital(text)))
        return lines + self.details(told, prose, piece)

    def anchor_of(self, piece):
        name = piece.full_name()
        if name in self.anchored or not self.catalogue.is_function(name):
            return []
        self.anchored.add(name)
        pictures = [f"@image html {picture}" for picture in names_of(piece.name)]
        return [f"@anchor {anchor(name)}", *([""] + pictures if "Qt" in piece.scope else [])]

    def parameters(self, told, prose, names):
        """The arguments of this declaration; its overloads have the other ones."""
        lines = []
        others = []
        for argument in told.arguments:
            own = [name for name in argument.names.split(", ") if name in names]
            direction = f"[{argument.direction.replace('/', ',')}]" if argument.direction else ""
            if own:
                text = self.argument_text(argument, prose)
                lines.append(f"@param{direction} {','.join(own)} {text}")
            elif not argument.direction or not names:
                others.append(argument)
        return ([""] + lines if lines else []) + self.members(others, prose)

    def members(self, arguments, prose):
        if not arguments:
            return []
        rows = [(code(one.names), self.argument_text(one, prose)) for one in arguments]
        return ["", *table("members", ("Value", "Meaning"), rows), ""]

    def argument_text(self, argument, prose):
        """What is said of an argument; the members of a record that are listed there are a list."""
        plain = []
        items = []
        for line in argument.lines:
            nested = NESTED.match(line.strip())
            if nested:
                items.append([nested[1], nested[2]])
            elif items:
                items[-1][1] += " " + line.strip()
            else:
                plain.append(line.strip())
        listed = "".join(f"<li>{code(name)} {prose.write(text)}</li>" for name, text in items)
        return prose.write(comments.capital(" ".join(plain))) + (
            f"<ul>{listed}</ul>" if items else "")

    def details(self, told, prose, piece):
        lines = given_table(told.rows)
        if told.errors:
            lines += ["@par Errors:", prose.write(told.errors)]
        if told.remarks:
            lines += ["@par Remarks:", *(f"{prose.write(text)}\n" for text in told.remarks)]
        for label, text in told.labels:
            lines += [f"@par {label}:", prose.write(comments.capital(text))]
        entry = self.catalogue.entries.get(piece.full_name(), {})
        lines += self.instead(entry, told, prose) + self.included(entry)
        return [part for line in lines for part in line.split("\n")]

    def instead(self, entry, told, prose):
        labels = [label for label, _ in told.labels]
        if "instead" not in entry or not {"Inert", "On Windows"} & set(labels):
            return []
        return ["@par Instead:", prose.write(entry["instead"])]

    def included(self, entry):
        if entry.get("kind") != "function":
            return []
        name = "KtQtBase/Porting.h" if entry.get("porting") else entry["header"]
        return ["@par Header:", code(f"#include <{name}>")]


def group(family):
    return "family-" + family
