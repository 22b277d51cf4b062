# What every target shares, and the helpers that keep the layers apart.
include_guard()

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# The sources in which the systems differ carry the name of theirs.
if(WIN32)
  set(TAVORENA_SYSTEM Windows)
else()
  set(TAVORENA_SYSTEM Posix)
endif()

option(TAVORENA_TIDY "Run clang-tidy on the product code" OFF)
if(TAVORENA_TIDY)
  find_program(TAVORENA_CLANG_TIDY NAMES clang-tidy-14 clang-tidy REQUIRED)
endif()

option(TAVORENA_VORAB "Compile the headers of the standard library, Qt and GoogleTest once for all sources" OFF)

find_program(TAVORENA_CCACHE ccache)
if(TAVORENA_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${TAVORENA_CCACHE})
  if(TAVORENA_VORAB)  # what ccache asks for beside precompiled headers
    set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${TAVORENA_CCACHE})
  endif()
endif()

add_library(tavorena_regeln INTERFACE)
target_compile_options(tavorena_regeln INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>  # g++ 12 warns of every "literal" + std::string (its bug 105651)
  -ffp-contract=off  # a result must not depend on a fused multiply-add of the processor
  $<$<BOOL:${TAVORENA_WERROR}>:-Werror>)
if(TAVORENA_SANITIZE)
  target_compile_options(tavorena_regeln INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(tavorena_regeln INTERFACE -fsanitize=address,undefined)
endif()
# What a distribution asks of the programs it builds. Sanitizers see more, and it would be in their way.
include(CheckPIESupported)
check_pie_supported()
if(NOT TAVORENA_SANITIZE AND NOT WIN32)  # there the linker's own settings hold
  set(Gehaertet $<NOT:$<CONFIG:Debug>>)
  target_compile_options(tavorena_regeln INTERFACE
    "$<${Gehaertet}:-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2;-fstack-protector-strong>")
  target_link_options(tavorena_regeln INTERFACE $<${Gehaertet}:LINKER:-z,relro,-z,now>)
  # No folder of the build goes into what is built: the same source gives the same bytes everywhere.
  target_compile_options(tavorena_regeln INTERFACE
    "$<${Gehaertet}:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.;-ffile-prefix-map=${CMAKE_BINARY_DIR}=.>")
endif()
if(TAVORENA_FUZZ)
  target_compile_options(tavorena_regeln INTERFACE -fsanitize=fuzzer-no-link)
endif()

set(TAVORENA_VORABKOPF <algorithm> <array> <cmath> <functional> <map> <memory> <optional> <set> <string>
  <string_view> <unordered_map> <utility> <vector>)

# tavorena_vorab(target <gtest/gtest.h>): these headers and those of the standard library are compiled before its sources.
function(tavorena_vorab Ziel)
  if(TAVORENA_VORAB)
    target_precompile_headers(${Ziel} PRIVATE ${TAVORENA_VORABKOPF} ${ARGN})
  endif()
endfunction()

# tavorena_schicht(core SOURCES a.cpp b.cpp DEPS forms): the static library of one folder. Its headers
# are included as <tavorena/core/a.h>, by itself and by the layers that name it in DEPS, by no other.
function(tavorena_schicht Name)
  cmake_parse_arguments(S "" "" "SOURCES;DEPS;VORAB" ${ARGN})
  set(Sicht ${CMAKE_BINARY_DIR}/include/${Name}/tavorena)
  file(MAKE_DIRECTORY ${Sicht})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR} ${Sicht}/${Name} SYMBOLIC)
  add_library(tavorena_${Name} STATIC ${S_SOURCES})
  add_library(Tavorena::${Name} ALIAS tavorena_${Name})
  target_include_directories(tavorena_${Name} PUBLIC ${CMAKE_BINARY_DIR}/include/${Name})
  target_link_libraries(tavorena_${Name} PRIVATE tavorena_regeln)
  tavorena_vorab(tavorena_${Name} ${S_VORAB})
  if(TAVORENA_TIDY)
    set_target_properties(tavorena_${Name} PROPERTIES CXX_CLANG_TIDY ${TAVORENA_CLANG_TIDY})
  endif()
  foreach(D ${S_DEPS})
    target_link_libraries(tavorena_${Name} PUBLIC Tavorena::${D})
  endforeach()
endfunction()

# tavorena_test(core a.cpp b.cpp): one GoogleTest program for the folder of that name.
function(tavorena_test Name)
  add_executable(test_${Name} ${ARGN})
  target_link_libraries(test_${Name} PRIVATE tavorena_regeln Tavorena::${Name} tavorena_testhilfe)
  if(TAVORENA_VORAB AND Name STREQUAL core)
    tavorena_vorab(test_core <gtest/gtest.h>)
  elseif(TAVORENA_VORAB)
    target_precompile_headers(test_${Name} REUSE_FROM test_core)
  endif()
  add_test(NAME ${Name} COMMAND test_${Name} --gtest_shuffle)
  set_tests_properties(${Name} PROPERTIES TIMEOUT $<IF:$<BOOL:${WIN32}>,1800,300>
    ENVIRONMENT "LSAN_OPTIONS=print_suppressions=0:suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.txt")
endfunction()
