# The install tree on Linux:
#   lib/korvex-iso-editor/                 the tree of the build's bin folder
#   bin/korvex-iso-editor                  link to the program there
#   share/                                 desktop entry, metainfo, icons, licence
# The tools in it are links to the installed ones, so whoever makes a package of it names 7zip,
# genisoimage and wimtools as its dependencies, and syslinux, syslinux-common and mtools, which
# mkbootable runs and copies from; for the disk tools in platform-tools/ they are util-linux, udev,
# fdisk, dosfstools, eject, xorriso and udisks2.

set(home lib/korvex-iso-editor)

# The password prompts among the translations are programs and have to stay executable.
install(DIRECTORY
  ${KORVEX_BIN_DIR}/7z ${KORVEX_BIN_DIR}/cdrtools ${KORVEX_BIN_DIR}/wimlib-imagex
  ${KORVEX_BIN_DIR}/translations
  DESTINATION ${home} USE_SOURCE_PERMISSIONS)

install(TARGETS askpass RUNTIME DESTINATION ${home})
if(TARGET mkbootable)
  install(TARGETS mkbootable RUNTIME DESTINATION ${home})
endif()

install(TARGETS platform-tool RUNTIME DESTINATION ${home}/platform-tools)
foreach(name ${KORVEX_PLATFORM_TOOLS})
  install(FILES ${KORVEX_BIN_DIR}/platform-tools/${name} DESTINATION ${home}/platform-tools)
endforeach()

if(TARGET korvex-iso-editor)
  install(TARGETS korvex-iso-editor RUNTIME DESTINATION ${home})
  set(link ${CMAKE_BINARY_DIR}/packaging/korvex-iso-editor)
  file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/packaging)
  file(CREATE_LINK ../${home}/korvex-iso-editor ${link} SYMBOLIC)
  install(FILES ${link} DESTINATION bin)
endif()

install(FILES ${CMAKE_SOURCE_DIR}/packaging/korvex-iso-editor.desktop
  DESTINATION share/applications)
set(metainfo ${CMAKE_BINARY_DIR}/packaging/${KORVEX_APP_ID}.metainfo.xml)
configure_file(${CMAKE_SOURCE_DIR}/packaging/metainfo.xml.in ${metainfo} @ONLY)
install(FILES ${metainfo} DESTINATION share/metainfo)
install(FILES ${CMAKE_SOURCE_DIR}/LICENSE DESTINATION share/doc/korvex-iso-editor)

# The icon theme knows no size beyond 512 pixels.
if(KORVEX_ICONS_DIR)
  install(DIRECTORY ${KORVEX_ICONS_DIR}/hicolor DESTINATION share/icons
    PATTERN 1024x1024 EXCLUDE)
endif()
