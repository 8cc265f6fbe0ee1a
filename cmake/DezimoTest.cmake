# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT

# dezimo_add_test(<name> [SOURCES <files>] LINKS <libraries> [LABELS slow] [TIMEOUT <seconds>]):
# one Qt Test executable, <name>.cpp unless said otherwise, registered with CTest. It runs on Qt's
# offscreen platform with folders of its own (see tests/support/testmain.h).
function(dezimo_add_test name)
  cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;LINKS;LABELS;ENVIRONMENT" ${ARGN})
  if(NOT arg_SOURCES)
    set(arg_SOURCES ${name}.cpp)
  endif()
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 300)
  endif()
  add_executable(${name} ${arg_SOURCES})
  set_target_properties(${name} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/tests")
  target_link_libraries(${name} PRIVATE Dezimo::Options Dezimo::TestSupport ${arg_LINKS})
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    TIMEOUT ${arg_TIMEOUT}
    LABELS "${arg_LABELS}"
    ENVIRONMENT "${arg_ENVIRONMENT}")
endfunction()
