# Installs the library, builds examples/dialog with it, runs it on a hand-written option file, and compares all that it
# prints.
file(REMOVE_RECURSE ${WORK})
file(MAKE_DIRECTORY ${WORK})

function(run)
  execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE output ERROR_VARIABLE output RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "${ARGN}\n${output}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD} --prefix ${WORK}/prefix)
run(${CMAKE_COMMAND} -G ${GENERATOR} -S ${SOURCE}/examples/dialog -B ${WORK}/build -DCMAKE_PREFIX_PATH=${WORK}/prefix
  -DCMAKE_CXX_COMPILER=${COMPILER} "-DCMAKE_CXX_FLAGS=${FLAGS} -Wall -Wextra -Werror" -DCMAKE_CXX_STANDARD=17)
run(${CMAKE_COMMAND} --build ${WORK}/build)

configure_file(${CMAKE_CURRENT_LIST_DIR}/hand_written.opt ${WORK}/file.opt COPYONLY)
execute_process(COMMAND ${WORK}/build/dialog ${SOURCE}/examples/designs/small.json ovrin_0 ${WORK}/file.opt
  OUTPUT_FILE ${WORK}/output.txt ERROR_VARIABLE errors RESULT_VARIABLE result)
execute_process(COMMAND diff -u ${CMAKE_CURRENT_LIST_DIR}/dialog.txt ${WORK}/output.txt
  OUTPUT_VARIABLE difference RESULT_VARIABLE differs)
if(NOT result EQUAL 0 OR NOT differs EQUAL 0)
  message(FATAL_ERROR "result ${result}\n${errors}${difference}")
endif()
