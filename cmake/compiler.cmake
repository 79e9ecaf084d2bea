# How every target of the project is compiled.

# Sums are taken in the order in which they are written: the sense of a turn can hang on a last bit,
# and pictures are compared to the byte. So no fused multiply-add and no fast-math.
add_library(orvane_options INTERFACE)
target_compile_options(orvane_options INTERFACE
  -ffp-contract=off
  -fno-math-errno  # changes no value: nobody reads errno behind a square root
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual
  -Wformat=2 -Wimplicit-fallthrough)

# Warnings are errors where the program is worked on (the presets dev and asan), and there only by the
# compilers that have read all of it: those of Debian 12 and 13. What another one thinks of it is
# shown and stops nobody. GCC 12 sees an overlap in std::string::insert and operator+ that is not there.
if(NOT "${CMAKE_CXX_COMPILER_ID} ${CMAKE_CXX_COMPILER_VERSION}" MATCHES "^GNU (12|14)\\.")
  set(CMAKE_COMPILE_WARNING_AS_ERROR OFF)
endif()
target_compile_options(orvane_options INTERFACE -Wno-restrict)

# Checked code looks to the compiler as if variables were used unset; the warning has no meaning there.
if(ORVANE_SANITIZE)
  target_compile_options(orvane_options INTERFACE
    -fsanitize=${ORVANE_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all
    -Wno-maybe-uninitialized)
  target_link_options(orvane_options INTERFACE -fsanitize=${ORVANE_SANITIZE})
endif()

# The compiler counts for the fuzzer which ways the program has gone; only a fuzzer links its main.
if(ORVANE_FUZZ)
  if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "The fuzzers are built by Clang: use the preset fuzz.")
  endif()
  target_compile_options(orvane_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

if(ORVANE_COVERAGE)
  target_link_options(orvane_options INTERFACE --coverage)
endif()

find_program(CCACHE ccache)
if(CCACHE)
  set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
