# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT

# The application's icon in single sizes, for systems that cannot scale the drawing.

find_program(DEZIMO_RSVG_CONVERT rsvg-convert)
mark_as_advanced(DEZIMO_RSVG_CONVERT)
if(NOT DEZIMO_RSVG_CONVERT)
  message(FATAL_ERROR "rsvg-convert is needed to make the icons. Debian's package: librsvg2-bin")
endif()
set(DEZIMO_DRAWING "${PROJECT_SOURCE_DIR}/resources/icons/app/dezimo.svg")

# dezimo_png_icon(<size> <variable>): makes the icon of that many pixels in the build folder and sets
# the variable to its name.
function(dezimo_png_icon size variable)
  set(icon "${CMAKE_CURRENT_BINARY_DIR}/dezimo_${size}.png")
  add_custom_command(
    OUTPUT "${icon}"
    COMMAND "${DEZIMO_RSVG_CONVERT}" --width=${size} --height=${size} --output=${icon}
            "${DEZIMO_DRAWING}"
    DEPENDS "${DEZIMO_DRAWING}"
    COMMENT "Making the icon of ${size} pixels"
    VERBATIM)
  set(${variable} "${icon}" PARENT_SCOPE)
endfunction()
