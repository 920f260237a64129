# SPDX-License-Identifier: MIT
# Runs PROGRAM with the ARGUMENTS and fails unless it ends with 0, writes exactly the text of the file EXPECTED to
# standard output, and nothing to standard error.
execute_process(COMMAND "${PROGRAM}" ${ARGUMENTS} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE error)
file(READ "${EXPECTED}" expected)
if(NOT status STREQUAL "0" OR NOT error STREQUAL "")
  message(FATAL_ERROR "The exit status is ${status}.\n${output}${error}")
endif()
if(NOT output STREQUAL expected)
  message(FATAL_ERROR "The output is not that of ${EXPECTED}:\n${output}")
endif()
