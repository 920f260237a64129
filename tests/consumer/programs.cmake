# SPDX-License-Identifier: MIT
# The programs and tests of the projects that use the library's CMake target.
find_package(EXPAT REQUIRED)

add_executable(consumer ${CMAKE_CURRENT_LIST_DIR}/consumer.cpp)
target_link_libraries(consumer PRIVATE ZrXmlLib16::ZrXmlLib16)

# Both orders: whichever is found first must not take the other's calls.
add_executable(two_parsers ${CMAKE_CURRENT_LIST_DIR}/two_parsers.cpp)
target_link_libraries(two_parsers PRIVATE ZrXmlLib16::ZrXmlLib16 EXPAT::EXPAT)
add_executable(two_parsers_expat_first ${CMAKE_CURRENT_LIST_DIR}/two_parsers.cpp)
target_link_libraries(two_parsers_expat_first PRIVATE EXPAT::EXPAT ZrXmlLib16::ZrXmlLib16)

foreach(program consumer two_parsers two_parsers_expat_first)
  add_test(NAME ${program} COMMAND ${program})
endforeach()

# A shared library of the program's may hold or use the library as well.
add_library(plug_in MODULE ${CMAKE_CURRENT_LIST_DIR}/consumer.cpp)
target_link_libraries(plug_in PRIVATE ZrXmlLib16::ZrXmlLib16)
target_link_options(plug_in PRIVATE LINKER:-z,defs)
