# SPDX-License-Identifier: MIT
# cmake -D BUILD_DIR=... -D PREFIX=... -P install.cmake: installs into another folder and moves the tree to PREFIX, as
# an installed tree may be moved.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${PREFIX}" "${PREFIX}.staged")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD_DIR}" --prefix "${PREFIX}.staged" COMMAND_ERROR_IS_FATAL ANY)
file(RENAME "${PREFIX}.staged" "${PREFIX}")
