# The libraries and programs the build needs. What the finished program runs is in Tools.cmake.

find_package(Qt5 5.15 REQUIRED COMPONENTS Core Gui Widgets LinguistTools)
if(NOT APPLE)
  # The desktop's disk service is asked over it.
  find_package(Qt5 5.15 REQUIRED COMPONENTS DBus)
endif()
if(KORVEX_BUILD_TESTS)
  find_package(Qt5 5.15 REQUIRED COMPONENTS Network)
endif()
if(KORVEX_BUILD_TESTS OR KORVEX_BUILD_TOUR OR KORVEX_BUILD_BENCH)
  find_package(Qt5 5.15 REQUIRED COMPONENTS Test)
endif()
find_package(Threads REQUIRED)
