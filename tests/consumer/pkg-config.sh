#!/bin/sh
# SPDX-License-Identifier: MIT
# pkg-config.sh PREFIX LIBDIR OUTPUT COMPILER [FLAG...]: builds the programs with plain compiler calls, the second one
# with the 8-bit expat beside the library, and runs them. An installed static library is asked for with --static.
set -eu

prefix=$1
libdir=$1/$2
output=$3
here=$(dirname "$0")
shift 3

export PKG_CONFIG_PATH="$libdir/pkgconfig"
pkg-config --exists --print-errors 'ZrXmlLib16 >= 16.1'
case $(pkg-config --variable=includedir ZrXmlLib16) in
  "$prefix"/*) ;;
  *) echo "The pkg-config file does not point into $prefix" >&2; exit 1 ;;
esac

kind=--shared
if [ -e "$libdir/libZrXmlLib16.a" ]; then
  kind=--static
fi

# build_and_run PROGRAM PACKAGE... (the flags of pkg-config are words to split)
build_and_run() {
  program=$1
  shift
  # shellcheck disable=SC2046,SC2086
  $compile -o "${output}_$program" "$here/$program.cpp" $(pkg-config --cflags --libs $kind "$@") "-Wl,-rpath,$libdir"
  "${output}_$program"
}

compile="$* -std=c++17"
build_and_run consumer ZrXmlLib16
build_and_run two_parsers ZrXmlLib16 expat
build_and_run two_parsers expat ZrXmlLib16
