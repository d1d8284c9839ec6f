# The macOS bundle. Tools and translations lie in Contents/MacOS, because the program looks for them
# beside its executable. The build makes a bundle that runs on the build machine; "cmake --install"
# copies it and makes it stand alone: Qt and the libraries of the tools go into it.

if(NOT TARGET korvex-iso-editor)
  return()
endif()

set_target_properties(korvex-iso-editor PROPERTIES
  MACOSX_BUNDLE ON
  MACOSX_BUNDLE_INFO_PLIST ${CMAKE_SOURCE_DIR}/packaging/Info.plist.in
  MACOSX_BUNDLE_BUNDLE_NAME "Korvex ISO Editor"
  MACOSX_BUNDLE_GUI_IDENTIFIER ${KORVEX_APP_ID}
  MACOSX_BUNDLE_BUNDLE_VERSION ${PROJECT_VERSION}
  MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION}
  MACOSX_BUNDLE_ICON_FILE korvex-iso-editor)

set(contents $<TARGET_BUNDLE_CONTENT_DIR:korvex-iso-editor>)
set(icon_command "")
if(KORVEX_ICNS)
  set(icon_command
    COMMAND ${CMAKE_COMMAND} -E make_directory ${contents}/Resources
    COMMAND ${CMAKE_COMMAND} -E copy_if_different ${KORVEX_ICNS}
            ${contents}/Resources/korvex-iso-editor.icns)
endif()
set(mkbootable_command "")
if(TARGET mkbootable)
  set(mkbootable_command
    COMMAND ${CMAKE_COMMAND} -E copy_if_different $<TARGET_FILE:mkbootable> ${contents}/MacOS)
endif()
# mkbootable installs the boot loader of USB disks from there and says which file is missing:
# mbr.bin, ldlinux.sys, ldlinux.bss, ldlinux.c32, libcom32.c32, libutil.c32, chain.c32.
set(KORVEX_BOOT_LOADER "" CACHE PATH "Folder with the boot loader's files for USB disks")
set(boot_loader_command "")
if(KORVEX_BOOT_LOADER)
  set(boot_loader_command
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${KORVEX_BOOT_LOADER} ${contents}/MacOS/syslinux)
endif()

add_custom_target(bundle ALL
  COMMAND ${CMAKE_COMMAND} -E make_directory
          ${contents}/MacOS/7z ${contents}/MacOS/cdrtools ${contents}/MacOS/wimlib-imagex
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${KORVEX_7Z} ${contents}/MacOS/7z/7z
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${KORVEX_MKISOFS} ${contents}/MacOS/cdrtools/mkisofs
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${KORVEX_WIMLIB}
          ${contents}/MacOS/wimlib-imagex/wimlib-imagex
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${KORVEX_BIN_DIR}/translations
          ${contents}/MacOS/translations
  ${mkbootable_command}
  ${boot_loader_command}
  ${icon_command}
  VERBATIM)
add_dependencies(bundle korvex-iso-editor translations)
foreach(target mkbootable icons)
  if(TARGET ${target})
    add_dependencies(bundle ${target})
  endif()
endforeach()
add_dependencies(runnable bundle)

get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
get_filename_component(qt_programs ${qmake} DIRECTORY)
find_program(KORVEX_MACDEPLOYQT NAMES macdeployqt HINTS ${qt_programs} REQUIRED)

install(TARGETS korvex-iso-editor BUNDLE DESTINATION .)
# With further executables named, their libraries are found relative to where each of them lies.
# Changed executables have to be signed again; "-" signs for no one in particular.
install(CODE "
  set(bundle \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/korvex-iso-editor.app\")
  set(beside \"\${bundle}/Contents/MacOS\")
  execute_process(COMMAND \"${KORVEX_MACDEPLOYQT}\" \"\${bundle}\"
    \"-executable=\${beside}/7z/7z\" \"-executable=\${beside}/cdrtools/mkisofs\"
    \"-executable=\${beside}/wimlib-imagex/wimlib-imagex\"
    COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND codesign --force --deep --sign - \"\${bundle}\"
    COMMAND_ERROR_IS_FATAL ANY)
")
