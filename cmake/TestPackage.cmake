# Installs the build tree into a scratch prefix, then configures, builds and runs the example
# host against it: a package that does not install or export what a host needs fails here.
# Expects BUILD_DIR, EXAMPLE_DIR and WORK_DIR.
file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix
                RESULT_VARIABLE failed OUTPUT_QUIET)
if(failed)
  message(FATAL_ERROR "install failed")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} -S ${EXAMPLE_DIR} -B ${WORK_DIR}/example -G Ninja
                        -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix -Wdev --warn-uninitialized
                RESULT_VARIABLE failed OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(failed OR err MATCHES "Warning")
  message(FATAL_ERROR "configuring the example failed or warned:\n${out}\n${err}")
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}/example RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "building the example failed")
endif()
execute_process(COMMAND ${WORK_DIR}/example/payment_dialog --check RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "the example read the wrong amount")
endif()
