# cmake -DBUILD_DIR=<folder> -DEXPECTED=<paths below the prefix> -DDESKTOP_FILE_VALIDATE=<program>
#       -P check_install_tree.cmake
# Installs the build into a new folder, once under a prefix and once the way package makers do it
# (DESTDIR), and fails when something is missing, superfluous, dangling or not executable.

# Fails unless file can be run, through links too.
function(expect_executable file)
  execute_process(COMMAND test -x ${file} RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "Not an executable: ${file}")
  endif()
endfunction()

# Every file and link of the tree must lead to something, and the tree holds nothing but ours.
function(check_tree prefix)
  file(GLOB_RECURSE files LIST_DIRECTORIES false RELATIVE ${prefix} ${prefix}/*)
  foreach(file ${files})
    if(NOT EXISTS ${prefix}/${file})
      message(FATAL_ERROR "Leads nowhere: ${prefix}/${file}")
    endif()
    if(NOT file MATCHES "korvex-iso-editor|KORVEX|org\\.korvex\\.")
      message(FATAL_ERROR "Does not belong there: ${prefix}/${file}")
    endif()
  endforeach()
  foreach(file ${EXPECTED}
      lib/korvex-iso-editor/7z/7z
      lib/korvex-iso-editor/cdrtools/mkisofs
      lib/korvex-iso-editor/wimlib-imagex/wimlib-imagex
      share/applications/korvex-iso-editor.desktop
      share/doc/korvex-iso-editor/LICENSE
      share/metainfo/org.korvex.IsoEditor.metainfo.xml)
    if(NOT EXISTS ${prefix}/${file})
      message(FATAL_ERROR "Missing: ${prefix}/${file}")
    endif()
    if(file MATCHES "^(bin/|lib/korvex-iso-editor/)" AND NOT file MATCHES "\\.qm$")
      expect_executable(${prefix}/${file})
    endif()
  endforeach()
  # Nobody but the owner may change what is asked for passwords, and everybody runs it.
  file(GLOB prompts ${prefix}/lib/korvex-iso-editor/translations/askpass*.js)
  foreach(program ${prompts} ${prefix}/lib/korvex-iso-editor/askpass)
    execute_process(COMMAND stat -c %a ${program} OUTPUT_VARIABLE mode
      OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    if(NOT mode STREQUAL "755")
      message(FATAL_ERROR "Mode ${mode}: ${program}")
    endif()
  endforeach()
  execute_process(COMMAND ${DESKTOP_FILE_VALIDATE} --warn-kde
    ${prefix}/share/applications/korvex-iso-editor.desktop COMMAND_ERROR_IS_FATAL ANY)
endfunction()

set(root ${BUILD_DIR}/tests/packaging/installed)
file(REMOVE_RECURSE ${root})

# First the way that can write nowhere else, whatever the install rules say.
execute_process(COMMAND ${CMAKE_COMMAND} -E env DESTDIR=${root}/package
  ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix /usr
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(GLOB beside ${root}/package/*)
if(NOT beside STREQUAL "${root}/package/usr")
  message(FATAL_ERROR "Installed outside the prefix: ${beside}")
endif()
check_tree(${root}/package/usr)

execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${root}/prefix
  OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
check_tree(${root}/prefix)
