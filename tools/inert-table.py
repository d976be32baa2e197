#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Compares the tables of inert calls in documents with what the catalogue makes of them.

    tools/inert-table.py [--update] FILE...

A table stands under a comment: <!-- inert: all -->, or <!-- inert: NAME NAME --> for a few. Prints
each file with a table that is not so and fails; --update writes the tables instead.

Needs Python 3 and nothing else.
"""
import argparse
import json
import pathlib
import re
import sys

CATALOGUE = pathlib.Path(__file__).resolve().parent.parent / "catalogue"
HEAD = "| Call | What it does here | Instead |\n|---|---|---|\n"
TABLE = re.compile(r"(<!-- inert: ([\w: ]+?) -->\n)((?:\|.*\n)*)")


def full_name(entry):
    return "::".join(filter(None, (entry["scope"], entry["name"])))


def inert_calls():
    """The entries by their full names, those of one family together."""
    found = {}
    for path in sorted(CATALOGUE.glob("*.json")):
        for entry in json.loads(path.read_text(encoding="utf-8")).get("entries", []):
            if entry["status"] == "inert" and not entry.get("porting"):
                found[full_name(entry)] = entry
    return found


def row(entry):
    return f"| `{full_name(entry)}` | {entry['here']} | {entry['instead']} |\n"


def table(names, calls):
    entries = calls.values() if names == "all" else [calls[name] for name in names.split()]
    return HEAD + "".join(map(row, entries))


def with_tables(text, calls):
    return TABLE.sub(lambda match: match[1] + table(match[2], calls), text)


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--update", action="store_true", help="write the tables")
    parser.add_argument("files", nargs="+", type=pathlib.Path, metavar="FILE")
    return parser.parse_args()


def main():
    given = arguments()
    calls = inert_calls()
    stale = 0
    for path in given.files:
        text = path.read_text(encoding="utf-8")
        wanted = with_tables(text, calls)
        if not TABLE.search(text) or wanted != text and not given.update:
            print(f"{path}: its table is not the catalogue's: tools/inert-table.py --update {path}")
            stale = 1
        elif wanted != text:
            path.write_text(wanted, encoding="utf-8")
    return stale


if __name__ == "__main__":
    sys.exit(main())
