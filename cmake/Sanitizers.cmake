# KORVEX_SANITIZE: everything of ours is compiled and linked with those sanitizers, and what one of
# them finds ends the program that did it. KORVEX_FUZZ: besides, everything reports to the fuzzer
# what of it was reached.

if(KORVEX_SANITIZE)
  set(sanitizers -fsanitize=${KORVEX_SANITIZE} -fno-sanitize-recover=all)
  # With frames that can be told: which function, which line.
  target_compile_options(korvex_settings INTERFACE ${sanitizers} -g1 -fno-omit-frame-pointer)
  target_link_options(korvex_settings INTERFACE ${sanitizers})
endif()

if(KORVEX_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "KORVEX_FUZZ needs clang: cmake --preset fuzz")
  endif()
  target_compile_options(korvex_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()
