#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Measures ktqt-audit on a binary of 500 MB and on sources of a million lines.

    tools/bench-audit.py [KTQT-AUDIT]

Prints time and memory of each form of report and fails if one takes more than 10 s or 1 GiB. Needs
Python 3 and a compiler; the inputs lie in a temporary folder and take 600 MB.
"""
import os
import pathlib
import subprocess
import sys
import tempfile
import time

PROGRAM = "build/release/audit/ktqt-audit"
SECONDS = 10
MEBIBYTES = 1024
REPORTS = ("", "--json", "--csv", "--sarif", "--html")
CALLS = ("CreateFileW", "EnterCriticalSection", "GetPrivateProfileStringW", "RegOpenKeyExW")


def write_assembly(path):
    """500 MB of data behind 300,000 symbols of the program's own and a few calls."""
    with path.open("w", encoding="ascii") as file:
        file.write(".text\n" + "".join(f".quad {name}\n" for name in CALLS))
        file.writelines(f"_ZN4Some9Namespace8functionEi{at}:\n.globl "
                        f"_ZN4Some9Namespace8functionEi{at}\n" for at in range(300_000))
        file.write(".data\n.zero 524288000\n")


def make_binary(folder):
    source = folder / "large.s"
    write_assembly(source)
    subprocess.run(["cc", "-c", source, "-o", folder / "large.o"], check=True)
    return folder / "large.o"


def page(number):
    """A source of 1,000 lines, of which every tenth has a name of the catalogue."""
    lines = [f"    total += values[{at}] * factor; // a comment about CloseHandle\n"
             for at in range(996)]
    for at in range(0, len(lines), 10):
        lines[at] = f"    {CALLS[at // 10 % len(CALLS)]}(name, {at}, L\"text\");\n"
    return f"#include <windows.h>\n\nvoid page{number}()\n{{\n" + "".join(lines)


def make_sources(folder):
    sources = folder / "sources"
    sources.mkdir()
    for number in range(1000):
        (sources / f"page{number}.cpp").write_text(page(number), encoding="ascii")
    return sources


def measure(program, form, path):
    """The seconds and the mebibytes of one run. Its memory is that of the largest process."""
    command = [program, *filter(None, [form]), os.fspath(path)]
    begin = time.monotonic()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    if status != 0:
        sys.exit(f"{' '.join(command)} failed")
    unit = 1024 * 1024 if sys.platform == "darwin" else 1024
    return time.monotonic() - begin, usage.ru_maxrss / unit


def main():
    program = sys.argv[1] if len(sys.argv) > 1 else PROGRAM
    missed = False
    print(f"{'Input':<34}{'Report':<10}{'Time':>8}{'Memory':>12}")
    with tempfile.TemporaryDirectory() as folder:
        inputs = (("an object of 500 MB", make_binary), ("sources of 1,000,000 lines", make_sources))
        for title, make in inputs:
            path = make(pathlib.Path(folder))
            for form in REPORTS:
                seconds, mebibytes = measure(program, form, path)
                print(f"{title:<34}{form or 'text':<10}{seconds:>6.1f} s{mebibytes:>8.0f} MiB")
                missed |= seconds > SECONDS or mebibytes > MEBIBYTES
    return missed


if __name__ == "__main__":
    sys.exit(main())
