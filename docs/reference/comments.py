# SPDX-License-Identifier: MIT
"""Takes a comment of a header apart: brief, arguments, result, rows, remarks and labelled sentences.

A comment has the order that the headers keep everywhere:

    A brief sentence. More about it.
      name, name    in: an argument, whose text may go on in lines that are indented deeper
    Result: what is returned.
      input  => result     input  => result
    Remarks.
    Kept: a sentence.
    On Windows: a sentence.

Needs Python 3 and nothing else.
"""
import re
from typing import NamedTuple, Tuple

LABEL = re.compile(r"(Inert|On Windows|Kept|Result[^:]*): *(.*)")
ARGUMENT = re.compile(r" *(\S(?:[^ ]| (?! ))*?)  +(\S.*)$")
# Three columns, of which the second one is no direction.
TABLE = re.compile(r" *\S+(?: \S+)*  +(?!(?:in|out|in/out): )\S+(?: \S+)*  +\S")
DIRECTION = re.compile(r"(in/out|in|out)(?:: *|$)(.*)")
# Between two rows on a line; only where columns meet is it a single blank.
GAP = re.compile(r"(.*\S)  +(.*)|(.*); (.*)|(.*\S) (\S+)$")
# A sentence ends before a capital letter, a digit or a quote.
SENTENCE = re.compile(r"(?<=[.!?])\s+(?=[A-Z0-9\"L(])(?!L[a-z])")
FAILURE = re.compile(
    r"\b([Rr]aises?|exceptions?|errno|GetLastError|error codes?|fails|refuses|is refused|cannot be|"
    r"An absent|A missing|is not found|does not convert)\b")


class Argument(NamedTuple):
    """Names with what is said of them; lines keep their indentation behind the first one."""
    names: str
    direction: str
    lines: Tuple[str, ...]


class Row(NamedTuple):
    """What goes in, and what comes out."""
    given: str
    result: str


class Block(NamedTuple):
    """A part of a comment: "text", "arguments", "rows", "code", "table", "list" or a label, with its
    lines, Arguments or Rows."""
    kind: str
    items: tuple


def indentation(line):
    return len(line) - len(line.lstrip(" "))


class Parser:
    """Reads a comment's lines into blocks."""

    def __init__(self, lines, with_code=False):
        self.blocks = []
        self.indent = 0
        self.with_code = with_code
        self.after_blank = True
        for line in lines:
            self.read(line.rstrip())

    def last(self):
        return self.blocks[-1][0] if self.blocks else ""

    def append(self, kind, item, fresh=False):
        if fresh or self.last() != kind:
            self.blocks.append((kind, []))
        self.blocks[-1][1].append(item)

    def read(self, line):
        label = LABEL.match(line)
        if not line:
            if self.last() == "code":
                self.append("code", "")
        elif label:
            self.append(label[1], label[2], fresh=True)
        elif indentation(line) >= 2 and TABLE.match(line) and "=>" not in line and \
                not self.continues(line):
            self.append("table", line)
        elif self.with_code and indentation(line) >= 4 and self.last() != "list":
            self.append("code", line[4:])
        elif indentation(line) >= 2:
            self.read_indented(line)
        else:
            self.read_text(line)
        self.after_blank = not line

    def read_text(self, line):
        if self.last() in ("", "arguments", "rows", "code", "table", "list") or self.after_blank:
            self.append("text", line, fresh=True)
        else:
            self.blocks[-1][1].append(line)

    def read_indented(self, line):
        if self.continues(line):
            self.go_on(line)
        elif line.lstrip().startswith("- "):
            self.indent = indentation(line)
            self.append("list", line.lstrip()[2:])
        elif "=>" in line:
            self.indent = indentation(line)
            self.read_rows(line)
        elif ARGUMENT.match(line):
            self.indent = indentation(line)
            self.read_argument(line)
        else:
            self.read_text(line.strip())

    def continues(self, line):
        kind = self.last()
        if kind == "rows" and not self.blocks[-1][1][-1].result:
            return True
        return kind in ("arguments", "rows", "list") and indentation(line) > self.indent

    def go_on(self, line):
        items = self.blocks[-1][1]
        if self.last() == "arguments":
            items[-1] = items[-1]._replace(lines=items[-1].lines + (line,))
        elif self.last() == "rows":
            result = " ".join(filter(None, (items[-1].result, line.strip())))
            items[-1] = items[-1]._replace(result=result)
        else:
            items[-1] += " " + line.strip()

    def read_rows(self, line):
        given, *parts = line.split("=>")
        for part in parts[:-1]:
            result, following = filter(None, GAP.match(part.rstrip()).groups())
            self.append("rows", Row(given.strip(), result.strip()))
            given = following
        self.append("rows", Row(given.strip(), parts[-1].strip()))

    def read_argument(self, line):
        names, text = ARGUMENT.match(line).groups()
        direction = DIRECTION.match(text)
        column = line.index(text, indentation(line) + len(names))
        if direction:
            column += len(text) - len(direction[2])
            text = direction[2]
        lines = (" " * column + text,)
        self.append("arguments", Argument(names, direction[1] if direction else "", lines))


def parse(lines, with_code=False):
    """The blocks of a comment. With code, what is indented by four is an example."""
    return [Block(kind, tuple(items)) for kind, items in Parser(lines, with_code).blocks]


def sentences(text):
    return SENTENCE.split(text)


class Description(NamedTuple):
    """A declaration's comment in the order in which it is shown."""
    brief: str
    more: str
    arguments: Tuple[Argument, ...]
    results: Tuple[Tuple[str, str], ...]
    rows: Tuple[Row, ...]
    errors: str
    remarks: Tuple[str, ...]
    labels: Tuple[Tuple[str, str], ...]


def capital(text):
    """The text with a capital letter, unless it begins with a name of the code."""
    return text[:1].upper() + text[1:] if re.match(r"[a-z]+(?![\w:(])", text) else text


def joined(block):
    return " ".join(item.strip() for item in block.items)


def without_failures(paragraphs, failures):
    """The paragraphs without the sentences that tell of errors, which are noted down."""
    for paragraph in paragraphs:
        told = [sentence for sentence in sentences(paragraph) if FAILURE.search(sentence)]
        failures.extend(told)
        kept = " ".join(sentence for sentence in sentences(paragraph) if sentence not in told)
        if kept:
            yield kept


def split_inline_result(texts, results):
    """A "Result:" in the middle of a text is a result like one at the start of a line."""
    for text in texts:
        before, label, after = text.partition(" Result: ")
        if label:
            results.append(("Result", after))
        yield before


def describe(lines):
    """A declaration's comment, taken apart."""
    blocks = parse(lines)
    labels = [(block.kind, joined(block)) for block in blocks if LABEL.match(block.kind + ":")]
    results = [label for label in labels if label[0].startswith("Result")]
    others = tuple(label for label in labels if label not in results)
    texts = [joined(block) for block in blocks if block.kind in ("text", "list")]
    texts = list(split_inline_result(texts, results))
    if blocks and blocks[0].kind != "text" and labels:
        texts.insert(0, capital(sentences(labels[0][1])[0]))
    first = sentences(texts[0]) if texts else [""]
    failures = []
    remarks = tuple(without_failures(texts[1:], failures))
    more = " ".join(without_failures([" ".join(first[1:])], failures))
    return Description(
        first[0], more, items_of(blocks, "arguments"), tuple(results), items_of(blocks, "rows"),
        " ".join(failures), remarks, others)


def items_of(blocks, kind):
    return tuple(item for block in blocks if block.kind == kind for item in block.items)
