# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT

# Finds what the plugin for Qt Designer is made with:
#   ZEM_DESIGNER_FOUND        whether it is there
#   ZEM_DESIGNER_LIBRARIES    what the plugin is linked with
#   ZEM_DESIGNER_PLUGIN_DIR   where Qt has its plugins for Designer, below the prefix
#   ZEM_DESIGNER_ARTWORK      where the build puts icons, and a form of all widgets

find_package(Qt${ZEMKIT_QT} QUIET OPTIONAL_COMPONENTS Designer UiPlugin)
set(ZEM_DESIGNER_FOUND FALSE)
if(NOT TARGET Qt${ZEMKIT_QT}::Designer)
    message(STATUS "No plugin for Qt Designer: its development files are not there (Debian: qttools5-dev, qt6-tools-dev)")
    return()
endif()
set(ZEM_DESIGNER_FOUND TRUE)

# Qt 5 has the interface of widgets in a target of its own since 5.15, as has Qt 6.
set(ZEM_DESIGNER_LIBRARIES Qt${ZEMKIT_QT}::Designer)
if(TARGET Qt${ZEMKIT_QT}::UiPlugin)
    list(APPEND ZEM_DESIGNER_LIBRARIES Qt${ZEMKIT_QT}::UiPlugin)
endif()

if(ZEMKIT_QT EQUAL 5)
    get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
    foreach(place IN ITEMS PREFIX PLUGINS)
        execute_process(COMMAND "${qmake}" -query QT_INSTALL_${place}
            OUTPUT_VARIABLE qt_${place} OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    endforeach()
    file(RELATIVE_PATH plugins "${qt_PREFIX}" "${qt_PLUGINS}")
else()
    # Relative to the prefix of Qt, such as "./lib/qt6/plugins".
    cmake_path(SET plugins NORMALIZE "${QT6_INSTALL_PLUGINS}")
endif()
set(ZEM_DESIGNER_PLUGIN_DIR "${plugins}/designer")
set(ZEM_DESIGNER_ARTWORK "${PROJECT_BINARY_DIR}/designer/artwork")
