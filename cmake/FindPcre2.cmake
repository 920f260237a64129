# SPDX-License-Identifier: MIT
# PCRE2, the 8-bit library, as Pcre2::Pcre2. From 10.30 on it keeps the state of a search on the heap.
find_path(Pcre2_INCLUDE_DIR pcre2.h)
find_library(Pcre2_LIBRARY NAMES pcre2-8 pcre2-8d)

if(Pcre2_INCLUDE_DIR)
  file(STRINGS "${Pcre2_INCLUDE_DIR}/pcre2.h" version_lines REGEX "^#define PCRE2_(MAJOR|MINOR) +[0-9]+")
  string(REGEX REPLACE "[^;]*MAJOR +([0-9]+)[^;]*;[^;]*MINOR +([0-9]+).*" "\\1.\\2" Pcre2_VERSION "${version_lines}")
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Pcre2 REQUIRED_VARS Pcre2_LIBRARY Pcre2_INCLUDE_DIR VERSION_VAR Pcre2_VERSION)

if(Pcre2_FOUND AND NOT TARGET Pcre2::Pcre2)
  add_library(Pcre2::Pcre2 UNKNOWN IMPORTED)
  set_target_properties(Pcre2::Pcre2 PROPERTIES
    IMPORTED_LOCATION "${Pcre2_LIBRARY}"
    INTERFACE_INCLUDE_DIRECTORIES "${Pcre2_INCLUDE_DIR}")
endif()
mark_as_advanced(Pcre2_INCLUDE_DIR Pcre2_LIBRARY)
