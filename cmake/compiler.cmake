# How every target of the project is compiled.

# Sums are taken in the order in which they are written: the sense of a turn can hang on a last bit,
# and pictures are compared to the byte. So no fused multiply-add and no fast-math, nor any other leave
# to put one function of <cmath> in the place of others.
add_library(orvane_options INTERFACE)
target_compile_options(orvane_options INTERFACE
  -ffp-contract=off
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual
  -Wformat=2 -Wimplicit-fallthrough)

# Warnings are errors where the program is worked on (the presets dev and asan), and there only by the
# compilers that have read all of it: those of Debian 12 and 13. What another one thinks of it is
# shown and stops nobody. GCC 12 sees an overlap in std::string::insert and operator+ that is not there.
if(NOT "${CMAKE_CXX_COMPILER_ID} ${CMAKE_CXX_COMPILER_VERSION}" MATCHES "^GNU (12|14)\\.")
  set(CMAKE_COMPILE_WARNING_AS_ERROR OFF)
endif()
target_compile_options(orvane_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)

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

# Three quarters of the compiler's time go into headers of the libraries. Where the program is only
# built, in the preset `release`, those that most sources read are compiled once. Where it is worked on
# they are not, so a source that has forgotten an include is found out. No header of ours is among
# them: a source shall meet no name of the program that it has not asked for.
set(ORVANE_PRECOMPILED
  <algorithm> <array> <cmath> <functional> <memory> <optional> <span> <string> <string_view>
  <unordered_map> <utility> <vector>)
set(ORVANE_PRECOMPILED_QT
  ${ORVANE_PRECOMPILED} <QApplication> <QKeyEvent> <QMouseEvent> <QPainter> <QTimer> <QWidget>)
if(NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
  # GCC warns of what stands in a compiled header as if it were ours. The preset `dev` shows what is.
  target_compile_options(orvane_options INTERFACE -w $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
  if(CCACHE)  # is told that neither the hour nor a macro of ours changes what a header says
    set(CMAKE_CXX_COMPILER_LAUNCHER env CCACHE_SLOPPINESS=pch_defines,time_macros ${CCACHE})
  endif()
endif()
