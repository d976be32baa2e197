#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Checks that catalogue/ agrees with the public headers, the exported symbols and the tests.

Prints one line a fault and fails if there is one. With a build folder the tests are those that
CTest knows there, else those that the sources of tests/ name.

Needs Python 3 and nothing else.
"""
import argparse
import collections
import json
import pathlib
import re
import signal
import subprocess
import sys

sys.dont_write_bytecode = True
import catalogue_headers  # noqa: E402, so that no cache is left among the sources

ROOT = pathlib.Path(__file__).resolve().parent.parent
STATUSES = ("works", "differs", "inert")
KINDS = ("function", "method", "class", "record", "type", "global", "constant", "macro")
REQUIRED = ("name", "kind", "scope", "header", "status", "test")
OPTIONAL = ("result", "windows", "here", "instead")
FAMILY_KEYS = ("family", "title", "advice", "entries")
GROUP_KEYS = ("family", "title", "advice", "dlls", "patterns")
BETWEEN_OVERLOADS = " / "
TEST_IN_SOURCE = re.compile(r"^TEST(?:_F|_P)?\((\w+),\s*(\w+)\)", re.MULTILINE)
TEST_IN_CMAKE = re.compile(r"add_test\(NAME (\w+\.\w+)")
TEST_IN_CTEST = re.compile(r"^ *Test +#\d+: (?:\w+/)?(\w+\.\w+)", re.MULTILINE)
SYMBOL_PREFIX = re.compile(r"^(typeinfo name|typeinfo|vtable) for ")
WINDOWS_NAME = re.compile(r"[A-Za-z_]\w*\t[a-z0-9_-]+\.[a-z]+")


def read_json(path):
    return json.loads(path.read_text(encoding="utf-8"))


def read_lines(path):
    return path.read_text(encoding="utf-8").splitlines()


class Catalogue:
    """The files of a catalogue's folder."""

    def __init__(self, folder):
        self.groups = read_json(folder / "families.json")
        self.names = read_lines(folder / "windows-names.txt")
        paths = [path for path in sorted(folder.glob("*.json")) if path.stem != "families"]
        self.files = {path.name: read_json(path) for path in paths}

    def entries(self):
        """Yields (what to call it in a fault, entry) for each entry."""
        for file, family in self.files.items():
            for entry in family.get("entries", []):
                yield f"{file}: {full_name(entry)}", entry

    def keys(self):
        return {key_of(entry) for _, entry in self.entries()}

    def not_here(self):
        return self.groups.get("families", [])

    def not_here_names(self):
        return [group.get("family", "") for group in self.not_here()]

    def mfc(self):
        return self.groups.get("mfc", {})


class Headers:
    """What the public headers declare."""

    def __init__(self):
        self.declarations = collections.defaultdict(list)
        for found in catalogue_headers.read_headers(ROOT / "include"):
            self.declarations[found.scope, found.name].append(found)

    def overloads(self, entry):
        declared = self.declarations[key_of(entry)]
        return [found for found in declared if found.header == entry["header"]]

    def commented(self, entry):
        """The overloads, or those of the global function that a namespace declares again."""
        overloads = self.overloads(entry)
        if entry["kind"] != "function" or any(found.comment for found in overloads):
            return overloads
        return self.declarations.get(("", entry["name"]), [])

    def said(self, entry, label):
        """What the comments of all overloads say behind a label."""
        said = [found.says(label) for found in self.commented(entry)]
        return BETWEEN_OVERLOADS.join(dict.fromkeys(filter(None, said)))

    def status(self, entry):
        for label, status in (("Inert", "inert"), ("On Windows", "differs")):
            if self.said(entry, label):
                return status
        return "works"


def key_of(entry):
    return entry.get("scope", ""), entry.get("name", "")


def full_name(entry):
    return "::".join(filter(None, key_of(entry)))


# ---- The form ------------------------------------------------------------------------------------

def key_faults(what, found, required, optional=()):
    unknown = [key for key in found if key not in required + optional]
    missing = [key for key in required if key not in found]
    yield from (f"{what}: unknown key {key}" for key in unknown)
    yield from (f"{what}: no key {key}" for key in missing)


def order_faults(what, names):
    for before, after in zip(names, names[1:]):
        if before == after:
            yield f"{what}: {after} is there twice"
        elif before > after:
            yield f"{what}: {after} stands behind {before}"


def empty_faults(what, entry):
    return [f"{what}: empty key {key}" for key in OPTIONAL if entry.get(key) == ""]


def choice_faults(what, entry):
    for key, choices in (("kind", KINDS), ("status", STATUSES)):
        if entry.get(key) not in choices:
            yield f"{what}: unknown {key} {entry.get(key)}"


def porting_faults(what, entry):
    is_porting = entry.get("header", "").lower().startswith("ktqtbase/porting")
    if ("porting" in entry) != is_porting:
        yield f"{what}: porting is for the names of Porting.h, and for each of them"


def entry_faults(what, entry):
    yield from key_faults(what, entry, REQUIRED, OPTIONAL + ("porting",))
    yield from empty_faults(what, entry)
    yield from choice_faults(what, entry)
    yield from porting_faults(what, entry)


def place_of(entry):
    return " ".join((entry.get("name", ""), entry.get("scope", ""))).strip()


def file_faults(file, family):
    yield from key_faults(file, family, FAMILY_KEYS)
    if file != f"{family.get('family')}.json":
        yield f"{file}: holds the family {family.get('family')}"
    yield from order_faults(file, [place_of(entry) for entry in family.get("entries", [])])


def form_faults(catalogue):
    for file, family in catalogue.files.items():
        yield from file_faults(file, family)
    for what, entry in catalogue.entries():
        yield from entry_faults(what, entry)


def duplicate_faults(catalogue):
    seen = {}
    for what, entry in catalogue.entries():
        file = what.partition(":")[0]
        if seen.setdefault(key_of(entry), file) != file:
            yield f"{what} is in {seen[key_of(entry)]}, too"


# ---- The headers, the symbols and the tests ------------------------------------------------------

def declaration_faults(catalogue, headers):
    for what, entry in catalogue.entries():
        declared = {(found.header, found.kind) for found in headers.declarations[key_of(entry)]}
        if (entry.get("header"), entry.get("kind")) not in declared:
            yield f"{what}: {entry.get('header')} declares no such {entry.get('kind')}"


def missing_faults(catalogue, headers):
    known = catalogue.keys()
    for (scope, name), found in headers.declarations.items():
        if found and (scope, name) not in known:
            yield f"{'::'.join(filter(None, (scope, name)))} of {found[0].header} has no entry"


def sentence_faults(what, entry, headers):
    for key, label in (("here", "Inert"), ("windows", "On Windows")):
        said = headers.said(entry, label)
        if entry.get(key, "") != said:
            yield f"{what}: {key} is not what its header says: {said}"


def presence_faults(what, entry, status):
    if ("result" in entry) != (status == "inert"):
        yield f"{what}: result is for inert entries, and for each of them"
    if ("instead" in entry) != (status != "works"):
        yield f"{what}: instead is for entries that do not work, and for each of them"


def status_faults(catalogue, headers):
    for what, entry in catalogue.entries():
        status = headers.status(entry)
        if entry["status"] != status:
            yield f"{what}: is {entry['status']} and by its header {status}"
        yield from sentence_faults(what, entry, headers)
        yield from presence_faults(what, entry, status)


def symbol_key(symbol):
    """The scope and the name that an entry of an exported symbol has."""
    name = re.sub(r"<[^<>]*>", "", SYMBOL_PREFIX.sub("", symbol)).partition("(")[0]
    scope, _, last = name.rpartition("::")
    return ("", scope) if last.startswith("~") else (scope, last)


def symbol_faults(catalogue):
    known = catalogue.keys()
    symbols = ROOT / "tests/exports/exported-symbols.txt"
    for symbol in read_lines(symbols):
        if symbol_key(symbol) not in known:
            yield f"the exported symbol {symbol} has no entry"


def tests_of_cpp():
    for path in (ROOT / "tests").rglob("*.cpp"):
        found = TEST_IN_SOURCE.findall(path.read_text(encoding="utf-8"))
        yield from (f"{suite}.{test}" for suite, test in found)


def tests_of_cmake():
    for path in (ROOT / "tests").rglob("CMakeLists.txt"):
        yield from TEST_IN_CMAKE.findall(path.read_text(encoding="utf-8"))


def tests_of_build(build):
    listed = subprocess.run(["ctest", "--test-dir", build, "-N"], check=True, text=True,
                            stdout=subprocess.PIPE)
    return TEST_IN_CTEST.findall(listed.stdout)


def test_faults(catalogue, build):
    known = set(tests_of_build(build) if build else [*tests_of_cpp(), *tests_of_cmake()])
    for what, entry in catalogue.entries():
        if entry.get("test") not in known:
            yield f"{what}: no test is named {entry.get('test')}"


# ---- What is not here ----------------------------------------------------------------------------

def pattern_faults(what, patterns):
    for pattern in patterns:
        try:
            re.compile(pattern)
        except re.error as error:
            yield f"{what}: the pattern {pattern} is none: {error}"


def group_faults(group):
    what = f"families.json: {group.get('family')}"
    yield from key_faults(what, group, GROUP_KEYS)
    yield from order_faults(what, group.get("dlls", []))
    yield from pattern_faults(what, group.get("patterns", []))


def groups_faults(catalogue):
    yield from key_faults("families.json", catalogue.groups, ("families", "mfc"))
    yield from order_faults("families.json", sorted(catalogue.not_here_names()))
    for group in catalogue.not_here():
        yield from group_faults(group)


def agreement_faults(catalogue):
    groups = {group.get("family"): group for group in catalogue.not_here()}
    for file, family in catalogue.files.items():
        group = groups.get(family.get("family"), family)
        for key in ("title", "advice"):
            if group.get(key) != family.get(key):
                yield f"{file}: {key} is not that of families.json"


def mfc_family_faults(catalogue):
    for family, classes in catalogue.mfc().items():
        if family not in catalogue.not_here_names():
            yield f"families.json: mfc has an unknown family {family}"
        yield from order_faults(f"families.json: mfc: {family}", classes)


def mfc_faults(catalogue):
    classes = sorted(sum(catalogue.mfc().values(), []))
    known = [name for name in classes if ("", name) in catalogue.keys()]
    yield from order_faults("families.json: mfc", classes)
    yield from (f"families.json: mfc: {name} has an entry" for name in known)


def windows_name_faults(catalogue):
    lines = [line for line in catalogue.names if not line.startswith("#")]
    bad = [line for line in lines if not WINDOWS_NAME.fullmatch(line)]
    yield from (f"windows-names.txt: no name and library: {line}" for line in bad)
    yield from order_faults("windows-names.txt", [line.partition("\t")[0] for line in lines])


# ---- The program ---------------------------------------------------------------------------------

def all_faults(catalogue, build):
    headers = Headers()
    yield from list(form_faults(catalogue)) or status_faults(catalogue, headers)
    yield from duplicate_faults(catalogue)
    yield from declaration_faults(catalogue, headers)
    yield from missing_faults(catalogue, headers)
    yield from symbol_faults(catalogue)
    yield from test_faults(catalogue, build)
    for check in groups_faults, agreement_faults, mfc_family_faults, mfc_faults:
        yield from check(catalogue)
    yield from windows_name_faults(catalogue)


def show_row(title, cells):
    print(f"{title:20}" + "".join(f"{cell:>9}" for cell in cells))


def show_counts(catalogue):
    total = collections.Counter()
    show_row("family", STATUSES)
    for family in catalogue.files.values():
        counts = collections.Counter(entry["status"] for entry in family["entries"])
        show_row(family["family"], [counts[status] for status in STATUSES])
        total += counts
    show_row("all", [total[status] for status in STATUSES])


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", nargs="?", help="a build folder, whose tests CTest is asked for")
    parser.add_argument("--catalogue", type=pathlib.Path, default=ROOT / "catalogue",
                        help="another folder than catalogue/")
    parser.add_argument("--counts", action="store_true",
                        help="print how many entries of each family work, differ or are inert")
    return parser.parse_args()


def main():
    arguments = parse_arguments()
    # So that a reader of the lines may stop at their beginning.
    signal.signal(signal.SIGPIPE, signal.SIG_DFL)
    catalogue = Catalogue(arguments.catalogue)
    if arguments.counts:
        show_counts(catalogue)
        return 0
    faults = list(all_faults(catalogue, arguments.build))
    print("\n".join(faults), end="\n" if faults else "")
    return bool(faults)


if __name__ == "__main__":
    sys.exit(main())
