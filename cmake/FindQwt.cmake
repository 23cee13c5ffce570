# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT
#
# Finds Qwt built against Qt 5 and defines the imported target Qwt::Qwt.
#
# Debian's pkg-config file of Qwt asks for the headers of OpenGL, which no plot needs, so the header
# and the library are looked up directly. QWT_ROOT narrows the search.
#
# Result: Qwt_FOUND, Qwt_VERSION, Qwt_INCLUDE_DIR, Qwt_LIBRARY.

find_path(Qwt_INCLUDE_DIR
    NAMES qwt_plot.h
    HINTS ${QWT_ROOT} ENV QWT_ROOT
    PATH_SUFFIXES include qwt include/qwt qwt-qt5 qt5/qwt qt5/qwt6 qwt6)

find_library(Qwt_LIBRARY
    NAMES qwt-qt5 qwt-qt6 qwt
    HINTS ${QWT_ROOT} ENV QWT_ROOT
    PATH_SUFFIXES lib)

if(Qwt_INCLUDE_DIR AND EXISTS "${Qwt_INCLUDE_DIR}/qwt_global.h")
    file(STRINGS "${Qwt_INCLUDE_DIR}/qwt_global.h" _qwt_version
        REGEX "^#define[ \t]+QWT_VERSION_STR[ \t]+\"[^\"]+\"")
    string(REGEX REPLACE ".*\"([^\"]+)\".*" "\\1" Qwt_VERSION "${_qwt_version}")
    unset(_qwt_version)
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Qwt
    REQUIRED_VARS Qwt_LIBRARY Qwt_INCLUDE_DIR
    VERSION_VAR Qwt_VERSION)
mark_as_advanced(Qwt_INCLUDE_DIR Qwt_LIBRARY)

if(Qwt_FOUND AND NOT TARGET Qwt::Qwt)
    add_library(Qwt::Qwt UNKNOWN IMPORTED)
    set_target_properties(Qwt::Qwt PROPERTIES
        IMPORTED_LOCATION "${Qwt_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${Qwt_INCLUDE_DIR}"
        INTERFACE_COMPILE_DEFINITIONS QWT_DLL
        INTERFACE_LINK_LIBRARIES "Qt5::Widgets")
endif()
