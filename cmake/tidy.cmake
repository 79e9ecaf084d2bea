# clang-tidy by .clang-tidy and cppcheck, each over every source of the compilation database.
cmake_host_system_information(RESULT cores QUERY NUMBER_OF_LOGICAL_CORES)
foreach(tool IN ITEMS run-clang-tidy cppcheck)
  find_program(path_of_${tool} ${tool})
  if(NOT path_of_${tool})
    message(FATAL_ERROR "There is no ${tool} here: install the [tidy] group of dependencies.txt.")
  endif()
endforeach()

execute_process(
  COMMAND run-clang-tidy -quiet -j ${cores} -p ${TREE} ^${ROOT}/
  ERROR_QUIET RESULT_VARIABLE clang_tidy)
execute_process(
  COMMAND cppcheck --project=${TREE}/compile_commands.json --cppcheck-build-dir=${TREE}/cppcheck
          -j ${cores} --enable=warning,performance,portability --library=googletest
          --inline-suppr --quiet
          --suppress=passedByValue  # a struct of five ints is handed over as it is
          --file-filter=${ROOT}/* --error-exitcode=1
  RESULT_VARIABLE cppcheck)
if(clang_tidy OR cppcheck)
  message(FATAL_ERROR "clang-tidy ended with ${clang_tidy}, cppcheck with ${cppcheck}.")
endif()
