# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT
#
# Finds libmosquitto, the client library of MQTT, and defines the imported target Mosquitto::Mosquitto.
# MOSQUITTO_ROOT narrows the search.
#
# Result: Mosquitto_FOUND, Mosquitto_VERSION, Mosquitto_INCLUDE_DIR, Mosquitto_LIBRARY.

find_path(Mosquitto_INCLUDE_DIR
    NAMES mosquitto.h
    HINTS ${MOSQUITTO_ROOT} ENV MOSQUITTO_ROOT
    PATH_SUFFIXES include)

find_library(Mosquitto_LIBRARY
    NAMES mosquitto
    HINTS ${MOSQUITTO_ROOT} ENV MOSQUITTO_ROOT
    PATH_SUFFIXES lib)

# Since 2.1 mosquitto.h is several files, and the version is in one of them.
foreach(header IN ITEMS mosquitto/libmosquitto.h mosquitto.h)
    set(_mosquitto_header "${Mosquitto_INCLUDE_DIR}/${header}")
    if(EXISTS "${_mosquitto_header}")
        break()
    endif()
endforeach()
if(EXISTS "${_mosquitto_header}")
    set(Mosquitto_VERSION)
    foreach(part IN ITEMS MAJOR MINOR REVISION)
        file(STRINGS "${_mosquitto_header}" _mosquitto_part
            REGEX "^#define[ \t]+LIBMOSQUITTO_${part}[ \t]+[0-9]+")
        string(REGEX REPLACE ".*[ \t]([0-9]+).*" "\\1" _mosquitto_part "${_mosquitto_part}")
        list(APPEND Mosquitto_VERSION ${_mosquitto_part})
    endforeach()
    list(JOIN Mosquitto_VERSION "." Mosquitto_VERSION)
    unset(_mosquitto_part)
endif()
unset(_mosquitto_header)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Mosquitto
    REQUIRED_VARS Mosquitto_LIBRARY Mosquitto_INCLUDE_DIR
    VERSION_VAR Mosquitto_VERSION
    REASON_FAILURE_MESSAGE "zemkit-display needs it for --mqtt. On Debian it is libmosquitto-dev, which scripts/setup installs. The library alone is built with -DZEMKIT_BUILD_EXAMPLES=OFF -DZEMKIT_BUILD_TESTS=OFF.")
mark_as_advanced(Mosquitto_INCLUDE_DIR Mosquitto_LIBRARY)

if(Mosquitto_FOUND AND NOT TARGET Mosquitto::Mosquitto)
    add_library(Mosquitto::Mosquitto UNKNOWN IMPORTED)
    set_target_properties(Mosquitto::Mosquitto PROPERTIES
        IMPORTED_LOCATION "${Mosquitto_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${Mosquitto_INCLUDE_DIR}")
endif()
