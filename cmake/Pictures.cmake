# The pictures of resources/pictures.txt: drawn from their vector sources at 1x and 2x, compiled into
# the library korvex_pictures (Q_INIT_RESOURCE(pictures)) as :/nwu/<name> and :/nwu/<name>@2x beside
# the style sheet :/qss.qss; and the application icon in the sizes that desktops ask for.

find_program(KORVEX_RSVG_CONVERT NAMES rsvg-convert REQUIRED)

set(KORVEX_RESOURCES_DIR ${CMAKE_SOURCE_DIR}/resources)
set(KORVEX_PICTURES_DIR ${CMAKE_BINARY_DIR}/pictures)
file(MAKE_DIRECTORY ${KORVEX_PICTURES_DIR}/1x ${KORVEX_PICTURES_DIR}/2x)

# korvex_fill_in(<template> <svg>): writes a picture's vector source. @NAME@ stands for a variable, or
# for a drawing, which may name variables itself; {W - 7} is computed, in whole pixels. The file
# keeps its time stamp when nothing in it has changed, so that it is not rendered again.
macro(korvex_fill_in template svg)
  file(READ ${template} text)
  foreach(pass symbol drawings colours)
    string(CONFIGURE "${text}" text @ONLY)
  endforeach()
  string(REGEX MATCHALL "{[WH0-9 +*/-]+}" sums "${text}")
  foreach(sum ${sums})
    string(REGEX REPLACE "[{}]" "" expression ${sum})
    string(REPLACE W ${W} expression ${expression})
    string(REPLACE H ${H} expression ${expression})
    math(EXPR value ${expression})
    string(REPLACE ${sum} ${value} text "${text}")
  endforeach()
  if(text MATCHES "<text")
    message(FATAL_ERROR "${template}: text would be drawn in whatever font the machine has")
  elseif(text MATCHES "[a-z-]+=\"\"|\\(\\)")
    message(FATAL_ERROR "${svg}: ${CMAKE_MATCH_0} comes of a placeholder without a value")
  endif()
  file(CONFIGURE OUTPUT ${svg} CONTENT "${text}" @ONLY)
endmacro()

# korvex_render(<svg> <width> <height> <png>)
function(korvex_render svg width height png)
  add_custom_command(OUTPUT ${png}
    COMMAND ${KORVEX_RSVG_CONVERT} -w ${width} -h ${height} -o ${png} ${svg}
    DEPENDS ${svg} VERBATIM)
endfunction()

# korvex_picture(<picture> <kind> <symbol> <width> <height> <state>): one picture in one state.
# Appends what is rendered to KORVEX_PICTURE_FILES and its aliases to KORVEX_PICTURE_ALIASES.
function(korvex_picture picture kind symbol W H state)
  set(template ${kind})
  if(DEFINED template_${kind})
    set(template ${template_${kind}})
  endif()
  if(NOT DEFINED look_${kind}_${state})
    message(FATAL_ERROR "looks.txt has no state ${state} of ${kind}, which ${picture} asks for")
  endif()
  foreach(pair ${look_${kind}_${state}})
    string(REGEX MATCH "^([A-Z_]+)=(.+)$" matched ${pair})
    set(name ${CMAKE_MATCH_1})
    set(${name} ${CMAKE_MATCH_2})
    if(DEFINED ${${name}})
      set(${name} ${${${name}}})
    endif()
  endforeach()
  if(NOT symbol STREQUAL "-")
    file(READ ${KORVEX_RESOURCES_DIR}/symbols/${symbol}.svg.in SYMBOL)
  endif()
  set(svg ${KORVEX_PICTURES_DIR}/${picture}.svg)
  korvex_fill_in(${KORVEX_RESOURCES_DIR}/templates/${template}.svg.in ${svg})

  math(EXPR double_width "2 * ${W}")
  math(EXPR double_height "2 * ${H}")
  korvex_render(${svg} ${W} ${H} ${KORVEX_PICTURES_DIR}/1x/${picture}.png)
  korvex_render(${svg} ${double_width} ${double_height} ${KORVEX_PICTURES_DIR}/2x/${picture}.png)
  list(APPEND KORVEX_PICTURE_FILES
    ${KORVEX_PICTURES_DIR}/1x/${picture}.png ${KORVEX_PICTURES_DIR}/2x/${picture}.png)
  set(KORVEX_PICTURE_FILES ${KORVEX_PICTURE_FILES} PARENT_SCOPE)
  string(APPEND KORVEX_PICTURE_ALIASES
    "    <file alias=\"${picture}\">1x/${picture}.png</file>\n"
    "    <file alias=\"${picture}@2x\">2x/${picture}.png</file>\n")
  set(KORVEX_PICTURE_ALIASES ${KORVEX_PICTURE_ALIASES} PARENT_SCOPE)
endfunction()

# ---- the lists

file(STRINGS ${KORVEX_RESOURCES_DIR}/looks.txt lines REGEX "^[^#]")
foreach(line ${lines})
  if(line MATCHES "^([A-Z]+) +(#[0-9A-F]+)$")
    set(${CMAKE_MATCH_1} ${CMAKE_MATCH_2})
  elseif(line MATCHES "^([a-z]+) += +([a-z]+)$")
    set(template_${CMAKE_MATCH_1} ${CMAKE_MATCH_2})
  elseif(line MATCHES "^([a-z]+) +([-nhpd]) +(.+)$")
    string(REGEX REPLACE " +" ";" look_${CMAKE_MATCH_1}_${CMAKE_MATCH_2} ${CMAKE_MATCH_3})
  else()
    message(FATAL_ERROR "looks.txt: neither a colour nor a look: ${line}")
  endif()
endforeach()

foreach(drawing badge disc emblem flame sheet stick wordmark)
  string(TOUPPER ${drawing} name)
  file(READ ${KORVEX_RESOURCES_DIR}/symbols/${drawing}.svg.in ${name})
endforeach()
file(STRINGS ${KORVEX_RESOURCES_DIR}/pictures.txt lines REGEX "^[^#]")
foreach(line ${lines})
  if(NOT line MATCHES "^([^ ]+) +([^ ]+) +([^ ]+) +([0-9]+)x([0-9]+) +(-|[nhpd]+)$")
    message(FATAL_ERROR "pictures.txt: not a picture: ${line}")
  endif()
  set(picture ${CMAKE_MATCH_1})
  set(common ${CMAKE_MATCH_2} ${CMAKE_MATCH_3} ${CMAKE_MATCH_4} ${CMAKE_MATCH_5})
  set(states ${CMAKE_MATCH_6})
  if(states STREQUAL "-")
    korvex_picture(${picture} ${common} -)
  else()
    string(REGEX MATCHALL "." states ${states})
    set(number 0)
    foreach(state ${states})
      math(EXPR number "${number} + 1")
      korvex_picture(${picture}${number} ${common} ${state})
    endforeach()
  endif()
endforeach()
file(GLOB sources CONFIGURE_DEPENDS ${KORVEX_RESOURCES_DIR}/*/*.svg.in)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS
  ${KORVEX_RESOURCES_DIR}/pictures.txt ${KORVEX_RESOURCES_DIR}/looks.txt ${sources})

# ---- the library

set(KORVEX_STYLE_SHEET ${KORVEX_RESOURCES_DIR}/qss.qss)
configure_file(${KORVEX_RESOURCES_DIR}/pictures.qrc.in ${KORVEX_PICTURES_DIR}/pictures.qrc @ONLY)
add_custom_command(OUTPUT ${KORVEX_PICTURES_DIR}/qrc_pictures.cpp
  COMMAND Qt5::rcc --name pictures --no-compress
          --output ${KORVEX_PICTURES_DIR}/qrc_pictures.cpp ${KORVEX_PICTURES_DIR}/pictures.qrc
  DEPENDS ${KORVEX_PICTURES_DIR}/pictures.qrc ${KORVEX_STYLE_SHEET} ${KORVEX_PICTURE_FILES}
  VERBATIM)
add_library(korvex_pictures STATIC ${KORVEX_PICTURES_DIR}/qrc_pictures.cpp)
set_target_properties(korvex_pictures PROPERTIES AUTOMOC OFF)
target_link_libraries(korvex_pictures PUBLIC Qt5::Core)

# ---- the application icon

# korvex_icon(<pixels> <png>)
function(korvex_icon pixels png)
  get_filename_component(folder ${png} DIRECTORY)
  file(MAKE_DIRECTORY ${folder})
  set(logo logo)
  if(pixels LESS 32)
    set(logo logo-small)
  endif()
  korvex_render(${KORVEX_PICTURES_DIR}/${logo}.svg ${pixels} ${pixels} ${png})
  set(KORVEX_ICON_FILES ${KORVEX_ICON_FILES} ${png} PARENT_SCOPE)
endfunction()

set(KORVEX_ICONS_DIR ${CMAKE_BINARY_DIR}/icons)
if(APPLE)
  set(iconset ${KORVEX_ICONS_DIR}/korvex-iso-editor.iconset)
  foreach(size 16 32 128 256 512)
    math(EXPR double_size "2 * ${size}")
    korvex_icon(${size} ${iconset}/icon_${size}x${size}.png)
    korvex_icon(${double_size} ${iconset}/icon_${size}x${size}@2x.png)
  endforeach()
  find_program(KORVEX_ICONUTIL NAMES iconutil REQUIRED)
  set(KORVEX_ICNS ${KORVEX_ICONS_DIR}/korvex-iso-editor.icns)
  add_custom_command(OUTPUT ${KORVEX_ICNS}
    COMMAND ${KORVEX_ICONUTIL} -c icns -o ${KORVEX_ICNS} ${iconset}
    DEPENDS ${KORVEX_ICON_FILES} VERBATIM)
  list(APPEND KORVEX_ICON_FILES ${KORVEX_ICNS})
else()
  foreach(size 16 22 24 32 48 64 128 256 512 1024)
    korvex_icon(${size} ${KORVEX_ICONS_DIR}/hicolor/${size}x${size}/apps/korvex-iso-editor.png)
  endforeach()
endif()
add_custom_target(icons ALL DEPENDS ${KORVEX_ICON_FILES})
