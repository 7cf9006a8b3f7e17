# Namespaced targets for hosts, whether they add this tree or find the installed package:
# ZentaDataEntry::Core (value types), ZentaDataEntry::Headless (the in-memory toolkit) and
# ZentaDataEntry::Qt (the Qt widgets), each bringing what it needs.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(zenta_exported zenta_core zenta_records zenta_platform zenta_entry zenta_headless zenta_controls_simple
    zenta_distribution zenta_payment_details zenta_invoice_entry)
set_target_properties(zenta_core PROPERTIES EXPORT_NAME Core)
set_target_properties(zenta_records PROPERTIES EXPORT_NAME Records)
set_target_properties(zenta_platform PROPERTIES EXPORT_NAME Platform)
set_target_properties(zenta_entry PROPERTIES EXPORT_NAME Entry)
set_target_properties(zenta_headless PROPERTIES EXPORT_NAME Headless)
set_target_properties(zenta_controls_simple PROPERTIES EXPORT_NAME ControlsSimple)
set_target_properties(zenta_distribution PROPERTIES EXPORT_NAME Distribution)
set_target_properties(zenta_payment_details PROPERTIES EXPORT_NAME PaymentDetails)
set_target_properties(zenta_invoice_entry PROPERTIES EXPORT_NAME InvoiceEntry)
add_library(ZentaDataEntry::Core ALIAS zenta_core)
add_library(ZentaDataEntry::Headless ALIAS zenta_headless)
if(TARGET zenta_qt)
  list(APPEND zenta_exported zenta_qt_toolkit zenta_qt)
  set_target_properties(zenta_qt_toolkit PROPERTIES EXPORT_NAME QtToolkit)
  set_target_properties(zenta_qt PROPERTIES EXPORT_NAME Qt)
  add_library(ZentaDataEntry::Qt ALIAS zenta_qt)
endif()

if(NOT ZENTA_INSTALL)
  return()
endif()

set(zenta_cmake_dir ${CMAKE_INSTALL_LIBDIR}/cmake/ZentaDataEntry)
install(TARGETS ${zenta_exported} EXPORT ZentaDataEntryTargets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
include(${CMAKE_CURRENT_LIST_DIR}/ZentaPublicHeaders.cmake)
foreach(header IN LISTS ZENTA_PUBLIC_HEADERS)
  get_filename_component(folder ${header} DIRECTORY)
  install(FILES ${PROJECT_SOURCE_DIR}/${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder})
endforeach()
if(TARGET zenta_designer_plugin)
  install(TARGETS zenta_designer_plugin LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/qt6/plugins/designer)
endif()
if(TARGET zenta_translations)
  install(FILES ${ZENTA_QM_FILES} DESTINATION ${CMAKE_INSTALL_DATADIR}/zenta/translations)
endif()
install(EXPORT ZentaDataEntryTargets NAMESPACE ZentaDataEntry:: DESTINATION ${zenta_cmake_dir})

if(TARGET zenta_qt)
  set(ZENTA_WITH_QT ON)
else()
  set(ZENTA_WITH_QT OFF)
endif()
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/ZentaDataEntryConfig.cmake.in
                              ${CMAKE_CURRENT_BINARY_DIR}/ZentaDataEntryConfig.cmake
                              INSTALL_DESTINATION ${zenta_cmake_dir})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/ZentaDataEntryConfigVersion.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ZentaDataEntryConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/ZentaDataEntryConfigVersion.cmake
        DESTINATION ${zenta_cmake_dir})
