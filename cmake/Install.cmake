# Installs what is built, in components:
#   runtime      the shared library
#   development  headers, the link to the shared library, static libraries, the files of CMake and pkg-config
#   tool         qvtcfg, with man pages, completions, and the schemas of what it reads and answers
#   documents    the guides and examples
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/SdkDebugDialog)
set(package_build_dir ${PROJECT_BINARY_DIR}/package)

# --- The libraries ---
# install_library(TARGET NAME): with its targets file SdkDebugDialog<NAME>Targets.cmake and SdkDebugDialog<NAME>.pc.
function(install_library target name)
  install(TARGETS ${target} EXPORT SdkDebugDialog${name}Targets
    RUNTIME COMPONENT runtime
    LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE COMPONENT development
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(EXPORT SdkDebugDialog${name}Targets NAMESPACE SdkDebugDialog:: DESTINATION ${package_dir}
    COMPONENT development)
  configure_file(cmake/SdkDebugDialog${name}.pc.in ${package_build_dir}/SdkDebugDialog${name}.pc @ONLY)
  install(FILES ${package_build_dir}/SdkDebugDialog${name}.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig
    COMPONENT development)
endfunction()

# The prefix in the pkg-config files is relative to them, so that an installed tree can be moved.
cmake_path(APPEND pkgconfig_libdir "\${prefix}" ${CMAKE_INSTALL_LIBDIR})
cmake_path(APPEND pkgconfig_includedir "\${prefix}" ${CMAKE_INSTALL_INCLUDEDIR})
file(RELATIVE_PATH prefix_from_pkgconfig ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" prefix_from_pkgconfig ${prefix_from_pkgconfig})
cmake_path(APPEND pkgconfig_prefix "\${pcfiledir}" ${prefix_from_pkgconfig})
# What a program has to link beside a static library.
set(pkgconfig_static_libs "")
if(kind STREQUAL STATIC)
  set(pkgconfig_static_libs " -lboost_filesystem")
endif()

set(headers HHSMHwManager.h ComMsgMgr.h)
install_library(SdkDebugDialog "")
if(TARGET SdkDebugDialogDesignFile)
  install_library(SdkDebugDialogDesignFile DesignFile)
  list(APPEND headers DesignFile.h)
endif()

install(DIRECTORY include/SdkDebugDialog DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
list(TRANSFORM headers PREPEND platform/)
install(FILES ${headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/SdkDebugDialog/platform COMPONENT development)

configure_package_config_file(cmake/SdkDebugDialogConfig.cmake.in
  ${package_build_dir}/SdkDebugDialogConfig.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${package_build_dir}/SdkDebugDialogConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${package_build_dir}/SdkDebugDialogConfig.cmake ${package_build_dir}/SdkDebugDialogConfigVersion.cmake
  DESTINATION ${package_dir} COMPONENT development)

# --- The tool ---
if(TARGET qvtcfg)
  # A relative path to the library, so that an installed tree can be moved.
  file(RELATIVE_PATH library_from_tool ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
  set_target_properties(qvtcfg PROPERTIES INSTALL_RPATH "$ORIGIN/${library_from_tool}")
  install(TARGETS qvtcfg RUNTIME COMPONENT tool)
  file(GLOB commands CONFIGURE_DEPENDS docs/man/qvtcfg*.1)
  file(GLOB formats CONFIGURE_DEPENDS docs/man/*.5)
  install(FILES ${commands} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT tool)
  install(FILES ${formats} DESTINATION ${CMAKE_INSTALL_MANDIR}/man5 COMPONENT tool)
  set(completions tools/qvtcfg/completions)
  install(FILES ${completions}/qvtcfg.bash RENAME qvtcfg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT tool)
  install(FILES ${completions}/_qvtcfg DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions COMPONENT tool)
  install(FILES ${completions}/qvtcfg.fish
    DESTINATION ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d COMPONENT tool)
  install(FILES docs/design-file.schema.json docs/qvtcfg-answer.schema.json
    DESTINATION ${CMAKE_INSTALL_DATADIR}/SdkDebugDialog COMPONENT tool)
  # The notices of the libraries that are compiled into the tool.
  install(FILES LICENSE docs/licences.md DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/qvtcfg COMPONENT tool)
endif()

# --- The documents ---
# In the folders that they have in the project, so that their links lead somewhere.
install(FILES README.md CHANGELOG.md CONTRIBUTING.md LICENSE SECURITY.md DESTINATION ${CMAKE_INSTALL_DOCDIR}
  COMPONENT documents)
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documents
  FILES_MATCHING PATTERN "*.md" PATTERN "*.svg" PATTERN "*.png" PATTERN "*.schema.json"
  PATTERN man EXCLUDE PATTERN tables EXCLUDE)
install(DIRECTORY examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documents)
# The reference, if scripts/docs has built it in this source folder.
install(DIRECTORY build/docs/html DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT documents OPTIONAL)
