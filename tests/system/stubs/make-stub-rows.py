#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Writes a row for each function that the headers call inert, with the catalogue's result.

    make-stub-rows.py OUTPUT      also writes OUTPUT.d, which tells a build what was read

A row holds a name for its test, the function as its parameters choose it, and the word that the
catalogue has for its result. Fails where headers and catalogue do not name the same functions.

Needs Python 3 and nothing else.
"""
import collections
import importlib.util
import json
import pathlib
import re
import sys

PROJECT = pathlib.Path(__file__).resolve().parents[3]
CATALOGUE = PROJECT / "catalogue"
RETURNS = re.compile(r"returns (\w+)")


def headers_reader():
    sys.dont_write_bytecode = True
    path = PROJECT / "tests" / "headers" / "check-inert.py"
    module_spec = importlib.util.spec_from_file_location("check_inert", path)
    module = importlib.util.module_from_spec(module_spec)
    module_spec.loader.exec_module(module)
    return module


def full_name(scope, name):
    return f"{scope}::{name}" if scope else name


def catalogue_results():
    """The result of each inert function; an overloaded one has the word for all of them."""
    found = {}
    for path in CATALOGUE.glob("*.json"):
        for entry in json.loads(path.read_text(encoding="utf-8")).get("entries", []):
            if entry["status"] == "inert":
                found[full_name(entry["scope"], entry["name"])] = entry["result"]
    return found


def parameter_types(reader, parameters):
    with_names, _ = reader.split_parameters(parameters)
    return ", ".join(re.sub(r"\w+$", "", one).strip() for one in with_names.split(", ") if one)


def result_of(function, result, overloads):
    """The catalogue's word; where it stands for overloads, what each one's own sentence says."""
    said = RETURNS.match(function.inert)
    if overloads == 1:
        return result
    return said[1] if said else "nothing"


def test_names(names):
    """The names as a test may have them; of overloads all but the first have a number."""
    seen = collections.Counter()
    for name in names:
        seen[name] += 1
        number = f"_{seen[name]}" if seen[name] > 1 else ""
        yield name.replace("::", "_") + number


def rows():
    reader = headers_reader()
    results = catalogue_results()
    inert = [function for function in reader.all_functions() if function.inert is not None]
    names = [full_name(function.scope, function.name) for function in inert]
    if set(names) != set(results):
        sys.exit(f"only in the headers or the catalogue: {sorted(set(names) ^ set(results))}")
    counts = collections.Counter(names)
    for name, test_name, function in zip(names, test_names(names), inert):
        types = parameter_types(reader, function.parameters)
        result = result_of(function, results[name], counts[name])
        yield f'row("{test_name}", With<{types}>::choose(&{name}), "{result}"),\n'


def dependencies(output):
    """A line for make: the output, and every file that was read, with their blanks masked."""
    read = [*sorted(CATALOGUE.glob("*.json")), *sorted((PROJECT / "include").rglob("*.h"))]
    return " ".join(str(path).replace(" ", "\\ ") for path in [f"{output}:", *read]) + "\n"


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    output = sys.argv[1]
    pathlib.Path(output).write_text("".join(rows()), encoding="utf-8")
    pathlib.Path(output + ".d").write_text(dependencies(output), encoding="utf-8")


if __name__ == "__main__":
    main()
