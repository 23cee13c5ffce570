#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT
"""What scripts/on refuses, makes, hands on, leaves behind and tells."""

import os
import signal
import subprocess
import tempfile
import time
import unittest
from pathlib import Path

SCRIPTS = Path(__file__).resolve().parents[2] / "scripts"
PATH = "/usr/sbin:/usr/bin:/sbin:/bin"

# Stand-ins of programs that take root or the network: each does what scripts/on sees of the real one.
ROOT = "echo 0"
NO_ROOT = "echo 1000"
DEBOOTSTRAP = """
echo made >>"$ZEMKIT_SUITES/calls"
for word; do case $word in /*) mkdir -p "$word/etc/apt/apt.conf.d" "$word/usr/sbin" ;; esac; done"""
CHROOT = 'echo "$@" >>"$ZEMKIT_SUITES/chroot"'
FAILING = "echo there is no network; exit 3"
# The namespace is left out, and so is what would be mounted in it.
UNSHARE = """
while case $1 in --*) true ;; *) false ;; esac; do shift; done
[ "$1" = bash ] || exec "$@"
shift 4
cd "$2/zemkit"
while [ "$1" != bash ]; do shift; done
shift 4
exec "$@" """
GIT = 'for last; do :; done; mkdir -p "$last/scripts"'
# A clone whose tests end with what a file says of them.
TESTED_GIT = GIT + """
printf '#!/bin/bash\\ncat "$ZEMKIT_SUITES/ending"; echo "$@" >"$ZEMKIT_SUITES/arguments"\\n' >"$last/scripts/test"
chmod +x "$last/scripts/test" """


class Suites(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.suites = Path(folder.name) / "suites"
        self.programs = Path(folder.name) / "programs"
        self.suites.mkdir()
        self.programs.mkdir()
        for name, text in (("id", ROOT), ("debootstrap", DEBOOTSTRAP), ("chroot", CHROOT),
                           ("unshare", UNSHARE), ("git", GIT)):
            self.program(name, text)
        self.environment = {"PATH": f"{self.programs}:{PATH}", "ZEMKIT_SUITES": str(self.suites)}

    def program(self, name, text):
        file = self.programs / name
        file.write_text(f"#!/bin/bash\n{text}\n")
        file.chmod(0o755)

    def on(self, *arguments):
        return subprocess.run([SCRIPTS / "on", *arguments], env=self.environment, check=False,
                              capture_output=True, text=True, stdin=subprocess.DEVNULL)

    def refused(self, word, *arguments):
        ended = self.on(*arguments)
        self.assertEqual(ended.returncode, 2, arguments)
        self.assertEqual(ended.stderr.count("\n"), 1, ended.stderr)
        self.assertIn(word, ended.stderr)
        self.assertEqual(list(self.suites.iterdir()), [])

    def test_what_is_unknown_is_refused_by_name(self):
        self.refused("which suite", )
        self.refused("buster", "buster", "true")
        self.refused("riscv64", "trixie/riscv64", "true")
        self.refused("no architecture ;", "trixie/", "true")
        self.refused("which command", "trixie")
        self.refused("lenny", "--table", "trixie", "lenny --qt 6")

    def test_without_root_it_says_so(self):
        self.program("id", NO_ROOT)
        self.refused("root", "trixie", "true")
        self.refused("root", "--table")

    def test_without_debootstrap_it_says_so(self):
        (self.programs / "debootstrap").unlink()
        for name in ("bash", "dirname", "env"):
            (self.programs / name).symlink_to(f"/usr/bin/{name}")
        self.environment["PATH"] = str(self.programs)
        self.refused("debootstrap", "trixie", "true")

    def test_the_status_of_the_command_is_handed_on(self):
        self.assertEqual(self.on("trixie", "true").returncode, 0)
        self.assertEqual(self.on("trixie", "bash", "-c", "exit 7").returncode, 7)

    def test_arguments_arrive_as_they_are(self):
        self.assertEqual(self.on("sid", "printf", "%s|", "a b", "", "*").stdout, "a b||*|")

    def test_a_suite_is_made_once_and_runs_leave_nothing(self):
        for _ in range(2):
            self.on("trixie", "touch", "left")
        self.on("trixie/armhf", "true")
        self.assertEqual((self.suites / "calls").read_text(), "made\n" * 2)
        self.assertEqual((self.suites / "chroot").read_text(),
                         f"{self.suites}/trixie-armhf.making dpkg --add-architecture armhf\n")
        self.assertEqual(list((self.suites / "runs").iterdir()), [])

    def test_two_runs_at_once_make_one_suite(self):
        self.program("debootstrap", "sleep 1" + DEBOOTSTRAP)
        runs = [subprocess.Popen([SCRIPTS / "on", "sid", "true"], env=self.environment,
                                 stderr=subprocess.DEVNULL) for _ in range(2)]
        self.assertEqual([run.wait() for run in runs], [0, 0])
        self.assertEqual((self.suites / "calls").read_text(), "made\n")

    def test_a_suite_that_was_not_finished_is_made_anew(self):
        self.program("debootstrap", DEBOOTSTRAP + "\n" + FAILING)
        ended = self.on("trixie", "true")
        self.assertEqual(ended.returncode, 1)
        self.assertIn("trixie.making.log", ended.stderr)
        self.assertIn("no network", (self.suites / "trixie.making.log").read_text())
        self.program("debootstrap", DEBOOTSTRAP)
        self.assertEqual(self.on("trixie", "true").returncode, 0)

    def start_waiting_run(self):
        run = subprocess.Popen([SCRIPTS / "on", "trixie", "bash", "-c", "echo $$ >../pid; exec sleep 1000"],
                               env=self.environment, stderr=subprocess.DEVNULL)
        while not [file for file in self.suites.glob("runs/*/pid") if file.read_text()]:
            self.assertIsNone(run.poll())
            time.sleep(0.01)
        return run, int(next(self.suites.glob("runs/*/pid")).read_text())

    def test_a_signal_ends_the_command_and_clears_up(self):
        run, command = self.start_waiting_run()
        run.send_signal(signal.SIGTERM)
        self.assertEqual(run.wait(), 128 + signal.SIGTERM)
        self.assertFalse(os.path.exists(f"/proc/{command}"))
        self.assertEqual(list((self.suites / "runs").iterdir()), [])

    def test_what_a_killed_run_left_the_next_one_removes(self):
        run, command = self.start_waiting_run()
        run.kill()
        run.wait()
        while os.path.exists(f"/proc/{command}"):
            time.sleep(0.01)
        self.assertEqual(self.on("trixie", "true").returncode, 0)
        self.assertEqual(list((self.suites / "runs").iterdir()), [])


class Table(unittest.TestCase):
    program = Suites.program
    on = Suites.on

    def setUp(self):
        Suites.setUp(self)
        self.program("git", 'if [ "$3" = rev-parse ]; then echo abc1234; exit; fi\n' + TESTED_GIT)
        self.program("dpkg-query", 'case ${*: -1} in *qwt*) echo 6.1.4-2 ;; *) echo 5.15.8+dfsg-11 ;; esac')
        self.page = self.suites / "page.md"
        self.environment["ZEMKIT_TABLE"] = str(self.page)
        self.page.write_text("| trixie | amd64 | 5.15.1 | 6.1.2 | 1 of 3 | 0 |\n"
                             "| sid | amd64 | 6.11.0 | 6.3.0 | 2 of 3 | 0 |\n"
                             "<!-- the table ends -->\nThe rest.\n")
        self.before = self.page.read_text()
        self.end_tests_with("100% tests passed, 0 tests failed out of 207")

    def end_tests_with(self, line):
        (self.suites / "ending").write_text(line + "\n")

    def test_a_row_takes_the_place_of_that_of_its_cell(self):
        self.assertEqual(self.on("--table", "trixie").returncode, 0)
        row = "| trixie | amd64 | 5.15.8 | 6.1.4 | 207 of 207 | abc1234 |"
        self.assertEqual(self.page.read_text().splitlines(), [row] + self.before.splitlines()[1:])

    def test_a_new_cell_has_a_row_at_the_end(self):
        self.assertEqual(self.on("--table", "sid --qt 5", "bookworm/armhf").returncode, 0)
        self.assertEqual(self.page.read_text().splitlines()[2:],
                         ["| sid | amd64 | 5.15.8 | 6.1.4 | 207 of 207 | abc1234 |",
                          "| bookworm | armhf | 5.15.8 | 6.1.4 | 207 of 207 | abc1234 |",
                          "<!-- the table ends -->", "The rest."])

    def test_the_tests_are_those_of_the_version_of_qt(self):
        self.on("--table", "sid --qt 6")
        self.assertEqual((self.suites / "arguments").read_text(), "--qt 6\n")

    def test_failed_tests_are_told_and_counted(self):
        self.end_tests_with("99% tests passed, 2 tests failed out of 207")
        self.assertEqual(self.on("--table", "trixie").returncode, 1)
        self.assertIn("| 205 of 207 |", self.page.read_text())

    def test_a_cell_whose_tests_did_not_run_has_no_new_row(self):
        self.end_tests_with("ninja: build stopped")
        ended = self.on("--table", "trixie")
        self.assertEqual(ended.returncode, 1)
        self.assertIn("trixie", ended.stderr)
        self.assertEqual(self.page.read_text(), self.before)


if __name__ == "__main__":
    unittest.main()
