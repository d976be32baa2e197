#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Fails where a document links to a file that is not there, where README.md leads to a document by
no link, or where no document shows a picture of docs/.

    check-links.py ROOT
"""
import pathlib
import re
import sys

LINK = re.compile(r"!?\[[^\]]*\]\(([^)#\s]+)[^)]*\)")
CODE = re.compile(r"^```.*?^```", re.MULTILINE | re.DOTALL)


def documents(root):
    yield from sorted(root.glob("*.md"))
    yield from sorted((root / "docs").glob("*.md"))


def links(document):
    """The files that a document links to."""
    text = CODE.sub("", document.read_text(encoding="utf-8"))
    targets = (match[1] for match in LINK.finditer(text))
    return {(document.parent / target).resolve() for target in targets if ":" not in target}


def faults(root):
    found = {document: links(document) for document in documents(root)}
    for document, targets in found.items():
        for target in sorted(targets):
            if not target.exists():
                yield f"{document.name}: there is no {target.relative_to(root)}"
    readme = root / "README.md"
    for document in found:
        if document not in found[readme] | {readme}:
            yield f"README.md: no link leads to {document.relative_to(root)}"
    shown = set().union(*found.values())
    for picture in sorted((root / "docs").glob("*.png")):
        if picture not in shown:
            yield f"{picture.relative_to(root)}: no document shows it"


def main():
    found = list(faults(pathlib.Path(sys.argv[1]).resolve()))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
