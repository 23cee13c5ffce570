# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT
#
# Builds for Debian's arm64 with the cross compiler and the libraries of the foreign architecture, which
# scripts/setup --arch arm64 installs. moc, uic and rcc are those of this machine, since Debian has them at
# one path for all architectures.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64)
