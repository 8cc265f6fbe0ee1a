# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT

# What every target of the project is compiled with: the language, the warnings and Qt's
# hardening definitions. Presets switch -Werror and the sanitizers.

set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_AUTORCC ON)
# The first format has no room for the files' times, which would differ from one checkout to the next.
set(DEZIMO_RCC_OPTIONS --format-version 1)
set(CMAKE_AUTORCC_OPTIONS ${DEZIMO_RCC_OPTIONS})
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# A change of compiler is felt at once when nothing is compiled twice.
find_program(DEZIMO_CCACHE ccache)
mark_as_advanced(DEZIMO_CCACHE)
if(DEZIMO_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${DEZIMO_CCACHE}")
endif()

option(DEZIMO_WERROR "Treat compiler warnings as errors" OFF)
set(DEZIMO_SANITIZERS "" CACHE STRING "Value of -fsanitize= for every target, for example address,undefined")

add_library(dezimo_options INTERFACE)
add_library(Dezimo::Options ALIAS dezimo_options)

target_compile_features(dezimo_options INTERFACE cxx_std_17)
target_compile_definitions(dezimo_options INTERFACE
  QT_NO_CAST_FROM_ASCII
  QT_NO_CAST_TO_ASCII
  QT_NO_CAST_FROM_BYTEARRAY
  QT_NO_URL_CAST_FROM_STRING
  QT_NO_FOREACH
  QT_USE_QSTRINGBUILDER
  QT_DEPRECATED_WARNINGS
  QT_DISABLE_DEPRECATED_BEFORE=0x050d00
  # The header of Windows without macros that hide std::min, and without what nobody here asks for.
  $<$<PLATFORM_ID:Windows>:NOMINMAX>
  $<$<PLATFORM_ID:Windows>:WIN32_LEAN_AND_MEAN>
  $<$<CONFIG:Release>:QT_NO_DEBUG_OUTPUT>)
target_compile_options(dezimo_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
  -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wcast-qual -Wdouble-promotion
  -Wformat=2 -Wundef -Wunused
  $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op>
  $<$<BOOL:${DEZIMO_WERROR}>:-Werror>)

if(DEZIMO_SANITIZERS)
  target_compile_options(dezimo_options INTERFACE
    -fsanitize=${DEZIMO_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(dezimo_options INTERFACE -fsanitize=${DEZIMO_SANITIZERS})
endif()

# dezimo_library(<folder> LINKS <public libraries> SOURCES <files>): the one library of a folder,
# as the library dezimo_<folder> with the alias Dezimo::<Folder>; it is static unless
# BUILD_SHARED_LIBS says otherwise. It publishes its own folder and nothing else, so that a layer
# that is not linked cannot be included.
function(dezimo_library folder)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
  set(target dezimo_${folder})
  string(SUBSTRING ${folder} 0 1 initial)
  string(TOUPPER ${initial} initial)
  string(SUBSTRING ${folder} 1 -1 rest)
  add_library(${target} ${arg_SOURCES})
  add_library(Dezimo::${initial}${rest} ALIAS ${target})
  target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>")
  target_link_libraries(${target}
    PUBLIC ${arg_LINKS}
    PRIVATE $<BUILD_INTERFACE:Dezimo::Options> ${arg_PRIVATE_LINKS})
endfunction()
