#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The page that tools/bench.py makes of its results."""
import json
import pathlib
import re
import sys
import unittest
import xml.etree.ElementTree as tree

ROOT = pathlib.Path(__file__).parents[2]
sys.path.insert(0, str(ROOT / "tools"))
sys.dont_write_bytecode = True

import bench  # noqa: E402
import bench_page  # noqa: E402

GOALS = json.loads((ROOT / "benchmarks/goals.json").read_text())
CONTEXT = {"date": "2001-02-03", "num_cpus": 3, "mhz_per_cpu": 2500,
           "caches": [{"type": "Data", "level": 1, "size": 32768}], "host_name": "its-own-name"}
PLOT = '<svg xmlns="http://www.w3.org/2000/svg"><text>curves</text></svg>'


def row(group, work, value, goal):
    return {"group": group, "work": work, "size": "20", "library": 100 * value, "who": "a<b",
            "reference": 100, "value": value, "goal": goal}


MET = row(0, "ParseRelative, drive", 0.5, 1.5)
MISSED = row(0, "ParseRelative, missing", 2.0, 1.5)
GROWTH = row("growth", "Profile by size", 0.1, 0.25)


def page(*rows):
    return bench_page.page(GOALS, rows, bench.cells, CONTEXT, PLOT)


def parsed(*rows):
    return tree.fromstring(page(*rows).replace("<!DOCTYPE html>\n", ""))


def lines(root, kind):
    return [item for item in root.iter("tr") if item.get("class") == kind]


class Page(unittest.TestCase):
    def test_shows_each_row_with_its_verdict(self):
        root = parsed(MET, MISSED)
        self.assertEqual([item[0].text for item in lines(root, "met")], [MET["work"]])
        self.assertEqual([item[0].text for item in lines(root, "missed")], [MISSED["work"]])
        self.assertIn("1 of 2 goals met", page(MET, MISSED))

    def test_shows_the_times_beside_the_reference(self):
        cells = ["".join(cell.itertext()) for cell in lines(parsed(MET), "met")[0]]
        self.assertEqual(cells[:5], [MET["work"], "20", "50 ns", "100 ns (a<b)", "0.50 of 1.50"])

    def test_draws_a_bar_before_or_behind_the_mark_of_its_goal(self):
        for each, kind, is_before in ((MET, "met", True), (MISSED, "missed", False)):
            drawn = tree.tostring(lines(parsed(MET, MISSED), kind)[0], encoding="unicode")
            fill, goal = (float(value) for value in re.findall(r"(?:width|left): ([\d.]+)%", drawn))
            self.assertEqual(fill < goal, is_before, each["work"])
            self.assertAlmostEqual(fill / goal, each["value"] / each["goal"], places=2)

    def test_draws_no_bar_where_the_library_grows_less(self):
        self.assertIn("width: 0.0%", page(row("growth", "Profile by size", -0.1, 0.25)))

    def test_says_what_each_group_means(self):
        for number, group in enumerate(GOALS["groups"]):
            shown = page(row(number, "work", 1, 1))
            self.assertIn(group["means"], shown.replace("&#x27;", "'"))
            self.assertEqual(shown.count("<h2>"), 1)

    def test_shows_the_curves_where_growth_was_measured(self):
        self.assertIn("curves", page(GROWTH))
        self.assertNotIn("curves", page(MET))

    def test_tells_the_machine_but_not_its_name(self):
        shown = page(MET)
        for fact in ("3, 2.50 GHz", "32 KiB (data, level 1)", "2001-02-03"):
            self.assertIn(fact, shown)
        self.assertNotIn("its-own-name", shown)

    def test_needs_nothing_beside_it(self):
        shown = page(MET, GROWTH).replace("http://www.w3.org/2000/svg", "")
        self.assertNotRegex(shown, r"https?:|<link|<script|src=|url\(|@import")


if __name__ == "__main__":
    unittest.main()
