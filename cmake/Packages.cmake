# Debian packages by cpack, one for each part of the installed tree that somebody may want alone:
#   libkyr10, kyr-plugin-uml2xmi, kyr and libkyr-dev
# `make packages` builds them into out/packages and tries them.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kyr)
set(CPACK_PACKAGE_VENDOR "The kyr project")
set(CPACK_PACKAGE_CONTACT "The kyr project <kyr@localhost>")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_COMPONENTS_ALL library plugin command development)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING ONE_PER_GROUP)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
# What the binaries need of the system is read off them; that they need each other is told by component.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME libkyr${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_PLUGIN_PACKAGE_NAME kyr-plugin-uml2xmi)
set(CPACK_DEBIAN_COMMAND_PACKAGE_NAME kyr)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libkyr-dev)
set(CPACK_DEBIAN_LIBRARY_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PLUGIN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_COMMAND_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SHLIBDEPS OFF)
# Lays out pictures of `kyr report`, which does without.
set(CPACK_DEBIAN_COMMAND_PACKAGE_SUGGESTS graphviz)

set(CPACK_COMPONENT_LIBRARY_DESCRIPTION
  "The store model, and what hosts and plug-ins share.")
set(CPACK_COMPONENT_PLUGIN_DESCRIPTION
  "Reads UML models from the XMI files of many design tools.")
set(CPACK_COMPONENT_COMMAND_DESCRIPTION
  "Imports UML models from XMI files and saves them as JSON or SQLite.")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION
  "For hosts of one's own: find_package(kyr).")
set(CPACK_COMPONENT_PLUGIN_DEPENDS library)
set(CPACK_COMPONENT_COMMAND_DEPENDS library plugin)
set(CPACK_COMPONENT_DEVELOPMENT_DEPENDS library)
include(CPack)
