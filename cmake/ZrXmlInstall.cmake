# SPDX-License-Identifier: MIT
# The installed tree: library, headers of both namespaces, CMake package, pkg-config file and documents. It may be moved
# as a whole. Components: Runtime, Development, Documentation and, from the tools themselves, Tools.
include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/ZrXmlLib16")

install(TARGETS ZrXmlLib16 EXPORT ZrXmlLib16Targets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/ZrXmlLib16" "${PROJECT_SOURCE_DIR}/include/ZrXmlLib16Data"
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT Development FILES_MATCHING PATTERN "*.h")
install(FILES "${PROJECT_SOURCE_DIR}/tools/gdb/zrxmllib16.py"
  DESTINATION ${CMAKE_INSTALL_DATADIR}/ZrXmlLib16/gdb COMPONENT Development)
install(EXPORT ZrXmlLib16Targets NAMESPACE ZrXmlLib16:: DESTINATION ${package_dir} COMPONENT Development)

configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/ZrXmlLib16Config.cmake.in"
  "${CMAKE_CURRENT_BINARY_DIR}/ZrXmlLib16Config.cmake" INSTALL_DESTINATION ${package_dir})
# A generated class belongs to one minor version, so another one is refused.
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/ZrXmlLib16ConfigVersion.cmake"
  COMPATIBILITY SameMinorVersion)
install(FILES
  "${CMAKE_CURRENT_BINARY_DIR}/ZrXmlLib16Config.cmake"
  "${CMAKE_CURRENT_BINARY_DIR}/ZrXmlLib16ConfigVersion.cmake"
  DESTINATION ${package_dir} COMPONENT Development)

# What the program that links the static library needs besides.
set(ZRXML_PC_REQUIRES_PRIVATE "")
set(ZRXML_PC_LIBS_PRIVATE "")
set(ZRXML_PC_CFLAGS "")
if(ZRXML_STATIC)
  install(FILES "${CMAKE_CURRENT_LIST_DIR}/Find${ZRXML_PATTERN_PACKAGE}.cmake" DESTINATION ${package_dir} COMPONENT Development)
  set(pattern_module_Pcre libpcre)
  set(pattern_module_Pcre2 libpcre2-8)
  set(ZRXML_PC_REQUIRES_PRIVATE "${pattern_module_${ZRXML_PATTERN_PACKAGE}}, zlib")
  set(ZRXML_PC_LIBS_PRIVATE "-pthread")
  set(ZRXML_PC_CFLAGS " -DZRXML_STATIC")
endif()

# Paths in the pkg-config file start at the place where it lies.
file(RELATIVE_PATH ZRXML_PC_TO_PREFIX "${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig" "${CMAKE_INSTALL_PREFIX}")
string(REGEX REPLACE "/$" "" ZRXML_PC_TO_PREFIX "${ZRXML_PC_TO_PREFIX}")
file(RELATIVE_PATH ZRXML_PC_LIBDIR "${CMAKE_INSTALL_PREFIX}" "${CMAKE_INSTALL_FULL_LIBDIR}")
file(RELATIVE_PATH ZRXML_PC_INCLUDEDIR "${CMAKE_INSTALL_PREFIX}" "${CMAKE_INSTALL_FULL_INCLUDEDIR}")
configure_file("${CMAKE_CURRENT_LIST_DIR}/ZrXmlLib16.pc.in" "${CMAKE_CURRENT_BINARY_DIR}/ZrXmlLib16.pc" @ONLY)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/ZrXmlLib16.pc"
  DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig" COMPONENT Development)

install(FILES "${PROJECT_SOURCE_DIR}/README.md" "${PROJECT_SOURCE_DIR}/CHANGELOG.md" "${PROJECT_SOURCE_DIR}/LICENSE"
  DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Documentation)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/docs" "${PROJECT_SOURCE_DIR}/examples"
  DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Documentation
  PATTERN "docs/site" EXCLUDE)
