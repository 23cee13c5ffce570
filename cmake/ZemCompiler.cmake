# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT

# Compiler settings of every target of this tree; none of them reaches a host that links the library.

# What Qt 5 calls deprecated, and what the newest Qt does that the tree was built against.
set(deprecated_before_qt5 0x060000)
set(deprecated_before_qt6 0x060b00)
add_compile_definitions(
    QT_DISABLE_DEPRECATED_BEFORE=${deprecated_before_qt${ZEMKIT_QT}}
    QT_NO_KEYWORDS)

add_compile_options(
    -Wall -Wextra -Wpedantic
    -Wcast-align -Wcast-qual -Wformat=2 -Wimplicit-fallthrough
    -Wnon-virtual-dtor -Woverloaded-virtual -Wshadow -Wunused)

if(ZEMKIT_WARNINGS_AS_ERRORS)
    add_compile_options(-Werror)
endif()

if(ZEMKIT_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
