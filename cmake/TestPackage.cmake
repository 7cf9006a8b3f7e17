# Installs the build tree into a scratch prefix, then configures, builds and runs the example
# hosts against it: a package that does not install or export what a host needs fails here.
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
# Each example checks what its host reads and exits non-zero when it is wrong.
foreach(check designer_dialog/payment_dialog invoice_list/invoice_list payment_split/payment_split)
  execute_process(COMMAND ${WORK_DIR}/example/${check} --check RESULT_VARIABLE failed)
  if(failed)
    message(FATAL_ERROR "the example ${check} read the wrong values")
  endif()
endforeach()
execute_process(COMMAND ${WORK_DIR}/example/headless_screen/headless_screen_test RESULT_VARIABLE failed)
if(failed)
  message(FATAL_ERROR "the headless screen example's test failed")
endif()
