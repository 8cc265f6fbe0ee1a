# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# Every icon is drawn once, for the bright theme. The dark theme's icons are the same drawings with
# the colours below exchanged, so that the two can never differ in shape.
# DEZIMO_ICON_RESOURCE is the resource file of both.

# bright -> dark
set(icon_colors
  "#3b4650=#dfe5ea"  # lines
  "#ffffff=#1e2328"  # signs on a filled shape
  "#008ed6=#008ed6"  # accent
  "#1c7c3c=#5cc98a"  # ok
  "#b35c00=#f0a83c"  # warning
  "#b3261e=#ff8a80"  # error
  "#00669b=#5ab8ec"  # question
)

set(icon_folder ${CMAKE_CURRENT_BINARY_DIR}/icons)
set(DEZIMO_ICON_RESOURCE ${icon_folder}/icons.qrc)
set(icon_entries "")

function(dezimo_dark_icon source target)
  file(READ ${source} drawing)
  foreach(pair IN LISTS icon_colors)
    string(REPLACE "=" ";" pair ${pair})
    list(GET pair 0 bright)
    list(GET pair 1 dark)
    string(REPLACE ${bright} ${dark} drawing "${drawing}")
  endforeach()
  file(CONFIGURE OUTPUT ${target} CONTENT "${drawing}" @ONLY)
endfunction()

# Adds the drawings of a folder under a resource path, in which %0 stands for the theme's word.
function(dezimo_themed_icons folder path)
  foreach(name IN LISTS ARGN)
    set(source ${CMAKE_CURRENT_SOURCE_DIR}/icons/${folder}/${name}.svg)
    set(dark ${icon_folder}/${folder}/${name}_dark.svg)
    dezimo_dark_icon(${source} ${dark})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${source})
    string(REPLACE "%0" bright bright_alias ${path}${name}_%0.svg)
    string(REPLACE "%0" dark dark_alias ${path}${name}_%0.svg)
    string(APPEND icon_entries
      "    <file alias=\"${bright_alias}\">${source}</file>\n"
      "    <file alias=\"${dark_alias}\">${dark}</file>\n")
  endforeach()
  set(icon_entries ${icon_entries} PARENT_SCOPE)
endfunction()

dezimo_themed_icons(modules "" dbmcalc_16 voltagecalc_16 unitconv_16 dbconv_16 vswrconv_16)
dezimo_themed_icons(global "Global/Icons_SVG/%0/"
  Icon_Add_16 Icon_Add_48 Icon_Minus_16
  Icon_player_back_16 Icon_player_next_16
  Icon_Arrow_Down_16 Icon_Arrow_Up_16 Icon_Disclosure_16 Icon_Check_16
  Icon_Ok_32 Icon_Warning_32 Icon_Error_32 Icon_Question_32
)
dezimo_themed_icons(custom "Global/Icons_SVG/custom/" Kelmark_48)

set(app_icon ${CMAKE_CURRENT_SOURCE_DIR}/icons/app/dezimo.svg)
file(CONFIGURE OUTPUT ${DEZIMO_ICON_RESOURCE} @ONLY CONTENT "<RCC>
  <qresource prefix=\"/\">
${icon_entries}    <file alias=\"Global/Icons_SVG/custom/dezimo.svg\">${app_icon}</file>
  </qresource>
</RCC>
")
