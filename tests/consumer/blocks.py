#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT
"""blocks.py SOURCE-TREE BUILD-TREE WORK-DIRECTORY COMPILER PACKAGE

Puts each block of CMake in the README and the pages of docs into a project of a host of its own, and configures
and builds that against an installed library. The tutorial quotes whole projects, which another test builds.
"""

import re
import shutil
import subprocess
import sys
from pathlib import Path

BLOCK = re.compile(r"^```cmake\n(.*?)^```$", re.DOTALL | re.MULTILINE)
HEAD = """cmake_minimum_required(VERSION 3.22)
project(host LANGUAGES CXX)
enable_testing()
set(keyboard_files keyboard_en.xml)
"""
MAIN = """#include <QApplication>
#include <ZEMButton>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const ZEMButton button;
    return button.isChecked() ? 1 : 0;
}
"""


def main(source, build, work, compiler, package):
    source, work = Path(source), Path(work)
    shutil.rmtree(work, ignore_errors=True)
    work.mkdir(parents=True)
    for component in ("Runtime", "Development"):
        subprocess.run(["cmake", "--install", build, "--prefix", work / "installed", "--component", component],
                       check=True, stdout=subprocess.DEVNULL)
    count = 0
    for document in [source / "README.md", *sorted((source / "docs").glob("*.md"))]:
        if document.name == "tutorial.md":
            continue
        for block in BLOCK.findall(document.read_text(encoding="utf-8")):
            count += 1
            project = work / f"{document.stem}_{count}"
            project.mkdir()
            # A block that begins after the program was named is given one.
            program = "" if "add_executable" in block else "add_executable(your-display main.cpp)\n"
            text = HEAD + program + block.replace("find_package(Zemkit ", f"find_package({package} ")
            (project / "CMakeLists.txt").write_text(text, encoding="utf-8")
            (project / "main.cpp").write_text(MAIN if "Zemkit::Zemkit" in block else "int main() {}\n")
            shutil.copy(source / "tests/consumer/host/page.ui", project / "startpage.ui")
            subprocess.run(["cmake", "-S", project, "-B", project / "build", "-G", "Ninja",
                            f"-DCMAKE_PREFIX_PATH={work}/installed", f"-DCMAKE_CXX_COMPILER={compiler}"],
                           check=True, stdout=subprocess.DEVNULL)
            subprocess.run(["cmake", "--build", project / "build"], check=True, stdout=subprocess.DEVNULL)
    if count == 0:
        sys.exit("there is no block of CMake")
    print(f"{count} blocks are built")


main(*sys.argv[1:])
