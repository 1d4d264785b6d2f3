"""What scripts/mutants.py changes in a source."""

import pathlib
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).parents[2] / "scripts"))
from mutants import mutants_of  # noqa: E402


def changed(source):
    return [mutant.after for line in mutants_of(source + "\n") for mutant in line]


class Mutants(unittest.TestCase):
    def test_an_operator_gives_way_to_its_neighbour(self):
        self.assertEqual(changed("int a = b < c;"), ["int a = b <= c;"])
        self.assertEqual(changed("bool a = b && c;"), ["bool a = b || c;"])
        self.assertEqual(changed("bool a = !b;"), ["bool a = b;"])

    def test_what_only_looks_like_an_operator_stays(self):
        self.assertEqual(changed("void f(T&& t, std::vector<int> v, int* p);"), [])

    def test_a_number_becomes_the_next_one_and_the_one_before_but_never_less_than_none(self):
        self.assertEqual(changed("int a = 7;"), ["int a = 6;", "int a = 8;"])
        self.assertEqual(changed("int a = 0;"), ["int a = 1;"])
        self.assertEqual(changed("int a = 0x0F;"), ["int a = 0x10;", "int a = 0xe;"])

    def test_a_condition_is_turned_round(self):
        self.assertIn("if (!(f(a))) b();", changed("void g() {\nif (f(a)) b();\n}"))

    def test_a_statement_is_left_out(self):
        for statement in ("b(1);", "a.b();", "a = c;", "return;", "throw c;"):
            source = f"void g() {{\nif (a) {statement}\nd();\n}}"
            self.assertIn("if (a) {}", changed(source))

    def test_a_function_returns_at_once(self):
        self.assertIn("void g() { return;", changed("void g() {\nb();\n}"))
        self.assertIn("int g() { return {};", changed("int g() {\nreturn b();\n}"))

    def test_a_function_gives_an_empty_value(self):
        self.assertIn("return {};", changed("int g() {\nreturn b();\n}"))
        self.assertNotIn("return {};", changed("bool g() {\nreturn false;\n}"))

    def test_declarations_stay(self):
        self.assertEqual(changed("struct A {\nvoid b();\nint c();\n};"), [])

    def test_comments_texts_directives_and_assertions_stay(self):
        self.assertEqual(changed("// a < 1"), [])
        self.assertEqual(changed('auto a = "b < 1";'), [])
        self.assertEqual(changed("#define A 1"), [])
        self.assertEqual(changed("static_assert(a < 1);"), [])
        self.assertEqual(changed("void g() { assert(a < 1); }")[1:], [])

    def test_a_mutant_tells_its_line_as_it_was(self):
        mutant = mutants_of("int a;\n  int b = 0;\n")[0][0]
        self.assertEqual((mutant.line, mutant.before), (2, "int b = 0;"))
        self.assertEqual(mutant.source, "int a;\n  int b = 1;\n")


if __name__ == "__main__":
    unittest.main()
