# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT

set(ZEMKIT_FORWARDING_DIR "${PROJECT_BINARY_DIR}/include/zemkit")

# zem_add_classes(<file>... )
#   Adds <file>.h and <file>.cpp of the current folder to the library, installs the header and makes
#   a forwarding header for each class. An entry is the class name, whose file is its name in lower
#   case, or "file:Class,Class" for a family that shares a file.
function(zem_add_classes)
    foreach(entry IN LISTS ARGN)
        if(entry MATCHES "^([^:]+):(.+)$")
            set(file "${CMAKE_MATCH_1}")
            string(REPLACE "," ";" classes "${CMAKE_MATCH_2}")
        else()
            string(TOLOWER "${entry}" file)
            set(classes "${entry}")
        endif()
        target_sources(zemkit PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/${file}.h")
        if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/${file}.cpp")
            target_sources(zemkit PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/${file}.cpp")
        endif()
        set_property(TARGET zemkit APPEND PROPERTY ZEM_HEADERS "${CMAKE_CURRENT_SOURCE_DIR}/${file}.h")
        foreach(class IN LISTS classes)
            file(CONFIGURE OUTPUT "${ZEMKIT_FORWARDING_DIR}/${class}" CONTENT "#include \"${file}.h\"\n")
            set_property(TARGET zemkit APPEND PROPERTY ZEM_FORWARDERS "${class}")
        endforeach()
    endforeach()
    target_include_directories(zemkit PUBLIC "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>")
endfunction()

# zem_add_helpers(<name>...)
#   Adds the library's own helpers <name>_p.h and, where there is one, <name>_p.cpp or <name>.cpp.
function(zem_add_helpers)
    foreach(name IN LISTS ARGN)
        target_sources(zemkit PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/${name}_p.h")
        foreach(source IN ITEMS "${name}_p.cpp" "${name}.cpp")
            if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/${source}")
                target_sources(zemkit PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}/${source}")
            endif()
        endforeach()
    endforeach()
    target_include_directories(zemkit PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
endfunction()

# zem_add_forms(<target> <form>...)
#   Makes ui_<form>.h of each form for the target, which is one of the current folder. AUTOUIC makes
#   them beside the build's graph: a build after a form was edited would compile nothing.
function(zem_add_forms target)
    # What it left in a build tree would be found first.
    file(GLOB stale "${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/include/ui_*.h")
    if(stale)
        file(REMOVE ${stale})
    endif()
    qt_wrap_ui(headers ${ARGN})
    target_sources(${target} PRIVATE ${headers})
    target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}")
endfunction()

# zem_finish_headers()
#   Writes <Zemkit>, which includes every public header, and installs headers and forwarders.
function(zem_finish_headers)
    get_target_property(headers zemkit ZEM_HEADERS)
    get_target_property(forwarders zemkit ZEM_FORWARDERS)
    list(SORT forwarders)
    set(all "")
    foreach(class IN LISTS forwarders)
        string(APPEND all "#include <${class}>\n")
    endforeach()
    file(CONFIGURE OUTPUT "${ZEMKIT_FORWARDING_DIR}/Zemkit" CONTENT "${all}#include <zemkit_version.h>\n")

    install(FILES ${headers} DESTINATION "${ZEMKIT_INCLUDEDIR}" COMPONENT Development)
    foreach(class IN LISTS forwarders ITEMS Zemkit)
        install(FILES "${ZEMKIT_FORWARDING_DIR}/${class}" DESTINATION "${ZEMKIT_INCLUDEDIR}" COMPONENT Development)
    endforeach()
endfunction()

# zem_export_classes([<symbol>...])
#   Lets the library export its public classes, with what the compiler makes of them, and the symbols, and
#   nothing else: their class Private would be visible with them, and so would instances of templates, and in
#   a build without optimisation the inline functions of Qt and Qwt.
function(zem_export_classes)
    get_target_property(classes zemkit ZEM_FORWARDERS)
    set(names "")
    foreach(class IN LISTS classes)
        # As names are mangled: the type and its tables; members, constant ones, inner types, and thunks.
        string(LENGTH "${class}" length)
        string(APPEND names "    _ZT[ISTV]${length}${class};\n")
        foreach(before IN ITEMS _ZN _ZNK "_ZT[ISTV]N" "_ZT[chv]*_N" "_ZT[chv]*_NK")
            # What follows is any name but 7Private.
            foreach(after IN ITEMS "[!7]*" "7[!P]*")
                string(APPEND names "    ${before}${length}${class}${after};\n")
            endforeach()
        endforeach()
    endforeach()
    foreach(symbol IN LISTS ARGN)
        string(APPEND names "    ${symbol};\n")
    endforeach()
    set(map "${CMAKE_CURRENT_BINARY_DIR}/zemkit.map")
    file(CONFIGURE OUTPUT "${map}" CONTENT "{\nglobal:\n${names}local:\n    *;\n};\n" @ONLY)
    target_link_options(zemkit PRIVATE "LINKER:--version-script=${map}")
    set_property(TARGET zemkit APPEND PROPERTY LINK_DEPENDS "${map}")
endfunction()
