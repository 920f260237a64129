#!/bin/sh
# SPDX-License-Identifier: MIT
# pkg-config.sh PREFIX LIBDIR OUTPUT COMPILER [FLAG...]: builds the consumer with a plain compiler call and runs it.
set -eu

prefix=$1
libdir=$1/$2
output=$3
shift 3

export PKG_CONFIG_PATH="$libdir/pkgconfig"
pkg-config --exists --print-errors 'ZrXmlLib16 >= 16.1'
case $(pkg-config --variable=includedir ZrXmlLib16) in
  "$prefix"/*) ;;
  *) echo "The pkg-config file does not point into $prefix" >&2; exit 1 ;;
esac

# The flags of pkg-config are words to split.
# shellcheck disable=SC2046
"$@" -std=c++17 -o "$output" "$(dirname "$0")/consumer.cpp" \
  $(pkg-config --cflags --libs ZrXmlLib16) "-Wl,-rpath,$libdir"
"$output"
