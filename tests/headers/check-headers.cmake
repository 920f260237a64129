# SPDX-License-Identifier: MIT
# cmake -D INCLUDE_DIR=... -P check-headers.cmake: the umbrella header names every public header but those
# apart, and no public header includes what the library is built on.
cmake_minimum_required(VERSION 3.25)

set(umbrella "ZrXmlLib16/ZrXmlLib16.h")
file(GLOB headers RELATIVE "${INCLUDE_DIR}" "${INCLUDE_DIR}/ZrXmlLib16/*.h" "${INCLUDE_DIR}/ZrXmlLib16Data/*.h")
list(REMOVE_ITEM headers "${umbrella}")
list(SORT headers)
# <filesystem> would make every source file that includes the umbrella header a third dearer.
set(apart "ZrXmlLib16/XmlFiles.h")

file(STRINGS "${INCLUDE_DIR}/${umbrella}" included REGEX "^#include \"")
list(TRANSFORM included REPLACE "^#include \"([^\"]*)\".*" "\\1")
list(SORT included)

foreach(header IN LISTS headers)
  if(NOT header IN_LIST included AND NOT header IN_LIST apart)
    message(SEND_ERROR "${umbrella} does not include ${header}")
  endif()
  file(STRINGS "${INCLUDE_DIR}/${header}" foreign REGEX "^ *# *include *[<\"](expat|pcre|zlib|zconf)")
  if(foreign)
    message(SEND_ERROR "${header}: ${foreign}")
  endif()
endforeach()
list(REMOVE_ITEM headers ${apart})
if(NOT included STREQUAL headers)
  message(SEND_ERROR "${umbrella} includes something twice or something that is no public header")
endif()
