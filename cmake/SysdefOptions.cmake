# SPDX-License-Identifier: GPL-3.0-or-later
# What holds for every target: language, warnings, folders of the build, compiler cache.
option(SYSDEF_TESTS "Build the tests" ON)
option(SYSDEF_BENCH "Build the benchmarks" OFF)
option(SYSDEF_FUZZ "Build the fuzz targets (clang only)" OFF)
set(SYSDEF_SANITIZE "" CACHE STRING "Sanitizers to build with, such as address,undefined")
option(SYSDEF_COVERAGE "Build with coverage counters" OFF)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(SYSDEF_DATA_DIR ${CMAKE_BINARY_DIR}/share/sysdef)
set(SYSDEF_PLUGIN_DIR ${CMAKE_BINARY_DIR}/lib/sysdef)

find_program(SYSDEF_CCACHE ccache)
if(SYSDEF_CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${SYSDEF_CCACHE})
endif()

add_library(sysdef_options INTERFACE)
target_compile_options(sysdef_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
target_include_directories(sysdef_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
if(SYSDEF_SANITIZE)
  target_compile_options(sysdef_options INTERFACE
    -fsanitize=${SYSDEF_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(sysdef_options INTERFACE -fsanitize=${SYSDEF_SANITIZE})
endif()
if(SYSDEF_COVERAGE)
  target_compile_options(sysdef_options INTERFACE --coverage)
  target_link_options(sysdef_options INTERFACE --coverage)
endif()
