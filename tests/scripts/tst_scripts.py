#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT
"""What the scripts that read C++ as text find in it."""

import sys
import unittest
from importlib.machinery import SourceFileLoader
from importlib.util import module_from_spec, spec_from_loader
from pathlib import Path

SCRIPTS = Path(__file__).resolve().parents[2] / "scripts"
sys.path.insert(0, str(SCRIPTS))
sys.dont_write_bytecode = True

import cxxtext  # noqa: E402, it is found by the line above


def script(name):
    loader = SourceFileLoader(name.replace("-", "_"), str(SCRIPTS / name))
    module = module_from_spec(spec_from_loader(loader.name, loader))
    loader.exec_module(module)
    return module


class Texts(unittest.TestCase):
    def test_comments_and_texts_become_blanks_in_their_place(self):
        code = 'f("a // b", \'"\', 1\'000); // c "d"\ng(R"(x")"); /* e\n */ h();'
        blanked = cxxtext.without_comments_and_texts(code)
        self.assertEqual(len(blanked), len(code))
        self.assertEqual(blanked.count("\n"), code.count("\n"))
        for gone in "abcdex":
            self.assertNotIn(gone, blanked)
        for kept in ("f(", "1_000", "g(", "h()"):
            self.assertEqual(blanked.index(kept), code.replace("1'000", "1_000").index(kept))


class Braces(unittest.TestCase):
    def found(self, code):
        return [line for line, _ in script("check-braces").bare_bodies(code)]

    def test_bodies_without_braces_are_found(self):
        self.assertEqual(self.found("if (a)\n    b();\nelse\n    c();\n"), [1, 3])
        self.assertEqual(self.found("for (;;)\n    while (f(a))\n        b();\n"), [1, 2])

    def test_what_has_braces_is_not(self):
        self.assertEqual(self.found("if (a) {\n} else if (f(b)) {\n} else {\n}\n"), [])
        self.assertEqual(self.found("do {\n    a();\n} while (b);\n"), [])
        self.assertEqual(self.found("#if A\n// if (a) b();\nif constexpr (a) {\n}\n"), [])


class Includes(unittest.TestCase):
    checks = script("check-includes")
    home = {"zemutils.h": "foundation", "zembutton.h": "widgets", "zemhistogram.h": "histogram/charts",
            "zemhistogramwidget.h": "histogram/page", "zemenergytab.h": "dashboard"}

    def fault(self, path, header):
        return self.checks.fault(path, self.checks.room_of(path), header, self.home)

    def test_includes_against_the_directions_are_faults(self):
        for path, header in (("src/foundation/a.cpp", "zembutton.h"),
                             ("src/widgets/a.cpp", "qwt_plot.h"),
                             ("src/plot/a.cpp", "zembutton.h"),
                             ("src/histogram/data/a.cpp", "zemenergytab.h"),
                             ("src/histogram/pan/a.cpp", "zemhistogram.h"),
                             ("src/dashboard/a.cpp", "zemhistogramwidget.h"),
                             ("src/widgets/a.h", "barcomb_p.h")):
            self.assertIsNotNone(self.fault(path, header), (path, header))

    def test_the_others_are_none(self):
        for path, header in (("src/widgets/a.cpp", "zemutils.h"),
                             ("src/widgets/a.cpp", "barcomb_p.h"),
                             ("src/histogram/axes/a.cpp", "qwt_plot.h"),
                             ("src/dashboard/a.cpp", "zemhistogram.h"),
                             ("src/histogram/page/a.cpp", "zemenergytab.h")):
            self.assertIsNone(self.fault(path, header), (path, header))

    def test_an_unknown_room_has_no_rules(self):
        self.assertIsNone(self.checks.room_of("src/attic/a.cpp"))


class Mutants(unittest.TestCase):
    def changes(self, code):
        mutants = script("mutate").mutants_of("src/a/a.cpp", code)
        return {(one.kind, code[:one.start] + one.new + code[one.end:]) for one in mutants}

    def test_small_changes_are_found(self):
        for code, kind, changed in (
                ("{ a();\n    update();\n}", "repaint removed", "{ a();\n    \n}"),
                ("{ b = 1;\n    d->box.show(a);\n}", "call removed", "{ b = 1;\n    \n}"),
                ("{ Q_EMIT a(b); }", "emitted twice", "{ Q_EMIT a(b); Q_EMIT a(b); }"),
                ("QColor(9, 2.5)", "number", "QColor(10, 2.5)"),
                ("if (a(b)) {", "negated", "if (!(a(b))) {"),
                ("f(a, b);", "arguments swapped", "f(b, a);"),
                ("a = b + c;", "plus", "a = b - c;"),
                ("if (a <= b) {", "bound", "if (a < b) {"),
                ("a = b && c;", "condition", "a = b || c;"),
                ("a = true;", "truth", "a = false;")):
            self.assertIn((kind, changed), self.changes(code), code)

    def test_comments_texts_and_declarations_stay(self):
        self.assertEqual(self.changes('// a + 1 is true\n#include "a1.h"\nu("1 + 2");\n'), set())

    def test_equivalent_ones_are_known(self):
        listed = "# Head.\n\na.cpp\n- update();\n+\nWhy.\n\nb.cpp\n- a = 1;\n+ a = 2;\nWhy.\n"
        self.assertEqual(script("mutate").equivalent_mutants(listed),
                         {("a.cpp", "update();", ""), ("b.cpp", "a = 1;", "a = 2;")})


if __name__ == "__main__":
    unittest.main()
