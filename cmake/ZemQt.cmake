# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT

# Finds Qt and the Qwt that belongs to it. ZEMKIT_QT is the major version that the tree is built
# against; the rest of it says Qt::Core and qt_generate_moc(), without a version.

set(ZEMKIT_QT "" CACHE STRING "Major version of Qt, 5 or 6; when empty, the newest for which a Qwt is there")
set_property(CACHE ZEMKIT_QT PROPERTY STRINGS "" 5 6)
if(NOT ZEMKIT_QT MATCHES "^[56]?$")
    message(FATAL_ERROR "ZEMKIT_QT is \"${ZEMKIT_QT}\", but there is Qt 5 and Qt 6")
endif()

set(ZEM_QT5_MINIMUM 5.15)
set(ZEM_QT6_MINIMUM 6.4)
set(ZEM_QWT5_MINIMUM 6.1)
set(ZEM_QWT6_MINIMUM 6.3)

if(ZEMKIT_QT STREQUAL "")
    # Qwt first: the first Qt that is found defines the targets without a version.
    set(chosen 5)
    if(NOT TARGET Qt5::Core)
        find_package(Qwt ${ZEM_QWT6_MINIMUM} QUIET COMPONENTS Qt6)
        if(Qwt_FOUND)
            find_package(Qt6 ${ZEM_QT6_MINIMUM} QUIET COMPONENTS Core Gui Widgets Xml)
        endif()
        if(Qwt_FOUND AND Qt6_FOUND)
            set(chosen 6)
        endif()
    endif()
    # The choice is made once: what is installed later leaves this build tree as it is.
    set_property(CACHE ZEMKIT_QT PROPERTY VALUE ${chosen})
endif()

set(ZEM_QT_MINIMUM ${ZEM_QT${ZEMKIT_QT}_MINIMUM})
set(ZEM_QWT_MINIMUM ${ZEM_QWT${ZEMKIT_QT}_MINIMUM})
find_package(Qt${ZEMKIT_QT} ${ZEM_QT_MINIMUM} REQUIRED COMPONENTS Core Gui Widgets Xml)
find_package(Qwt ${ZEM_QWT_MINIMUM} REQUIRED COMPONENTS Qt${ZEMKIT_QT})
message(STATUS "zemkit is built against Qt ${Qt${ZEMKIT_QT}_VERSION} and Qwt ${Qwt_VERSION}")

# The libraries for both stand side by side under names of their own, headers and all: they may be of
# different ages.
if(ZEMKIT_QT EQUAL 5)
    set(ZEMKIT_PACKAGE Zemkit)
    set(ZEMKIT_LIBRARY zemkit)
    set(ZEMKIT_OTHER_LIBRARY zemkit-qt6)
else()
    set(ZEMKIT_PACKAGE Zemkit-qt6)
    set(ZEMKIT_LIBRARY zemkit-qt6)
    set(ZEMKIT_OTHER_LIBRARY zemkit)
endif()
set(ZEMKIT_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}/${ZEMKIT_LIBRARY}")
