# SPDX-License-Identifier: MIT
# The library that matches patterns: sets ZRXML_PATTERN_PACKAGE to Pcre or Pcre2. The engine's source file is
# lexical/PatternEngine<package>.cpp, its target <package>::<package>.
set(ZRXML_PATTERN_ENGINE auto CACHE STRING "Matches patterns: pcre (PCRE 1), pcre2, or auto, the first one that is there")
set_property(CACHE ZRXML_PATTERN_ENGINE PROPERTY STRINGS auto pcre pcre2)

find_package(Pcre QUIET GLOBAL)
find_package(Pcre2 10.30 QUIET GLOBAL)
if(ZRXML_PATTERN_ENGINE STREQUAL "pcre" OR (ZRXML_PATTERN_ENGINE STREQUAL "auto" AND Pcre_FOUND))
  set(ZRXML_PATTERN_PACKAGE Pcre)
  find_package(Pcre REQUIRED GLOBAL)
elseif(ZRXML_PATTERN_ENGINE MATCHES "^(pcre2|auto)$")
  set(ZRXML_PATTERN_PACKAGE Pcre2)
  find_package(Pcre2 10.30 REQUIRED GLOBAL)
else()
  message(FATAL_ERROR "ZRXML_PATTERN_ENGINE is ${ZRXML_PATTERN_ENGINE}, but has to be auto, pcre or pcre2")
endif()
