# SPDX-License-Identifier: MIT
# cpack -G DEB makes one Debian package per component, cpack -G TGZ one archive of everything.
# The library's package carries its SONAME in its name, so two minor versions may be installed side by side.
set(base libzrxmllib16)
set(binary_version "${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}")

set(CPACK_PACKAGE_NAME ${PROJECT_NAME})
set(CPACK_PACKAGE_VENDOR "ZrXmlLib16 developers")
set(CPACK_PACKAGE_CONTACT "ZrXmlLib16 developers <zrxmllib16@example.org>" CACHE STRING
  "Maintainer of the packages that cpack makes, as Name <address>")
# Each component has its own first line.
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
set(CPACK_RESOURCE_FILE_LICENSE "${PROJECT_SOURCE_DIR}/LICENSE")
set(CPACK_COMPONENTS_ALL Runtime Development Tools Documentation)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# A program needs at least the release that it was built with, of the same minor version.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${base}-${binary_version})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "run-time library of an XML data-binding toolkit
Writes and reads objects of generated classes as XML, JSON and Fast Infoset,
and checks their values against the facets of the schema.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME ${base}-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${base}-${binary_version} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "run-time library of an XML data-binding toolkit - development files
Headers, CMake package and pkg-config file.")

# shlibdeps finds the library beside the tools and knows the package from its own control file only.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}")
set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME ${base}-tools)
set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "${base}-${binary_version} (= ${PROJECT_VERSION})")
set(CPACK_COMPONENT_TOOLS_DESCRIPTION "converter between XML, JSON and Fast Infoset
zrconvert reads a document without its schema and writes it in another form.")

set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_NAME ${base}-doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SECTION doc)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_DOCUMENTATION_PACKAGE_SHLIBDEPS OFF)
set(CPACK_COMPONENT_DOCUMENTATION_DESCRIPTION "run-time library of an XML data-binding toolkit - documentation
Guides and the sources of the examples.")

# What every Debian package holds besides: its copyright file and a compressed manual page.
set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/FinishDebianTree.cmake")
include(CPack)
