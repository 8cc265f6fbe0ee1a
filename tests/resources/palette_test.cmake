# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# Colors a sheet by a palette of two rows and shows the result for both themes.
# usage: cmake -D FOLDER=<folder> -D ROW=<second row> -D SHEET=<text> -P palette_test.cmake

cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/../../cmake/DezimoPalette.cmake")

file(WRITE ${FOLDER}/palette.txt "# role bright dark use\naccent #000001 #100000 marks\n${ROW}\n")
file(WRITE ${FOLDER}/sheet.qss "${SHEET}")
dezimo_read_palette(${FOLDER}/palette.txt)
foreach(theme IN ITEMS bright dark)
  dezimo_themed(${theme} ${FOLDER}/${theme}.qss ${FOLDER}/sheet.qss ${FOLDER}/sheet.qss)
  file(READ ${FOLDER}/${theme}.qss text)
  message("${theme}: ${text}")
endforeach()
dezimo_check_palette()
