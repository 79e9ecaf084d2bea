# How the code is read over: `lint` (its layout) and `tidy` (its slips). The releases that judge are
# those of Debian 12; `test` prints what the file says.
include(cmake/judge.cmake)
set(LEFT_OUT ${CMAKE_BINARY_DIR}/left_out)
file(WRITE ${LEFT_OUT} "")

set(check_format ${CMAKE_COMMAND} -DROOT=${CMAKE_SOURCE_DIR}
                 -P ${CMAKE_CURRENT_LIST_DIR}/check_format.cmake)
add_custom_target(lint COMMAND ${check_format} VERBATIM)
if(ORVANE_TESTS)
  orvane_judge(judged format clang-format 14)
  if(judged)
    add_test(NAME format COMMAND ${check_format})
  endif()
endif()

# clang-tidy and cppcheck, each with the flags a source is compiled with. What was clean and has not
# changed since is not read again. It takes every core, so no other test runs beside it.
set(tidy ${CMAKE_SOURCE_DIR}/tools/tidy --tree ${CMAKE_BINARY_DIR})
add_custom_target(tidy COMMAND ${tidy} USES_TERMINAL VERBATIM)
if(ORVANE_TESTS AND ORVANE_TIDY)
  orvane_judge(judged tidy clang-tidy 14)
  if(judged)
    orvane_judge(judged tidy cppcheck 2.10)
  endif()
  if(judged)
    cmake_host_system_information(RESULT cores QUERY NUMBER_OF_LOGICAL_CORES)
    add_test(NAME tidy COMMAND ${tidy})
    set_tests_properties(tidy PROPERTIES PROCESSORS ${cores} TIMEOUT 3600)
  endif()
endif()
