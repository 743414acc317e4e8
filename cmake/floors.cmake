# One folder under src/ is one library, seldom two. It names the folders that it uses, each that it includes from and no other, and the
# headers that a host may include; ./check holds both against the sources:
#
#   zqn_library(ado SOURCES connection.cpp recordset.cpp HEADERS connection.h recordset.h USES runtime)
#   zqn_test(ado recordset_test.cpp find_test.cpp USES ado)
#
# Flags and include root are stated here once.

find_program(ZQN_CCACHE ccache)
if(ZQN_CCACHE AND PROJECT_IS_TOP_LEVEL AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # What ccache has to pass over so that it can be used with precompiled headers.
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CMAKE_COMMAND} -E env CCACHE_SLOPPINESS=pch_defines,time_macros ${ZQN_CCACHE})
endif()

add_library(zqn_flags INTERFACE)
target_include_directories(zqn_flags INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(zqn_flags INTERFACE -Wall -Wextra -Wpedantic)
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

# zqn_library(name SOURCES ... [HEADERS public headers] [USES other folders] [LINKS outside libraries])
function(zqn_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;HEADERS;USES;LINKS" ${ARGN})
  list(TRANSFORM ARG_USES PREPEND zqn_ OUTPUT_VARIABLE used)
  list(TRANSFORM ARG_HEADERS PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE headers)
  add_library(zqn_${name} STATIC ${ARG_SOURCES})
  if(headers)
    target_sources(zqn_${name} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/src FILES ${headers})
  endif()
  target_link_libraries(zqn_${name} PUBLIC zqn_flags ${used} ${ARG_LINKS})
  zqn_precompile(zqn_${name} product ${ARG_USES} ${ARG_LINKS})
endfunction()

# zqn_program(name SOURCES ... [USES folders] [LINKS outside libraries])
function(zqn_program name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES;LINKS" ${ARGN})
  list(TRANSFORM ARG_USES PREPEND zqn_ OUTPUT_VARIABLE used)
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE zqn_flags ${used} ${ARG_LINKS})
endfunction()

include(${CMAKE_CURRENT_LIST_DIR}/tests.cmake)
