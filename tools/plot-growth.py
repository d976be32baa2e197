#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Draws the growth rows of a benchmark run as one SVG, a logarithmic panel each.

Usage: plot-growth.py BENCH.JSON OUT.SVG. Needs Python 3 and nothing else.
"""
import json
import math
import pathlib
import sys
from xml.sax.saxutils import escape

WIDTH, HEIGHT, MARGIN, TITLE, LEGEND = 400, 250, 80, 30, 36
COLUMNS = 2
COLOURS = {True: "#1f5fbf", False: "#c2571a"}


def logarithms(series):
    library_first = sorted(series.items(), key=lambda item: item[0] != "library")
    return {who: [(math.log10(size), math.log10(time)) for size, time in sorted(points)]
            for who, points in library_first}


def bounds(values):
    """The whole decades around the values."""
    low, high = math.floor(min(values)), math.ceil(max(values))
    return low, max(high, low + 1)


class Panel:
    """One work: its lines, its axes in decades and its legend."""

    def __init__(self, work, series, column, row):
        self.work = work
        self.series = logarithms(series)
        self.left = column * WIDTH + MARGIN
        self.top = row * (HEIGHT + LEGEND) + TITLE
        self.wide = WIDTH - MARGIN - 35
        self.high = HEIGHT - TITLE - 40
        points = [point for line in self.series.values() for point in line]
        self.x_bounds = bounds([x for x, _ in points])
        self.y_bounds = bounds([y for _, y in points])

    def at(self, x, y):
        (x_low, x_high), (y_low, y_high) = self.x_bounds, self.y_bounds
        return (self.left + (x - x_low) / (x_high - x_low) * self.wide,
                self.top + self.high - (y - y_low) / (y_high - y_low) * self.high)

    def grid(self):
        for decade in range(self.x_bounds[0], self.x_bounds[1] + 1):
            x, y = self.at(decade, self.y_bounds[0])
            yield line(x, y, x, self.top, "#ddd")
            yield text(x, y + 15, f"{10 ** decade:,}", "middle")
        for decade in range(self.y_bounds[0], self.y_bounds[1] + 1):
            x, y = self.at(self.x_bounds[0], decade)
            yield line(x, y, x + self.wide, y, "#ddd")
            yield text(x - 6, y + 4, f"{10 ** decade:,}", "end")

    def lines(self):
        for number, (who, points) in enumerate(self.series.items()):
            colour = COLOURS[who == "library"]
            places = [self.at(x, y) for x, y in points]
            path = " ".join(f"{x:.1f},{y:.1f}" for x, y in places)
            yield f'<polyline points="{path}" fill="none" stroke="{colour}" stroke-width="2"/>'
            yield from (f'<circle cx="{x:.1f}" cy="{y:.1f}" r="3" fill="{colour}"/>'
                        for x, y in places)
            legend = self.left + number * 110
            bottom = self.top + self.high + 36
            yield line(legend, bottom - 4, legend + 18, bottom - 4, colour)
            yield text(legend + 23, bottom, who, "start")

    def svg(self):
        yield text(self.left, self.top - 10, f"{self.work}, time in ns by size", "start", "bold")
        yield from self.grid()
        yield from self.lines()


def line(x1, y1, x2, y2, colour):
    return (f'<line x1="{x1:.1f}" y1="{y1:.1f}" x2="{x2:.1f}" y2="{y2:.1f}" '
            f'stroke="{colour}"/>')


def text(x, y, words, anchor, weight="normal"):
    return (f'<text x="{x:.1f}" y="{y:.1f}" text-anchor="{anchor}" font-weight="{weight}">'
            f"{escape(words)}</text>")


def plot(growth):
    panels = [Panel(work, series, number % COLUMNS, number // COLUMNS)
              for number, (work, series) in enumerate(growth.items())]
    rows = math.ceil(len(panels) / COLUMNS)
    size = f'width="{COLUMNS * WIDTH}" height="{rows * (HEIGHT + LEGEND)}"'
    body = "\n".join(item for panel in panels for item in panel.svg())
    return (f'<svg xmlns="http://www.w3.org/2000/svg" {size} font-family="sans-serif" '
            f'font-size="11">\n<rect width="100%" height="100%" fill="white"/>\n{body}\n</svg>\n')


def main():
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    growth = json.loads(pathlib.Path(sys.argv[1]).read_text())["growth"]
    pathlib.Path(sys.argv[2]).write_text(plot(growth))


if __name__ == "__main__":
    main()
