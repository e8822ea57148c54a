# SPDX-License-Identifier: GPL-3.0-or-later
# Translations of what the libraries and the command say to people. One catalogue a
# language holds the messages of all of them; English has one for its plurals.
find_package(Qt6 6.4 REQUIRED COMPONENTS LinguistTools)

set(KIV_LANGUAGES de es)
set(KIV_LUPDATE_OPTIONS -silent -locations none -no-obsolete -extensions cpp,h
  -I ${PROJECT_SOURCE_DIR} -I ${PROJECT_SOURCE_DIR}/domain -source-language en)
# In this order the messages stand in the catalogues.
set(KIV_MESSAGE_FOLDERS ${PROJECT_SOURCE_DIR}/domain ${PROJECT_SOURCE_DIR}/navigation
  ${PROJECT_SOURCE_DIR}/workbench ${PROJECT_SOURCE_DIR}/apps/kiv ${PROJECT_SOURCE_DIR}/apps/desktop)

# The target update-translations brings the catalogues up to date with the sources:
# new messages come in unfinished, those that are gone leave.
function(kiv_add_update_translations)
  set(commands COMMAND Qt6::lupdate ${KIV_LUPDATE_OPTIONS} -pluralonly ${KIV_MESSAGE_FOLDERS}
    -target-language en -ts ${PROJECT_SOURCE_DIR}/translations/kiv_en.ts)
  foreach(language ${KIV_LANGUAGES})
    list(APPEND commands COMMAND Qt6::lupdate ${KIV_LUPDATE_OPTIONS} ${KIV_MESSAGE_FOLDERS}
      -target-language ${language} -ts ${PROJECT_SOURCE_DIR}/translations/kiv_${language}.ts)
  endforeach()
  add_custom_target(update-translations ${commands} VERBATIM)
endfunction()

# kiv_embed_translations(<library>): the compiled catalogues as the library's resources
# ":/kiv/translations/kiv_<language>.qm".
function(kiv_embed_translations library)
  set(folder ${PROJECT_BINARY_DIR}/translations)
  foreach(language en ${KIV_LANGUAGES})
    set(source ${PROJECT_SOURCE_DIR}/translations/kiv_${language}.ts)
    set(compiled ${folder}/kiv_${language}.qm)
    add_custom_command(OUTPUT ${compiled}
      COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
      COMMAND Qt6::lrelease -silent ${source} -qm ${compiled}
      DEPENDS ${source} VERBATIM)
    list(APPEND catalogues ${compiled})
  endforeach()
  qt_add_resources(${library} translations PREFIX /kiv/translations BASE ${folder}
    FILES ${catalogues})
endfunction()

kiv_add_update_translations()
