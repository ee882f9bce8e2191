# How every target of the project is made: language level, warnings, sanitizers, one library a folder.

# Headers that are compiled ahead need some leniency of the cache, see lorvane_precompile.
find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE_PROGRAM})
endif()

option(LORVANE_SANITIZE "Build with the address and undefined-behaviour sanitizers" OFF)
option(LORVANE_FUZZ "Build the fuzzers, with the sanitizers and clang" OFF)

add_library(lorvane_options INTERFACE)
target_compile_features(lorvane_options INTERFACE cxx_std_20)
target_include_directories(lorvane_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(lorvane_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Werror -ffp-contract=off)
if(LORVANE_SANITIZE)
    # Instrumented code makes the compiler warn of values inside the standard library that it cannot follow.
    target_compile_options(lorvane_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer -Wno-maybe-uninitialized)
    target_link_options(lorvane_options INTERFACE -fsanitize=address,undefined)
endif()
if(LORVANE_FUZZ)
    target_compile_options(lorvane_options INTERFACE
        -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(lorvane_options INTERFACE -fsanitize=address,undefined)
endif()

# lorvane_library(name LIBRARIES lorvane_base ...): the library of one folder of src/, of all its files but main.cpp.
# SOURCES names what lies elsewhere.
function(lorvane_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
    file(GLOB own CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    list(FILTER own EXCLUDE REGEX "/main\\.cpp$")
    add_library(${name} STATIC ${own} ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC lorvane_options ${ARG_LIBRARIES})
endfunction()

# lorvane_precompile(name <header>...): compiles headers only once for the target. Every file still includes what it uses.
function(lorvane_precompile name)
    target_precompile_headers(${name} PRIVATE ${ARGN})
    target_compile_options(${name} PRIVATE
        $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess> "$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>")
endfunction()

# lorvane_precompile_qt(name): those that most files on Qt include, which halves the time of their build.
function(lorvane_precompile_qt name)
    lorvane_precompile(${name}
        <QApplication> <QLabel> <QLineEdit> <QPainter> <QPushButton> <QScrollArea> <QStyleOption> <QVBoxLayout>
        <algorithm> <functional> <map> <memory> <optional> <string> <vector>)
endfunction()

# lorvane_test(name SOURCES a.cpp ... LIBRARIES lorvane_engine ...): one GoogleTest program.
function(lorvane_test name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    target_link_libraries(${name} PRIVATE lorvane_options ${ARG_LIBRARIES} GTest::gtest_main)
    target_include_directories(${name} PRIVATE ${CMAKE_SOURCE_DIR}/tests)
    target_compile_definitions(${name} PRIVATE LORVANE_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data")
    list(LENGTH ARG_SOURCES sources)
    if(sources GREATER 2)
        lorvane_precompile(${name} <gtest/gtest.h> <algorithm> <functional> <map> <string> <vector>)
    endif()
    add_test(NAME ${name} COMMAND ${name})
endfunction()
