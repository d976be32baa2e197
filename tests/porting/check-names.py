#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that the names which the porting headers declare, those of the list in Names.h and those
that HostMacros.h undefines are the same, and that the last two are in order.

Needs Python 3 and nothing else.
"""
import pathlib
import re
import sys

PORTING = pathlib.Path(__file__).parents[2] / "include/KtQtBase/porting"
TABLES = ("Geometry.h", "Helpers.h", "OtherNames.h", "Types.h")
LINE = re.compile(r"^KTQTBASE_PORTING_(?:USING\(\w+, (\w+)|\w+\(\s*(\w+),)", re.MULTILINE)
CLASS = re.compile(r"^class (\w+) :", re.MULTILINE)
LISTED = re.compile(r" on\((\w+)\)")
UNDEFINED = re.compile(r"^#undef ((?!KTQTBASE_)\w+)", re.MULTILINE)


def text(header):
    return (PORTING / header).read_text(encoding="utf-8")


def declared():
    for header in TABLES:
        yield from (first or second for first, second in LINE.findall(text(header)))
        yield from CLASS.findall(text(header))


def faults(what, found, expected):
    yield from (f"{name} is declared, and missing in {what}" for name in expected - set(found))
    yield from (f"{name} is in {what}, and declared nowhere" for name in set(found) - expected)
    if found != sorted(set(found)):
        yield f"{what} is out of order"


def main():
    names = set(declared())
    found = [*faults("Names.h", LISTED.findall(text("Names.h")), names),
             *faults("HostMacros.h", UNDEFINED.findall(text("HostMacros.h")), names)]
    print("\n".join(found) or f"{len(names)} names")
    return 1 if found or not names else 0


if __name__ == "__main__":
    sys.exit(main())
