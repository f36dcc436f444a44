# Installs the library with its headers, the design file reader, the tool, and the CMake package files.
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/SdkDebugDialog)

install(TARGETS SdkDebugDialog EXPORT SdkDebugDialogTargets)
if(TARGET DesignFile)
  install(TARGETS DesignFile EXPORT SdkDebugDialogTargets)
endif()
install(DIRECTORY include/SdkDebugDialog DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(FILES platform/HHSMHwManager.h platform/ComMsgMgr.h
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/SdkDebugDialog/platform)
if(TARGET DesignFile)
  install(FILES platform/DesignFile.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/SdkDebugDialog/platform)
  install(FILES docs/design-file.schema.json DESTINATION ${CMAKE_INSTALL_DATADIR}/SdkDebugDialog)
  install(FILES docs/design-file.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
endif()
if(TARGET qvtcfg)
  install(FILES docs/qvtcfg.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
endif()

install(EXPORT SdkDebugDialogTargets NAMESPACE SdkDebugDialog:: DESTINATION ${package_dir})
configure_package_config_file(cmake/SdkDebugDialogConfig.cmake.in
  ${PROJECT_BINARY_DIR}/SdkDebugDialogConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/SdkDebugDialogConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/SdkDebugDialogConfig.cmake
  ${PROJECT_BINARY_DIR}/SdkDebugDialogConfigVersion.cmake DESTINATION ${package_dir})
