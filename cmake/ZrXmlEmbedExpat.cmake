# SPDX-License-Identifier: MIT
# zrxml_embed_expat(TARGET SOURCE): puts a renamed copy of the 16-bit expat into the static library TARGET, whose SOURCE
# calls it. An archive cannot hide names, and the 8-bit expat, which the program may link too, has the same ones.
set(ZRXML_EXPAT_PREFIX "zrxmllib16_")

# The names that the archive defines for other files, also those of the parts of expat among themselves.
function(zrxml_defined_symbols archive result)
  execute_process(COMMAND "${CMAKE_NM}" --defined-only --extern-only --format=posix "${archive}"
    OUTPUT_VARIABLE table COMMAND_ERROR_IS_FATAL ANY)
  string(REGEX MATCHALL "[A-Za-z_][A-Za-z0-9_]* [A-Z] " rows "${table}")
  list(TRANSFORM rows REPLACE " .*" "")
  list(SORT rows)
  list(REMOVE_DUPLICATES rows)
  set(${result} ${rows} PARENT_SCOPE)
endfunction()

function(zrxml_embed_expat target source)
  get_target_property(archive ExpatWide::ExpatWide IMPORTED_LOCATION)
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${archive}")
  set(folder "${CMAKE_CURRENT_BINARY_DIR}/expat")
  file(REMOVE_RECURSE "${folder}")
  file(MAKE_DIRECTORY "${folder}")

  zrxml_defined_symbols("${archive}" symbols)
  set(renames)
  set(macros "/* The names under which the static library holds its parser. */\n")
  foreach(symbol IN LISTS symbols)
    string(APPEND renames "${symbol} ${ZRXML_EXPAT_PREFIX}${symbol}\n")
    string(APPEND macros "#define ${symbol} ${ZRXML_EXPAT_PREFIX}${symbol}\n")
  endforeach()
  file(WRITE "${folder}/renames.txt" "${renames}")
  file(WRITE "${folder}/renames.h" "${macros}")

  execute_process(COMMAND "${CMAKE_AR}" x "${archive}" WORKING_DIRECTORY "${folder}" COMMAND_ERROR_IS_FATAL ANY)
  file(GLOB members LIST_DIRECTORIES false "${folder}/*.o")
  set(objects)
  foreach(member IN LISTS members)
    cmake_path(GET member FILENAME name)
    execute_process(COMMAND "${CMAKE_OBJCOPY}" "--redefine-syms=${folder}/renames.txt" "${member}" "${folder}/${ZRXML_EXPAT_PREFIX}${name}"
      COMMAND_ERROR_IS_FATAL ANY)
    list(APPEND objects "${folder}/${ZRXML_EXPAT_PREFIX}${name}")
  endforeach()

  set_source_files_properties(${objects} PROPERTIES EXTERNAL_OBJECT ON)
  target_sources(${target} PRIVATE ${objects})
  set_property(SOURCE "${source}" APPEND PROPERTY COMPILE_OPTIONS -include "${folder}/renames.h")
  set_property(SOURCE "${source}" APPEND PROPERTY OBJECT_DEPENDS "${folder}/renames.h")
  target_include_directories(${target} SYSTEM PRIVATE
    $<TARGET_PROPERTY:ExpatWide::ExpatWide,INTERFACE_INCLUDE_DIRECTORIES>)
endfunction()
