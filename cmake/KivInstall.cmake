# SPDX-License-Identifier: GPL-3.0-or-later
# How the libraries are installed: with public headers, versioned sonames, a CMake
# package KivNavigation and a pkg-config file for each.
include(CMakePackageConfigHelpers)

# What is installed finds its libraries wherever the tree is moved. Under /usr the
# system's own search finds them, and a path of their own is unwanted there.
if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
  file(RELATIVE_PATH from_programs_to_libraries
    ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set(CMAKE_INSTALL_RPATH "$ORIGIN;$ORIGIN/${from_programs_to_libraries}")
endif()

# kiv_install_library(<name> <its public libraries>)
function(kiv_install_library name public)
  set(component libkiv)
  set(version ${PROJECT_VERSION})
  if(name STREQUAL "numira")
    set(component libnumira)
    get_target_property(version ${name} VERSION)
  endif()
  set_property(GLOBAL APPEND PROPERTY kiv_libraries_${component} ${name})
  install(TARGETS ${name} EXPORT KivNavigation
    LIBRARY COMPONENT ${component} NAMELINK_COMPONENT dev
    FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kiv COMPONENT dev
    FILE_SET export_header DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kiv COMPONENT dev)

  # Boost has no pkg-config file, and its headers stand where compilers look.
  list(REMOVE_ITEM public Boost::headers)
  string(REPLACE "Qt6::" "Qt6" requires "${public}")
  list(JOIN requires ", " requires)
  set(folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
  file(RELATIVE_PATH from_file_to_prefix ${CMAKE_INSTALL_PREFIX}/${folder} ${CMAKE_INSTALL_PREFIX})
  string(REGEX REPLACE "/$" "" from_file_to_prefix "${from_file_to_prefix}")
  configure_file(${PROJECT_SOURCE_DIR}/cmake/library.pc.in
    ${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/pkgconfig/${name}.pc DESTINATION ${folder} COMPONENT dev)
endfunction()

# kiv_install_package(): the CMake package with all libraries that were declared.
function(kiv_install_package)
  set(folder ${CMAKE_INSTALL_LIBDIR}/cmake/KivNavigation)
  set(generated ${PROJECT_BINARY_DIR}/package)
  install(EXPORT KivNavigation NAMESPACE Kiv:: FILE KivNavigationTargets.cmake
    DESTINATION ${folder} COMPONENT dev)
  configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/KivNavigationConfig.cmake.in
    ${generated}/KivNavigationConfig.cmake INSTALL_DESTINATION ${folder})
  write_basic_package_version_file(${generated}/KivNavigationConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
  install(FILES ${generated}/KivNavigationConfig.cmake ${generated}/KivNavigationConfigVersion.cmake
    DESTINATION ${folder} COMPONENT dev)
endfunction()
