#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT
"""What scripts/release asks of a release, and what it makes."""

import hashlib
import os
import shutil
import subprocess
import tarfile
import tempfile
import unittest
from pathlib import Path

SCRIPT = Path(__file__).resolve().parents[2] / "scripts" / "release"
PROJECT = """cmake_minimum_required(VERSION 3.22)
project(zemkit
    VERSION 1.2.3
    LANGUAGES NONE)
file(READ part.txt part)
add_custom_target(all_of_it ALL COMMAND "${CMAKE_COMMAND}" -E true)
"""


# Other files that tell the version, and how.
TOLD = {
    "debian/changelog": "zemkit (1.2.3) unstable; urgency=medium\n\n  * New.\n\nzemkit (1.2.2) unstable\n",
    "packaging/zemkit-display.metainfo.xml": '<releases>\n<release version="1.2.3" date="2026-11-22"/>\n</releases>\n',
    "packaging/buildroot/package/zemkit/zemkit.mk": "ZEMKIT_VERSION = 1.2.3\n",
    "packaging/yocto/recipes-graphics/zemkit/zemkit_1.2.3.bb": 'SUMMARY = "Qt"\n',
}


class Release(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = Path(folder.name) / "tree"
        (self.tree / "scripts").mkdir(parents=True)
        shutil.copy(SCRIPT, self.tree / "scripts")
        self.write("CMakeLists.txt", PROJECT)
        self.write("part.txt", "whole\n")
        self.write(".gitignore", "/build/\n")
        self.write("CHANGELOG.md", "# Changelog\n\n## 1.2.3, 2026-11-22\n\n- New.\n\n## 1.2.2, 2026-10-01\n")
        for name, text in TOLD.items():
            self.write(name, text)
        self.git("init", "--quiet")
        self.commit()

    def write(self, name, text):
        (self.tree / name).parent.mkdir(parents=True, exist_ok=True)
        (self.tree / name).write_text(text)

    def git(self, *arguments):
        environment = {**os.environ, "GIT_CONFIG_GLOBAL": os.devnull, "GIT_CONFIG_NOSYSTEM": "1"}
        return subprocess.run(["git", "-c", "user.name=A", "-c", "user.email=a@example.org", *arguments],
                              cwd=self.tree, env=environment, check=True, capture_output=True, text=True).stdout

    def commit(self):
        self.git("add", "--all")
        self.git("commit", "--quiet", "--message", "All")

    def release(self, *arguments):
        environment = {**os.environ, "GIT_COMMITTER_NAME": "A", "GIT_COMMITTER_EMAIL": "a@example.org"}
        return subprocess.run([self.tree / "scripts" / "release", *arguments], env=environment, check=False,
                              capture_output=True, text=True)

    def assert_refused(self, reason, *arguments):
        ended = self.release(*(arguments or ("1.2.3",)))
        self.assertEqual(ended.returncode, 1, ended.stderr)
        self.assertIn(reason, ended.stderr)
        self.assertEqual(self.git("tag"), "")
        self.assertFalse((self.tree / "build").exists())

    def test_what_is_ready_is_tagged_and_archived(self):
        ended = self.release("1.2.3")
        self.assertEqual(ended.returncode, 0, ended.stderr)
        self.assertEqual(self.git("rev-parse", "v1.2.3^{commit}"), self.git("rev-parse", "HEAD"))
        self.assertEqual(self.git("cat-file", "-t", "v1.2.3"), "tag\n")
        archive = self.tree / "build" / "zemkit-1.2.3.tar.gz"
        with tarfile.open(archive) as files:
            self.assertEqual({file.name for file in files if file.isfile()},
                             {f"zemkit-1.2.3/{name}" for name in self.git("ls-files").split()})
        self.assertIn(hashlib.sha256(archive.read_bytes()).hexdigest(), ended.stdout)

    def test_the_archive_of_a_tag_is_the_same_each_time(self):
        archive = self.tree / "build" / "zemkit-1.2.3.tar.gz"
        self.assertEqual(self.release("1.2.3").returncode, 0)
        first = archive.read_bytes()
        archive.unlink()
        ended = self.release("1.2.3")
        self.assertEqual(ended.returncode, 0, ended.stderr)
        self.assertEqual(archive.read_bytes(), first)

    def test_a_check_makes_nothing(self):
        self.assertEqual(self.release("--check", "1.2.3").returncode, 0)
        self.assertEqual(self.git("tag"), "")
        self.assertFalse((self.tree / "build").exists())

    def test_another_version_than_that_of_the_project_is_refused(self):
        self.assert_refused("CMakeLists.txt tells 1.2.3", "1.2.4")
        self.assert_refused("CHANGELOG.md", "--check", "1.2.4")

    def test_a_file_that_tells_another_version_is_refused_by_name(self):
        for name, text in TOLD.items():
            told = self.tree / name
            told.unlink()
            self.write(name.replace("_1.2.3", "_1.2.2"), text.replace("1.2.3", "1.2.2", 1))
            self.commit()
            self.assert_refused(name.replace("_1.2.3", "_1.2.2"))
            self.git("reset", "--quiet", "--hard", "HEAD~")

    def test_a_section_without_a_date_is_refused(self):
        for heading in ("1.2.3, not yet released", "1.2.3", "1.2.30, 2026-11-22"):
            self.write("CHANGELOG.md", f"# Changelog\n\n## {heading}\n")
            self.commit()
            self.assert_refused(heading)

    def test_changes_that_are_not_committed_are_refused(self):
        self.write("CMakeLists.txt", PROJECT + "# more\n")
        self.assert_refused("not committed")
        self.git("checkout", "--quiet", ".")
        self.write("new.txt", "new\n")
        self.assert_refused("not committed")

    def test_a_tag_of_another_commit_is_refused(self):
        self.git("tag", "v1.2.3")
        self.write("part.txt", "other\n")
        self.commit()
        ended = self.release("1.2.3")
        self.assertEqual(ended.returncode, 1)
        self.assertIn("v1.2.3 is that of another commit", ended.stderr)

    def test_an_archive_that_does_not_build_is_refused(self):
        self.write(".gitattributes", "part.txt export-ignore\n")
        self.commit()
        ended = self.release("1.2.3")
        self.assertEqual(ended.returncode, 1)
        self.assertIn("does not build on its own", ended.stderr)
        self.assertEqual(self.git("tag"), "")

    def test_what_is_no_version_is_refused(self):
        for arguments in ((), ("1.2",), ("v1.2.3",), ("--check",), ("1.2.3", "1.2.4"), ("--tag", "1.2.3")):
            self.assertEqual(self.release(*arguments).returncode, 2, arguments)


if __name__ == "__main__":
    unittest.main()
