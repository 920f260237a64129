# SPDX-License-Identifier: MIT
# Converts INPUT with OPTIONS by PROGRAM into OUTPUT and compares that with EXPECTED, octet by octet; what was written
# is converted once more and must not change. With MAGIC, OUTPUT is compressed and begins with these hexadecimal digits.
cmake_minimum_required(VERSION 3.25)

function(convert input output)
  execute_process(COMMAND "${PROGRAM}" ${ARGN} "${input}" "${output}"
    RESULT_VARIABLE status OUTPUT_VARIABLE text ERROR_VARIABLE text)
  if(NOT status EQUAL 0 OR NOT text STREQUAL "")
    message(FATAL_ERROR "The exit status is ${status}.\n${text}")
  endif()
endfunction()

function(require_equal first second)
  execute_process(COMMAND "${CMAKE_COMMAND}" -E compare_files "${first}" "${second}" RESULT_VARIABLE difference)
  if(difference)
    file(READ "${first}" text)
    message(FATAL_ERROR "${first} differs from ${second}:\n${text}")
  endif()
endfunction()

convert("${INPUT}" "${OUTPUT}" ${OPTIONS})
if(MAGIC)
  file(READ "${OUTPUT}" begin HEX LIMIT 2)
  if(NOT begin MATCHES "^${MAGIC}")
    message(FATAL_ERROR "The output begins with ${begin}.")
  endif()
  set(OPTIONS "") # hides the one of the command line
else()
  require_equal("${OUTPUT}" "${EXPECTED}")
endif()
convert("${OUTPUT}" "${OUTPUT}.again" ${OPTIONS})
require_equal("${OUTPUT}.again" "${EXPECTED}")
