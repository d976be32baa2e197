#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that the grid has a row for each function of the headers that takes a buffer or a size.

    check-rows.py

A function takes a buffer if a parameter points to characters or numbers that it may write, and a
size if a number is named like one. The inert functions have rows of their own: see
tests/system/stubs. Prints each function without a row, and each row without a function.

Needs Python 3 and nothing else.
"""
import importlib.util
import pathlib
import re
import sys

FOLDER = pathlib.Path(__file__).resolve().parent
TESTS = FOLDER.parent

BUFFER = re.compile(r"(?<!const )\b(wchar_t|char|int|short|unsigned \w+|void)\* (?!h[A-Z])\w+$")
SIZE = re.compile(r"\b(int|unsigned int|long|size_t|short) "
                  r"(n|len|length|count|(\w*(size|Size|Len|Length|Max|Width|Height|Chars|Bytes))|"
                  r"width|height|bytes|room|\w*PerPixel)$")
ROW = re.compile(r'\{\s*"([\w:]+)",\s*[\w."]+,\s*Locales::|\bof[A-Z]\w+\(\s*"([\w:]+)",')

# What looks like one by its parameters and is none.
NO_BUFFER = {"KtQtPainterWrapper::setPen": "its width is that of a line"}

# What its parameters do not show: templates and functions that a header defines, which the reader of
# headers passes over, and functions whose records hold buffers and sizes.
ROWS_OF_OTHERS = {"CStdStr::Left", "CStdStr::Mid", "CopyMemory", "FillMemory",
                  "KtQtFileDialog::GetOFN", "KtQtPainterWrapper::setFontIndirect", "MoveMemory",
                  "ZeroMemory"}


def headers_reader():
    sys.dont_write_bytecode = True
    path = TESTS / "headers" / "check-inert.py"
    module_spec = importlib.util.spec_from_file_location("check_inert", path)
    module = importlib.util.module_from_spec(module_spec)
    module_spec.loader.exec_module(module)
    return module


def needs_row(reader, function):
    parameters, _ = reader.split_parameters(function.parameters)
    return any(BUFFER.search(one) or SIZE.search(one) for one in parameters.split(", "))


def functions(reader):
    for function in reader.all_functions():
        if function.inert is None and needs_row(reader, function):
            yield f"{function.scope}::{function.name}" if function.scope else function.name


def rows():
    for source in FOLDER.glob("*Rows.cpp"):
        for name, other in ROW.findall(source.read_text(encoding="utf-8")):
            yield name or other


def main():
    wanted = set(functions(headers_reader()))
    found = set(rows())
    lines = [f"{name} has no row" for name in wanted - found - set(NO_BUFFER)]
    lines += [f"{name} has no row" for name in ROWS_OF_OTHERS - found]
    lines += [f"{name} takes no buffer and no size" for name in found - wanted - ROWS_OF_OTHERS]
    lines += [f"{name} needs no exception" for name in set(NO_BUFFER) - wanted]
    print("\n".join(sorted(lines)), end="\n" if lines else "")
    print(f"{len(wanted)} functions by their parameters, {len(found)} rows")
    return 1 if lines else 0


if __name__ == "__main__":
    sys.exit(main())
