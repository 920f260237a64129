# SPDX-License-Identifier: MIT
# Language, warnings and sanitizers, the same for the library, its tests, examples and benchmarks.
function(zrxml_compile_options target)
  set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wconversion)
  # The same output from every folder. A debugger finds the sources by "set substitute-path . FOLDER".
  target_compile_options(${target} PRIVATE
    $<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>
    $<$<CONFIG:RelWithDebInfo>:-ffile-prefix-map=${PROJECT_BINARY_DIR}=./build>)
  if(ZRXML_WARNINGS_AS_ERRORS)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
  if(ZRXML_SANITIZE)
    target_compile_options(${target} PRIVATE
      -fsanitize=${ZRXML_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
      # With instrumentation GCC takes members of standard containers and functions for uninitialised.
      target_compile_options(${target} PRIVATE -Wno-maybe-uninitialized)
    endif()
    target_link_options(${target} PRIVATE -fsanitize=${ZRXML_SANITIZE})
  endif()
endfunction()
