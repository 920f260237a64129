# SPDX-License-Identifier: MIT
# Compiles through ccache when it is there and no other launcher was asked for.
if(NOT DEFINED CMAKE_CXX_COMPILER_LAUNCHER)
  find_program(ZRXML_CCACHE ccache)
  mark_as_advanced(ZRXML_CCACHE)
  if(ZRXML_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${ZRXML_CCACHE}")
  endif()
endif()
