#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Tests of the scripts of docs/reference/: how a comment is taken apart, that no sentence of a header
gets lost, and that the check of a finished reference goes red.

Needs Python 3 and nothing else.
"""
import contextlib
import io
import pathlib
import re
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "docs" / "reference"))
import check  # noqa: E402, since the path comes first
import comments  # noqa: E402
import filter as header_filter  # noqa: E402
import headers  # noqa: E402
import pictures  # noqa: E402

COMMENT = """\
Reads a value. More of it.
  name, key    in: what to read; it
               may be null
  out          out: the value
Result: its length. An error gives 0.
  "a = 1"   => 1
  x => y     z => 2, and so on
A missing name gives 0. All else stays.
Kept: it is odd.
On Windows: it is even.""".splitlines()


def words(text):
    return re.findall(r"\w+", text)


class Comments(unittest.TestCase):
    told = comments.describe(COMMENT)

    def test_the_brief_is_the_first_sentence(self):
        self.assertEqual((self.told.brief, self.told.more), ("Reads a value.", "More of it."))

    def test_an_argument_goes_on_in_deeper_lines(self):
        first = self.told.arguments[0]
        self.assertEqual((first.names, first.direction), ("name, key", "in"))
        self.assertEqual([line.strip() for line in first.lines], ["what to read; it", "may be null"])

    def test_rows_may_share_a_line(self):
        self.assertEqual([tuple(row) for row in self.told.rows],
                         [('"a = 1"', "1"), ("x", "y"), ("z", "2, and so on")])

    def test_sentences_of_failure_are_errors(self):
        self.assertEqual(self.told.errors, "A missing name gives 0.")
        self.assertEqual(self.told.remarks, ("All else stays.",))

    def test_labels_keep_their_order(self):
        self.assertEqual(self.told.labels, (("Kept", "it is odd."), ("On Windows", "it is even.")))

    def test_a_result_alone_is_the_brief_too(self):
        told = comments.describe(["Result: the device, or null. Not owned."])
        self.assertEqual(told.brief, "The device, or null.")


class Headers(unittest.TestCase):
    def everything_told(self, told):
        yield from (told.brief, told.more, told.errors, *told.remarks)
        yield from (text for pair in (*told.results, *told.labels, *told.rows) for text in pair)
        for argument in told.arguments:
            yield from (argument.names, argument.direction, *argument.lines)

    def test_no_word_of_a_comment_gets_lost(self):
        for header in headers.read_all():
            for piece in header.pieces:
                found = words(" ".join(self.everything_told(comments.describe(piece.comment))))
                for word in words(" ".join(piece.comment)):
                    if piece.kind not in ("group", "namespace", "note"):
                        self.assertIn(word.lower(), map(str.lower, found), piece.full_name())

    def test_every_argument_is_shown(self):
        for header in headers.read_all():
            known = header_filter.functions_by_name(header)
            text = header_filter.Filter(header, known).write()
            told = re.findall(r"@param\S* (\S+)|<td><code>(.*?)</code>", text)
            shown = words(" ".join(map(" ".join, told)).replace("\\_", "_"))
            for piece in header.pieces:
                for argument in comments.describe(piece.comment).arguments:
                    self.assertLessEqual(set(words(argument.names)), set(shown), piece.full_name())

    def test_every_header_becomes_balanced_code(self):
        for header in headers.read_all():
            known = header_filter.functions_by_name(header)
            text = header_filter.Filter(header, known).write()
            code = "".join(line for line in text.splitlines() if not line.startswith("///"))
            self.assertEqual(code.count("{"), code.count("}"), header.name)
            self.assertEqual(text.count("/// @{"), text.count("/// @}"), header.name)


class Pictures(unittest.TestCase):
    def test_every_call_with_a_picture_exists(self):
        methods = {piece.name for header in headers.read_all() for piece in header.pieces
                   if piece.kind == "method"}
        self.assertLessEqual(set(pictures.plan()["calls"]), methods)


class Check(unittest.TestCase):
    def faults_of(self, page):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / "index.html").write_text(page, encoding="utf-8")
            (folder / "other.html").write_text('<a id="here"></a>', encoding="utf-8")
            return list(check.broken_links(folder))

    def test_good_links_pass(self):
        page = '<a href="other.html#here"></a><a href="other.html"></a><a href="#"></a>'
        self.assertEqual(self.faults_of(page), [])

    def test_a_link_to_no_file_is_a_fault(self):
        self.assertEqual(self.faults_of('<img src="missing.png">'),
                         ["index.html: missing.png: no such file"])

    def test_a_link_to_no_place_is_a_fault(self):
        self.assertEqual(self.faults_of('<a href="other.html#there"></a>'),
                         ["index.html: other.html#there: no such place in the file"])

    def test_a_large_reference_is_a_fault(self):
        with tempfile.TemporaryDirectory() as name:
            (pathlib.Path(name) / "page").write_bytes(bytes(check.MOST_BYTES + 1))
            with contextlib.redirect_stdout(io.StringIO()):
                self.assertEqual(len(list(check.size_fault(pathlib.Path(name)))), 1)


if __name__ == "__main__":
    unittest.main()
