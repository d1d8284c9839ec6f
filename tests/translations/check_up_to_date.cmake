# Updates copies of the translations' sources and compares them with the originals.
file(REMOVE_RECURSE ${WORK})
file(COPY ${SOURCES} DESTINATION ${WORK})
file(GLOB copies ${WORK}/*.ts)
if(NOT copies)
  message(FATAL_ERROR "There are no translations to check.")
endif()
execute_process(COMMAND ${LUPDATE} -silent ${ARGUMENTS} ${copies} COMMAND_ERROR_IS_FATAL ANY)
foreach(source IN LISTS SOURCES)
  get_filename_component(name ${source} NAME)
  execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${source} ${WORK}/${name}
                  RESULT_VARIABLE is_different)
  if(is_different)
    message(SEND_ERROR "${name} is not up to date: build the target update-translations "
                       "and translate what has come in.")
  endif()
endforeach()
