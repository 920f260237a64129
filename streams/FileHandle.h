// SPDX-License-Identifier: MIT
#ifndef STREAMS_FILEHANDLE_H
#define STREAMS_FILEHANDLE_H

#include "ZrXmlLib16/XmlEncoding.h"

#include <cstdio>
#include <memory>

namespace ZrXmlLib16 {

struct FileCloser {
    void operator()(FILE* file) const noexcept { std::fclose(file); }
};

/// An open file that closes itself; null when there is none.
using FileHandle = std::unique_ptr<FILE, FileCloser>;

/// Opens the file whose path is the UTF-8 form of the name, whatever the locale.
/// @param mode as for fopen.
/// @return null when it cannot be opened; null is an empty name.
FileHandle OpenFile(const wchar_t* name, const char* mode);

/// Writes all octets through to the operating system; false when that fails.
bool WriteOctets(FILE* file, const unsigned char* data, unsigned long length);

/// Writes the two octets that files of some encodings begin with; false when that fails.
bool WriteByteOrderMark(FILE* file, XmlEncoding encoding);

} // namespace ZrXmlLib16

#endif
