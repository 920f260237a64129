# SPDX-License-Identifier: MIT
# An overlay port: it builds the source tree that it stands in.
get_filename_component(SOURCE_PATH "${CURRENT_PORT_DIR}/../../.." ABSOLUTE)

message(STATUS "${PORT} needs a static 16-bit expat (libexpatw.a): libexpat1-dev on Debian, or see packaging/README.md.")

string(COMPARE EQUAL "${VCPKG_LIBRARY_LINKAGE}" "static" ZRXML_STATIC)
vcpkg_check_features(OUT_FEATURE_OPTIONS feature_options FEATURES tools ZRXML_BUILD_TOOLS)

vcpkg_cmake_configure(
  SOURCE_PATH "${SOURCE_PATH}"
  OPTIONS
    ${feature_options}
    -DZRXML_STATIC=${ZRXML_STATIC}
    -DZRXML_PATTERN_ENGINE=pcre2
    -DZRXML_BUILD_TESTS=OFF
    -DZRXML_BUILD_EXAMPLES=OFF
    -DZRXML_WARNINGS_AS_ERRORS=OFF)
vcpkg_cmake_install()
vcpkg_cmake_config_fixup(PACKAGE_NAME ZrXmlLib16 CONFIG_PATH lib/cmake/ZrXmlLib16)
vcpkg_fixup_pkgconfig()
if("tools" IN_LIST FEATURES)
  vcpkg_copy_tools(TOOL_NAMES zrconvert AUTO_CLEAN)
endif()

# The port keeps neither the documents nor what the debug build installs twice.
file(REMOVE_RECURSE
  "${CURRENT_PACKAGES_DIR}/debug/include"
  "${CURRENT_PACKAGES_DIR}/debug/share"
  "${CURRENT_PACKAGES_DIR}/share/doc"
  "${CURRENT_PACKAGES_DIR}/share/man")
file(INSTALL "${CMAKE_CURRENT_LIST_DIR}/usage" DESTINATION "${CURRENT_PACKAGES_DIR}/share/${PORT}")
vcpkg_install_copyright(FILE_LIST "${SOURCE_PATH}/LICENSE")
