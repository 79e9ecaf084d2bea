# orvane_judge(ANSWER TEST PROGRAM RELEASE): two releases of a program that reads code never think
# alike, so one of them judges. ANSWER is ON where the program is of that release. Where it is another,
# the file LEFT_OUT gets a line that says why the test is not there, and ANSWER is OFF.
function(orvane_judge answer test program release)
  execute_process(COMMAND ${program} --version OUTPUT_VARIABLE said RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "The test '${test}' needs ${program}: see dependencies.txt.")
  endif()
  string(REGEX MATCH "[0-9]+[0-9.]*" found "${said}")
  string(FIND "${found}." "${release}." place)
  if(place EQUAL 0)
    set(${answer} ON PARENT_SCOPE)
  else()
    set(sentence "the test '${test}' is left out: ${program} ${release} is the judge, not ${found}.")
    message(STATUS "${sentence}")
    file(APPEND ${LEFT_OUT} "${sentence}\n")
    set(${answer} OFF PARENT_SCOPE)
  endif()
endfunction()
