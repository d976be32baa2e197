# SPDX-License-Identifier: MIT
"""Writes texts of the headers in the form that Doxygen reads.

Needs Python 3 and nothing else.
"""
import re

from catalogue import anchor

# What Doxygen or its Markdown would take for a sign of theirs.
SPECIAL = re.compile(r"([\\@#%$*_`\[\]!|])")
ENTITIES = {"&": "&amp;", "<": "&lt;", ">": "&gt;", '"': "&quot;"}
QUOTED_OR_GAP = re.compile(r'("(?:\\.|[^"\\])*")|  +')
WORD = re.compile(r'`[^`]+`|\bL"(?:\\.|[^"\\])*"|\b[A-Za-z_]\w*(?:(?:::|->|\(\)->)\w+)*(?:\(\))?')
# A name is told from a word of English by a capital letter or a line in its middle; one of capital
# letters alone by the catalogue.
LIKE_A_NAME = re.compile(r"\w*[a-z_][A-Z_]|Q[A-Z][a-z]|\w+::|\w*_|.*\(\)|L\"")


def escaped(text):
    text = SPECIAL.sub(r"\\\1", text)
    text = "".join(ENTITIES.get(character, character) for character in text)
    return text.replace("::", "\\::").replace("--", "\\--")


def code(text):
    """Text as it stands in the code; blanks side by side count between quotes only."""
    text = QUOTED_OR_GAP.sub(lambda found: found[1] or " ", text)
    return f"<code>{escaped(text).replace('  ', ' &nbsp;')}</code>"


def link(name, text=None):
    return f'@ref {anchor(name)} "{text or name}"'


class Prose:
    """Writes prose with links to functions, but not to the one that the prose is about."""

    def __init__(self, catalogue, scope="", own=""):
        self.catalogue = catalogue
        self.scope = scope
        self.own = own

    def target(self, word):
        if not LIKE_A_NAME.match(word) and not word.isupper():
            return None
        inside = f"{self.scope}::{word}"
        for name in (inside, word):
            if name == self.own:
                return None
            if self.catalogue.is_function(name):
                return name
        return None

    def word(self, text):
        if text.startswith("`"):
            return code(text.strip("`"))
        name = self.target(text[:-2] if text.endswith("()") else text)
        if name:
            return link(name, text)
        known = text.isupper() and text in self.catalogue.entries
        return code(text) if known or LIKE_A_NAME.match(text) else escaped(text)

    def write(self, text):
        parts = []
        end = 0
        for found in WORD.finditer(text):
            parts.append(escaped(text[end:found.start()]) + self.word(found[0]))
            end = found.end()
        return "".join(parts) + escaped(text[end:])
