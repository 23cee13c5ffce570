# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT

find_package(Qt${ZEMKIT_QT} REQUIRED COMPONENTS Test)

# Seconds after which a test hangs, and milliseconds after which one of its functions does: far more
# than any takes on a slow and busy machine or under memcheck.
set(ZEM_TEST_TIMEOUT 7200)
set(ZEM_TEST_FUNCTION_TIMEOUT 3600000)

# Tests see nothing of whose desktop they run on: they have a home, a screen, a language and a time
# zone of their own, and know nothing of styles and scales that were chosen elsewhere. LC_ALL wins
# over all other LC_*.
set(ZEM_TEST_RUNTIME_DIR "${PROJECT_BINARY_DIR}/tests/runtime")
set(ZEM_TEST_HOME "${PROJECT_BINARY_DIR}/tests/home")
file(MAKE_DIRECTORY "${ZEM_TEST_RUNTIME_DIR}" "${ZEM_TEST_HOME}")
file(CHMOD "${ZEM_TEST_RUNTIME_DIR}" DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
set(ZEM_TEST_ENVIRONMENT
    "HOME=${ZEM_TEST_HOME}"
    "XDG_RUNTIME_DIR=${ZEM_TEST_RUNTIME_DIR}"
    LC_ALL=C.UTF-8
    TZ=UTC
    QT_QPA_PLATFORM=offscreen
    QT_FONT_DPI=96
    QTEST_FUNCTION_TIMEOUT=${ZEM_TEST_FUNCTION_TIMEOUT}
    "LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0")
set(ZEM_TEST_UNSET
    LANG LANGUAGE
    DESKTOP_SESSION GNOME_DESKTOP_SESSION_ID GTK_MODULES GTK_PATH GTK_RC_FILES GTK2_RC_FILES GTK_THEME
    KDE_FULL_SESSION KDE_SESSION_UID KDE_SESSION_VERSION KDEDIRS KDEHOME
    XDG_CACHE_HOME XDG_CONFIG_DIRS XDG_CONFIG_HOME XDG_CURRENT_DESKTOP XDG_DATA_DIRS XDG_DATA_HOME
    XDG_MENU_PREFIX XDG_SESSION_CLASS XDG_SESSION_DESKTOP XDG_SESSION_TYPE XDG_STATE_HOME
    QT_ACCESSIBILITY QT_LINUX_ACCESSIBILITY_ALWAYS_ON QT_IM_MODULE
    QT_AUTO_SCREEN_SCALE_FACTOR QT_DEVICE_PIXEL_RATIO QT_DPI_ADJUSTMENT_POLICY
    QT_ENABLE_HIGHDPI_SCALING QT_SCALE_FACTOR QT_SCALE_FACTOR_ROUNDING_POLICY
    QT_SCREEN_SCALE_FACTORS QT_USE_PHYSICAL_DPI
    QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE
    QTEST_KEYEVENT_DELAY QTEST_MOUSEEVENT_DELAY)
list(TRANSFORM ZEM_TEST_UNSET APPEND "=unset:")

# Tests that an emulator cannot run or makes too slow, and why.
set(ZEM_NOT_EMULATED "${PROJECT_SOURCE_DIR}/tests/not-emulated.txt")
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${ZEM_NOT_EMULATED}")

# zem_set_test_environment(<test>)
#   What every test runs in, whatever it is.
function(zem_set_test_environment test)
    set_tests_properties(${test} PROPERTIES
        ENVIRONMENT "${ZEM_TEST_ENVIRONMENT}"
        ENVIRONMENT_MODIFICATION "${ZEM_TEST_UNSET}")
    if(CMAKE_CROSSCOMPILING_EMULATOR)
        file(STRINGS "${ZEM_NOT_EMULATED}" listed REGEX "^${test} ")
        if(listed)
            set_tests_properties(${test} PROPERTIES DISABLED TRUE)
        endif()
    endif()
endfunction()

# What makes a test fail: every warning but "This plugin does not support propagateSizeHints()", which
# the offscreen platform gives for each window with a minimum size.
set(ZEM_UNEXPECTED_WARNING
    "QWARN  : [^\n]*\\) ([^T]|T[^h]|Th[^i]|Thi[^s]|This[^ ]|This [^p]|This p[^l])|QSYSTEM|QCRITICAL")

# zem_program(<variable> <target>)
#   What a test starts to run a program of this tree: the program, or where this machine cannot run it, a
#   script that starts it in the emulator.
function(zem_program variable target)
    set(program "$<TARGET_FILE:${target}>")
    if(CMAKE_CROSSCOMPILING_EMULATOR)
        list(JOIN CMAKE_CROSSCOMPILING_EMULATOR " " emulator)
        set(script "${PROJECT_BINARY_DIR}/tests/emulated/${target}")
        get_property(is_written GLOBAL PROPERTY "ZEM_EMULATED_${target}")
        if(NOT is_written)
            file(GENERATE OUTPUT "${script}"
                CONTENT "#!/bin/sh\nexec ${emulator} '${program}' \"$@\"\n"
                FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
            set_property(GLOBAL PROPERTY "ZEM_EMULATED_${target}" TRUE)
        endif()
        set(program "${script}")
    endif()
    set(${variable} "${program}" PARENT_SCOPE)
endfunction()

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

# zem_add_memcheck(<test>)
#   Runs a test under valgrind's memcheck, in the configuration memcheck of ctest alone:
#   ctest --build-config memcheck --label-regex '^memcheck$'. The stack of an error is in the
#   output, right before the line of the test function and row that made it.
function(zem_add_memcheck test)
    add_test(NAME memcheck_${test} CONFIGURATIONS memcheck
        COMMAND valgrind --quiet --error-exitcode=9 --num-callers=50 --track-origins=yes
            "$<TARGET_FILE:${test}>" -nocrashhandler)
    set_tests_properties(memcheck_${test} PROPERTIES
        LABELS memcheck
        TIMEOUT ${ZEM_TEST_TIMEOUT}
        FAIL_REGULAR_EXPRESSION "${ZEM_UNEXPECTED_WARNING}")
    zem_set_test_environment(memcheck_${test})
endfunction()

# zem_add_run(<test> <program> <labels>)
#   One run of a QTest program. A warning that the program does not expect makes it fail.
function(zem_add_run test program labels)
    add_test(NAME ${test} COMMAND ${program})
    set_tests_properties(${test} PROPERTIES
        LABELS "${labels}"
        TIMEOUT ${ZEM_TEST_TIMEOUT}
        FAIL_REGULAR_EXPRESSION "${ZEM_UNEXPECTED_WARNING}")
    zem_set_test_environment(${test})
endfunction()

# zem_add_at_ratios(<test> SUBSYSTEM <label> RATIOS <ratio>...)
#   Runs a test once more for each device pixel ratio, on a screen that has it, as <test>_at_<ratio>.
function(zem_add_at_ratios test)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "SUBSYSTEM" "RATIOS")
    foreach(ratio IN LISTS arg_RATIOS)
        zem_add_run(${test}_at_${ratio} ${test} "${arg_SUBSYSTEM}")
        set_property(TEST ${test}_at_${ratio} APPEND PROPERTY
            ENVIRONMENT_MODIFICATION "QT_SCALE_FACTOR=set:${ratio}")
    endforeach()
endfunction()

# zem_add_test(<name> SUBSYSTEM <label> [LIFETIME] [SHARES <count>] [RATIOS <ratio>...]
#              [SOURCES <file>...] [LIBRARIES <target>...])
#   One QTest program from <name>.cpp, linked with the library and the test support. LIFETIME:
#   objects end in it at unusual moments, so it is one of those that run under memcheck. SHARES: the
#   program takes minutes and runs so many times side by side, each time with its share of the cases:
#   ZEM_TEST_SHARE is 0/4 in the first of four. RATIOS: it runs on screens of these ratios too.
function(zem_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "LIFETIME" "SUBSYSTEM;SHARES" "RATIOS;SOURCES;LIBRARIES")
    set(labels "${arg_SUBSYSTEM}")
    if(arg_LIFETIME)
        list(APPEND labels lifetime)
    endif()
    add_executable(${name} ${name}.cpp ${arg_SOURCES})
    # A test is one file with its classes in it: moc alone is half the work of AUTOMOC.
    # With Qt 6 the folder of a test is a definition, which would keep it from sharing headers.
    set_target_properties(${name} PROPERTIES AUTOMOC OFF QT_SKIP_DEFAULT_TESTCASE_DIRS ON)
    set(moc_directory "${CMAKE_CURRENT_BINARY_DIR}/moc")
    qt_generate_moc(${name}.cpp "${moc_directory}/${name}.moc")
    target_sources(${name} PRIVATE "${moc_directory}/${name}.moc")
    target_include_directories(${name} PRIVATE "${moc_directory}")
    target_link_libraries(${name} PRIVATE zem_test_support Zemkit::Zemkit Qt::Test ${arg_LIBRARIES})
    if(NOT arg_LIBRARIES)
        zem_precompile_headers(${name} ${name}.cpp ${arg_SOURCES})
    endif()
    if(arg_SHARES)
        math(EXPR last "${arg_SHARES} - 1")
        foreach(share RANGE ${last})
            zem_add_run(${name}_${share} ${name} "${labels}")
            set_property(TEST ${name}_${share} APPEND PROPERTY
                ENVIRONMENT ZEM_TEST_SHARE=${share}/${arg_SHARES})
        endforeach()
    else()
        zem_add_run(${name} ${name} "${labels}")
    endif()
    zem_add_at_ratios(${name} SUBSYSTEM "${labels}" RATIOS ${arg_RATIOS})
    if(arg_LIFETIME)
        zem_add_memcheck(${name})
    endif()
endfunction()
