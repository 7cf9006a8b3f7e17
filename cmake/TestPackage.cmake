# Installs the build tree into a scratch prefix, then configures, builds and runs the example
# hosts against it: a package that does not install or export what a host needs fails here.
# Expects BUILD_DIR, EXAMPLE_DIR and WORK_DIR.
file(REMOVE_RECURSE ${WORK_DIR})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${WORK_DIR}/prefix
                RESULT_VARIABLE failed OUTPUT_QUIET)
if(failed)
  message(FATAL_ERROR "install failed")
endif()
# Every installed header compiles from the installed tree alone: a public header that includes
# one left out of the package fails here, not in a host's build.
file(GLOB_RECURSE installed_headers RELATIVE ${WORK_DIR}/prefix/include ${WORK_DIR}/prefix/include/zenta/*.h)
list(LENGTH installed_headers header_count)
message(STATUS "${header_count} headers installed")
set(all_headers "")
foreach(header IN LISTS installed_headers)
  string(APPEND all_headers "#include \"${header}\"\n")
endforeach()
file(WRITE ${WORK_DIR}/headers/all_headers.cpp "${all_headers}")
file(WRITE ${WORK_DIR}/headers/CMakeLists.txt [[
cmake_minimum_required(VERSION 3.22)
project(ZentaHeaders LANGUAGES CXX)
set(CMAKE_CXX_STANDARD 20)
find_package(ZentaDataEntry REQUIRED)
find_package(Qt6 REQUIRED COMPONENTS Widgets Test)
add_library(all_headers OBJECT all_headers.cpp)
target_link_libraries(all_headers PRIVATE ZentaDataEntry::Qt ZentaDataEntry::Headless ZentaDataEntry::ControlsSimple
                                          ZentaDataEntry::PaymentDetails ZentaDataEntry::InvoiceEntry Qt6::Test)
]])
execute_process(COMMAND ${CMAKE_COMMAND} -S ${WORK_DIR}/headers -B ${WORK_DIR}/headers/build -G Ninja
                        -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix
                RESULT_VARIABLE failed OUTPUT_QUIET)
if(NOT failed)
  execute_process(COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}/headers/build RESULT_VARIABLE failed)
endif()
if(failed)
  message(FATAL_ERROR "an installed header does not compile from the installed tree")
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
