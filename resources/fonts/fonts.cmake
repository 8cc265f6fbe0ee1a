# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# Makes the application fonts in the build folder; DEZIMO_FONT_SOURCES holds them as a resource.

include(DezimoPython)
dezimo_require_python_module(fontTools.subset python3-fonttools)

# dezimo_find_fonts(<variable> <package> <file>...): sets the variable to the files found.
function(dezimo_find_fonts out package)
  foreach(name IN LISTS ARGN)
    find_file(DEZIMO_FONT_${name} ${name}
      PATHS ${DEZIMO_FONT_DIRS}
            /usr/share/fonts/truetype/roboto/unhinted
            /usr/share/fonts/truetype/roboto/unhinted/RobotoTTF
            /usr/share/fonts/truetype/dejavu
      NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH
    )
    mark_as_advanced(DEZIMO_FONT_${name})
    if(NOT DEZIMO_FONT_${name})
      message(FATAL_ERROR "The font file ${name} was not found. Debian's package: ${package}. "
                          "DEZIMO_FONT_DIRS names other folders to look in.")
    endif()
    list(APPEND found ${DEZIMO_FONT_${name}})
  endforeach()
  set(${out} ${found} PARENT_SCOPE)
endfunction()

set(DEZIMO_FONT_DIRS "" CACHE STRING "Folders with the source fonts, searched first")
mark_as_advanced(DEZIMO_FONT_DIRS)

dezimo_find_fonts(outlines fonts-roboto-unhinted
  Roboto-Bold.ttf Roboto-Italic.ttf Roboto-Light.ttf Roboto-Regular.ttf
  RobotoCondensed-Bold.ttf RobotoCondensed-Italic.ttf
  RobotoCondensed-Light.ttf RobotoCondensed-Regular.ttf
)
dezimo_find_fonts(fillers fonts-dejavu-core DejaVuSans.ttf DejaVuSans-Bold.ttf)

set(font_folder ${CMAKE_CURRENT_BINARY_DIR}/fonts)
set(font_entries "")
foreach(family Tessan TessanCd)
  foreach(style Bold Italic Light Regular)
    set(name ${family}_v3_${style}_02.ttf)
    list(APPEND font_files ${font_folder}/${name})
    string(APPEND font_entries "    <file>${name}</file>\n")
  endforeach()
endforeach()

add_custom_command(
  OUTPUT ${font_files}
  COMMAND ${DEZIMO_PYTHON} ${CMAKE_CURRENT_SOURCE_DIR}/fonts/make_fonts.py
          ${font_folder} ${DEZIMO_QT} ${outlines} ${fillers}
  DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/fonts/make_fonts.py ${outlines} ${fillers}
  COMMENT "Making the fonts Tessan and TessanCd"
  VERBATIM
)

# AUTORCC would run in every build, because the build itself makes the files.
file(CONFIGURE OUTPUT ${font_folder}/fonts.qrc @ONLY CONTENT "<RCC>
  <qresource prefix=\"/Global/Fonts\">
${font_entries}  </qresource>
</RCC>
")
cmake_language(CALL qt${DEZIMO_QT}_add_resources
  DEZIMO_FONT_SOURCES ${font_folder}/fonts.qrc OPTIONS ${DEZIMO_RCC_OPTIONS})
