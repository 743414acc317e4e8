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

include(${CMAKE_CURRENT_LIST_DIR}/tests.cmake)
