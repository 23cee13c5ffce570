# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT

find_package(Qt5 5.15 REQUIRED COMPONENTS Test)

set(ZEM_TEST_RUNTIME_DIR "${PROJECT_BINARY_DIR}/tests/runtime")
file(MAKE_DIRECTORY "${ZEM_TEST_RUNTIME_DIR}")
file(CHMOD "${ZEM_TEST_RUNTIME_DIR}" DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)

# What makes a test fail: every warning but "This plugin does not support propagateSizeHints()", which
# the offscreen platform gives for each window with a minimum size.
set(ZEM_UNEXPECTED_WARNING
    "QWARN  : [^\n]*\\) ([^T]|T[^h]|Th[^i]|Thi[^s]|This[^ ]|This [^p]|This p[^l])|QSYSTEM|QCRITICAL")

# zem_precompile_headers(<test> <source>...)
#   Shares Qt's headers among the tests of the library alone: the first one makes what the others
#   use. A source that changes how they are read does without.
function(zem_precompile_headers name)
    if(NOT ZEMKIT_PRECOMPILE_HEADERS)
        return()
    endif()
    get_property(owner GLOBAL PROPERTY ZEM_PRECOMPILED_TEST)
    if(owner)
        target_precompile_headers(${name} REUSE_FROM ${owner})
    else()
        target_precompile_headers(${name} PRIVATE <QTest> <QWidget>)
        set_property(GLOBAL PROPERTY ZEM_PRECOMPILED_TEST ${name})
    endif()
    foreach(source IN LISTS ARGN)
        file(STRINGS "${source}" undefined REGEX "^#undef QT_" LIMIT_COUNT 1)
        if(undefined)
            set_source_files_properties("${source}" PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
        endif()
    endforeach()
endfunction()

# zem_add_test(<name> SUBSYSTEM <label> [LIFETIME] [SOURCES <file>...] [LIBRARIES <target>...])
#   One QTest program from <name>.cpp, linked with the library and the test support. A warning that
#   the test does not expect makes it fail. LIFETIME: objects end in it at unusual moments, so it is
#   one of those that run under memcheck.
function(zem_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "LIFETIME" "SUBSYSTEM" "SOURCES;LIBRARIES")
    set(labels "${arg_SUBSYSTEM}")
    if(arg_LIFETIME)
        list(APPEND labels lifetime)
    endif()
    add_executable(${name} ${name}.cpp ${arg_SOURCES})
    # A test is one file with its classes in it: moc alone is half the work of AUTOMOC.
    set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF)
    set(moc_directory "${CMAKE_CURRENT_BINARY_DIR}/moc")
    qt5_generate_moc(${name}.cpp "${moc_directory}/${name}.moc")
    target_sources(${name} PRIVATE "${moc_directory}/${name}.moc")
    target_include_directories(${name} PRIVATE "${moc_directory}")
    target_link_libraries(${name} PRIVATE zem_test_support Zemkit::Zemkit Qt5::Test ${arg_LIBRARIES})
    if(NOT arg_LIBRARIES)
        zem_precompile_headers(${name} ${name}.cpp ${arg_SOURCES})
    endif()
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        LABELS "${labels}"
        TIMEOUT 300
        FAIL_REGULAR_EXPRESSION "${ZEM_UNEXPECTED_WARNING}"
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;QT_FONT_DPI=96;LC_ALL=C.UTF-8;XDG_RUNTIME_DIR=${ZEM_TEST_RUNTIME_DIR};LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0")
endfunction()
