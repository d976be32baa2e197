#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Looks at a reference that was built: links that lead nowhere, its size, and names that the search
and the manual do not have. Prints one line a fault and fails if there is one.

    docs/reference/check.py FOLDER

Needs Python 3 and nothing else.
"""
import html.parser
import pathlib
import sys
import urllib.parse

sys.dont_write_bytecode = True
from catalogue import Catalogue  # noqa: E402, so that no cache is left among the sources

MOST_BYTES = 5_000_000
LINKS = {"a": "href", "img": "src", "link": "href", "script": "src", "area": "href"}


class PageReader(html.parser.HTMLParser):
    """Notes down the links and the anchors of a page."""

    def __init__(self, path):
        super().__init__()
        self.links = []
        self.anchors = set()
        self.feed(path.read_text(encoding="utf-8"))

    def handle_starttag(self, tag, attrs):
        values = dict(attrs)
        self.anchors.update(filter(None, (values.get("id"), values.get("name"))))
        link = values.get(LINKS.get(tag, ""))
        if link:
            self.links.append(link)


def broken_links(folder):
    pages = {path: PageReader(path) for path in sorted(folder.rglob("*.html"))}
    for path, page in pages.items():
        for link in page.links:
            reason = fault(path, link, pages)
            if reason:
                yield f"{path.relative_to(folder)}: {link}: {reason}"


def fault(path, link, pages):
    """Why a link of a page leads nowhere; links to other sites are allowed and not followed."""
    parts = urllib.parse.urlsplit(link)
    if parts.scheme or parts.netloc or link.startswith("#") and len(link) == 1:
        return None
    target = (path.parent / urllib.parse.unquote(parts.path)).resolve() if parts.path else path
    if not target.exists():
        return "no such file"
    anchor = urllib.parse.unquote(parts.fragment)
    if anchor and target in pages and anchor not in pages[target].anchors:
        return "no such place in the file"
    return None


def size_fault(folder):
    size = sum(path.stat().st_size for path in folder.rglob("*") if path.is_file())
    print(f"The reference has {size:,} bytes.")
    if size > MOST_BYTES:
        yield f"It may have {MOST_BYTES:,}."


def unfound(folder):
    """Functions without a place in the index of the search, or without a manual page."""
    index = "".join(path.read_text(encoding="utf-8")
                    for path in sorted((folder / "html" / "search").glob("all_*.js")))
    for name, entry in Catalogue().entries.items():
        if entry["kind"] not in ("function", "method"):
            continue
        if f"'{entry['name']}'" not in index:
            yield f"{name}: the search does not find it"
        page = entry["name"] if entry["kind"] == "function" else entry["scope"].split("::")[-1]
        if not list((folder / "man" / "man3").glob(page + ".3*")):
            yield f"{name}: there is no manual page"


def main():
    folder = pathlib.Path(sys.argv[1]).resolve()
    faults = [*broken_links(folder), *size_fault(folder), *unfound(folder)]
    if not (folder / "KtQtBase.qch").is_file():
        faults.append("KtQtBase.qch is missing")
    for line in faults:
        print(line)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
