#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Writes the pages of the reference that are made of all headers and the catalogue: one of each
family, the differences, what does nothing, what is odd and required, and the index of names.

    docs/reference/pages.py FOLDER

Needs Python 3 and nothing else.
"""
import collections
import itertools
import pathlib
import re
import sys

sys.dont_write_bytecode = True
import comments  # noqa: E402, so that no cache is left among the sources
import headers  # noqa: E402
from blocks import Writer, badge, group, table  # noqa: E402
from catalogue import Catalogue, full_name  # noqa: E402
from markup import Prose, code, escaped, link  # noqa: E402

SNIPPETS = headers.ROOT / "tests" / "docs"
STATUS_WORDS = (("works", "work as on Windows"), ("differs", "differ"), ("inert", "do nothing here"))
SENTENCE_OF = {"differs": "windows", "inert": "here"}


def reference(entry):
    """A link to a name, by its anchor or by the name itself."""
    name = full_name(entry)
    if entry["kind"] in ("function", "method"):
        return link(name)
    return f'@ref {name} "{name}"'


def page(name, title, lines):
    return [f"@page {name} {title}", *lines, ""]


class Pages:
    """Writes the pages, each a list of lines."""

    def __init__(self):
        self.catalogue = Catalogue()
        self.prose = Prose(self.catalogue)
        self.headers = headers.read_all()
        self.by_name = {header.name: header for header in self.headers}
        self.examples = {family: path.name for path in sorted(SNIPPETS.glob("*.cpp")) for family in
                         re.findall(r"// \[([\w-]+)\]$", path.read_text(), re.MULTILINE)}

    # ---- Families --------------------------------------------------------------------------------

    def headers_of(self, family):
        """The headers that tell a family's rules; the one with most of its names comes first."""
        counts = collections.Counter(
            entry["header"].replace("KtQtBase/", "", 1) for entry in family.entries)
        names = [name for name, owner in Writer.UMBRELLAS.items() if owner == family.name]
        names += [name for name, count in counts.most_common() if 4 * count >= len(family.entries)]
        return [self.by_name[name] for name in dict.fromkeys(names)]

    def family(self, family):
        own = self.headers_of(family)
        brief = self.prose.write(comments.describe(own[0].opening).brief)
        lines = [f"@defgroup {group(family.name)} {family.title}", f"@brief {brief}", "",
                 f"Names here: {self.counts(family)}.", ""]
        lines += [f"@section example-{family.name} A worked example", *self.example(family, own)]
        lines += [f"@section rules-{family.name} Rules"]
        for header in own:
            lines += self.rules(header)
        return lines + [f"@section other-{family.name} Names that are not here",
                        f"Instead of the family's other names: {self.prose.write(family.advice)}",
                        ""]

    def counts(self, family):
        found = collections.Counter(entry["status"] for entry in family.entries)
        parts = [f"{badge(status)} {found[status]}" for status, _ in STATUS_WORDS if found[status]]
        return ", ".join(parts)

    def example(self, family, own):
        if family.name in self.examples:
            return [f"@snippet{{trimleft}} {self.examples[family.name]} {family.name}"]
        for header in own:
            blocks = comments.parse(header.opening, with_code=True)
            codes = [block for block in blocks if block.kind == "code"]
            if codes:
                return ["@code{.cpp}", *codes[0].items, "@endcode"]
        sys.exit(f"{family.name}: there is no example, neither in {own[0].name} nor in tests/docs")

    def rules(self, header):
        """A header's opening and what it says of its groups; its first example stands above."""
        writer = Writer(self.catalogue, header.name)
        blocks = comments.parse(header.opening, with_code=True)
        codes = [block for block in blocks if block.kind == "code"]
        lines = [f"<b>Header</b> {code('<KtQtBase/' + header.name + '>')}"]
        for block in blocks:
            if block not in codes[:1]:
                lines += ["", *writer.part(block, self.prose)]
        for piece in header.pieces:
            if piece.kind in ("group", "namespace") and not piece.scope and piece.comment:
                lines += ["", f"<b>{escaped(piece.name)}.</b>",
                          *writer.passage(piece.comment, self.prose)]
        return lines + [""]

    # ---- Lists -----------------------------------------------------------------------------------

    def listed(self, status, heads, cells):
        """A table a family of the entries with a status."""
        lines = []
        for family in self.catalogue.families:
            entries = [entry for entry in family.entries
                       if entry["status"] == status and not entry.get("porting")]
            if entries:
                lines += [f"@section {status}-{family.name} {family.title}",
                          *table("names", heads, map(cells, entries)), ""]
        return lines

    def cells(self, entry):
        sentence = entry[SENTENCE_OF[entry["status"]]]
        return [reference(entry), self.prose.write(comments.capital(sentence)),
                self.prose.write(comments.capital(entry["instead"]))]

    def differences(self):
        lines = ["These calls work, and differ from Windows in what their row says. A function's own "
                 "page says what it does here.", ""]
        return page("differences", "What differs from Windows",
                    lines + self.listed("differs", ("Call", "On Windows", "Instead"), self.cells))

    def inert(self):
        lines = ["These calls compile and link, return a fixed value and do nothing else, so that a "
                 "host builds before it is ported.", ""]
        heads = ("Call", "What it does here", "Instead")
        return page("inert", "What does nothing here",
                    lines + self.listed("inert", heads, self.cells))

    def oddities(self):
        lines = ["What looks wrong here and is right, with what a host would see otherwise. \"Part of "
                 "the interface\" means that no other reason is known.", ""]
        for header in self.headers:
            rows = list(self.odd_rows(header))
            if rows:
                anchor = re.sub(r"\W", "-", header.name)
                lines += [f"@section odd-{anchor} {header.name}",
                          *table("names", ("Name", "Kept"), rows), ""]
        return page("oddities", "Required oddities", lines)

    def odd_rows(self, header):
        for block in comments.parse(header.opening):
            if block.kind == "Kept":
                yield "all of it", self.prose.write(comments.capital(comments.joined(block)))
        for comment, pieces in itertools.groupby(header.pieces, lambda piece: piece.comment):
            for label, text in comments.describe(comment).labels:
                if label == "Kept":
                    names = dict.fromkeys(map(self.piece_name, pieces))
                    yield ", ".join(names), self.prose.write(comments.capital(text))

    def piece_name(self, piece):
        entry = self.catalogue.entries.get(piece.full_name())
        return reference(entry) if entry else code(piece.full_name())

    def index(self):
        entries = [entry for entry in self.catalogue.entries.values() if entry["kind"] != "method"]
        lines = ["Every name of this library that has no class, with its status where it differs from "
                 "Windows or does nothing. The field at the top of each page finds the methods, too.",
                 ""]
        entries.sort(key=lambda entry: (entry["name"].lstrip("_").lower(), entry["scope"]))
        for letter, found in itertools.groupby(entries, lambda e: e["name"].lstrip("_")[0].upper()):
            names = " &middot; ".join(map(self.index_name, found))
            lines += [f"@section index-{letter} {letter}", names, ""]
        return page("index-of-names", "Index by Windows name", lines)

    def index_name(self, entry):
        sign = "" if entry["status"] == "works" else " " + badge(entry["status"])
        return reference(entry) + sign

    def headers_page(self):
        lines = ["A host includes KtQtBase.h for all of it, or one header alone.", ""]
        for header in self.headers:
            anchor = re.sub(r"\W", "-", header.name)
            lines += [f"@section header-{anchor} {header.name}"]
            owners = [family for family in self.catalogue.families
                      if header in self.headers_of(family)]
            for family in owners:
                lines += [f"@ref {group(family.name)}", ""]
            if owners:
                lines += [self.prose.write(comments.describe(header.opening).brief), ""]
            else:
                lines += Writer(self.catalogue, header.name).passage(header.opening, self.prose)
        return page("headers", "Headers", lines)

    def totals(self):
        """The table of the front page, with its counts."""
        entries = [entry for entry in self.catalogue.entries.values()
                   if entry["kind"] in ("function", "method")]
        found = collections.Counter(entry["status"] for entry in entries)
        return [f"Of {len(entries)} functions and methods, " + ", ".join(
            f"{found[status]} {words} {badge(status)}" for status, words in STATUS_WORDS) + "."]

    def front(self):
        text = (pathlib.Path(__file__).parent / "front.dox").read_text(encoding="utf-8")
        families_table = table("names", ("Family", "Names"), (
            (f"@ref {group(family.name)}", self.counts(family)) for family in
            self.catalogue.families))
        text = text.replace("{{totals}}", "\n".join(self.totals()))
        return text.replace("{{families}}", "\n".join(families_table)).splitlines()

    def write(self, folder):
        folder.mkdir(parents=True, exist_ok=True)
        pages = {"front": self.front(), "differences": self.differences(), "inert": self.inert(),
                 "oddities": self.oddities(), "index": self.index(),
                 "headers": self.headers_page()}
        for family in self.catalogue.families:
            pages[group(family.name)] = self.family(family)
        for name, lines in pages.items():
            text = "\n".join(f"/// {line}".rstrip() for line in lines) + "\n"
            (folder / f"{name}.dox").write_text(text, encoding="utf-8")


def main():
    Pages().write(pathlib.Path(sys.argv[1]))


if __name__ == "__main__":
    main()
