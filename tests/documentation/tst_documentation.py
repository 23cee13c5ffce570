#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT
"""tst_documentation.py WORK-DIRECTORY DOXYFILE DOXYGEN CLASS...

Makes the documentation in a directory of its own and looks at what has become of it.
"""

import re
import shutil
import sqlite3
import subprocess
import sys
import unittest
from pathlib import Path

SUBSYSTEMS = ["foundation", "widgets", "keyboard", "lists", "histogram", "dashboard", "plot"]


def page_of(name):
    return f"namespace{name}.html" if name == "ZEM" else f"class{name}.html"


class Documentation(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        shutil.rmtree(WORK, ignore_errors=True)
        WORK.mkdir(parents=True)
        # What comes last holds.
        settings = f'@INCLUDE = "{DOXYFILE}"\nOUTPUT_DIRECTORY = "{WORK}"\n'
        cls.run_of_doxygen = subprocess.run(
            [DOXYGEN, "-"], input=settings, cwd=WORK, capture_output=True, text=True, check=False)
        cls.pages = {path.name: path.read_text(encoding="utf-8") for path in (WORK / "html").glob("*.html")}

    def test_doxygen_warns_of_nothing(self):
        # What qhelpgenerator says about its own steps is on the same stream.
        warnings = re.findall(r".*(?:error|warning):.*", self.run_of_doxygen.stderr)
        self.assertEqual(warnings, [])
        self.assertEqual(self.run_of_doxygen.returncode, 0, self.run_of_doxygen.stderr)

    def test_each_class_has_a_page_with_its_picture(self):
        self.assertGreater(len(CLASSES), 80)
        for name in CLASSES:
            with self.subTest(name=name):
                page = self.pages[page_of(name)]
                self.assertTrue(f'<img src="{name.lower()}.png"' in page)
                if name != "ZEM":
                    self.assertTrue(f"#include &lt;{name}&gt;" in page)

    def test_each_class_is_shown_by_one_subsystem(self):
        shown = []
        for subsystem in SUBSYSTEMS:
            shown += re.findall(r'<a href="class(\w+)\.html"><img ', self.pages[f"group__{subsystem}.html"])
        self.assertEqual(sorted(shown + ["ZEM"]), sorted(CLASSES))

    def test_each_page_is_below_the_index_of_pages(self):
        root = Path(__file__).resolve().parent.parent.parent
        for path in sorted((root / "docs").glob("*.md")):
            if path.name not in ("index.md", "classes.md"):
                with self.subTest(page=path.name):
                    title = path.read_text(encoding="utf-8").splitlines()[0].lstrip("# ")
                    self.assertTrue(f">{title}</a>" in self.pages["pages.html"])
                    self.assertTrue(f'"page-{path.stem}.html"' in self.pages["documentation.html"])

    def test_no_mark_of_markdown_is_left(self):
        for name, page in self.pages.items():
            with self.subTest(page=name):
                self.assertFalse(re.search(r"`<a [^>]*>\w+</a>`|<a [^>]*>`", page))

    def test_no_link_is_dead(self):
        links = 0
        places = {name: set(re.findall(r'(?:id|name)="([^"]+)"', page)) for name, page in self.pages.items()}
        for name, page in self.pages.items():
            # Doxygen's own list for those who search websites counts what is private,
            if name == "doxygen_crawl.html":
                continue
            # and so do those of what is on a page, and of the letters of an index.
            page = re.sub(r'<div class="summary">.*?</div>', "", page, flags=re.DOTALL)
            for target in set(re.findall(r'(?:href|src)="([^"]+)"', page)):
                if re.match(r"\w+:", target) or (name.startswith("functions") and "#index_" in target):
                    continue
                links += 1
                file, _, anchor = target.partition("#")
                with self.subTest(page=name, target=target):
                    self.assertTrue(not file or (WORK / "html" / file).exists())
                    if anchor and (file or name).endswith(".html"):
                        self.assertTrue(anchor in places[file or name])
        self.assertGreater(links, 1000)

    def test_help_file_has_every_class_and_picture(self):
        with sqlite3.connect(WORK / "zemkit.qch") as book:
            words = {row[0] for row in book.execute("SELECT Name FROM IndexTable")}
            files = {row[0] for row in book.execute("SELECT Name FROM FileNameTable")}
        for name in CLASSES:
            with self.subTest(name=name):
                self.assertIn(name, words)
                self.assertIn(page_of(name), files)
                self.assertIn(f"{name.lower()}.png", files)


WORK, DOXYFILE, DOXYGEN, *CLASSES = sys.argv[1:]
WORK = Path(WORK)
unittest.main(argv=sys.argv[:1])
