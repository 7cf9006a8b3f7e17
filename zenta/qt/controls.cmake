# The public Qt control classes.
add_library(zenta_qt STATIC
  application_context.cpp
  chart_of_accounts.cpp
  control_widget.cpp
  govt_details.cpp
  invoice_entry.cpp
  invoice_line_list.cpp
  invoice_record.cpp
  payment_details.cpp
  pmt_details.cpp
  translator.cpp
  std_payment.cpp)
target_link_libraries(zenta_qt PUBLIC zenta_qt_toolkit zenta_controls_simple zenta_payment_details zenta_invoice_entry Qt6::Widgets)
zenta_warnings(zenta_qt)

if(TARGET Qt6::UiPlugin AND TARGET Qt6::Designer)
  add_subdirectory(designer)
else()
  message(STATUS "Qt Designer development files not found: the Designer plugin is skipped")
endif()

# The French-Canadian translation, compiled by lrelease and built into the library, so a host
# needs no file beside its program. Without Qt's linguist tools the library has none to offer.
set(zenta_ts ${CMAKE_CURRENT_SOURCE_DIR}/translations/zenta_fr_CA.ts)
set(zenta_qm_cpp ${CMAKE_CURRENT_BINARY_DIR}/zenta_fr_CA_qm.cpp)
if(TARGET Qt6::lrelease)
  add_custom_command(OUTPUT ${zenta_qm_cpp}
    COMMAND Qt6::lrelease -silent ${zenta_ts} -qm ${CMAKE_CURRENT_BINARY_DIR}/zenta_fr_CA.qm
    COMMAND ${CMAKE_COMMAND} -DINPUT=${CMAKE_CURRENT_BINARY_DIR}/zenta_fr_CA.qm -DOUTPUT=${zenta_qm_cpp}
            -DNAME=kFrenchCanada -P ${PROJECT_SOURCE_DIR}/cmake/EmbedFile.cmake
    DEPENDS ${zenta_ts} ${PROJECT_SOURCE_DIR}/cmake/EmbedFile.cmake VERBATIM)
else()
  file(WRITE ${zenta_qm_cpp} "namespace zenta::qt::translations {\nextern const unsigned char kFrenchCanada[] = {0};\n"
                             "extern const int kFrenchCanadaSize = 0;\n}\n")
endif()
target_sources(zenta_qt PRIVATE ${zenta_qm_cpp})
