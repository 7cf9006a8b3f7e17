# The public Qt control classes.
add_library(zenta_qt STATIC
  application_context.cpp
  control_widget.cpp
  govt_details.cpp
  payment_details.cpp
  pmt_details.cpp
  std_payment.cpp)
target_link_libraries(zenta_qt PUBLIC zenta_qt_toolkit zenta_controls_simple zenta_payment_details Qt6::Widgets)
zenta_warnings(zenta_qt)

if(TARGET Qt6::UiPlugin)
  add_subdirectory(designer)
else()
  message(STATUS "Qt Designer development files not found: the Designer plugin is skipped")
endif()
