# SPDX-License-Identifier: MIT
# The static expat whose character type is 16-bit UTF-16 (libexpatw.a), as ExpatWide::ExpatWide.
find_path(ExpatWide_INCLUDE_DIR expat.h)
find_library(ExpatWide_LIBRARY libexpatw.a)

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(ExpatWide REQUIRED_VARS ExpatWide_LIBRARY ExpatWide_INCLUDE_DIR)

if(ExpatWide_FOUND AND NOT TARGET ExpatWide::ExpatWide)
  add_library(ExpatWide::ExpatWide STATIC IMPORTED)
  set_target_properties(ExpatWide::ExpatWide PROPERTIES
    IMPORTED_LOCATION "${ExpatWide_LIBRARY}"
    INTERFACE_INCLUDE_DIRECTORIES "${ExpatWide_INCLUDE_DIR}")
endif()
mark_as_advanced(ExpatWide_INCLUDE_DIR ExpatWide_LIBRARY)
