# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT

# What every target of the project is compiled with: the language, the warnings and Qt's
# hardening definitions. Presets switch -Werror and the sanitizers.

# The first format has no room for the files' times, which would differ from one checkout to the next.
set(DEZIMO_RCC_OPTIONS --format-version 1)
set(CMAKE_AUTORCC_OPTIONS ${DEZIMO_RCC_OPTIONS})
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# A change of compiler is felt at once when nothing is compiled twice. ccache takes a source with
# precompiled headers only if it may overlook how they use macros and the time.
find_program(DEZIMO_CCACHE ccache)
mark_as_advanced(DEZIMO_CCACHE)
if(DEZIMO_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER "${DEZIMO_CCACHE}")
  if(NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
    list(PREPEND CMAKE_CXX_COMPILER_LAUNCHER
      "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros)
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
  endif()
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
  # What Qt 6 deprecates has no other name in Qt 5.
  QT_WARN_DEPRECATED_UP_TO=0x050f00
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

# A precompiled header serves libraries and programs only if both are compiled for any address. Qt 5
# asks for that by itself, Qt 6 from 6.5 on does not.
if(NOT WIN32 AND NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
  target_compile_options(dezimo_options INTERFACE -fPIC)
endif()

if(DEZIMO_SANITIZERS)
  target_compile_options(dezimo_options INTERFACE
    -fsanitize=${DEZIMO_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(dezimo_options INTERFACE -fsanitize=${DEZIMO_SANITIZERS})
  # Links a hundred test programs in a third of the time, where binutils still come with it.
  find_program(DEZIMO_GOLD ld.gold)
  mark_as_advanced(DEZIMO_GOLD)
  if(DEZIMO_GOLD)
    target_link_options(dezimo_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fuse-ld=gold>)
  endif()
endif()

# dezimo_sees(<variable> <target> <library>): whether the target may include what the library publishes.
function(dezimo_sees variable target library)
  set(${variable} OFF PARENT_SCOPE)
  get_target_property(next ${target} LINK_LIBRARIES)
  set(seen "")
  while(NOT next STREQUAL "")
    list(POP_FRONT next link)
    if(link STREQUAL library)
      set(${variable} ON PARENT_SCOPE)
      return()
    elseif(TARGET ${link} AND NOT link IN_LIST seen)
      list(APPEND seen ${link})
      get_target_property(published ${link} INTERFACE_LINK_LIBRARIES)
      list(APPEND next ${published})
    endif()
  endwhile()
endfunction()

# dezimo_precompiled(<name> LINKS <libraries> HEADERS <headers> [OPTIONS <of the compiler>]): makes the
# precompiled headers dezimo_headers_<name>.
function(dezimo_precompiled name)
  cmake_parse_arguments(arg "" "" "LINKS;HEADERS;OPTIONS" ${ARGN})
  if(CMAKE_DISABLE_PRECOMPILE_HEADERS)
    return()
  endif()
  set(target dezimo_headers_${name})
  file(CONFIGURE OUTPUT ${target}.cpp CONTENT "")
  add_library(${target} OBJECT "${CMAKE_CURRENT_BINARY_DIR}/${target}.cpp")
  target_link_libraries(${target} PRIVATE Dezimo::Options ${arg_LINKS})
  target_compile_options(${target} PRIVATE ${arg_OPTIONS})
  target_precompile_headers(${target} PRIVATE ${arg_HEADERS})
endfunction()

# What nearly every source reads of Qt and of C++. A layer may include no more with precompiled
# headers than without, so what links Qt's Core alone has a shorter list. Sources still include what
# they use: the presets release and windows have no precompiled headers, and neither have the linters.
set(DEZIMO_CORE_HEADERS
  <algorithm> <cmath> <functional> <memory> <optional> <vector>
  <QCoreApplication> <QDir> <QFile> <QMap> <QRegularExpression> <QSettings> <QStringList> <QVariant>)
set(DEZIMO_WIDGET_HEADERS ${DEZIMO_CORE_HEADERS}
  <QAccessible> <QApplication> <QComboBox> <QLabel> <QLineEdit> <QListWidget> <QMainWindow> <QMenu>
  <QPainter> <QPushButton> <QScrollArea> <QSpinBox> <QStackedWidget> <QTabWidget> <QTimer>)
dezimo_precompiled(core LINKS Qt${DEZIMO_QT}::Core HEADERS ${DEZIMO_CORE_HEADERS})
dezimo_precompiled(widgets LINKS Qt${DEZIMO_QT}::Widgets HEADERS ${DEZIMO_WIDGET_HEADERS})

# dezimo_precompile(<target> <core> <widgets>): lets the target use one of the two precompiled headers,
# depending on what it links. Those few that link Qt's Gui but no Widgets have none.
function(dezimo_precompile target core widgets)
  if(CMAKE_DISABLE_PRECOMPILE_HEADERS)
    return()
  endif()
  dezimo_sees(sees_gui ${target} Qt${DEZIMO_QT}::Gui)
  dezimo_sees(sees_widgets ${target} Qt${DEZIMO_QT}::Widgets)
  if(sees_widgets)
    target_precompile_headers(${target} REUSE_FROM dezimo_headers_${widgets})
  elseif(NOT sees_gui)
    target_precompile_headers(${target} REUSE_FROM dezimo_headers_${core})
  endif()
endfunction()

# dezimo_add_forms(<target> <files>): makes the headers of those files that are forms, each by itself.
# With AUTOUIC, a change of one page's source has the sources of all pages compiled again.
function(dezimo_add_forms target)
  list(FILTER ARGN INCLUDE REGEX "\\.ui$")
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/${target}_forms/include")
  foreach(form IN LISTS ARGN)
    cmake_path(GET form STEM name)
    set(header "${folder}/ui_${name}.h")
    # Folders that were built with AUTOUIC have an old one, which the compiler would find first.
    file(REMOVE "${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/include/ui_${name}.h")
    add_custom_command(
      OUTPUT "${header}"
      COMMAND Qt${DEZIMO_QT}::uic -o "${header}" "${CMAKE_CURRENT_SOURCE_DIR}/${form}"
      DEPENDS "${form}"
      COMMENT "Making ui_${name}.h"
      VERBATIM)
    target_sources(${target} PRIVATE "${header}")
  endforeach()
  target_include_directories(${target} PRIVATE "${folder}")
endfunction()

# dezimo_library(<folder> [MOC] LINKS <public libraries> [PRIVATE_LINKS <libraries>] SOURCES <files>):
# the one library of a folder, dezimo_<folder> with the alias Dezimo::<Folder>. It is static unless
# BUILD_SHARED_LIBS says otherwise. It publishes its own folder and nothing else, so that a layer that
# is not linked cannot be included. With MOC its headers may declare signals and slots; elsewhere moc
# would only add an empty file to compile.
function(dezimo_library folder)
  cmake_parse_arguments(arg "MOC" "" "SOURCES;LINKS;PRIVATE_LINKS" ${ARGN})
  set(target dezimo_${folder})
  string(SUBSTRING ${folder} 0 1 initial)
  string(TOUPPER ${initial} initial)
  string(SUBSTRING ${folder} 1 -1 rest)
  add_library(${target} ${arg_SOURCES})
  set_target_properties(${target} PROPERTIES AUTOMOC ${arg_MOC})
  add_library(Dezimo::${initial}${rest} ALIAS ${target})
  dezimo_add_forms(${target} ${arg_SOURCES})
  target_include_directories(${target} PUBLIC "$<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>")
  target_link_libraries(${target}
    PUBLIC ${arg_LINKS}
    PRIVATE $<BUILD_INTERFACE:Dezimo::Options> ${arg_PRIVATE_LINKS})
  dezimo_precompile(${target} core widgets)
endfunction()
