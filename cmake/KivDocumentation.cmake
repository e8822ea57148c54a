# SPDX-License-Identifier: GPL-3.0-or-later
# The target docs makes the documentation of the public headers in docs/api of the
# build folder. It fails when a public member is not documented.
find_program(KIV_DOXYGEN doxygen)
if(KIV_DOXYGEN)
  set(exports NUMIRA_EXPORT=)
  foreach(library foundation accounting banking budgeting surveying tagging networking http
                  conversion interchange updating adviser outlook storage navigation workbench)
    string(TOUPPER KIV_${library}_EXPORT= macro)
    string(APPEND exports " ${macro}")
  endforeach()
  configure_file(docs/doxygen/Doxyfile.in docs/Doxyfile @ONLY)
  add_custom_target(docs COMMAND ${KIV_DOXYGEN} ${CMAKE_BINARY_DIR}/docs/Doxyfile VERBATIM)
endif()
