# How the code is read over: `lint` (the layout, a test too) and `tidy` (clang-tidy and cppcheck).

find_program(CLANG_FORMAT clang-format)
if(CLANG_FORMAT)
  set(check_format ${CMAKE_COMMAND} -DCLANG_FORMAT=${CLANG_FORMAT} -DROOT=${CMAKE_SOURCE_DIR}
                   -P ${CMAKE_CURRENT_LIST_DIR}/check_format.cmake)
  add_custom_target(lint COMMAND ${check_format} VERBATIM)
  if(ORVANE_TESTS)
    add_test(NAME format COMMAND ${check_format})
  endif()
elseif(ORVANE_TESTS)
  message(FATAL_ERROR "The tests read the code's layout with clang-format: see dependencies.txt.")
endif()

# Both read every source with the flags it is compiled with. They take minutes, so they are no part
# of the tests. Both run even when the first has found something.
add_custom_target(tidy
  COMMAND ${CMAKE_COMMAND} -DROOT=${CMAKE_SOURCE_DIR} -DTREE=${CMAKE_BINARY_DIR}
          -P ${CMAKE_CURRENT_LIST_DIR}/tidy.cmake
  USES_TERMINAL VERBATIM)
