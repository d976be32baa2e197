#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes the list of the functions that ktqt-trace counts, a line TRACED(...) each.

They are the functions of the catalogue that do nothing here or differ from Windows, as far as the
library exports them. A virtual function is left out: a call through an object's table names no
symbol, so a count of the others would be wrong.

Needs Python 3, nm and c++filt.
"""
import argparse
import json
import pathlib
import re
import subprocess
import sys

STATUSES = ("inert", "differs")
TEMPLATE_ARGUMENTS = re.compile(r"<[^<>]*>")


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--library", required=True)
    parser.add_argument("--catalogue", type=pathlib.Path, required=True)
    parser.add_argument("--include", type=pathlib.Path, required=True,
                        help="the folder that the catalogue's headers are in")
    parser.add_argument("--nm", default="nm")
    parser.add_argument("--cxxfilt", default="c++filt")
    parser.add_argument("--macos", action="store_true", help="the library is one of macOS")
    parser.add_argument("--out", type=pathlib.Path, required=True)
    parser.add_argument("--depfile", type=pathlib.Path, help="tells the build what was read")
    return parser.parse_args()


def output(command, text=None):
    return subprocess.run(command, input=text, stdout=subprocess.PIPE, text=True,
                          check=True).stdout


def exported_functions(arguments):
    """The mangled names, without the underscore that macOS puts before each."""
    options = ["-gU"] if arguments.macos else ["-D", "--defined-only"]
    lines = output([arguments.nm, *options, arguments.library]).splitlines()
    symbols = {fields[2] for fields in map(str.split, lines)
               if len(fields) == 3 and fields[1] in "TW"}
    return sorted(name[1:] if arguments.macos else name for name in symbols)


def demangled(arguments, symbols):
    # Without -n macOS takes the first underscore of a name for one that it added itself.
    return output([arguments.cxxfilt, "-n"], "\n".join(symbols)).splitlines()


def without_templates(text):
    """A::f(B) of "A<int>::f(B<char>)"."""
    while TEMPLATE_ARGUMENTS.search(text):
        text = TEMPLATE_ARGUMENTS.sub("", text)
    return text


def plain_name(signature):
    return without_templates(signature).partition("(")[0]


def header_of(include, entry):
    text = (include / entry["header"]).read_text(encoding="utf-8")
    return without_templates(re.sub(r"//.*", "", text))


def is_virtual(include, entry):
    name = re.escape(entry["name"])
    return re.search(rf"\bvirtual\b[^;{{]*\b{name}\(|\b{name}\([^;{{]*\boverride\b",
                     header_of(include, entry))


def result_of(include, entry, signature):
    """An entry is for all functions of a name, of which some may return nothing."""
    count = without_templates(signature).count(",")
    declared = re.findall(rf"\bvoid {re.escape(entry['name'])}\(([^;]*)\)",
                          header_of(include, entry))
    returns_nothing = any(arguments.count(",") == count for arguments in declared)
    return "nothing" if returns_nothing else entry.get("result", "")


def traced_entries(arguments):
    """{plain name: entry} of the catalogue's functions that are to be counted."""
    found = {}
    for path in sorted(arguments.catalogue.glob("*.json")):
        family = json.loads(path.read_text(encoding="utf-8"))
        for entry in family.get("entries", []):
            if entry["kind"] in ("function", "method") and entry["status"] in STATUSES:
                name = "::".join(filter(None, (entry.get("scope"), entry["name"])))
                found[plain_name(name)] = entry
    return {name: entry for name, entry in found.items()
            if entry["kind"] == "function" or not is_virtual(arguments.include, entry)}


def lines(arguments):
    symbols = exported_functions(arguments)
    signatures = demangled(arguments, symbols)
    names = {signature: plain_name(signature) for signature in signatures}
    entries = traced_entries(arguments)
    traced = [pair for pair in zip(symbols, signatures) if names[pair[1]] in entries]
    for index, (symbol, signature) in enumerate(traced):
        name = names[signature]
        overloads = {other for _, other in traced if names[other] == name}
        shown = name if len(overloads) == 1 else signature
        entry = entries[name]
        inert = entry["status"] == "inert"
        result = result_of(arguments.include, entry, signature) if inert else ""
        yield f'TRACED({index}, {symbol}, "{shown}", "{entry["status"]}", "{result}")\n'


def write_depfile(arguments):
    """The folder is read, too: a family may come to it."""
    read = [arguments.catalogue, *sorted(arguments.catalogue.glob("*.json"))]
    out, *names = (str(path).replace(" ", "\\ ") for path in [arguments.out, *read])
    arguments.depfile.write_text(f"{out}: {' '.join(names)}\n", encoding="utf-8")


def main():
    arguments = parse_arguments()
    text = "".join(lines(arguments))
    if arguments.depfile:
        write_depfile(arguments)
    if not text:
        sys.exit("The library exports none of the functions that the catalogue names.")
    if not arguments.out.exists() or arguments.out.read_text(encoding="utf-8") != text:
        arguments.out.write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
