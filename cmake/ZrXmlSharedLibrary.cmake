# SPDX-License-Identifier: MIT
# What only the shared library has: its name, what it exports and optimisation across source files.
target_compile_options(ZrXmlLib16 PRIVATE -fno-semantic-interposition)

# Generated code and library belong together by major and minor version: the loader takes no other.
set_target_properties(ZrXmlLib16 PROPERTIES
  VERSION ${PROJECT_VERSION}
  SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})

if(ZRXML_LTO)
  include(CheckIPOSupported)
  check_ipo_supported(RESULT lto_works LANGUAGES CXX)
  if(lto_works)
    set_target_properties(ZrXmlLib16 PROPERTIES
      INTERPROCEDURAL_OPTIMIZATION_RELEASE ON
      INTERPROCEDURAL_OPTIMIZATION_RELWITHDEBINFO ON)
  endif()
endif()

# The 16-bit expat exports the same names as the 8-bit one: both may be in one process only when ours stay hidden.
# The version script also hides the instances of standard templates, which are visible by default.
set(export_map "${CMAKE_CURRENT_LIST_DIR}/ZrXmlLib16.map")
target_link_libraries(ZrXmlLib16 PRIVATE ExpatWide::ExpatWide)
target_link_options(ZrXmlLib16 PRIVATE "LINKER:--exclude-libs,ALL" "LINKER:-Bsymbolic-functions" "LINKER:--version-script,${export_map}")
set_property(TARGET ZrXmlLib16 APPEND PROPERTY LINK_DEPENDS "${export_map}")
