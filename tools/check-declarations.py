#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compares what the public headers declare with the list that is checked in.

    tools/check-declarations.py             compare, fail on a difference
    tools/check-declarations.py --update    rewrite the list

Hosts compile default arguments, values of constants and enumerators, and the order of fields and of
virtual functions into themselves; the library's file shows few of these. The list has each
declaration on a line, in the order of the headers, without comments and bodies.

Needs Python 3 and nothing else.
"""
import difflib
import pathlib
import re
import sys

from catalogue_headers import HeaderReader, SCOPE

ROOT = pathlib.Path(__file__).resolve().parents[1]
LIST = ROOT / "tests/exports/declarations.txt"
NOT_LISTED = re.compile(r"\b(KTQTBASE_EXPORT|__extension__) ")
INITIALISERS = re.compile(r"(?<=\)) : .*")
OWN_MACRO = re.compile(r"#define (?!KTQTBASE_)\w")


class Lister(HeaderReader):
    """Reads a header into lines, each behind one step for every scope around it."""

    def __init__(self, path, root):
        super().__init__(path, root)
        self.listed = [self.header]

    def list(self, text):
        self.listed.append("  " * (len(self.scopes) + 1) + text)

    def read_directive(self, text):
        if OWN_MACRO.match(text):
            self.list(" ".join(text.rstrip("\\").split()))
        super().read_directive(text)

    def end_statement(self, character):
        text = " ".join(NOT_LISTED.sub("", self.statement).split())
        if text and self.scopes and self.scopes[-1][0] == "enum":
            for enumerator in text.split(","):
                self.list(enumerator.strip())
        elif text:
            self.list(text if SCOPE.match(text) else INITIALISERS.sub("", text))
        super().end_statement(character)


def lines_of(path):
    lister = Lister(path, ROOT / "include")
    lister.declarations()
    return lister.listed


def declared():
    headers = sorted((ROOT / "include").glob("KtQtBase/**/*.h"))
    return [line + "\n" for header in headers for line in lines_of(header)]


def main():
    if sys.argv[1:] == ["--update"]:
        LIST.write_text("".join(declared()), encoding="utf-8")
        return 0
    if sys.argv[1:]:
        sys.exit(__doc__)
    with LIST.open(encoding="utf-8") as listed:
        different = list(difflib.unified_diff(list(listed), declared(), "listed", "declared"))
    sys.stdout.writelines(different)
    return 1 if different else 0


if __name__ == "__main__":
    sys.exit(main())
