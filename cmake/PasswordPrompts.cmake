# The programs that "sudo --askpass" asks for a password, one per language:
# translations/askpass.js for English, translations/askpass_<code>.js for the others. Their texts are
# in translations/askpass-texts.txt.

set(KORVEX_PROMPT_TEXTS ${CMAKE_SOURCE_DIR}/translations/askpass-texts.txt)

# korvex_literal(<variable> <text>): the text as it stands between the quotes of a string literal.
# JavaScript used to take two of Unicode's separators for ends of lines.
function(korvex_literal variable text)
  string(ASCII 226 128 168 line_separator)
  string(ASCII 226 128 169 paragraph_separator)
  string(REPLACE "\\" "\\\\" text "${text}")
  string(REPLACE "\"" "\\\"" text "${text}")
  string(REPLACE "${line_separator}" "\\u2028" text "${text}")
  string(REPLACE "${paragraph_separator}" "\\u2029" text "${text}")
  set(${variable} "${text}" PARENT_SCOPE)
endfunction()

# korvex_prompt_rows(<table>): the table's lines in the variable rows.
macro(korvex_prompt_rows table)
  file(STRINGS ${table} rows REGEX "^[^#]" ENCODING UTF-8)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${table})
endmacro()

# korvex_prompt_row(): the language of the line in the variable row in CODE, its texts as literals in
# the variables that templates name. (As an argument of a macro, the line would be evaluated.)
macro(korvex_prompt_row)
  set(rest "${row}")
  foreach(column CODE TITLE WHY FIELD OK CANCEL)
    if(NOT rest MATCHES "^ *([^| ][^|]*)(\\|(.*))?$")
      message(FATAL_ERROR "No ${column}: ${row}")
    endif()
    set(rest "${CMAKE_MATCH_3}")
    string(STRIP "${CMAKE_MATCH_1}" text)
    korvex_literal(${column} "${text}")
  endforeach()
  if(NOT rest STREQUAL "")
    message(FATAL_ERROR "More than six columns: ${row}")
  endif()
endmacro()

# korvex_prompt_scripts(<table> <template> <folder> [<variable>]): writes the scripts into the folder
# and their names into the variable.
function(korvex_prompt_scripts table template folder)
  set(names "")
  korvex_prompt_rows(${table})
  foreach(row IN LISTS rows)
    korvex_prompt_row()
    set(name askpass_${CODE}.js)
    if(CODE STREQUAL "en")
      set(name askpass.js)
    endif()
    configure_file(${template} ${folder}/${name} @ONLY NEWLINE_STYLE UNIX
      FILE_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
                       GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
    list(APPEND names ${name})
  endforeach()
  if(ARGC GREATER 3)
    set(${ARGV3} ${names} PARENT_SCOPE)
  endif()
endfunction()

# korvex_prompt_initializers(<table> <file>): the texts as a C++ list of strings, row by row.
function(korvex_prompt_initializers table file)
  set(list "")
  korvex_prompt_rows(${table})
  foreach(row IN LISTS rows)
    korvex_prompt_row()
    string(APPEND list
      "{\"${CODE}\", \"${TITLE}\", \"${WHY}\", \"${FIELD}\", \"${OK}\", \"${CANCEL}\"},\n")
  endforeach()
  file(CONFIGURE OUTPUT ${file} CONTENT "@list@" @ONLY)
endfunction()

set(KORVEX_MACOS_PROMPT ${CMAKE_SOURCE_DIR}/translations/askpass-macos.js.in)
if(APPLE)
  set(prompt_template ${KORVEX_MACOS_PROMPT})
else()
  set(prompt_template ${CMAKE_SOURCE_DIR}/translations/askpass-linux.sh.in)
endif()
korvex_prompt_scripts(${KORVEX_PROMPT_TEXTS} ${prompt_template} ${KORVEX_TRANSLATIONS_DIR}
                      KORVEX_PROMPT_SCRIPTS)
