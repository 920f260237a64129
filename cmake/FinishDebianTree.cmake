# SPDX-License-Identifier: MIT
# Run by cpack between installing and packing: adds the copyright file to each package and compresses manual pages.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
  return()
endif()
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  string(TOUPPER "${component}" key)
  set(tree "${CPACK_TEMPORARY_DIRECTORY}/${component}/usr/share")
  configure_file("${CPACK_RESOURCE_FILE_LICENSE}" "${tree}/doc/${CPACK_DEBIAN_${key}_PACKAGE_NAME}/copyright"
    COPYONLY NO_SOURCE_PERMISSIONS)
  file(GLOB_RECURSE pages "${tree}/man/*.[1-8]")
  foreach(page IN LISTS pages)
    execute_process(COMMAND gzip -9 -n "${page}" COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
endforeach()
