# What `cmake --install` lays down below the prefix, and the CMake package `kyr` with the target
# kyr::kyr. All run paths are relative, so that an installed tree can be moved as a whole.
include(CMakePackageConfigHelpers)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/kyr)
set(plugin_dir ${CMAKE_INSTALL_LIBDIR}/kyr)
file(RELATIVE_PATH bin_to_lib ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})

install(TARGETS libkyr EXPORT kyrTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT library NAMELINK_COMPONENT development
  FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kyr COMPONENT development)
if(TARGET KYROmgUml2XmiImport)
  set_target_properties(KYROmgUml2XmiImport PROPERTIES INSTALL_RPATH "$ORIGIN/..")
  install(TARGETS KYROmgUml2XmiImport LIBRARY DESTINATION ${plugin_dir} COMPONENT plugin)
endif()
if(TARGET kyr_host)
  set_target_properties(kyr_host PROPERTIES INSTALL_RPATH "$ORIGIN/${bin_to_lib}")
  install(TARGETS kyr_host RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT command)
endif()

install(EXPORT kyrTargets NAMESPACE kyr:: DESTINATION ${package_dir} COMPONENT development)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/kyrConfig.cmake.in
  ${PROJECT_BINARY_DIR}/kyrConfig.cmake INSTALL_DESTINATION ${package_dir} PATH_VARS plugin_dir)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kyrConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/kyrConfig.cmake ${PROJECT_BINARY_DIR}/kyrConfigVersion.cmake
  DESTINATION ${package_dir} COMPONENT development)

install(FILES README.md CHANGELOG.md LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT command)
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT command FILES_MATCHING PATTERN "*.md")
# The schema of saved models is for programs too, hence not only among the texts to read.
install(DIRECTORY docs/ DESTINATION ${CMAKE_INSTALL_DATADIR}/kyr COMPONENT command
  FILES_MATCHING PATTERN "*.schema.json")

install(DIRECTORY examples/host DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples COMPONENT development)
if(PROJECT_IS_TOP_LEVEL)
  include(cmake/Packages.cmake)
endif()
