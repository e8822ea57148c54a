# SPDX-License-Identifier: GPL-3.0-or-later
# One place for how everything here is compiled, and the two functions with
# which every library and every test is declared.
include(GenerateExportHeader)
include(KivInstall)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC OFF)
# The target all_verify_interface_header_sets compiles every public header alone.
set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)
# All libraries and programs of one build stand together, so that a program
# finds its libraries next to it.
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

find_program(KIV_LINKER_MOLD mold)
if(KIV_LINKER_MOLD)
  add_link_options(-fuse-ld=mold)
endif()
# An undeclared dependency of a library is an error when it is linked, except
# under the sanitizers, whose runtime is only there in the program.
if(NOT KIV_SANITIZE)
  add_link_options($<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,SHARED_LIBRARY>:-Wl,--no-undefined>)
endif()

function(kiv_compile_options target)
  target_compile_definitions(${target} PRIVATE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_STRICT_ITERATORS
    QT_NO_URL_CAST_FROM_STRING)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wold-style-cast -Wnon-virtual-dtor
    -Woverloaded-virtual $<$<CXX_COMPILER_ID:GNU>:-Wsuggest-override>
    # GCC 12 warns wrongly about the assignment of short texts (GCC bug 105651).
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_LESS:$<CXX_COMPILER_VERSION>,13>>:-Wno-restrict>
    $<$<BOOL:${KIV_WERROR}>:-Werror>)
  if(KIV_SANITIZE)
    # With the sanitizers' own code in between, GCC takes much for uninitialised
    # that is not; its manual says so.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_compile_options(${target} PRIVATE -fsanitize=address,undefined
      -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(${target} PRIVATE -fsanitize=address,undefined)
  endif()
endfunction()

# Compiles the sources of a target by sixteens where KIV_TOGETHER asks for it: what most
# of them cost are the headers that they share. Names of unnamed namespaces must
# differ then within the target, and from those in its headers, which they would hide
# from the other files without a word.
function(kiv_compile_together target)
  if(KIV_TOGETHER)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE 16)
    # A tenth less time, for a seventh more memory.
    target_compile_options(${target} PRIVATE
      "$<$<CXX_COMPILER_ID:GNU>:SHELL:--param ggc-min-heapsize=1048576>")
  endif()
endfunction()

# The same for tests. GCC warns when a class of an included file has a member whose type is
# in an unnamed namespace, since such a file is usually a header. Here it is a source.
function(kiv_compile_tests_together target)
  kiv_compile_together(${target})
  if(KIV_TOGETHER)
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
  endif()
endfunction()

# Lets moc run over the sources of a target by way of cmake/moc.in, which saves most of
# its time.
function(kiv_automoc target)
  get_target_property(KIV_MOC Qt6::moc IMPORTED_LOCATION)
  set(moc ${CMAKE_BINARY_DIR}/moc)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/moc.in ${moc} @ONLY
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
  set_target_properties(${target} PROPERTIES AUTOMOC ON AUTOMOC_EXECUTABLE ${moc})
endfunction()

# One set of precompiled headers, compiled once and used by every target.
function(kiv_precompiled_headers)
  file(WRITE ${CMAKE_BINARY_DIR}/generated/precompiled.cpp "")
  add_library(kiv-precompiled STATIC ${CMAKE_BINARY_DIR}/generated/precompiled.cpp)
  target_link_libraries(kiv-precompiled PUBLIC Qt6::Core)
  kiv_compile_options(kiv-precompiled)
  target_precompile_headers(kiv-precompiled PRIVATE
    <QtCore/QDate> <QtCore/QDebug> <QtCore/QMetaType> <QtCore/QObject> <QtCore/QString>
    <algorithm> <compare> <cstdint> <exception> <functional> <map> <memory> <optional>
    <ostream> <set> <stdexcept> <string> <string_view> <utility> <vector>)
endfunction()

# kiv_add_library(<name> DIR <folder> [VERSION <x.y>] [WITHOUT_QT] SOURCES … [MOC <headers>]
#                 [PUBLIC <libraries>] [PRIVATE <libraries>])
#
# Declares the shared library lib<name>.so.<version> whose sources stand in the
# calling folder. DIR is the folder under which others include its headers, and
# <DIR>/export.h is made for it with the macro <NAME>_EXPORT. MOC names the
# headers that declare QObjects. WITHOUT_QT is for a library that uses nothing of
# Qt; it does without the precompiled headers, which are Qt's for the most part.
# The headers among SOURCES are installed, but for those under internal/.
function(kiv_add_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "WITHOUT_QT" "DIR;VERSION" "SOURCES;MOC;PUBLIC;PRIVATE")
  if(NOT arg_VERSION)
    set(arg_VERSION 1.1)
  endif()
  set(headers ${arg_SOURCES})
  list(FILTER headers INCLUDE REGEX "\\.h$")
  list(FILTER headers EXCLUDE REGEX "^internal/")
  add_library(${name} SHARED ${arg_SOURCES})
  string(REPLACE "kiv-" "" short ${name})
  add_library(Kiv::${short} ALIAS ${name})
  set_target_properties(${name} PROPERTIES VERSION ${arg_VERSION} SOVERSION ${arg_VERSION}
    DEFINE_SYMBOL "" EXPORT_NAME ${short})
  if(arg_MOC)
    qt_wrap_cpp(moc_sources ${arg_MOC} TARGET ${name})
    target_sources(${name} PRIVATE ${moc_sources})
  endif()
  string(REPLACE "-" "_" macro ${name})
  string(TOUPPER ${macro} macro)
  generate_export_header(${name} BASE_NAME ${macro}
    EXPORT_FILE_NAME ${CMAKE_BINARY_DIR}/generated/${arg_DIR}/export.h)
  cmake_path(GET CMAKE_CURRENT_SOURCE_DIR PARENT_PATH folder_above)
  target_sources(${name}
    PUBLIC FILE_SET HEADERS BASE_DIRS ${folder_above} FILES ${headers}
    PUBLIC FILE_SET export_header TYPE HEADERS BASE_DIRS ${CMAKE_BINARY_DIR}/generated
      FILES ${CMAKE_BINARY_DIR}/generated/${arg_DIR}/export.h)
  target_include_directories(${name} PUBLIC
    $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}/domain> $<BUILD_INTERFACE:${CMAKE_SOURCE_DIR}>
    $<BUILD_INTERFACE:${CMAKE_BINARY_DIR}/generated>
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/kiv>)
  target_compile_features(${name} PUBLIC cxx_std_20)
  # What is linked privately is nobody's business who uses the installed library.
  target_link_libraries(${name} PUBLIC ${arg_PUBLIC} PRIVATE "$<BUILD_INTERFACE:${arg_PRIVATE}>")
  kiv_compile_options(${name})
  if(NOT arg_WITHOUT_QT)
    kiv_compile_together(${name})
    target_precompile_headers(${name} REUSE_FROM kiv-precompiled)
  endif()
  kiv_install_library(${name} "${arg_PUBLIC}")
  set_property(GLOBAL APPEND PROPERTY kiv_libraries ${name})
  set(foreign ${arg_PUBLIC} ${arg_PRIVATE})
  list(FILTER foreign EXCLUDE REGEX "^(kiv-.*|numira)$")
  set_property(GLOBAL APPEND PROPERTY kiv_foreign_libraries ${foreign})
endfunction()

# kiv_link_as_one(<program> <static library> <what it links>…)
#
# Links the objects of the static library and of all shared ones into the program.
# Otherwise a third of a short command's time goes into binding our own libraries.
function(kiv_link_as_one program app)
  get_property(libraries GLOBAL PROPERTY kiv_libraries)
  get_property(foreign GLOBAL PROPERTY kiv_foreign_libraries)
  # This one brings Qt Network and is loaded when something is sent.
  list(REMOVE_ITEM libraries kiv-http)
  list(REMOVE_ITEM foreign Qt6::Network)
  list(REMOVE_DUPLICATES foreign)
  foreach(library ${app} ${libraries})
    target_sources(${program} PRIVATE $<TARGET_OBJECTS:${library}>)
  endforeach()
  target_include_directories(${program} PRIVATE $<TARGET_PROPERTY:${app},INCLUDE_DIRECTORIES>)
  target_link_libraries(${program} PRIVATE ${foreign} ${ARGN})
  target_link_options(${program} PRIVATE -Wl,--gc-sections -Wl,--as-needed)
  set_target_properties(${program} PROPERTIES BUILD_RPATH ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
endfunction()

# kiv_add_test(<name> [WINDOW] SOURCES … [LIBRARIES …] [TIMEOUT <seconds>] [LABELS …])
#
# A program tst_<name> of those suites that its sources declare (support/suite.h; the
# last line of such a source includes its .moc), and the test <name> that runs all of
# them. One program a library: to link and start many costs more than what they test.
# WINDOW is for tests of the window, which need its application object.
function(kiv_add_test name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "WINDOW" "TIMEOUT" "SOURCES;LIBRARIES;LABELS")
  set(main kiv-test-main)
  set(headers kiv-test-main)
  if(arg_WINDOW)
    set(main kiv-test-window-main)
    set(headers kiv-desktop-app)
  endif()
  add_executable(tst_${name} ${arg_SOURCES})
  kiv_automoc(tst_${name})
  target_link_libraries(tst_${name} PRIVATE ${main} ${arg_LIBRARIES})
  kiv_compile_options(tst_${name})
  kiv_compile_tests_together(tst_${name})
  target_precompile_headers(tst_${name} REUSE_FROM ${headers})
  # Nearly always empty: sources include what moc makes of them.
  set_source_files_properties(
    ${CMAKE_CURRENT_BINARY_DIR}/tst_${name}_autogen/mocs_compilation.cpp
    PROPERTIES SKIP_PRECOMPILE_HEADERS ON)
  kiv_add_run(${name} ${name} TIMEOUT "${arg_TIMEOUT}" LABELS "${arg_LABELS}")
endfunction()

# kiv_add_test_parts(<name> SOURCES … LIBRARIES …): what several test programs share.
function(kiv_add_test_parts name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LIBRARIES")
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC kiv-test-main ${arg_LIBRARIES})
  kiv_compile_options(${name})
  kiv_compile_tests_together(${name})
  target_precompile_headers(${name} REUSE_FROM kiv-test-main)
endfunction()

# kiv_add_run(<test> <name> [<suite> [<function>…]] [RUNS <number>] [TIMEOUT …] [LABELS …])
#
# The test <test> that runs tst_<name>, or only one suite of it, or only functions of
# that. RUNS is handed over as KIV_RANDOM_RUNS, for those who repeat something often.
function(kiv_add_run test name)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "TIMEOUT;RUNS" "LABELS")
  if(NOT arg_TIMEOUT)
    set(arg_TIMEOUT 300)
  endif()
  add_test(NAME ${test} COMMAND tst_${name} ${arg_UNPARSED_ARGUMENTS})
  set(environment QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 TZ=UTC
    QTEST_FUNCTION_TIMEOUT=${arg_TIMEOUT}000 QTEST_DISABLE_STACK_DUMP=1)
  if(arg_RUNS)
    list(APPEND environment KIV_RANDOM_RUNS=${arg_RUNS})
  endif()
  # What may take long begins first, so that nothing runs alone at the end.
  set_tests_properties(${test} PROPERTIES TIMEOUT ${arg_TIMEOUT} COST ${arg_TIMEOUT}
    LABELS "${arg_LABELS}" ENVIRONMENT "${environment}")
endfunction()
