# SPDX-License-Identifier: MIT
"""What the catalogue says of each name, and by what anchor pages link to it.

Needs Python 3 and nothing else.
"""
import json
import pathlib
from typing import NamedTuple

FOLDER = pathlib.Path(__file__).resolve().parent.parent.parent / "catalogue"


class Family(NamedTuple):
    """A file of the catalogue."""
    name: str
    title: str
    advice: str
    entries: tuple


def families():
    """The families that have a name here, in the order of their titles."""
    found = []
    for path in sorted(FOLDER.glob("*.json")):
        data = json.loads(path.read_text(encoding="utf-8"))
        if "entries" in data:
            found.append(Family(data["family"], data["title"], data["advice"],
                                tuple(data["entries"])))
    return sorted(found, key=lambda family: family.title)


def full_name(entry):
    return "::".join(filter(None, (entry["scope"], entry["name"])))


def anchor(name):
    """The anchor of a function by its full name."""
    return "fn-" + name.replace("::", "-")


class Catalogue:
    """All entries by their full names."""

    def __init__(self):
        self.families = families()
        self.entries = {}
        self.family_of = {}
        self.header_families = {}
        self.namespaces = set()
        for family in self.families:
            for entry in family.entries:
                self.add(family, entry)

    def add(self, family, entry):
        name = full_name(entry)
        self.entries[name] = entry
        self.family_of[name] = family.name
        if entry["kind"] == "function":
            self.namespaces.add(entry["scope"])
        if entry["kind"] != "method":
            header = entry["header"].replace("KtQtBase/", "", 1)
            self.header_families.setdefault(header, []).append(family.name)

    def is_function(self, name):
        return self.entries.get(name, {}).get("kind") in ("function", "method")

    def family(self, name, header):
        """The family of a name; that of most names of its header where the name has no entry."""
        families_here = self.header_families.get(header, [])
        most = max(families_here, key=families_here.count, default="")
        return self.family_of.get(name, most)
