# orvane_embed(TARGET NAME FILE): the bytes of FILE become part of TARGET, found at run time as
#   #include <embedded/NAME.h>
#   std::span<const unsigned char> bytes = orvane::embedded::NAME();
# so that a program needs no data file beside it. The assembler reads the file as it stands.
function(orvane_embed target name file)
  if(NOT EXISTS ${file})
    message(FATAL_ERROR "${file} is missing; dependencies.txt names the package that brings it")
  endif()
  # A compiler cache sees the source alone and not the file that the assembler reads, so the source
  # bears the file's hash.
  file(SHA256 ${file} hash)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${file})
  set(folder ${CMAKE_BINARY_DIR}/embedded)
  file(CONFIGURE OUTPUT ${folder}/${name}.h @ONLY CONTENT [[
#pragma once

#include <span>

namespace orvane::embedded {

std::span<const unsigned char> @name@();

}  // namespace orvane::embedded
]])
  file(CONFIGURE OUTPUT ${folder}/${name}.cpp @ONLY CONTENT [[
#include <embedded/@name@.h>

extern "C" const char orvane_embedded_@name@_hash[];
extern "C" const char orvane_embedded_@name@_hash[] = "@hash@";

asm(R"(
  .section .rodata
  .balign 16
orvane_embedded_@name@:
  .incbin "@file@"
orvane_embedded_@name@_end:
  .balign 16
  .global orvane_embedded_@name@
  .global orvane_embedded_@name@_end
  .text
)");

extern "C" const unsigned char orvane_embedded_@name@[];
extern "C" const unsigned char orvane_embedded_@name@_end[];

namespace orvane::embedded {

std::span<const unsigned char> @name@() {
  return {orvane_embedded_@name@, orvane_embedded_@name@_end};
}

}  // namespace orvane::embedded
]])
  set_source_files_properties(${folder}/${name}.cpp PROPERTIES
    TARGET_DIRECTORY ${target} OBJECT_DEPENDS ${file} GENERATED ON)
  target_sources(${target} PRIVATE ${folder}/${name}.cpp)
  target_include_directories(${target} PRIVATE ${CMAKE_BINARY_DIR})
endfunction()
