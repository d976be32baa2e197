#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Writes the manual pages: in section 3 one of each function and of each class, with its methods,
and a link for each other name of a function; those of the programs are copied from docs/man/.

    docs/reference/man.py FOLDER

Needs Python 3 and nothing else.
"""
import pathlib
import re
import shutil
import sys

sys.dont_write_bytecode = True
import comments  # noqa: E402, so that no cache is left among the sources
import headers  # noqa: E402
from catalogue import Catalogue  # noqa: E402
from filter import functions_by_name  # noqa: E402

# A section of its own, since another library may have a page of the same name.
SECTION = "3ktqt"
PROGRAMS = headers.ROOT / "docs" / "man"
STATUS_SENTENCE = {
    "works": "Works as on Windows.",
    "differs": "Works, and differs from Windows.",
    "inert": "Does nothing here but return a fixed value.",
}


def roff(text):
    """Text that roff takes as it stands."""
    text = text.replace("\\", "\\e").replace("-", "\\-")
    return re.sub(r"^([.'])", r"\\&\1", text, flags=re.MULTILINE)


def quoted(text):
    return '"' + roff(text).replace('"', '\\(dq') + '"'


def version():
    text = (headers.ROOT / "include/KtQtBase/Version.h").read_text(encoding="utf-8")
    return ".".join(re.findall(r"^#define KTQTBASE_VERSION_[MP]\w+ (\d+)$", text, re.MULTILINE))


class Page:
    """The lines of one page."""

    def __init__(self, name, brief):
        self.lines = [f'.TH {quoted(name)} {SECTION} "" "KtQtBase {version()}" "KtQtBase"',
                      ".SH NAME", f"{roff(name)} \\- {roff(brief.rstrip('.'))}"]

    def heading(self, text):
        self.lines.append(f".SH {quoted(text)}")

    def text(self, text):
        self.lines += [".PP", roff(text)] if text else []

    def part(self, title, text):
        self.lines += [".PP", f"\\fB{title}\\fR", ".br", roff(text)] if text else []

    def code(self, lines):
        self.lines += [".nf", *map(roff, lines), ".fi"]

    def pairs(self, pairs):
        for head, text in pairs:
            self.lines += [".TP", f"\\fI{roff(head)}\\fR", roff(text) or "\\&"]

    def description(self, told, status):
        self.text(" ".join(filter(None, (told.brief, told.more))))
        self.text(STATUS_SENTENCE.get(status, ""))
        self.pairs((f"{one.names} ({one.direction})" if one.direction else one.names,
                    " ".join(line.strip() for line in one.lines)) for one in told.arguments)
        for label, text in told.results:
            self.part(label, comments.capital(text))
        if told.rows:
            self.part("Rows", "Input => result")
            self.code(f"    {row.given}  =>  {row.result}" for row in told.rows)
        self.part("Errors", told.errors)
        self.part("Remarks", " ".join(told.remarks))
        for label, text in told.labels:
            self.part(label, comments.capital(text))

    def write(self, path):
        path.write_text("\n".join(self.lines) + "\n", encoding="utf-8")


class Manual:
    """Writes the pages of all headers."""

    def __init__(self, folder):
        self.folder = folder / f"man{SECTION[0]}"
        self.folder.mkdir(parents=True, exist_ok=True)
        self.catalogue = Catalogue()
        self.pages = {}

    def header(self, header):
        known = functions_by_name(header)
        current = None
        for piece in header.pieces:
            if piece.kind == "class":
                current = self.begin_class(header, piece)
            elif piece.kind == "method" and current:
                self.add(current, piece)
            elif piece.kind == "function":
                self.function(header, piece, known.get(piece.name, piece))
            elif piece.kind == "other":
                self.other_name(piece)

    def begin_class(self, header, piece):
        told = comments.describe(piece.comment)
        page = Page(piece.name, told.brief or comments.describe(header.opening).brief)
        self.synopsis(page, header, [piece.code + ";"])
        page.heading("DESCRIPTION")
        page.description(told, "")
        self.pages[piece.name] = page
        return page

    def synopsis(self, page, header, code):
        page.heading("SYNOPSIS")
        page.code([f"#include <KtQtBase/{header.name}>", "", *code])

    def add(self, page, piece):
        told = comments.describe(piece.comment)
        page.heading(piece.full_name())
        page.code([piece.code + ";"])
        page.description(told, self.status(piece))

    def status(self, piece):
        return self.catalogue.entries.get(piece.full_name(), {}).get("status", "")

    def function(self, header, piece, twin):
        if not piece.comment:
            piece = piece._replace(comment=twin.comment)
        told = comments.describe(piece.comment)
        page = self.pages.get(piece.name)
        if not page:
            page = self.pages[piece.name] = Page(piece.name, told.brief or piece.name)
        self.synopsis(page, header, [self.in_scope(piece) + ";"])
        page.heading("DESCRIPTION")
        page.description(told, self.status(piece))
        instead = self.catalogue.entries.get(piece.full_name(), {}).get("instead", "")
        page.part("Instead", comments.capital(instead))

    def in_scope(self, piece):
        return re.sub(rf"\b{piece.name}\(", piece.full_name() + "(", piece.code)

    def other_name(self, piece):
        target = piece.code.rpartition("::")[2]
        if piece.name != target:
            link = self.folder / f"{piece.name}.{SECTION}"
            link.write_text(f".so man{SECTION[0]}/{target}.{SECTION}\n", encoding="utf-8")

    def write(self):
        for header in headers.read_all():
            self.header(header)
        for name, page in self.pages.items():
            page.write(self.folder / f"{name}.{SECTION}")


def main():
    folder = pathlib.Path(sys.argv[1])
    Manual(folder).write()
    (folder / "man1").mkdir(exist_ok=True)
    for path in sorted(PROGRAMS.glob("*.1")):
        shutil.copy(path, folder / "man1")


if __name__ == "__main__":
    main()
