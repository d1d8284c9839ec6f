# cmake -DPROGRAMS=<files> -DREADELF=<program> -DOBJDUMP=<program> -DCOMMANDS=<compile_commands.json>
#       -DSOURCE_DIR=<folder> -P check_hardening.cmake
# Fails when a program of ours lacks what cmake/Hardening.cmake gives to all of them. The finished
# programs are read for what shows in them, the compiler's command lines for the rest.

# Fails unless what was read of the program matches.
function(expect program text pattern what)
  if(NOT text MATCHES "${pattern}")
    message(SEND_ERROR "${program}: ${what}")
  endif()
endfunction()

foreach(program ${PROGRAMS})
  execute_process(COMMAND ${READELF} --wide --file-header --program-headers --dynamic --symbols
    ${program} OUTPUT_VARIABLE elf COMMAND_ERROR_IS_FATAL ANY)
  expect(${program} "${elf}" "Type: +DYN" "always lies at the same place")
  expect(${program} "${elf}" "\\(FLAGS_1\\)[^\n]* PIE" "is no position-independent program")
  expect(${program} "${elf}" "\\(FLAGS(_1)?\\)[^\n]* (BIND_NOW|NOW)" "binds functions late")
  expect(${program} "${elf}" "\n *GNU_RELRO " "leaves its tables of functions writable")
  expect(${program} "${elf}" "\n *GNU_STACK [^\n]* RW +0x" "has an executable stack")
  expect(${program} "${elf}" "__stack_chk_fail" "does not watch its stack")
  execute_process(COMMAND ${OBJDUMP} --disassemble=main --no-show-raw-insn ${program}
    OUTPUT_VARIABLE code COMMAND_ERROR_IS_FATAL ANY)
  if(elf MATCHES "Machine: +[^\n]*X86-64")
    expect(${program} "${code}" "<main>:\n[^\n]*endbr64" "can be entered anywhere")
  endif()
endforeach()

# The tests compile some sources once more in their own way. The tour is no program that ships.
file(STRINGS ${COMMANDS} commands REGEX "\"command\": .* -o (src|tools)/")
list(FILTER commands EXCLUDE REGEX " -o tools/tour/")
foreach(command IN LISTS commands)
  string(REGEX MATCH " -o ([^ ]+)" object "${command}")
  foreach(flag -D_FORTIFY_SOURCE=2 -fstack-protector-strong -fstack-clash-protection -Wformat=2)
    string(FIND "${command}" " ${flag} " place)
    if(place EQUAL -1)
      message(SEND_ERROR "${CMAKE_MATCH_1}: compiled without ${flag}")
    endif()
  endforeach()
endforeach()
list(LENGTH commands checked)
if(checked EQUAL 0)
  message(SEND_ERROR "No source of ours in ${COMMANDS}")
endif()
list(LENGTH PROGRAMS count)
message(STATUS "${count} programs and the compiling of ${checked} sources are as they should be")
