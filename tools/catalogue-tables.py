#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Compares the tables of documents with what the catalogue makes of them.

    tools/catalogue-tables.py [--update] FILE...

A table of inert calls stands under a comment, <!-- inert: all -->, or <!-- inert: NAME NAME --> for a
few; the counts of names stand in the table under <!-- counts -->, as the second cell of each row.
Prints each file with a table that is not so and fails; --update writes the tables instead.

Needs Python 3 and nothing else.
"""
import argparse
import collections
import json
import pathlib
import re
import sys

CATALOGUE = pathlib.Path(__file__).resolve().parent.parent / "catalogue"
HEAD = "| Call | What it does here | Instead |\n|---|---|---|\n"
INERT = re.compile(r"(<!-- inert: ([\w: ]+?) -->\n)((?:\|.*\n)*)")
COUNTS = re.compile(r"(<!-- counts -->\n)((?:\|.*\n)*)")
COUNT = re.compile(r"^\| (works|differs|inert|not here) \| [\d,]+ ", re.MULTILINE)


def read_entries():
    for path in sorted(CATALOGUE.glob("*.json")):
        yield from json.loads(path.read_text(encoding="utf-8")).get("entries", [])


def windows_names():
    """The functions of Windows; one that is there for both kinds of characters is one name."""
    lines = (CATALOGUE / "windows-names.txt").read_text(encoding="utf-8").splitlines()
    names = {line.split("\t")[0] for line in lines if not line.startswith("#")}

    def has_both(name):
        return name[-1] in "AW" and {name[:-1] + "A", name[:-1] + "W"} <= names

    return {name[:-1] if has_both(name) else name for name in names}


def counts(entries):
    found = collections.Counter(entry["status"] for entry in entries)
    here = {entry["name"] for entry in entries}
    found["not here"] = sum(not {name, name + "W"} & here for name in windows_names())
    return found


def full_name(entry):
    return "::".join(filter(None, (entry["scope"], entry["name"])))


def inert_calls(entries):
    """The entries by their full names, those of one family together."""
    return {full_name(entry): entry for entry in entries
            if entry["status"] == "inert" and not entry.get("porting")}


def row(entry):
    return f"| `{full_name(entry)}` | {entry['here']} | {entry['instead']} |\n"


def inert_table(names, calls):
    entries = calls.values() if names == "all" else [calls[name] for name in names.split()]
    return HEAD + "".join(map(row, entries))


def with_tables(text, entries):
    calls, found = inert_calls(entries), counts(entries)
    text = INERT.sub(lambda match: match[1] + inert_table(match[2], calls), text)
    return COUNTS.sub(lambda table: COUNT.sub(
        lambda match: f"| {match[1]} | {found[match[1]]:,} ", table[0]), text)


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--update", action="store_true", help="write the tables")
    parser.add_argument("files", nargs="+", type=pathlib.Path, metavar="FILE")
    return parser.parse_args()


def main():
    given = arguments()
    entries = list(read_entries())
    stale = 0
    for path in given.files:
        text = path.read_text(encoding="utf-8")
        wanted = with_tables(text, entries)
        has_table = INERT.search(text) or COUNTS.search(text)
        if not has_table or wanted != text and not given.update:
            print(f"{path}: its table is not the catalogue's: tools/catalogue-tables.py --update {path}")
            stale = 1
        elif wanted != text:
            path.write_text(wanted, encoding="utf-8")
    return stale


if __name__ == "__main__":
    sys.exit(main())
