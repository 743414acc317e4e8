# Headers of the standard library, of GoogleTest and of Qt that most sources include, read once instead of 400 times. None of the
# project's own: a change in one of those would compile everything again. Off with ZQN_PRECOMPILED=OFF, which finds missing includes.

# One precompiled header for libraries and programs: both as position-independent code of one kind.
set(CMAKE_CXX_COMPILE_OPTIONS_PIE ${CMAKE_CXX_COMPILE_OPTIONS_PIC})

option(ZQN_PRECOMPILED "Read the headers of others once, as precompiled headers" ON)

set(standard <algorithm> <array> <charconv> <chrono> <cmath> <cstdint> <cstdlib> <filesystem> <functional> <limits> <map>
  <memory> <optional> <set> <span> <stdexcept> <string> <string_view> <utility> <vector>)
set(testing <gtest/gtest.h> <gmock/gmock.h>)
set(widgets <QApplication> <QLabel> <QLineEdit> <QPainter> <QPushButton> <QTableView> <QWidget>)

function(zqn_precompiled kind)
  cmake_parse_arguments(ARG "" "" "HEADERS;LINKS" ${ARGN})
  set(source ${PROJECT_BINARY_DIR}/precompiled_${kind}.cpp)
  if(NOT EXISTS ${source})
    file(WRITE ${source} "")
  endif()
  add_library(zqn_precompiled_${kind} OBJECT EXCLUDE_FROM_ALL ${source})
  target_link_libraries(zqn_precompiled_${kind} PRIVATE zqn_flags ${ARG_LINKS})
  target_precompile_headers(zqn_precompiled_${kind} PRIVATE ${ARG_HEADERS})
endfunction()

# zqn_precompile(target product|test what it links): takes the precompiled headers that fit the target.
function(zqn_precompile target kind)
  # What is compiled like a test without being one finds none that was compiled alike.
  if(NOT ZQN_PRECOMPILED OR "zqn_test_flags" IN_LIST ARGN)
    return()
  endif()
  if("${ARGN}" MATCHES "Qt6::|(^|;)(qt|desk|qt_testing|host_script_qt)(;|$)")
    string(APPEND kind _qt)
  endif()
  if(NOT TARGET zqn_precompiled_${kind})
    set(headers ${standard})
    set(links "")
    if(kind MATCHES "^test")
      list(APPEND headers ${testing})
      list(APPEND links zqn_test_flags GTest::gmock GTest::gtest)
    endif()
    if(kind MATCHES "_qt$")
      find_package(Qt6 REQUIRED COMPONENTS Widgets)
      list(APPEND headers ${widgets})
      list(APPEND links Qt6::Widgets)
    endif()
    zqn_precompiled(${kind} HEADERS ${headers} LINKS ${links})
  endif()
  target_precompile_headers(${target} REUSE_FROM zqn_precompiled_${kind})
endfunction()
