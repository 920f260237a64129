# SPDX-License-Identifier: MIT
# PCRE 1, the 8-bit library, as Pcre::Pcre.
find_path(Pcre_INCLUDE_DIR pcre.h)
find_library(Pcre_LIBRARY pcre)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(Pcre REQUIRED_VARS Pcre_LIBRARY Pcre_INCLUDE_DIR)

if(Pcre_FOUND AND NOT TARGET Pcre::Pcre)
  add_library(Pcre::Pcre UNKNOWN IMPORTED)
  set_target_properties(Pcre::Pcre PROPERTIES
    IMPORTED_LOCATION "${Pcre_LIBRARY}"
    INTERFACE_INCLUDE_DIRECTORIES "${Pcre_INCLUDE_DIR}")
endif()
mark_as_advanced(Pcre_INCLUDE_DIR Pcre_LIBRARY)
