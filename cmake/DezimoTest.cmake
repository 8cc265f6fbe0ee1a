# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT

# The code of a test runs once or twice; to optimize it would take longer than that.
set(DEZIMO_TEST_FLAGS "" CACHE STRING "Compiler options for the tests' own sources, for example -O0")

set(test_headers <QSignalSpy> <QTemporaryDir> <QTest>)
dezimo_precompiled(core_tests
  LINKS Qt${DEZIMO_QT}::Core Qt${DEZIMO_QT}::Test
  HEADERS ${DEZIMO_CORE_HEADERS} ${test_headers}
  OPTIONS ${DEZIMO_TEST_FLAGS})
dezimo_precompiled(widget_tests
  LINKS Qt${DEZIMO_QT}::Widgets Qt${DEZIMO_QT}::Test
  HEADERS ${DEZIMO_WIDGET_HEADERS} ${test_headers}
  OPTIONS ${DEZIMO_TEST_FLAGS})

# What the compiler defines by itself: a test may have functions for one system alone, and moc has
# to see them. The file is written anew only where it changes, as all tests depend on it.
set(DEZIMO_PREDEFINED "${PROJECT_BINARY_DIR}/tests/moc_predefs.h")
file(CONFIGURE OUTPUT "${PROJECT_BINARY_DIR}/tests/empty.h" CONTENT "")
execute_process(
  COMMAND ${CMAKE_CXX_COMPILER} -dM -E -x c++ "${PROJECT_BINARY_DIR}/tests/empty.h"
  OUTPUT_VARIABLE predefined
  COMMAND_ERROR_IS_FATAL ANY)
file(GENERATE OUTPUT "${DEZIMO_PREDEFINED}" CONTENT "${predefined}")

# dezimo_add_test_moc(<target> <source>): makes the .moc file at the source's end. AUTOMOC would start
# another two programs and compile another file for each test.
function(dezimo_add_test_moc target source)
  cmake_path(GET source STEM name)
  set(moc "${CMAKE_CURRENT_BINARY_DIR}/${target}_moc/${name}.moc")
  set(includes "$<TARGET_PROPERTY:${target},INCLUDE_DIRECTORIES>")
  set(definitions "$<TARGET_PROPERTY:${target},COMPILE_DEFINITIONS>")
  add_custom_command(
    OUTPUT "${moc}"
    COMMAND Qt${DEZIMO_QT}::moc --include "${DEZIMO_PREDEFINED}" "-I$<JOIN:${includes},;-I>"
            "-D$<JOIN:${definitions},;-D>" -o "${moc}" "${CMAKE_CURRENT_SOURCE_DIR}/${source}"
    DEPENDS "${source}" "${DEZIMO_PREDEFINED}"
    COMMENT "Making ${name}.moc"
    COMMAND_EXPAND_LISTS VERBATIM)
  target_sources(${target} PRIVATE "${moc}")
  target_include_directories(${target} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${target}_moc")
endfunction()

# What takes something back from Dezimo::Options has to come after it.
add_library(dezimo_test_warnings INTERFACE)
target_compile_options(dezimo_test_warnings INTERFACE ${DEZIMO_QT_TEST_WARNINGS})

# dezimo_test_options(<target>): how the sources of tests are compiled.
function(dezimo_test_options target)
  target_link_libraries(${target} PRIVATE Dezimo::Options dezimo_test_warnings)
  target_compile_options(${target} PRIVATE ${DEZIMO_TEST_FLAGS})
  dezimo_precompile(${target} core_tests widget_tests)
endfunction()

# dezimo_add_test_library(<name> [MOC] LINKS <libraries>): what several tests of a folder share,
# <name>.cpp and <name>.h, compiled once. With MOC the header may declare signals and slots.
function(dezimo_add_test_library name)
  cmake_parse_arguments(arg "MOC" "" "LINKS" ${ARGN})
  add_library(${name} STATIC ${name}.cpp ${name}.h)
  set_target_properties(${name} PROPERTIES AUTOMOC ${arg_MOC})
  target_include_directories(${name} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
  target_link_libraries(${name} PUBLIC Dezimo::TestSupport ${arg_LINKS})
  dezimo_test_options(${name})
endfunction()

# dezimo_add_test(<name> [SOURCES <more files>] LINKS <libraries> [LABELS slow] [TIMEOUT <seconds>]
#                 [ENVIRONMENT <settings>]):
# one Qt Test executable, <name>.cpp and what else it needs, registered with CTest. It runs on Qt's
# offscreen platform with folders of its own (see tests/support/testmain.h). Slow tests begin first,
# so that no processor waits for one at the end.
function(dezimo_add_test name)
  cmake_parse_arguments(arg "" "TIMEOUT" "SOURCES;LINKS;LABELS;ENVIRONMENT" ${ARGN})
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 300)
  endif()
  add_executable(${name} ${name}.cpp ${arg_SOURCES})
  dezimo_add_test_moc(${name} ${name}.cpp)
  set_target_properties(${name} PROPERTIES
    RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/tests")
  target_link_libraries(${name} PRIVATE Dezimo::TestSupport ${arg_LINKS})
  dezimo_test_options(${name})
  set(cost 0)
  if("slow" IN_LIST arg_LABELS)
    set(cost 10)
  endif()
  add_test(NAME ${name} COMMAND ${name})
  set_tests_properties(${name} PROPERTIES
    COST ${cost}
    TIMEOUT ${arg_TIMEOUT}
    LABELS "${arg_LABELS}"
    ENVIRONMENT "${arg_ENVIRONMENT}")
endfunction()
