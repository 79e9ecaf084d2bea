# Every source and header against .clang-format; says which lines it would have otherwise.
file(GLOB_RECURSE files ${ROOT}/src/*.h ${ROOT}/src/*.cpp ${ROOT}/tests/*.h ${ROOT}/tests/*.cpp
     ${ROOT}/tools/*.h ${ROOT}/tools/*.cpp)
execute_process(COMMAND clang-format --dry-run -Werror --style=file ${files}
                WORKING_DIRECTORY ${ROOT} RESULT_VARIABLE result)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "clang-format -i mends these files.")
endif()
