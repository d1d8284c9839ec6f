# The translations lie beside the executable: the program's own texts as translations/qt_<code>.qm,
# the toolkit's (file dialogs, context menus, standard buttons) as translations/qtbase_<code>.qm.

set(KORVEX_TRANSLATION_SOURCES ${CMAKE_SOURCE_DIR}/translations)
file(GLOB KORVEX_TS_FILES CONFIGURE_DEPENDS ${KORVEX_TRANSLATION_SOURCES}/*.ts)
set(KORVEX_TRANSLATIONS_DIR ${KORVEX_BIN_DIR}/translations)
file(MAKE_DIRECTORY ${KORVEX_TRANSLATIONS_DIR})
set_source_files_properties(${KORVEX_TS_FILES} PROPERTIES OUTPUT_LOCATION
                            ${KORVEX_TRANSLATIONS_DIR})
qt5_add_translation(KORVEX_QM_FILES ${KORVEX_TS_FILES})

# The toolkit's files under our codes. One that it does not ship may be among our sources.
get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
execute_process(COMMAND ${qmake} -query QT_INSTALL_TRANSLATIONS
                OUTPUT_VARIABLE toolkit_translations OUTPUT_STRIP_TRAILING_WHITESPACE
                COMMAND_ERROR_IS_FATAL ANY)
set(KORVEX_TOOLKIT_QM_FILES "")
foreach(pair zh=zh_CN ja=ja fr=fr de=de es=es pt=pt_BR pl=pl it=it ru=ru nl=nl)
  string(REGEX MATCH "(.*)=(.*)" pair ${pair})
  set(shipped ${toolkit_translations}/qtbase_${CMAKE_MATCH_2}.qm)
  set(copy ${KORVEX_TRANSLATIONS_DIR}/qtbase_${CMAKE_MATCH_1}.qm)
  if(NOT EXISTS ${shipped})
    message(WARNING "The toolkit's own texts stay English: there is no ${shipped}")
    continue()
  endif()
  add_custom_command(OUTPUT ${copy} DEPENDS ${shipped}
                     COMMAND ${CMAKE_COMMAND} -E copy ${shipped} ${copy} VERBATIM)
  list(APPEND KORVEX_TOOLKIT_QM_FILES ${copy})
endforeach()
add_custom_target(translations ALL DEPENDS ${KORVEX_QM_FILES} ${KORVEX_TOOLKIT_QM_FILES})

# Brings the translations' sources into line with the texts in the program: new texts come in
# unfinished, those that are gone leave.
file(GLOB KORVEX_OWN_TS_FILES CONFIGURE_DEPENDS ${KORVEX_TRANSLATION_SOURCES}/qt_*.ts)
set(KORVEX_LUPDATE_ARGUMENTS -locations none -no-obsolete ${CMAKE_SOURCE_DIR}/src -ts)
add_custom_target(update-translations
  COMMAND Qt5::lupdate ${KORVEX_LUPDATE_ARGUMENTS} ${KORVEX_OWN_TS_FILES}
  WORKING_DIRECTORY ${CMAKE_SOURCE_DIR} VERBATIM)
