# SPDX-License-Identifier: MIT
# Settings that every target of this tree shares: language level, hidden symbols, warnings, ccache.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Kind of build" FORCE)
endif()

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CCACHE_PROGRAM}")
endif()

option(LUMETRA_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" ON)

# Warnings for our own targets only; never set globally, so that generated code stays out.
function(lumetra_target_defaults target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
        -Woverloaded-virtual -Wcast-align
        # g++ 12 takes the empty alternatives of a moved std::variant for uninitialised strings.
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    if(LUMETRA_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_FOREACH
        QT_NO_URL_CAST_FROM_STRING QT_DEPRECATED_WARNINGS)
endfunction()

# Keeps the C++ library's and Boost's template instantiations out of a shared library's interface: only the
# namespace is shown.
function(lumetra_export_own_symbols_only target namespace)
    string(LENGTH "${namespace}" length)
    set(own "${length}${namespace}")
    set(map "${PROJECT_BINARY_DIR}/cmake/${target}.map")
    configure_file("${PROJECT_SOURCE_DIR}/cmake/exported-symbols.map.in" "${map}" @ONLY)
    target_link_options(${target} PRIVATE "LINKER:--version-script=${map}")
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS "${map}")
endfunction()
