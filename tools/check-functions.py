#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Counts the lines of each function in src/ and audit/; fails if they are longer than the house allows.

A function's length is the number of lines between the line of its opening brace and the line of
its closing brace, without blank lines and lines that hold nothing but a comment. A body on one
line counts 1, an empty one too. A lambda's lines are its function's; an initialiser list is no
part of the body.

The grammar is the layout that clang-format gives every file here:
  - a body opens with a brace alone on its line and closes with one at the same indentation;
  - what stands above an opening brace, back to a blank line or to the end of what comes before, is
    the body's head, and the head of a function holds a parenthesis where that of a type has none;
  - a body on one line ends its line, and its head holds a parenthesis too;
  - every other brace that ends its line opens a namespace, whose content is not indented, or an
    initialiser, which is passed over.

Needs Python 3 and nothing else.
"""
import argparse
import math
import os
import pathlib
import re
import signal
import statistics
import sys

MEDIAN, NINTH_TENTH, LONGEST = 4, 11, 30

OPENING = re.compile(r"( *)\{")
ONE_LINE = re.compile(r"[^{}]*\{.*\}")
NAMESPACE = re.compile(r'(inline )?namespace\b|extern "C"')
COMMENT = re.compile(r" *//")
HEAD_ENDS = re.compile(r"$|#| *//|.*[;{}]$| *(public|protected|private|Q_SIGNALS):$")


class Source:
    """The lines of a file, read once from the first to the last."""

    def __init__(self, path):
        self.path = path
        self.lines = path.read_text(encoding="utf-8").splitlines()

    def head(self, number):
        """What stands above a line and belongs to it, with the line itself, on one line."""
        first = number
        while first > 0 and not HEAD_ENDS.match(self.lines[first - 1]):
            first -= 1
        return " ".join(line.strip() for line in self.lines[first:number + 1])

    def closing(self, number):
        """The number of the line that closes what a line at this indentation opens."""
        indentation = re.match(" *", self.lines[number])[0]
        for after in range(number + 1, len(self.lines)):
            if self.lines[after].startswith(indentation + "}"):
                return after
        sys.exit(f"{self.path}:{number + 1}: this brace is not closed at its own indentation")

    def body_length(self, opening, closing):
        body = self.lines[opening + 1:closing]
        return sum(1 for line in body if line.strip() and not COMMENT.match(line))

    def functions(self):
        """Yields (length, path, line number, head) for each function."""
        number = 0
        while number < len(self.lines):
            line = self.lines[number]
            head = self.head(number)
            if COMMENT.match(line) or line.startswith("#"):
                pass
            elif OPENING.fullmatch(line):
                if "(" in head:
                    closing = self.closing(number)
                    yield self.found(self.body_length(number, closing), number, head)
                    number = closing
            elif ONE_LINE.fullmatch(line):
                if "(" in head:
                    yield self.found(1, number, head)
            elif line.endswith("{") and not NAMESPACE.match(line):
                number = self.closing(number)
            number += 1

    def found(self, length, number, head):
        return length, str(self.path), number + 1, head.partition("{")[0].strip()


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--list", action="store_true",
                        help="print every function with its length, the longest first")
    return parser.parse_args()


def sources():
    files = [path for room in ("audit", "src") for path in sorted(pathlib.Path(room).rglob("*"))]
    return [path for path in files if path.suffix in (".h", ".cpp", ".mm")]


def show(functions):
    for length, path, line, head in functions:
        print(f"{length:4} {path}:{line}: {head}")


def main():
    arguments = parse_arguments()
    # So that a reader of the list may stop at its beginning.
    signal.signal(signal.SIGPIPE, signal.SIG_DFL)
    os.chdir(pathlib.Path(__file__).parent.parent)
    functions = [function for path in sources() for function in Source(path).functions()]
    functions.sort(key=lambda function: -function[0])
    lengths = sorted(length for length, *_ in functions)
    median = statistics.median(lengths)
    ninth_tenth = lengths[math.ceil(len(lengths) * 0.9) - 1]
    long = [function for function in functions if function[0] > LONGEST]
    rare = [function for function in functions if function[0] > NINTH_TENTH]
    if arguments.list:
        show(functions)
    print(f"{len(lengths)} functions: median {median:g} lines (at most {MEDIAN}), nine in ten at "
          f"most {ninth_tenth} ({NINTH_TENTH}), the longest {lengths[-1]} ({LONGEST})")
    if median <= MEDIAN and ninth_tenth <= NINTH_TENTH and not long:
        return 0
    print("Too long:" if long else f"Those over {NINTH_TENTH} lines, of which one in ten may be:")
    show(long or rare)
    return 1


if __name__ == "__main__":
    sys.exit(main())
