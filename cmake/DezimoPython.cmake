# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT

# The Python that runs the build's own scripts.

# The distribution installs Python's modules for the system's own Python, so that one is tried first.
find_program(DEZIMO_PYTHON python3 PATHS /usr/bin NO_DEFAULT_PATH)
find_program(DEZIMO_PYTHON NAMES python3 python DOC "Python that has fontTools and Markdown")
mark_as_advanced(DEZIMO_PYTHON)
if(NOT DEZIMO_PYTHON)
  message(FATAL_ERROR "Python is needed to make fonts and guide. Debian's package: python3")
endif()

# dezimo_require_python_module(<module> <package>): stops unless Python can import the module.
function(dezimo_require_python_module module package)
  execute_process(
    COMMAND ${DEZIMO_PYTHON} -c "import ${module}"
    RESULT_VARIABLE result
    OUTPUT_QUIET ERROR_QUIET)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${DEZIMO_PYTHON} has no ${module}. Debian's package: ${package}")
  endif()
endfunction()
