#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the benchmark programs and judges their rows by benchmarks/goals.json.

A row compares the medians of the library and of the fastest of its references in one run. A row
that misses its goal is measured once more, alone; the exit status is 1 when it misses again.
Needs Python 3 and nothing else.
"""
import argparse
import json
import math
import pathlib
import re
import shutil
import statistics
import subprocess
import sys

import bench_page

UNITS = {"KB": 1024, "MB": 1024 ** 2, "K": 1000}
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", type=pathlib.Path, default=pathlib.Path("build/bench"))
    parser.add_argument("--goals", type=pathlib.Path, default=pathlib.Path("benchmarks/goals.json"))
    parser.add_argument("--repetitions", type=int, default=11)
    parser.add_argument("--min-time", type=float, default=0.02, help="seconds a repetition")
    parser.add_argument("--once", action="store_true", help="run each row once, judge nothing")
    parser.add_argument("--only", default="", help="measure the works that match this expression")
    parser.add_argument("--markdown", type=pathlib.Path,
                        help="put the table between the marks of this file, the plot beside it")
    parser.add_argument("--html", action="store_true",
                        help="write the results as a page, bench.html in the build's folder")
    return parser.parse_args()


def programs(build):
    return [build / "benchmarks" / name for name in ("ktqtbase_bench", "ktqtbase_load_bench")]


def run(program, out, filters, repetitions, min_time):
    """Runs the benchmarks of a program whose names match; returns {name: [nanoseconds]}.

    Each repetition is a process of its own: where the pages of one happen to lie in memory can
    slow a row down by a fifth for as long as the process lives.
    """
    command = [program, f"--benchmark_filter={filters}", f"--benchmark_out={out}",
               "--benchmark_out_format=json", f"--benchmark_min_time={min_time}"]
    times = {}
    for _ in range(repetitions):
        done = subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True,
                              check=False)
        if done.returncode != 0:
            sys.exit(f"{program} failed:\n{done.stderr}")
        for item in json.loads(out.read_text() or "{}").get("benchmarks", []):
            time = item["cpu_time"] * NANOSECONDS[item["time_unit"]]
            times.setdefault(item["run_name"], []).append(time)
    return times


def measure(arguments, suffix, filters):
    """The medians of every matching benchmark, as {(work, size): {who: nanoseconds}}."""
    rows = {}
    for program in programs(arguments.build):
        out = arguments.build / f"{program.name}-{suffix}.json"
        times = run(program, out, filters, arguments.repetitions, arguments.min_time)
        for name, values in times.items():
            work, size, who = name.split("|")
            rows.setdefault((work, size), {})[who] = statistics.median(values)
    return rows


def numeric(size):
    found = re.match(r"([\d,.]+) ?([KM]B|p|K)?$", size)
    return float(found[1].replace(",", "")) * UNITS.get(found[2], 1)


def exponent(points):
    """The slope of the least-squares line through the logarithms of (size, time)."""
    xs = [math.log(size) for size, _ in points]
    ys = [math.log(time) for _, time in points]
    mean_x, mean_y = statistics.mean(xs), statistics.mean(ys)
    return (sum((x - mean_x) * (y - mean_y) for x, y in zip(xs, ys))
            / sum((x - mean_x) ** 2 for x in xs))


def table_order(item):
    (work, size), _ = item
    return work, numeric(size)


def judge_ratios(goals, rows):
    for number, group in enumerate(goals["groups"]):
        for (work, size), times in sorted(rows.items(), key=table_order):
            if work not in group["work"] or "library" not in times:
                continue
            goal = group.get("except", {}).get(f"{work}|{size}", group["goal"])
            if goal is None:
                continue
            who = min(group["fastest of"], key=lambda name: times.get(name, math.inf))
            yield {"group": number, "work": work, "size": size, "library": times["library"],
                   "who": who,
                   "reference": times[who], "value": times["library"] / times[who], "goal": goal}


def growth_points(rows, work, who):
    return [(numeric(size), times[who]) for (name, size), times in rows.items() if name == work]


def judge_growth(goals, rows):
    for growth in goals["growth"]:
        library = growth_points(rows, growth["work"], "library")
        if len(library) < 2:
            continue
        reference = growth_points(rows, growth["work"], growth["reference"])
        own, other = exponent(library), exponent(reference)
        yield {"group": "growth", "work": growth["work"], "size": "by " + growth["with"], "library": own,
               "who": growth["reference"], "reference": other, "value": own - other,
               "goal": goals["growth goal"]}


def judge(goals, rows):
    return [*judge_ratios(goals, rows), *judge_growth(goals, rows)]


def missed(row):
    return round(row["value"], 2) > row["goal"]


def missed_filter(results):
    """Matches the rows that missed, and every size of a growth that missed."""
    parts = {re.escape(row["work"]) + "[|]" + ("" if row["group"] == "growth" else re.escape(row["size"]))
             for row in results if missed(row)}
    parts = sorted(part.replace("\\ ", " ").replace("\\,", ",") for part in parts)
    return "^(" + "|".join(part if part.endswith("[|]") else part + "[|]" for part in parts) + ")"


def judge_twice(arguments, goals):
    """Measures everything, then what missed once more; a row keeps the better of the two."""
    rows = measure(arguments, "all", arguments.only or ".")
    results = judge(goals, rows)
    if any(missed(row) for row in results):
        arguments.repetitions *= 2
        again = measure(arguments, "again", missed_filter(results))
        second = {place(row): row for row in judge(goals, again)}
        results = [better(row, second.get(place(row))) for row in results]
    return rows, results


def place(row):
    return row["group"], row["work"], row["size"]


def better(row, other):
    return other if missed(row) and other and other["value"] < row["value"] else row


def duration(nanoseconds):
    for unit, factor in (("s", 1e9), ("ms", 1e6), ("µs", 1e3)):
        if nanoseconds >= 0.9995 * factor:
            return f"{nanoseconds / factor:.3g} {unit}"
    return f"{nanoseconds:.3g} ns"


def cells(row):
    verdict = "no" if missed(row) else "yes"
    if row["group"] == "growth":
        return [row["work"], row["size"], f"n^{row['library']:.2f}",
                f"n^{row['reference']:.2f} ({row['who']})", f"{row['value']:+.2f}",
                f"+{row['goal']:.2f}", verdict]
    return [row["work"], row["size"], duration(row["library"]),
            f"{duration(row['reference'])} ({row['who']})", f"{row['value']:.2f}",
            f"{row['goal']:.2f}", verdict]


TABLE_BEGIN = "<!-- The table is written by tools/bench.py --markdown. -->\n"
TABLE_END = "\n<!-- The end of the table. -->"
HEADINGS = ["Work", "Size", "Library", "Reference", "Ratio", "Goal", "Met"]


def text_table(results):
    lines = [HEADINGS, *(cells(row) for row in results)]
    widths = [max(len(line[column]) for line in lines) for column in range(len(HEADINGS))]
    return "\n".join("  ".join(cell.ljust(width) for cell, width in zip(line, widths)).rstrip()
                     for line in lines)


def markdown_table(results):
    lines = [HEADINGS, ["---"] * len(HEADINGS), *(cells(row) for row in results)]
    return "\n".join("| " + " | ".join(line) + " |" for line in lines) + "\n"


def context(build):
    """What a benchmark program told of the machine; one that ran nothing told nothing."""
    outs = [build / f"{program.name}-all.json" for program in programs(build)]
    return next(json.loads(out.read_text())["context"] for out in outs if out.read_text())


def write_page(arguments, goals, results):
    plot = (arguments.build / "growth.svg").read_text()
    out = arguments.build / "bench.html"
    out.write_text(bench_page.page(goals, results, cells, context(arguments.build), plot))
    print(f"The page is {out}.\n")


def write_results(arguments, rows, results):
    growth = {row["work"] for row in results if row["group"] == "growth"}
    points = {work: {} for work in sorted(growth)}
    for (work, size), times in rows.items():
        for who, time in times.items() if work in growth else ():
            points[work].setdefault(who, []).append([numeric(size), time])
    out = {"rows": results, "growth": points}
    (arguments.build / "bench.json").write_text(json.dumps(out, indent=1) + "\n")
    plot = pathlib.Path(__file__).with_name("plot-growth.py")
    subprocess.run([sys.executable, plot, arguments.build / "bench.json",
                    arguments.build / "growth.svg"], check=True)
    if arguments.markdown:
        put_table(arguments.markdown, markdown_table(results))
        shutil.copy(arguments.build / "growth.svg", arguments.markdown.with_name("growth.svg"))


def put_table(document, table):
    before, _, rest = document.read_text().partition(TABLE_BEGIN)
    _, _, after = rest.partition(TABLE_END)
    document.write_text(before + TABLE_BEGIN + "\n" + table + TABLE_END + after)


def main():
    arguments = parse_arguments()
    if arguments.once:
        arguments.repetitions, arguments.min_time = 1, 1e-9
        rows = measure(arguments, "once", arguments.only or ".")
        print(f"{len(rows)} rows ran once")
        return 0
    goals = json.loads(arguments.goals.read_text())
    rows, results = judge_twice(arguments, goals)
    write_results(arguments, rows, results)
    if arguments.html:
        write_page(arguments, goals, results)
    print(text_table(results))
    misses = sum(missed(row) for row in results)
    print(f"\n{len(results) - misses} of {len(results)} goals met")
    return 1 if misses else 0


if __name__ == "__main__":
    sys.exit(main())
