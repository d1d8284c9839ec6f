# cmake -DCLANG_FORMAT=<program> -DSOURCE_DIR=<folder> -P check_format.cmake
# Fails when a source of ours is not laid out as .clang-format says.

set(patterns "")
foreach(folder src tools tests bench)
  list(APPEND patterns ${SOURCE_DIR}/${folder}/*.cpp ${SOURCE_DIR}/${folder}/*.h)
endforeach()
file(GLOB_RECURSE sources ${patterns})
if(NOT sources)
  message(FATAL_ERROR "No sources below ${SOURCE_DIR}")
endif()

execute_process(COMMAND ${CLANG_FORMAT} --style=file --dry-run -Werror ${sources}
  RESULT_VARIABLE result)
list(LENGTH sources count)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "Run ${CLANG_FORMAT} -i on the files named above.")
endif()
message(STATUS "${count} files are laid out well")
