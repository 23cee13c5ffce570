#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT
"""Which packages scripts/setup chooses."""

import subprocess
import unittest
from pathlib import Path

SCRIPTS = Path(__file__).resolve().parents[2] / "scripts"


class Packages(unittest.TestCase):
    def chosen(self, *arguments):
        return subprocess.run([SCRIPTS / "setup", "--list", *arguments], check=True,
                              capture_output=True, text=True).stdout.split()

    def test_debian_12_has_all_that_tests_and_checks_need(self):
        packages = self.chosen("--suite", "bookworm")
        for package in ("g++", "qtbase5-dev", "libqwt-qt5-dev", "clang-format-14", "clang-tidy-14", "valgrind"):
            self.assertIn(package, packages)
        self.assertFalse([name for name in packages if "qt6" in name or ":" in name or "qemu" in name])

    def test_newer_suites_have_no_old_clang(self):
        self.assertEqual(set(self.chosen("--suite", "bookworm")) - set(self.chosen("--suite", "trixie")),
                         {"clang-format-14", "clang-tidy-14"})

    def test_each_qt_has_its_packages(self):
        five, six = (self.chosen("--suite", "sid", "--qt", qt) for qt in "56")
        self.assertFalse([name for name in five if "qt6" in name])
        self.assertFalse([name for name in six if "qt5" in name or "base5" in name])
        # What Qt 5 has in the others, Qt 6 keeps apart.
        private = {"qt6-base-private-dev", "qt6-tools-private-dev"}
        self.assertLessEqual(private, set(six))
        self.assertEqual(len(five), len(set(six) - private))

    def test_tools_of_packages_are_there_when_they_are_asked_for(self):
        more = set(self.chosen("--suite", "bookworm", "--packages")) - set(self.chosen("--suite", "bookworm"))
        self.assertEqual(more, {"autopkgtest", "build-essential", "debhelper", "lintian"})

    def test_libraries_are_of_the_architecture_and_tools_of_this_machine(self):
        for arch, compiler, other in (("armhf", "g++-arm-linux-gnueabihf", "arm64"),
                                      ("arm64", "g++-aarch64-linux-gnu", "armhf")):
            packages = self.chosen("--suite", "bookworm", "--arch", arch)
            for package in (compiler, f"qtbase5-dev:{arch}", f"libqwt-qt5-dev:{arch}", "qtbase5-dev-tools",
                            "mosquitto", "qemu-user"):
                self.assertIn(package, packages)
            self.assertNotIn("valgrind", packages)
            self.assertFalse([name for name in packages if name.endswith(f":{other}")])

    def test_what_is_unknown_is_refused_by_name(self):
        for arguments in (["--qt", "7"], ["--qt"], ["--arch", "mips"], ["--suite"], ["--fast"]):
            ended = subprocess.run([SCRIPTS / "setup", "--list", *arguments], check=False,
                                   capture_output=True, text=True)
            self.assertEqual((ended.returncode, ended.stdout), (2, ""), arguments)
            self.assertIn(" ".join(arguments), ended.stderr)


if __name__ == "__main__":
    unittest.main()
