# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT

# Which generation of Qt everything is built with. Nothing else in CMake names one. All links read
# Qt${DEZIMO_QT}::Core and the like: Qt 5 has names without a number too, but not for its tools and
# private headers.

set(DEZIMO_QT 5 CACHE STRING "Generation of Qt, 5 or 6")
set_property(CACHE DEZIMO_QT PROPERTY STRINGS 5 6)
set(oldest_qt5 5.15)
set(oldest_qt6 6.4)
if(NOT DEFINED oldest_qt${DEZIMO_QT})
  message(FATAL_ERROR "DEZIMO_QT is neither 5 nor 6: ${DEZIMO_QT}")
endif()
set(DEZIMO_OLDEST_QT ${oldest_qt${DEZIMO_QT}})

# From Qt 6.5 on the macros of Qt Test narrow a number in every source that uses them.
set(test_warnings_qt5 "")
set(test_warnings_qt6 -Wno-conversion)
set(DEZIMO_QT_TEST_WARNINGS ${test_warnings_qt${DEZIMO_QT}})

# Debian's packages with the plugin for SVG icons, which later releases of Qt 6 have in a package of its
# own, and with the platform plugin for Wayland.
set(svg_plugin_qt5 "libqt5svg5 (>= 5.15)")
set(svg_plugin_qt6 "libqt6svg6 (<< 6.6) | qt6-svg-plugins")
set(wayland_plugin_qt5 "qtwayland5")
set(wayland_plugin_qt6 "qt6-wayland")
set(DEZIMO_QT_SVG_PACKAGE "${svg_plugin_qt${DEZIMO_QT}}")
set(DEZIMO_QT_WAYLAND_PACKAGE "${wayland_plugin_qt${DEZIMO_QT}}")

find_package(Qt${DEZIMO_QT} ${DEZIMO_OLDEST_QT} REQUIRED COMPONENTS Core Gui Widgets Svg Test)

# Qt 6 defines where each test's folders are. No test asks for them, and tests with definitions of
# their own could not share precompiled headers.
get_target_property(definitions Qt${DEZIMO_QT}::Test INTERFACE_COMPILE_DEFINITIONS)
list(FILTER definitions EXCLUDE REGEX "QT_TESTCASE_")
set_target_properties(Qt${DEZIMO_QT}::Test PROPERTIES INTERFACE_COMPILE_DEFINITIONS "${definitions}")
unset(definitions)
