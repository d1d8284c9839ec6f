# How tests, and what they have in common, are built and run.

# Tests are built far more often than they run long: without optimising, and with the toolkit's
# headers, which are most of what the compiler reads for a test, read once for all of them. Only those
# that many tests use: what has been read so is gone through again at the end of every file.
# (The product is built without, so that a missing include does not go unnoticed there.)
set(quick_compiler -O0)
add_library(korvex_test_headers OBJECT ${CMAKE_SOURCE_DIR}/tests/testheaders.cpp)
target_compile_options(korvex_test_headers PRIVATE ${quick_compiler})
target_link_libraries(korvex_test_headers PRIVATE Qt5::Widgets Qt5::Test korvex_settings)
target_precompile_headers(korvex_test_headers PRIVATE
  <QApplication> <QComboBox> <QDialog> <QDir> <QElapsedTimer> <QFile> <QFileDialog> <QLabel>
  <QLineEdit> <QMap> <QMenu> <QMouseEvent> <QPointer> <QProcess> <QProgressBar> <QPushButton>
  <QRegularExpression> <QSignalSpy> <QTableWidget> <QTemporaryDir> <QTest> <QThread> <QTimer>
  <QTreeWidget> <QWidget>)

# korvex_test_library(<name> [OBJECT] SOURCES <files> LINKS <libraries>)
# What several tests have in common, compiled once.
function(korvex_test_library name)
  cmake_parse_arguments(ARG "OBJECT" "" "SOURCES;LINKS" ${ARGN})
  set(kind STATIC)
  if(ARG_OBJECT)
    set(kind OBJECT)
  endif()
  add_library(${name} ${kind} ${ARG_SOURCES})
  target_include_directories(${name} PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
  target_link_libraries(${name} PUBLIC ${ARG_LINKS} Qt5::Widgets Qt5::Test PRIVATE korvex_settings)
  target_compile_options(${name} PRIVATE ${quick_compiler})
  target_precompile_headers(${name} REUSE_FROM korvex_test_headers)
endfunction()

find_program(KORVEX_GOLD ld.gold)
mark_as_advanced(KORVEX_GOLD)
if(KORVEX_GOLD AND NOT KORVEX_SANITIZE)
  set(quick_linker -fuse-ld=gold)
endif()

# Tells the thread sanitizer what it cannot see of Qt; for executables that it watches.
set(qt_order ${CMAKE_SOURCE_DIR}/tests/threads/qtorder.cpp)
add_library(korvex_qt_order OBJECT EXCLUDE_FROM_ALL ${qt_order})
set_target_properties(korvex_qt_order PROPERTIES AUTOMOC OFF)
target_compile_options(korvex_qt_order PRIVATE -fsanitize=thread -g)
target_link_libraries(korvex_qt_order PRIVATE Qt5::Core korvex_settings)
# Each function that it wraps has its name in the head of the wrapper.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${qt_order})
file(READ ${qt_order} wrappers)
string(REGEX MATCHALL "\nKORVEX_WRAP[^_]+_Z[A-Za-z0-9_]+" wrappers "${wrappers}")
foreach(wrapper ${wrappers})
  string(REGEX MATCH "_Z[A-Za-z0-9_]+" symbol ${wrapper})
  target_link_options(korvex_qt_order INTERFACE -Wl,--wrap=${symbol})
endforeach()

# Most tests are one file that includes what moc makes of it. Calling moc for it takes no time, where
# the usual scan of a target with the file that it compiles takes a third of the whole build.
function(korvex_moc_alone target source)
  if(ARGN)
    return()
  endif()
  get_filename_component(base ${source} NAME_WE)
  get_filename_component(path ${source} ABSOLUTE)
  qt5_generate_moc(${path} ${CMAKE_CURRENT_BINARY_DIR}/${base}.moc)
  target_sources(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR}/${base}.moc)
  set_target_properties(${target} PROPERTIES AUTOMOC OFF)
endfunction()

# korvex_test(<name> LABEL <unit|pages|endtoend|system> SOURCES <files> LINKS <libraries>
#             [TOOLS <real|scripted|drives>] [TIMEOUT <seconds>] [ENVIRONMENT <NAME=value>...]
#             [LAUNCHER <command>...] [OTHER_FLAGS])
# One test executable under CTest, in a folder of its own, with the tools beside it that it names:
# the installed ones, or a stand-in that does what the test wrote down for it (drives: in its
# DriveScenario, with KORVEX_REAL_7Z and KORVEX_REAL_WIMLIB to become). OTHER_FLAGS: it is compiled in
# another way than the others.
function(korvex_test name)
  cmake_parse_arguments(ARG "OTHER_FLAGS" "LABEL;TIMEOUT;TOOLS" "SOURCES;LINKS;ENVIRONMENT;LAUNCHER" ${ARGN})
  set(folder ${CMAKE_BINARY_DIR}/tests/${name})
  add_executable(${name} ${ARG_SOURCES})
  korvex_moc_alone(${name} ${ARG_SOURCES})
  target_link_libraries(${name} PRIVATE korvex_test_support ${ARG_LINKS} korvex_settings)
  target_link_options(${name} PRIVATE ${quick_linker})
  if(KORVEX_SANITIZE STREQUAL "thread")
    target_link_libraries(${name} PRIVATE korvex_qt_order)
  endif()
  set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${folder})
  target_compile_definitions(${name} PRIVATE
    KORVEX_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data"
    KORVEX_SCREENSHOTS="${CMAKE_BINARY_DIR}/screenshots"
    KORVEX_SCRIPTED_DRIVE="$<TARGET_FILE:scripteddrive>"
    KORVEX_SCRIPTED_TOOL="$<TARGET_FILE:scriptedtool>")
  if(NOT ARG_OTHER_FLAGS)
    target_compile_options(${name} PRIVATE ${quick_compiler})
    target_precompile_headers(${name} REUSE_FROM korvex_test_headers)
  endif()
  add_dependencies(${name} scripteddrive scriptedtool)
  if(ARG_TOOLS STREQUAL "real")
    korvex_link_tools(${folder})
  elseif(ARG_TOOLS STREQUAL "scripted")
    korvex_link_tool(${KORVEX_SCRIPTED_TOOL} ${folder}/7z/7z)
    korvex_link_tool(${KORVEX_SCRIPTED_TOOL} ${folder}/cdrtools/mkisofs)
  elseif(ARG_TOOLS STREQUAL "drives")
    foreach(tool 7z/7z wimlib-imagex/wimlib-imagex mkbootable)
      korvex_link_tool(${KORVEX_SCRIPTED_DRIVE} ${folder}/${tool})
    endforeach()
    target_compile_definitions(${name} PRIVATE
      KORVEX_REAL_7Z="${KORVEX_7Z}" KORVEX_REAL_WIMLIB="${KORVEX_WIMLIB}")
  endif()
  korvex_run_test(${name} TARGET ${name} LABEL ${ARG_LABEL} TIMEOUT ${ARG_TIMEOUT}
                  ENVIRONMENT ${ARG_ENVIRONMENT} LAUNCHER ${ARG_LAUNCHER})
endfunction()

# korvex_run_test(<test> TARGET <executable> LABEL <label> [TIMEOUT <seconds>]
#                 [ENVIRONMENT <NAME=value>...] [UNSET <NAME>...] [ARGUMENTS <argument>...]
#                 [LAUNCHER <command>...])
# A further run of a test executable, under another name and environment.
function(korvex_run_test name)
  cmake_parse_arguments(ARG "" "TARGET;LABEL;TIMEOUT" "ENVIRONMENT;UNSET;ARGUMENTS;LAUNCHER" ${ARGN})
  if(NOT ARG_TIMEOUT)
    set(ARG_TIMEOUT 400) # costs nothing while tests end, and the machine may be busy
  endif()
  if(KORVEX_SANITIZE)
    math(EXPR ARG_TIMEOUT "5 * ${ARG_TIMEOUT}")
  endif()
  list(TRANSFORM ARG_UNSET PREPEND --unset=)
  add_test(NAME ${name}
    COMMAND ${CMAKE_COMMAND} -E env ${ARG_UNSET} ${ARG_LAUNCHER} $<TARGET_FILE:${ARG_TARGET}>
            ${ARG_ARGUMENTS})
  set_tests_properties(${name} PROPERTIES LABELS ${ARG_LABEL} TIMEOUT ${ARG_TIMEOUT}
    ENVIRONMENT "QT_QPA_PLATFORM=offscreen;${ARG_ENVIRONMENT}")
endfunction()

set(KORVEX_SCRIPTED_TOOL ${CMAKE_BINARY_DIR}/tests/support/scriptedtool)
set(KORVEX_SCRIPTED_DRIVE ${CMAKE_BINARY_DIR}/tests/support/scripteddrive)
