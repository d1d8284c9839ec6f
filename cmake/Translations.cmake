# The translations lie beside the executable as translations/qt_<code>.qm.

file(GLOB KORVEX_TS_FILES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/translations/*.ts)
set(KORVEX_TRANSLATIONS_DIR ${KORVEX_BIN_DIR}/translations)
file(MAKE_DIRECTORY ${KORVEX_TRANSLATIONS_DIR})
if(KORVEX_TS_FILES)
  set_source_files_properties(${KORVEX_TS_FILES} PROPERTIES OUTPUT_LOCATION
                              ${KORVEX_TRANSLATIONS_DIR})
  qt5_add_translation(KORVEX_QM_FILES ${KORVEX_TS_FILES})
endif()
add_custom_target(translations ALL DEPENDS ${KORVEX_QM_FILES})
