#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks what the public headers say of the functions that do nothing.

    check-inert.py sentences                       each "Inert:" is what KTQTBASE_INERT says, too,
                                                   and what is said of the function's other name
    check-inert.py quiet|warn|forbid COMMAND...    compiles a call of every function of the headers

COMMAND is a compiler with its options. In the mode "quiet" the compiler must say nothing. In the
other two it must say, for each call of an inert function, that function's sentence at the line of
the call, and nothing else.

The grammar is the layout that clang-format gives the headers: namespaces and classes begin in the
first column, a function is declared on lines of its own and ends with a semicolon.

Needs Python 3 and a compiler.
"""
import collections
import os
import pathlib
import re
import subprocess
import sys
import tempfile

INCLUDE = pathlib.Path(__file__).parents[2] / "include"
DEFINITIONS = {"quiet": [], "warn": ["-DKTQTBASE_WARN_INERT"], "forbid": ["-DKTQTBASE_FORBID_INERT"]}

TEXT = r'"(?:[^"\\\n]|\\.)*"'
FUNCTION = re.compile(
    rf"^ *(?:KTQTBASE_INERT\((?P<inert>(?:\s*{TEXT})+)\)\s*)?"
    r"(?:\[\[noreturn\]\] |KTQTBASE_EXPORT |virtual |static )*"
    r"(?!return\b|using\b|class\b|extern\b|explicit\b)(?P<result>[\w:<>]+(?: [\w:<>]+)*[ *&]+)(?P<name>\w+)"
    r"\((?P<parameters>[^;{}]*)\)(?: const)?(?: noexcept)?(?: override)?(?: = 0)?;", re.MULTILINE)
OPENS = re.compile(r"namespace (\w+) \{$|(?:class|struct) (?:KTQTBASE_EXPORT )?(\w+)(?: |$)")
CLOSES = re.compile(r"\}")
SENTENCE_ENDS = re.compile(r"(?:Kept|On Windows|Result):")
OTHER_NAME = re.compile(
    rf"^KTQTBASE_PORTING_(FUNCTION|INERT|USING)\(\s*(\w+),\s+(\w+)(?:,((?:\s*{TEXT})+))?\);",
    re.MULTILINE)
DIAGNOSTIC = re.compile(r"(.*?):(\d+):\d+: (?:warning|error|fatal error): (.*)")

Function = collections.namedtuple("Function", "place scope in_class name parameters inert comment")


def headers():
    return sorted(INCLUDE.rglob("*.h"))


def without_comments(text):
    return re.sub(r"//.*", "", text)


def scope_of(lines, number):
    """The class or namespace that a line stands in, and whether it is a class; None in a template."""
    for above in range(number - 1, -1, -1):
        opened = OPENS.match(lines[above])
        if opened and not lines[above].endswith(";"):
            if lines[above - 1].startswith("template"):
                return None, True
            return opened[1] or opened[2], opened[1] is None
        if CLOSES.match(lines[above]):
            break
    return "", False


def inert_comment(lines, number):
    """The sentence behind "Inert:" in the comment of a declaration's first line; None without one.

    A comment belongs to the declarations that follow it without a blank line."""
    last = number
    while lines[last - 1].strip() and not lines[last - 1].lstrip().startswith("//"):
        last -= 1
    first = last
    while lines[first - 1].lstrip().startswith("//"):
        first -= 1
    return inert_sentence(lines[first:last])


def inert_sentence(comment):
    found = None
    for line in comment:
        text = line.lstrip()[3:]
        if text.startswith("Inert: "):
            found = text.removeprefix("Inert: ")
        elif found is not None:
            if SENTENCE_ENDS.match(text):
                break
            found += " " + text
    return found


def spoken(literals):
    """What adjacent string literals say."""
    parts = [literal[1:-1] for literal in re.findall(TEXT, literals)]
    return re.sub(r"\\(.)", r"\1", "".join(parts))


def functions_of(header):
    text = header.read_text(encoding="utf-8")
    lines = text.splitlines()
    for match in FUNCTION.finditer(without_comments(text)):
        number = without_comments(text).count("\n", 0, match.start())
        while not lines[number].strip():
            number += 1
        scope, in_class = scope_of(lines, number)
        if scope is not None:
            place = f"{header.relative_to(INCLUDE)}:{number + 1}"
            inert = spoken(match["inert"]) if match["inert"] else None
            yield Function(place, scope, in_class, match["name"], match["parameters"], inert,
                           inert_comment(lines, number))


def other_name(known, kind, first, second, sentence):
    """The function that a line of the porting headers names, or None for one of their own."""
    if kind == "USING":
        function = known.get((first, second))
        return function and function._replace(scope="")
    return known["", second]._replace(name=first, inert=spoken(sentence) if sentence else None)


def other_names_of(header, functions):
    """The functions that a header gives under another name, or at another place."""
    known = {(function.scope, function.name): function for function in functions}
    for match in OTHER_NAME.finditer(header.read_text(encoding="utf-8")):
        function = other_name(known, *match.groups())
        if function:
            yield function


def all_functions():
    functions = [function for header in headers() for function in functions_of(header)]
    others = [other for header in headers() for other in other_names_of(header, functions)]
    return functions + others


def check_sentences():
    wrong = 0
    for function in all_functions():
        if function.inert != function.comment:
            wrong += 1
            print(f"{function.place}: the comment of {function.name} says\n    {function.comment}\n"
                  f"and KTQTBASE_INERT\n    {function.inert}")
    return wrong


def split_parameters(text):
    """The parameters, each with a name and none with a default value, and the names."""
    text = re.sub(r" = [^,()]*(?:\([^()]*\))?", "", " ".join(text.split()))
    parameters = [parameter for parameter in text.split(", ") if parameter]
    parameters = [parameter if " " in parameter else f"{parameter} unnamed{position}"
                  for position, parameter in enumerate(parameters)]
    names = [re.search(r"(\w+)$", parameter)[1] for parameter in parameters]
    return ", ".join(parameters), ", ".join(names)


def call(number, function):
    parameters, names = split_parameters(function.parameters)
    if function.in_class:
        parameters = ", ".join(filter(None, [f"{function.scope}& object", parameters]))
        return f"void call{number}({parameters}) {{ (void)object.{function.name}({names}); }}"
    name = f"{function.scope}::{function.name}"
    return f"void call{number}({parameters}) {{ (void){name}({names}); }}"


def source(functions):
    """A source with one call a line; its first call is on the returned line."""
    lines = ["#include <KtQtBase/KtQtBase.h>", "#include <KtQtBase/Porting.h>"]
    first = len(lines) + 1
    lines += [call(number, function) for number, function in enumerate(functions)]
    return "\n".join(lines) + "\n", first


def without_limit(compiler):
    """The option that keeps a compiler from giving up after some errors; g++ never does."""
    version = subprocess.run([compiler, "--version"], text=True, stdout=subprocess.PIPE, check=True)
    return ["-ferror-limit=0"] if "clang" in version.stdout else []


def compile_source(command, text):
    """What the compiler says of a source, as {line: sentences}; 0 stands for other files."""
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "calls.cpp"
        path.write_text(text, encoding="utf-8")
        run = subprocess.run([*command, *without_limit(command[0]), "-c", str(path),
                              "-o", os.devnull],
                             text=True, stderr=subprocess.PIPE, env={**os.environ, "LC_ALL": "C"})
    said = collections.defaultdict(set)
    for line in run.stderr.splitlines():
        found = DIAGNOSTIC.match(line)
        if found:
            said[int(found[2]) if found[1] == str(path) else 0].add(found[3])
    if run.returncode != 0 and not said:
        sys.exit(run.stderr)
    return said


def check_calls(mode, command):
    functions = all_functions()
    text, first = source(functions)
    said = compile_source([*command, *DEFINITIONS[mode]], text)
    wrong = 0
    for line, function in enumerate(functions, first):
        expected = function.inert if mode != "quiet" else None
        sentences = said.pop(line, set())
        fitting = {sentence for sentence in sentences if f"inert: {expected}" in sentence}
        if sentences != fitting or bool(sentences) != (expected is not None):
            wrong += 1
            print(f"{function.place}: {function.name} should give {expected}, and gives {sentences}")
    for line, sentences in said.items():
        wrong += 1
        print(f"line {line}: {sentences}")
    inert = sum(function.inert is not None for function in functions)
    print(f"{len(functions)} calls, {inert} of them of inert functions, {wrong} wrong")
    return wrong


def main():
    if sys.argv[1:] == ["sentences"]:
        return 1 if check_sentences() else 0
    if len(sys.argv) > 2 and sys.argv[1] in DEFINITIONS:
        return 1 if check_calls(sys.argv[1], sys.argv[2:]) else 0
    sys.exit(__doc__)


if __name__ == "__main__":
    sys.exit(main())
