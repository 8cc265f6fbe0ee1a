# SPDX-FileCopyrightText: 2026 Vantrel
# SPDX-License-Identifier: MIT
#
# Makes the page of the guide in the build folder; DEZIMO_HTML_SOURCES holds it, its pictures and the
# legal page as one resource. Qt asks every resource for every name, so that another one would make
# the program start later.

include(DezimoPython)
dezimo_require_python_module(markdown python3-markdown)

set(docs ${PROJECT_SOURCE_DIR}/docs)
set(html_folder ${CMAKE_CURRENT_BINARY_DIR}/html)
file(MAKE_DIRECTORY ${html_folder})
set(html_entries "")
foreach(module IN ITEMS
    dbm-calculator voltage-calculator unit-converter db-converter vswr-converter)
  set(picture pictures/${module}.png)
  list(APPEND guide_pictures ${docs}/${picture})
  string(APPEND html_entries "    <file alias=\"${picture}\">${docs}/${picture}</file>\n")
endforeach()

add_custom_command(
  OUTPUT ${html_folder}/guide.html
  COMMAND ${DEZIMO_PYTHON} ${CMAKE_CURRENT_SOURCE_DIR}/html/make_guide.py
          ${docs}/guide.md ${html_folder}/guide.html
  DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/html/make_guide.py ${docs}/guide.md ${guide_pictures}
  COMMENT "Making the page of the guide"
  VERBATIM
)

# AUTORCC would run in every build, because the build itself makes the page.
file(CONFIGURE OUTPUT ${html_folder}/html.qrc @ONLY CONTENT "<RCC>
  <qresource prefix=\"/Global/Html\">
    <file alias=\"License.html\">${CMAKE_CURRENT_SOURCE_DIR}/html/License.html</file>
    <file>guide.html</file>
${html_entries}  </qresource>
</RCC>
")
cmake_language(CALL qt${DEZIMO_QT}_add_resources
  DEZIMO_HTML_SOURCES ${html_folder}/html.qrc OPTIONS ${DEZIMO_RCC_OPTIONS})
