# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# The icons and the colors of the style sheets, for both themes. DEZIMO_THEMES_RESOURCE is their
# resource file; its folder is laid out as the resources are.

include(DezimoPalette)

set(themes_folder ${CMAKE_CURRENT_BINARY_DIR}/themes)
set(DEZIMO_THEMES_RESOURCE ${themes_folder}/themes.qrc)
set(themes_entries "")

# dezimo_themed_resource(<theme> <path> <source>...): a resource made from sources of this folder.
function(dezimo_themed_resource theme path)
  list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE sources)
  dezimo_themed(${theme} ${themes_folder}/${path} ${sources})
  set(themes_entries "${themes_entries}    <file>${path}</file>\n" PARENT_SCOPE)
endfunction()

dezimo_read_palette(${CMAKE_CURRENT_SOURCE_DIR}/style/palette.txt)
dezimo_palette_header(${CMAKE_CURRENT_BINARY_DIR}/palette/palette.h)

foreach(theme IN ITEMS bright dark)
  foreach(sheet IN ITEMS
      kelmessagebox kelsettingsdialog keltogglebutton kelupdatedownloaddialog kelupdatenotifydialog
      qcheckbox qprogressbar)
    dezimo_themed_resource(${theme} Global/Style/${sheet}_${theme}.qss style/colors/${sheet}.qss)
  endforeach()
  foreach(icon IN ITEMS dbmcalc_16 voltagecalc_16 unitconv_16 dbconv_16 vswrconv_16)
    dezimo_themed_resource(${theme} ${icon}_${theme}.svg icons/modules/${icon}.svg)
  endforeach()
  foreach(icon IN ITEMS
      Icon_Add_16 Icon_Add_48 Icon_Minus_16
      Icon_player_back_16 Icon_player_next_16
      Icon_Arrow_Down_16 Icon_Arrow_Up_16 Icon_Disclosure_16 Icon_Check_16
      Icon_Ok_32 Icon_Warning_32 Icon_Error_32 Icon_Question_32)
    dezimo_themed_resource(${theme}
      Global/Icons_SVG/${theme}/${icon}_${theme}.svg icons/global/${icon}.svg)
  endforeach()
  dezimo_themed_resource(${theme}
    Global/Icons_SVG/custom/Kelmark_48_${theme}.svg icons/custom/Kelmark_48.svg)
endforeach()

dezimo_themed_resource(bright main_light.qss style/colors/main.qss)
dezimo_themed_resource(dark main_dark.qss style/colors/main.qss)

foreach(theme IN ITEMS bright dark)
  dezimo_themed_resource(${theme}
    Global/Html/guide_${theme}.css style/guide.css style/colors/guide.css)
endforeach()

# The panel has no dark sheet of its own; its dark colors stand in the general one.
dezimo_themed_resource(bright Global/Style/kelpanelwidget_bright.qss
  style/colors/kelpanelwidget.qss)
dezimo_themed_resource(bright Global/Style/global_bright.qss style/colors/global.qss)
dezimo_themed_resource(dark Global/Style/global_dark.qss
  style/colors/global.qss style/colors/kelpanelwidget.qss)

dezimo_check_palette()

file(CONFIGURE OUTPUT ${DEZIMO_THEMES_RESOURCE} @ONLY CONTENT "<RCC>
  <qresource prefix=\"/\">
${themes_entries}  </qresource>
</RCC>
")
