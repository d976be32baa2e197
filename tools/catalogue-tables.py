#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Compares the tables of documents with what the catalogue makes of them.

    tools/catalogue-tables.py [--update] FILE...

A table of inert calls stands under a comment, <!-- inert: all -->, or <!-- inert: NAME NAME --> for a
few, and so one of what differs, <!-- differs: all -->; the counts of names stand in the table under <!-- counts -->, as the second cell of each row.
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
HEADS = {"inert": "| Call | What it does here | Instead |\n|---|---|---|\n",
         "differs": "| Name | On Windows | Instead |\n|---|---|---|\n"}
SAID = {"inert": "here", "differs": "windows"}
TABLE = re.compile(r"(<!-- (inert|differs): ([\w: ]+?) -->\n)((?:\|.*\n)*)")
COUNTS = re.compile(r"(<!-- counts -->\n)((?:\|.*\n)*)")
COUNT = re.compile(r"^\| (works|differs|inert|not here) \| [\d,]+ \| [\d,]* ?", re.MULTILINE)


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
    """How many names have a status: those of functions and methods, and the others."""
    found = collections.Counter(
        (entry["status"], entry["kind"] in ("function", "method")) for entry in entries)
    here = {entry["name"] for entry in entries}
    found["not here", True] = sum(not {name, name + "W"} & here for name in windows_names())
    return found


def full_name(entry):
    return "::".join(filter(None, (entry["scope"], entry["name"])))


def names_with(status, entries):
    """The entries of a status by their full names, those of one family together."""
    return {full_name(entry): entry for entry in entries
            if entry["status"] == status and not entry.get("porting")}


def row(entry):
    said = entry[SAID[entry["status"]]].replace("|", "\\|")
    return f"| `{full_name(entry)}` | {said} | {entry['instead']} |\n"


def table(status, names, entries):
    found = names_with(status, entries)
    chosen = found.values() if names == "all" else [found[name] for name in names.split()]
    return HEADS[status] + "".join(map(row, chosen))


def count(status, found):
    others = f"{found[status, False]:,} " if status != "not here" else ""
    return f"| {status} | {found[status, True]:,} | {others}"


def with_tables(text, entries):
    found = counts(entries)
    text = TABLE.sub(lambda match: match[1] + table(match[2], match[3], entries), text)
    return COUNTS.sub(
        lambda match: COUNT.sub(lambda line: count(line[1], found), match[0]), text)


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
        has_table = TABLE.search(text) or COUNTS.search(text)
        if not has_table or wanted != text and not given.update:
            print(f"{path}: its table is not the catalogue's: tools/catalogue-tables.py --update {path}")
            stale = 1
        elif wanted != text:
            path.write_text(wanted, encoding="utf-8")
    return stale


if __name__ == "__main__":
    sys.exit(main())
