# ctest starts a test program once, or in a few parts side by side, not once a case: a failing case is named in its output. How many
# cases a test has run stands afterwards in a file under cases/, which tests/count_cases.py sums.

if(NOT ZQN_TESTS)
  function(zqn_test)
  endfunction()
  function(zqn_test_program)
  endfunction()
  function(zqn_run_cases)
  endfunction()
  return()
endif()

find_package(GTest REQUIRED)
find_package(Python3 REQUIRED COMPONENTS Interpreter)

# Tests are compiled for a quick turn: what they drive is optimized, they themselves need not be.
add_library(zqn_test_flags INTERFACE)
target_compile_options(zqn_test_flags INTERFACE $<$<CONFIG:RelWithDebInfo>:-O0> $<$<CONFIG:RelWithDebInfo>:-g1>)

# zqn_count_cases(tests...): each leaves the count of its cases, whether GoogleTest, tests/cases.py or run_script.py runs it.
function(zqn_count_cases)
  foreach(test IN LISTS ARGN)
    set(file ${PROJECT_BINARY_DIR}/cases/${test}.json)
    set_property(TEST ${test} APPEND PROPERTY ENVIRONMENT GTEST_BRIEF=1 GTEST_OUTPUT=json:${file} ZQN_CASES=${file})
  endforeach()
endfunction()

# zqn_run_cases(name program [SHARDS n] [ENVIRONMENT ...]): the test NAME runs a GoogleTest program, with SHARDS NAME.1, NAME.2, ...
# a part of its cases each.
function(zqn_run_cases name program)
  cmake_parse_arguments(ARG "" "SHARDS" "ENVIRONMENT" ${ARGN})
  if(NOT ARG_SHARDS)
    set(ARG_SHARDS 1)
  endif()
  foreach(shard RANGE 1 ${ARG_SHARDS})
    set(test ${name})
    set(part "")
    if(ARG_SHARDS GREATER 1)
      string(APPEND test .${shard})
      math(EXPR index "${shard} - 1")
      set(part GTEST_TOTAL_SHARDS=${ARG_SHARDS} GTEST_SHARD_INDEX=${index})
    endif()
    add_test(NAME ${test} COMMAND ${program})
    set_tests_properties(${test} PROPERTIES ENVIRONMENT "${part};${ARG_ENVIRONMENT}" TIMEOUT 300)
    zqn_count_cases(${test})
  endforeach()
endfunction()

# zqn_test_program(target sources... [USES folders] [LINKS libraries]): a GoogleTest program that is run by another test.
function(zqn_test_program target)
  cmake_parse_arguments(ARG "" "" "USES;LINKS" ${ARGN})
  add_executable(${target} ${ARG_UNPARSED_ARGUMENTS})
  list(TRANSFORM ARG_USES PREPEND zqn_ OUTPUT_VARIABLE libraries)
  target_link_libraries(${target} PRIVATE ${libraries} zqn_flags zqn_test_flags ${ARG_LINKS} GTest::gmock GTest::gtest GTest::gtest_main)
  zqn_precompile(${target} test ${ARG_USES} ${ARG_LINKS})
endfunction()

# zqn_test(name sources... [USES folders] [LINKS libraries] [SHARDS n]): a GoogleTest program NAME_test and the test NAME that runs it.
function(zqn_test name)
  cmake_parse_arguments(ARG "" "SHARDS" "" ${ARGN})
  zqn_test_program(${name}_test ${ARG_UNPARSED_ARGUMENTS})
  zqn_run_cases(${name} ${name}_test SHARDS ${ARG_SHARDS})
endfunction()

set(ZQN_PYTHON_CASES $<TARGET_FILE:Python3::Interpreter> -B ${PROJECT_SOURCE_DIR}/tests/cases.py)

# zqn_python_test(name file [arguments ...] [ENVIRONMENT ...]): the test NAME runs the cases of a unittest file.
function(zqn_python_test name file)
  cmake_parse_arguments(ARG "" "" "ENVIRONMENT" ${ARGN})
  add_test(NAME ${name} COMMAND ${ZQN_PYTHON_CASES} ${CMAKE_CURRENT_SOURCE_DIR}/${file} ${ARG_UNPARSED_ARGUMENTS})
  set_tests_properties(${name} PROPERTIES ENVIRONMENT "${ARG_ENVIRONMENT}" TIMEOUT 300)
  zqn_count_cases(${name})
endfunction()
