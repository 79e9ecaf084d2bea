# How the code is read over: `lint` (its layout) and `tidy` (its slips).

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

# clang-tidy and cppcheck, each with the flags a source is compiled with. What was clean and has not
# changed since is not read again. It takes every core, so no other test runs beside it.
set(tidy ${CMAKE_SOURCE_DIR}/tools/tidy --tree ${CMAKE_BINARY_DIR})
add_custom_target(tidy COMMAND ${tidy} USES_TERMINAL VERBATIM)
if(ORVANE_TESTS AND ORVANE_TIDY)
  cmake_host_system_information(RESULT cores QUERY NUMBER_OF_LOGICAL_CORES)
  add_test(NAME tidy COMMAND ${tidy})
  set_tests_properties(tidy PROPERTIES PROCESSORS ${cores} TIMEOUT 3600)
endif()
