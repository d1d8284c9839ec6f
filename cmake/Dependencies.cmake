# The libraries and programs the build needs. What the finished program runs is in Tools.cmake.

find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets LinguistTools)
if(KORVEX_BUILD_TESTS OR KORVEX_BUILD_BENCH)
  find_package(Qt5 5.15 REQUIRED COMPONENTS Test)
endif()
find_package(Threads REQUIRED)
