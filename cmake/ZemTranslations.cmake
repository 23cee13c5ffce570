# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT

# The tools of Qt Linguist. Their CMake package would be that of the machine that is built for, so they
# are looked for beside the other tools of the Qt that is used here.
get_target_property(ZEM_QMAKE Qt${ZEMKIT_QT}::qmake LOCATION)
get_filename_component(ZEM_QT_TOOLS "${ZEM_QMAKE}" DIRECTORY)
find_program(ZEM_LRELEASE lrelease HINTS "${ZEM_QT_TOOLS}" "/usr/lib/qt${ZEMKIT_QT}/bin" REQUIRED)
find_program(ZEM_LUPDATE lupdate HINTS "${ZEM_QT_TOOLS}" "/usr/lib/qt${ZEMKIT_QT}/bin" REQUIRED)

# zem_add_catalogues(<variable> <name> <file.ts>...)
#   Compiles the catalogues and puts them into a resource, as :/zemkit/translations/<file>.qm. <variable>
#   holds the source file to build, <variable>_files the compiled catalogues, and in a static library
#   Q_INIT_RESOURCE(<name>) makes the resource known.
function(zem_add_catalogues variable name)
    set(directory "${CMAKE_CURRENT_BINARY_DIR}/${name}")
    set(entries "")
    set(files "")
    foreach(source IN LISTS ARGN)
        get_filename_component(base "${source}" NAME_WE)
        set(catalogue "${directory}/${base}.qm")
        add_custom_command(OUTPUT "${catalogue}"
            COMMAND "${ZEM_LRELEASE}" -silent "${source}" -qm "${catalogue}"
            DEPENDS "${source}"
            VERBATIM)
        list(APPEND files "${catalogue}")
        string(APPEND entries "<file>${base}.qm</file>")
    endforeach()
    file(CONFIGURE OUTPUT "${directory}/${name}.qrc" CONTENT
        "<RCC><qresource prefix=\"/zemkit/translations\">${entries}</qresource></RCC>\n")
    qt_add_resources(resource "${directory}/${name}.qrc")
    set(${variable} ${resource} PARENT_SCOPE)
    set(${variable}_files ${files} PARENT_SCOPE)
endfunction()
