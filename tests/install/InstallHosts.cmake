# Installs the build into a scratch prefix, builds the sample hosts against it and runs them against the
# local food-data service.
file(REMOVE_RECURSE ${WORK_DIR})
function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE out ERROR_VARIABLE out)
  message("${out}")
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "failed: ${ARGN}")
  endif()
endfunction()
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix)
run(${CMAKE_COMMAND} -S ${HOST_SOURCE} -B ${WORK_DIR}/build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
    -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix
    "-DCMAKE_CXX_FLAGS=${HOST_FLAGS}" "-DCMAKE_EXE_LINKER_FLAGS=${HOST_FLAGS}")
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
run(${RUN_HOSTS} ${WORK_DIR}/build/widgets_host ${WORK_DIR}/build/qml_host)
