# SPDX-License-Identifier: MIT
"""The results of tools/bench.py as one page that needs nothing beside it."""
import html
import platform
import re

STYLE = """
:root { color-scheme: light dark; --ink: #1d232b; --paper: #fff; --line: #d5dae1; --soft: #5b6672;
        --met: #2f7d4f; --missed: #b3412e; --track: #eef1f5; }
@media (prefers-color-scheme: dark) {
  :root { --ink: #e4e8ee; --paper: #14181d; --line: #333b45; --soft: #9aa5b3;
          --met: #58b981; --missed: #ef8672; --track: #232a33; }
}
body { margin: 2rem auto; padding: 0 1rem; max-width: 62rem; background: var(--paper);
       color: var(--ink); font: 15px/1.5 system-ui, sans-serif; }
h1 { font-size: 1.5rem; } h2 { font-size: 1.1rem; margin: 2rem 0 0; }
p { margin: .2rem 0 .6rem; color: var(--soft); }
dl { display: grid; grid-template-columns: max-content 1fr; gap: .1rem 1rem; margin: 1rem 0; }
dt { color: var(--soft); } dd { margin: 0; }
.scroll { overflow-x: auto; }
table { border-collapse: collapse; width: 100%; font-variant-numeric: tabular-nums; }
th, td { padding: .25rem .6rem; border-bottom: 1px solid var(--line); text-align: left;
         white-space: nowrap; }
th { color: var(--soft); font-weight: 500; } .number { text-align: right; }
.bar { width: 34%; min-width: 9rem; }
.track { position: relative; height: .8rem; background: var(--track); }
.fill { height: 100%; background: var(--met); } .missed .fill { background: var(--missed); }
.goal { position: absolute; top: -.2rem; bottom: -.2rem; border-left: 2px solid var(--ink); }
.missed .ratio { color: var(--missed); font-weight: 600; }
.growth { background: #fff; overflow-x: auto; } .growth svg { display: block; margin: auto; }
"""

LEGEND = ("A bar is the library's time as a part of the reference's, both measured in the same run; "
          "the mark is the goal. A bar that ends before its mark met it.")


def element(name, content, **attributes):
    given = "".join(f' {key.rstrip("_")}="{html.escape(str(value))}"'
                    for key, value in attributes.items())
    return f"<{name}{given}>{content}</{name}>"


def text(name, words, **attributes):
    return element(name, html.escape(str(words)), **attributes)


def percent(value, full):
    return f"{max(0, min(100 * value / full, 100)):.1f}%"


def bar(row, full):
    fill = element("div", "", class_="fill", style=f"width: {percent(row['value'], full)}")
    goal = element("div", "", class_="goal", style=f"left: {percent(row['goal'], full)}")
    return element("td", element("div", fill + goal, class_="track"), class_="bar")


def line(row, cells, full):
    """A row of a table; cells is what the printed table has for it."""
    work, size, library, reference, ratio, goal, met = cells
    content = (text("td", work) + text("td", size, class_="number")
               + text("td", library, class_="number") + text("td", reference, class_="number")
               + text("td", f"{ratio} of {goal}", class_="number ratio") + bar(row, full))
    return element("tr", content, class_="met" if met == "yes" else "missed")


def table(rows, cells):
    full = 1.15 * max(max(row["value"], row["goal"]) for row in rows)
    heads = [("Work", ""), ("Size", "number"), ("Library", "number"), ("Reference", "number"),
             ("Ratio, goal", "number"), ("", "bar")]
    head = element("tr", "".join(text("th", word, class_=kind) for word, kind in heads))
    body = "\n".join(line(row, cells(row), full) for row in rows)
    return element("div", element("table", f"{head}\n{body}\n"), class_="scroll")


def sections(goals, results, cells):
    for number, group in enumerate(goals["groups"]):
        yield group["title"], group["means"], [row for row in results if row["group"] == number]
    yield "Growth", goals["growth means"], [row for row in results if row["group"] == "growth"]


def processor():
    try:
        with open("/proc/cpuinfo", encoding="utf-8") as file:
            found = re.search(r"model name\s*: (.*)", file.read())
    except OSError:
        found = None
    return found[1] if found else platform.processor() or platform.machine()


def machine(context):
    """What the times depend on: pairs of a word and what it is here."""
    caches = ", ".join(f"{cache['size'] // 1024} KiB ({cache['type'].lower()}, level "
                       f"{cache['level']})" for cache in context.get("caches", []))
    yield "Processor", processor()
    yield "Cores", f"{context['num_cpus']}, {context['mhz_per_cpu'] / 1000:.2f} GHz"
    if caches:
        yield "Caches", caches
    yield "System", f"{platform.system()} {platform.release()}, {platform.machine()}"
    yield "Measured", context["date"]


def page(goals, results, cells, context, plot):
    """The page. cells(row) gives the words of a row, plot is the SVG of the growth rows."""
    missed = sum(cells(row)[-1] == "no" for row in results)
    facts = "".join(text("dt", word) + text("dd", value) for word, value in machine(context))
    parts = [text("h1", "How fast libKtQtBase is"), element("dl", facts),
             text("p", f"{len(results) - missed} of {len(results)} goals met. {LEGEND}")]
    for title, means, rows in sections(goals, results, cells):
        if rows:
            parts += [text("h2", title), text("p", means), table(rows, cells)]
    if any(row["group"] == "growth" for row in results):
        parts.append(element("div", plot, class_="growth"))
    head = ('<meta charset="utf-8"/>'
            '<meta name="viewport" content="width=device-width, initial-scale=1"/>'
            + text("title", "How fast libKtQtBase is") + element("style", STYLE))
    body = "\n".join(parts)
    return f'<!DOCTYPE html>\n<html lang="en"><head>{head}</head>\n<body>\n{body}\n</body></html>\n'
