# One set of compiler rules for every target of the tree.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_INCLUDE_CURRENT_DIR ON)

if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Kind of build" FORCE)
endif()

# What every target of ours is compiled with, tests included.
add_library(korvex_settings INTERFACE)
target_compile_options(korvex_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wnon-virtual-dtor -Wformat=2
  $<$<BOOL:${KORVEX_WERROR}>:-Werror>)
target_compile_definitions(korvex_settings INTERFACE QT_NO_FOREACH QT_DEPRECATED_WARNINGS)

# What the programs that leave the house are compiled and linked with besides: they read what
# strangers wrote, and one of them runs as root. Tests do without, they are not optimised.
add_library(korvex_hardening INTERFACE)
include(Hardening)

# korvex_library(<name> SOURCES <files> [LINKS <libraries>])
# One static library per source folder. Only what is named under LINKS can be included and linked,
# which keeps the layers pointing one way.
function(korvex_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  set(kind STATIC)
  if(KORVEX_SHARED_LIBRARIES)
    set(kind SHARED)
  endif()
  add_library(${name} ${kind} ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} PRIVATE korvex_settings korvex_hardening)
endfunction()

# korvex_program(<name> FOLDER <folder> SOURCES <files> LINKS <libraries>)
# A program of ours that ships, or that runs beside one that does.
function(korvex_program name)
  cmake_parse_arguments(ARG "" "FOLDER" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE ${ARG_LINKS} korvex_settings korvex_hardening)
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${ARG_FOLDER})
  set_property(GLOBAL APPEND PROPERTY KORVEX_PROGRAMS ${name})
endfunction()

include(Sanitizers)
