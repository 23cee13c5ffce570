# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT
#
# find_package(Qwt VERSION COMPONENTS Qt5|Qt6)
#
# Finds the Qwt that was built against that Qt and defines the imported target Qwt::Qt5 or Qwt::Qt6.
# A Qwt of the other Qt is none.
#
# Debian's pkg-config file of Qwt asks for the headers of OpenGL, which no plot needs, so the header
# and the library are looked up directly. QWT_ROOT narrows the search; Qwt_Qt5_LIBRARY and
# Qwt_Qt5_INCLUDE_DIR, or those of Qt6, say what to take.
#
# Result: Qwt_FOUND, Qwt_VERSION, Qwt_INCLUDE_DIR, Qwt_LIBRARY.

list(GET Qwt_FIND_COMPONENTS 0 _qwt_qt)
string(TOLOWER "${_qwt_qt}" _qwt_suffix)

find_path(Qwt_${_qwt_qt}_INCLUDE_DIR
    NAMES qwt_plot.h
    HINTS ${QWT_ROOT} ENV QWT_ROOT
    PATH_SUFFIXES ${_qwt_suffix}/qwt ${_qwt_suffix}/qwt6 qwt-${_qwt_suffix} include qwt include/qwt qwt6)

find_library(Qwt_${_qwt_qt}_LIBRARY
    NAMES qwt-${_qwt_suffix} qwt
    HINTS ${QWT_ROOT} ENV QWT_ROOT
    PATH_SUFFIXES lib)

set(Qwt_INCLUDE_DIR "${Qwt_${_qwt_qt}_INCLUDE_DIR}")
set(Qwt_LIBRARY "${Qwt_${_qwt_qt}_LIBRARY}")
mark_as_advanced(Qwt_${_qwt_qt}_INCLUDE_DIR Qwt_${_qwt_qt}_LIBRARY)

# A library that is called "qwt" does not tell its Qt by its name: it names the libraries it needs.
if(EXISTS "${Qwt_LIBRARY}")
    file(STRINGS "${Qwt_LIBRARY}" _qwt_needs REGEX "Qt[56]Widgets" LIMIT_COUNT 1)
    if(_qwt_needs AND NOT _qwt_needs MATCHES "${_qwt_qt}Widgets")
        set(Qwt_LIBRARY Qwt_LIBRARY-NOTFOUND)
    endif()
    unset(_qwt_needs)
endif()

if(EXISTS "${Qwt_INCLUDE_DIR}/qwt_global.h")
    file(STRINGS "${Qwt_INCLUDE_DIR}/qwt_global.h" _qwt_version
        REGEX "^#define[ \t]+QWT_VERSION_STR[ \t]+\"[^\"]+\"")
    string(REGEX REPLACE ".*\"([^\"]+)\".*" "\\1" Qwt_VERSION "${_qwt_version}")
    unset(_qwt_version)
endif()

if(Qwt_LIBRARY AND Qwt_INCLUDE_DIR)
    set(Qwt_${_qwt_qt}_FOUND TRUE)
endif()
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Qwt
    REQUIRED_VARS Qwt_LIBRARY Qwt_INCLUDE_DIR
    VERSION_VAR Qwt_VERSION
    HANDLE_COMPONENTS)

if(Qwt_FOUND AND NOT TARGET Qwt::${_qwt_qt})
    add_library(Qwt::${_qwt_qt} UNKNOWN IMPORTED)
    set_target_properties(Qwt::${_qwt_qt} PROPERTIES
        IMPORTED_LOCATION "${Qwt_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${Qwt_INCLUDE_DIR}"
        INTERFACE_COMPILE_DEFINITIONS QWT_DLL
        INTERFACE_LINK_LIBRARIES "${_qwt_qt}::Widgets")
endif()
unset(_qwt_qt)
unset(_qwt_suffix)
