# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT
#
# Builds for Debian's armhf with the cross compiler and the libraries of the foreign architecture, which
# scripts/setup --arch armhf installs. moc, uic and rcc are those of this machine, since Debian has them at
# one path for all architectures.

set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR armv7l)
set(CMAKE_CXX_COMPILER arm-linux-gnueabihf-g++)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-arm)
