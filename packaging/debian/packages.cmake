# SPDX-License-Identifier: GPL-3.0-or-later
# The Debian packages that `cpack` makes in the build folder, one for each component.
set(CPACK_GENERATOR DEB)
set(CPACK_COMPONENTS_ALL libnumira libkiv kiv desktop dev)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
# Each package has a summary of its own.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(KIV_MAINTAINER "The kiv authors <authors@kiv.invalid>" CACHE STRING
  "Who answers for the Debian packages")
set(CPACK_PACKAGE_CONTACT ${KIV_MAINTAINER})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

execute_process(COMMAND ${CMAKE_COMMAND} -E env LC_ALL=C date -R -ud ${KIV_RELEASE_DATE}
  OUTPUT_VARIABLE debian_date OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
set(version ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
# kiv_debian_package(<component> <package> <section> <dependencies> <description>)
#
# The description's first line is the summary.
macro(kiv_debian_package component package section depends description)
  string(TOUPPER ${component} upper)
  set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package})
  set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
  set(CPACK_DEBIAN_${upper}_DESCRIPTION "${description}")
  set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${depends}")

  set(documents ${CMAKE_INSTALL_DATADIR}/doc/${package})
  configure_file(${CMAKE_CURRENT_SOURCE_DIR}/debian/changelog.in
    debian/${component}/changelog.Debian @ONLY)
  add_custom_command(OUTPUT debian/${component}/changelog.Debian.gz
    COMMAND gzip -9nc debian/${component}/changelog.Debian > debian/${component}/changelog.Debian.gz
    DEPENDS ${made}/debian/${component}/changelog.Debian VERBATIM)
  list(APPEND changelogs ${made}/debian/${component}/changelog.Debian.gz)
  install(FILES ${made}/debian/${component}/changelog.Debian.gz
    DESTINATION ${documents} COMPONENT ${component} EXCLUDE_FROM_ALL)
  install(FILES debian/copyright
    DESTINATION ${documents} COMPONENT ${component} EXCLUDE_FROM_ALL)
endmacro()

kiv_debian_package(libnumira libnumira0.10 libs "" "exact money in any currency (shared library)
Currencies of ISO 4217 and amounts of money as exact decimals, with conversion
and rounding. Nothing is ever kept in binary floating point.")
kiv_debian_package(libkiv libkiv-navigation1.1 libs "libnumira0.10 (= ${version})"
  "personal-budgeting engine (shared libraries)
Ledger with double entry, budget of bills, debts, goals and wages, banks and
their statements. A front end calls the slots of one object, the Navigator,
and hears its signals.")
kiv_debian_package(kiv kiv utils "libkiv-navigation1.1 (= ${version})"
  "household budget on the command line
Keeps accounts, banks, bills, debts, goals and wages in one file, tells what is
due, and compares bank statements with the books. Every command can be
scripted.")
# Sentences of Qt's own, such as why a file cannot be opened.
set(CPACK_DEBIAN_KIV_PACKAGE_RECOMMENDS qt6-translations-l10n)
kiv_debian_package(desktop kiv-desktop utils "libkiv-navigation1.1 (= ${version})"
  "household budget in a window
Shows what is there, what is due and what is left to spend, without the terms
of accounting, and takes what was spent, earned and moved. Every step can be
undone. Works on the same files as the command kiv.")
set(CPACK_DEBIAN_DESKTOP_PACKAGE_RECOMMENDS "qt6-translations-l10n, qt6-wayland, kiv")
kiv_debian_package(dev libkiv-navigation-dev libdevel
  "libkiv-navigation1.1 (= ${version}), libnumira0.10 (= ${version}), qt6-base-dev, libboost-dev"
  "personal-budgeting engine (development files)
Headers, CMake targets and pkg-config files for the libraries of kiv: exact
money, the general ledger, and the Navigator that a front end drives.")

# Other packages learn from shlibs which package holds a library that they use, and
# the trigger tells the dynamic linker of it.
file(WRITE ${made}/debian/triggers "activate-noawait ldconfig\n")
foreach(component libnumira libkiv)
  string(TOUPPER ${component} upper)
  get_property(libraries GLOBAL PROPERTY kiv_libraries_${component})
  set(shlibs "")
  foreach(library IN LISTS libraries)
    get_target_property(soversion ${library} SOVERSION)
    set(package ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    string(APPEND shlibs "lib${library} ${soversion} ${package} (>= ${PROJECT_VERSION})\n")
  endforeach()
  file(WRITE ${made}/debian/${component}/shlibs "${shlibs}")
  set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA
    ${made}/debian/triggers ${made}/debian/${component}/shlibs)
endforeach()
add_custom_target(kiv-changelogs ALL DEPENDS ${changelogs})

include(CPack)
