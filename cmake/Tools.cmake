# The command-line tools that the program drives lie in its own folder. On a build machine they are
# links to the installed tools; a package ships the tools themselves.

find_program(KORVEX_7Z NAMES 7zz 7z REQUIRED)
find_program(KORVEX_MKISOFS NAMES mkisofs genisoimage REQUIRED)
find_program(KORVEX_WIMLIB NAMES wimlib-imagex REQUIRED)

# korvex_link_tools(<folder>): lays the tools out below <folder> as the program expects them.
function(korvex_link_tools folder)
  korvex_link_tool(${KORVEX_7Z} ${folder}/7z/7z)
  korvex_link_tool(${KORVEX_MKISOFS} ${folder}/cdrtools/mkisofs)
  korvex_link_tool(${KORVEX_WIMLIB} ${folder}/wimlib-imagex/wimlib-imagex)
endfunction()

function(korvex_link_tool program link)
  get_filename_component(folder ${link} DIRECTORY)
  file(MAKE_DIRECTORY ${folder})
  file(CREATE_LINK ${program} ${link} SYMBOLIC)
endfunction()

korvex_link_tools(${KORVEX_BIN_DIR})
