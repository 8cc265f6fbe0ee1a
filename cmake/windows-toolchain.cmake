# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT

# Cross-builds for 64-bit Windows with Debian's mingw-w64 and the Qt that tools/windows_sdk.sh makes.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

# std::mutex and the like need the compilers with POSIX threads.
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

execute_process(
  COMMAND "${CMAKE_CURRENT_LIST_DIR}/../tools/windows_sdk.sh" --where
  OUTPUT_VARIABLE DEZIMO_WINDOWS_SDK OUTPUT_STRIP_TRAILING_WHITESPACE
  RESULT_VARIABLE missing)
if(missing)
  message(FATAL_ERROR "There is no Qt for Windows yet; tools/windows_sdk.sh makes it")
endif()

# Headers and libraries come from Windows, the programs that the build runs from this machine.
set(CMAKE_FIND_ROOT_PATH "${DEZIMO_WINDOWS_SDK}" /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
