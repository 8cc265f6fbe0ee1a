# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT

# Style sheets and icons are written once for both themes: where a color belongs, they name a role
# of the palette, as @accent-text, and @theme where the theme's own word belongs.

# dezimo_read_palette(<file>): sets palette_roles to the roles of a palette and palette_<theme>_<role>
# to their colors.
function(dezimo_read_palette file)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
  set(roles "")
  file(STRINGS "${file}" rows REGEX "^[^#]")
  foreach(row IN LISTS rows)
    if(NOT row MATCHES "^([a-z-]+) +(#[0-9a-f]+) +(#[0-9a-f]+) +[^ ]")
      message(FATAL_ERROR "${file}: a row is a role, two colors and what they are for, not: ${row}")
    endif()
    list(APPEND roles ${CMAKE_MATCH_1})
    set(palette_bright_${CMAKE_MATCH_1} ${CMAKE_MATCH_2} PARENT_SCOPE)
    set(palette_dark_${CMAKE_MATCH_1} ${CMAKE_MATCH_3} PARENT_SCOPE)
  endforeach()
  set(palette_roles ${roles} PARENT_SCOPE)
endfunction()

# dezimo_themed(<theme> <target> <source>...): writes the sources, one after the other, in the colors
# of a theme.
function(dezimo_themed theme target)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${ARGN})
  set(palette_${theme}_theme ${theme})
  set(text "")
  foreach(source IN LISTS ARGN)
    file(READ "${source}" part)
    string(APPEND text "${part}")
  endforeach()
  string(REGEX MATCHALL "@[A-Za-z0-9_-]*" uses "${text}")
  list(REMOVE_DUPLICATES uses)
  list(SORT uses ORDER DESCENDING) # so that @accent leaves @accent-text whole
  foreach(use IN LISTS uses)
    string(SUBSTRING ${use} 1 -1 role)
    if(NOT DEFINED palette_${theme}_${role})
      message(FATAL_ERROR "The palette has no role ${use}, which ${ARGN} asks for")
    endif()
    string(REPLACE ${use} ${palette_${theme}_${role}} text "${text}")
    set_property(GLOBAL APPEND PROPERTY dezimo_used_roles ${role})
  endforeach()
  file(CONFIGURE OUTPUT "${target}" CONTENT "${text}" @ONLY)
endfunction()

# A role that neither a sheet nor an icon names any more leaves the palette.
function(dezimo_check_palette)
  get_property(used GLOBAL PROPERTY dezimo_used_roles)
  foreach(role IN LISTS palette_roles)
    if(NOT role IN_LIST used)
      message(FATAL_ERROR "No style sheet and no icon uses the role ${role} of the palette")
    endif()
  endforeach()
endfunction()

# dezimo_palette_header(<file>): writes the palette for C++, @accent-text as Palette::accentText.
function(dezimo_palette_header file)
  set(constants "")
  foreach(role IN LISTS palette_roles)
    string(REPLACE "-" ";" words ${role})
    list(POP_FRONT words name)
    foreach(word IN LISTS words)
      string(SUBSTRING ${word} 0 1 initial)
      string(SUBSTRING ${word} 1 -1 rest)
      string(TOUPPER ${initial} initial)
      string(APPEND name ${initial}${rest})
    endforeach()
    string(APPEND constants "inline constexpr Role ${name}"
      "{\"${palette_bright_${role}}\", \"${palette_dark_${role}}\"};\n")
  endforeach()
  file(CONFIGURE OUTPUT "${file}" @ONLY CONTENT "#ifndef PALETTE_H
#define PALETTE_H

namespace Palette {

struct Role
{
    const char *bright;
    const char *dark;
};

${constants}
} // namespace Palette

#endif
")
endfunction()
