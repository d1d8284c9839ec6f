# What is started from the build folder and what gets installed. The program finds its tools and
# translations in its own folder, so the tree beside it stays as the build made it.

# The program with everything that it needs beside it, without the tests.
add_custom_target(runnable)
foreach(target korvex-iso-editor askpass mkbootable platform-tool translations icons)
  if(TARGET ${target})
    add_dependencies(runnable ${target})
  endif()
endforeach()

# Bundle identifier and desktop name; a bundle's identifier must never change once it is out.
set(KORVEX_APP_ID org.korvex.IsoEditor)

if(APPLE)
  include(PackagingMacos)
else()
  include(PackagingLinux)
endif()
