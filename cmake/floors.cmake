# One folder under src/ is one library. A floor names the folders below it that it may use, and nothing else:
#
#   zqn_library(ado SOURCES connection.cpp recordset.cpp USES runtime)
#   zqn_test(ado recordset_test.cpp find_test.cpp)
#
# Flags and include root are stated here once.

find_program(ZQN_CCACHE ccache)
if(ZQN_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # What ccache has to pass over so that it can be used with precompiled headers.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${ZQN_CCACHE})
endif()

add_library(zqn_flags INTERFACE)
target_include_directories(zqn_flags INTERFACE ${CMAKE_SOURCE_DIR}/src)
target_compile_options(zqn_flags INTERFACE -Wall -Wextra -Wpedantic -Werror)
if(ZQN_SANITIZE)
  target_compile_options(zqn_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(zqn_flags INTERFACE -fsanitize=address,undefined)
endif()
if(ZQN_FUZZ)
  target_compile_options(zqn_flags INTERFACE -fsanitize=fuzzer-no-link,address -fno-omit-frame-pointer)
  target_link_options(zqn_flags INTERFACE -fsanitize=address)
endif()

# Headers of others that most sources include, compiled once: for what is shipped, for tests, and for both with Qt.
include(${CMAKE_CURRENT_LIST_DIR}/precompiled.cmake)

# zqn_library(name SOURCES ... [USES other folders] [LINKS outside libraries])
function(zqn_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES;LINKS" ${ARGN})
  add_library(zqn_${name} STATIC ${ARG_SOURCES})
  target_link_libraries(zqn_${name} PUBLIC zqn_flags)
  foreach(used IN LISTS ARG_USES)
    target_link_libraries(zqn_${name} PUBLIC zqn_${used})
  endforeach()
  target_link_libraries(zqn_${name} PUBLIC ${ARG_LINKS})
  zqn_precompile(zqn_${name} product ${ARG_USES} ${ARG_LINKS})
endfunction()

find_package(GTest REQUIRED)
include(GoogleTest)

# Tests are compiled for a quick turn: what they drive is optimized, they themselves need not be.
add_library(zqn_test_flags INTERFACE)
target_compile_options(zqn_test_flags INTERFACE $<$<CONFIG:RelWithDebInfo>:-O0> $<$<CONFIG:RelWithDebInfo>:-g1>)

# zqn_test(name sources... [USES folders] [LINKS libraries]): a GoogleTest program <name>_test, one ctest entry a case.
function(zqn_test name)
  cmake_parse_arguments(ARG "" "" "USES;LINKS" ${ARGN})
  add_executable(${name}_test ${ARG_UNPARSED_ARGUMENTS})
  foreach(used IN LISTS ARG_USES)
    target_link_libraries(${name}_test PRIVATE zqn_${used})
  endforeach()
  target_link_libraries(${name}_test PRIVATE zqn_flags zqn_test_flags ${ARG_LINKS} GTest::gmock GTest::gtest GTest::gtest_main)
  zqn_precompile(${name}_test test ${ARG_USES} ${ARG_LINKS})
  gtest_discover_tests(${name}_test TEST_PREFIX "${name}." DISCOVERY_TIMEOUT 60)
endfunction()
