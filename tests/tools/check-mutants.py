#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""What tools/mutants.py changes in a source, and what it leaves alone."""
import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "tools"))
sys.dont_write_bytecode = True

import mutants  # noqa: E402


def afters(text):
    return [mutant.after for mutant in mutants.mutants("a.cpp", text)]


def in_function(body):
    return [mutant.after for mutant in mutants.mutants("a.cpp", f"void f()\n{{\n{body}\n}}\n")]


class Mutants(unittest.TestCase):
    def test_change_operators_with_two_operands(self):
        self.assertEqual(afters("bool x = a < b;\n"), ["bool x = a <= b;", "bool x = a >= b;"])
        self.assertEqual(afters("int x = a + b;\n"), ["int x = a - b;"])

    def test_change_operators_with_one_operand(self):
        self.assertEqual(afters("bool x = !a;\n"), ["bool x = a;"])
        self.assertEqual(afters("int x = ++a;\n"), ["int x = --a;"])

    def test_change_constants(self):
        self.assertEqual(afters("int x = 1;\n"), ["int x = 0;", "int x = 2;"])
        self.assertEqual(afters("unsigned x = 0x0Fu;\n"), ["unsigned x = 0x10u;", "unsigned x = 0xEu;"])
        self.assertEqual(afters("double x = 0.5;\n"), ["double x = 1.5;"])
        self.assertEqual(afters("wchar_t x = L'a';\n"), [r"wchar_t x = L'\x01';"])
        self.assertEqual(afters("bool x = true;\n"), ["bool x = false;"])

    def test_settle_conditions_and_their_sides(self):
        self.assertEqual(sorted(in_function("if (a && b)\nreturn;")), sorted(
            ["if (true)", "if (false)", "if (a || b)", "if (true && b)", "if (a && true)", ";"]))

    def test_swap_the_results_of_a_choice(self):
        self.assertEqual(afters("int x = a ? b : c(d, e);\n"), ["int x = a ? c(d, e) : b;"])

    def test_empty_results(self):
        self.assertEqual(in_function("return g();"), ["return {};"])

    def test_remove_statements_but_no_declaration_that_is_used(self):
        self.assertEqual(in_function("int x = g();\nh(x);"), [";"])
        self.assertEqual(in_function("Guard guard(x);"), [";"])

    def test_leave_what_does_not_run(self):
        self.assertEqual(afters('// a < b\n/* 1 */\n#if 1 \\\n < 2\nauto x = L"1 < \\"2";\n'), [])
        self.assertEqual(afters('auto x = R"(1 " < 2)";\n'), [])
        self.assertEqual(afters("static_assert(sizeof(int) == 4);\n"), [])

    def test_leave_templates_and_pointers(self):
        self.assertEqual(afters("std::vector<int>& f(T&& a, int* b);\n"), [])

    def test_leave_pure_functions(self):
        self.assertEqual(afters("struct A\n{\n    virtual void f() = 0;\n};\n"), [])

    def test_know_their_line_and_function(self):
        mutant = mutants.mutants("a.cpp", "\nint A::f()\n{\n    return g();\n}\n")[0]
        self.assertEqual((mutant.line, mutant.function), (4, "A::f"))
        self.assertEqual(mutant.before, "return g();")

    def test_keep_their_key_while_the_file_stays(self):
        first, again = (mutants.mutants("a.cpp", "int x = a + b;\n")[0].key for _ in range(2))
        other = mutants.mutants("a.cpp", "int x = a + b; \n")[0].key
        self.assertEqual(first, again)
        self.assertNotEqual(first, other)


if __name__ == "__main__":
    unittest.main()
