#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT
"""What scripts/symbols notices, and what it writes."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "scripts" / "symbols"
CLASS = "struct ZEMLamp {{ ZEMLamp(); ~ZEMLamp(); {} }}; ZEMLamp::ZEMLamp() {{}} ZEMLamp::~ZEMLamp() {{}}\n"
OLD = CLASS.format("void shine(int);") + "void ZEMLamp::shine(int) {}\n"
NEW = CLASS.format("void dim(int);") + "void ZEMLamp::dim(int) {}\n"
WIDE = CLASS.format("void store(unsigned long);") + "void ZEMLamp::store(unsigned long) {}\n"


@unittest.skipUnless(shutil.which("dpkg-gensymbols"), "dpkg-gensymbols compares symbols")
class Symbols(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = Path(folder.name)
        for name in ("scripts", "debian"):
            (self.tree / name).mkdir()
        shutil.copy(SCRIPT, self.tree / "scripts")
        self.file = self.tree / "debian" / "libzemkit2.symbols"
        self.library = self.tree / "libzemkit.so"

    def build(self, source, version):
        (self.tree / "CMakeLists.txt").write_text(f"project(zemkit\n    VERSION {version}\n")
        subprocess.run([os.environ.get("CXX", "c++"), "-shared", "-fPIC", "-xc++", "-", "-o", self.library,
                        "-Wl,-soname,libzemkit.so.2"], input=source, text=True, check=True)

    def symbols(self, *arguments):
        return subprocess.run([self.tree / "scripts" / "symbols", *arguments, self.library], check=False,
                              capture_output=True, text=True)

    def test_a_file_that_is_written_fits(self):
        self.build(OLD, "2.0.0")
        self.assertEqual(self.symbols().returncode, 0)
        self.assertEqual(self.file.read_text().splitlines(), [
            "libzemkit.so.2 libzemkit2 #MINVER#",
            "* Build-Depends-Package: libzemkit-dev",
            ' (c++)"ZEMLamp::ZEMLamp()@Base" 2.0.0',
            ' (c++)"ZEMLamp::shine(int)@Base" 2.0.0',
            ' (c++)"ZEMLamp::~ZEMLamp()@Base" 2.0.0'])
        ended = self.symbols("--check")
        self.assertEqual((ended.returncode, ended.stdout), (0, ""))

    def test_what_has_come_and_gone_is_named_with_what_to_do(self):
        for version in ("2.0.0", "2.1.0"):
            self.build(OLD, "2.0.0")
            self.symbols()
            self.build(NEW, version)
            ended = self.symbols("--check")
            self.assertEqual(ended.returncode, 1)
            self.assertEqual(ended.stdout.splitlines()[:2],
                             ["gone: ZEMLamp::shine(int)", "not in the file: ZEMLamp::dim(int)"])
            self.assertIn("scripts/symbols", ended.stdout.splitlines()[2])
            self.file.unlink()

    def test_what_only_some_compilers_make_may_be_there_or_not(self):
        self.build(NEW, "2.0.0")
        self.symbols()
        text = self.file.read_text()
        optional = text.replace('(c++)"ZEMLamp::dim', '(c++|optional)"ZEMLamp::dim')
        self.assertNotEqual(optional, text)
        self.file.write_text(optional)
        for source in (NEW, CLASS.format("")):
            self.build(source, "2.0.0")
            ended = self.symbols("--check")
            self.assertEqual((ended.returncode, ended.stdout), (0, ""))
            self.assertEqual(self.symbols().returncode, 0)
            self.assertEqual(self.file.read_text(), optional)

    def test_a_symbol_keeps_the_version_that_brought_it(self):
        self.build(OLD, "2.0.0")
        self.symbols()
        self.build(NEW, "2.1.0")
        self.symbols()
        text = self.file.read_text()
        self.assertIn('"ZEMLamp::dim(int)@Base" 2.1.0\n', text)
        self.assertIn('"ZEMLamp::ZEMLamp()@Base" 2.0.0\n', text)
        self.assertNotIn("shine", text)

    def test_sizes_are_those_of_each_architecture(self):
        self.build(WIDE, "2.0.0")
        self.symbols()
        text = self.file.read_text()
        self.assertIn(' (c++|arch-bits=64)"ZEMLamp::store(unsigned long)@Base" 2.0.0\n', text)
        self.assertIn(' (c++|arch-bits=32)"ZEMLamp::store(unsigned int)@Base" 2.0.0\n', text)


if __name__ == "__main__":
    unittest.main()
