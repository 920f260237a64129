# SPDX-License-Identifier: MIT
# Runs PROGRAM with the ARGUMENTS and fails unless it ends with STATUS and writes text that matches PATTERN to CHANNEL
# (output or error). A test property alone cannot check both.
execute_process(COMMAND "${PROGRAM}" ${ARGUMENTS} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE error)
message("${output}${error}")
if(NOT status STREQUAL STATUS)
  message(FATAL_ERROR "The exit status is ${status}, not ${STATUS}.")
endif()
if(NOT "${${CHANNEL}}" MATCHES "${PATTERN}")
  message(FATAL_ERROR "The ${CHANNEL} does not match: ${PATTERN}")
endif()
