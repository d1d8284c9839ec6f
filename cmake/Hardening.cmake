# Fills korvex_hardening: what makes a mistake in a program of ours end it instead of handing it over.
# tests/packaging reads the finished programs and fails when one of these is missing.

include(CheckCXXCompilerFlag)
include(CheckPIESupported)

# Objects that can lie anywhere, and programs that do.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
check_pie_supported(LANGUAGES CXX)

# Not every processor and system has all of them.
foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection)
  string(MAKE_C_IDENTIFIER KORVEX_HAS${flag} known)
  # With -Werror: clang only warns about flags that it does not use.
  set(CMAKE_REQUIRED_FLAGS -Werror)
  check_cxx_compiler_flag(${flag} ${known})
  unset(CMAKE_REQUIRED_FLAGS)
  if(${known})
    target_compile_options(korvex_hardening INTERFACE ${flag})
  endif()
endforeach()

# The C library looks at sizes only where the compiler optimises, and a sanitizer looks for itself.
# Some distributions' compilers define it unasked, with another number.
if(NOT KORVEX_SANITIZE)
  set(optimised $<NOT:$<CONFIG:Debug>>)
  target_compile_options(korvex_hardening INTERFACE
    $<${optimised}:-U_FORTIFY_SOURCE> $<${optimised}:-D_FORTIFY_SOURCE=2>)
endif()

# Everything is bound at the start, so that nothing that is called through can be written to later.
if(NOT APPLE)
  target_link_options(korvex_hardening INTERFACE
    -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
endif()
