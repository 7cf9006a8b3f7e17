# The API reference: `cmake --build build --target reference` (or scripts/reference) writes it to
# build/reference/html. Doxygen reads the documented public headers only, and any warning (a
# public member without documentation among them) fails the build.
include(${CMAKE_CURRENT_LIST_DIR}/ZentaPublicHeaders.cmake)
# A host that adds this tree gets no target of that name in its own build.
if(NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()
find_program(ZENTA_DOXYGEN doxygen)
if(NOT ZENTA_DOXYGEN)
  return()
endif()
set(zenta_reference_input "")
foreach(header IN LISTS ZENTA_REFERENCE_HEADERS)
  string(APPEND zenta_reference_input " \"${PROJECT_SOURCE_DIR}/${header}\"")
endforeach()
set(zenta_reference_main ${PROJECT_SOURCE_DIR}/docs/reference-main.md)
configure_file(${PROJECT_SOURCE_DIR}/docs/Doxyfile.in ${PROJECT_BINARY_DIR}/reference/Doxyfile @ONLY)
add_custom_target(reference
  COMMAND ${CMAKE_COMMAND} -E remove_directory ${PROJECT_BINARY_DIR}/reference/html
  COMMAND ${ZENTA_DOXYGEN} ${PROJECT_BINARY_DIR}/reference/Doxyfile
  WORKING_DIRECTORY ${PROJECT_BINARY_DIR}/reference
  COMMENT "API reference into ${PROJECT_BINARY_DIR}/reference/html"
  VERBATIM)
