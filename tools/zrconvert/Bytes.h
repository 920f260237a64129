// SPDX-License-Identifier: MIT
#ifndef ZRCONVERT_BYTES_H
#define ZRCONVERT_BYTES_H

#include <string>
#include <vector>

namespace Convert {

/// Stands for standard input or standard output, depending on the direction.
constexpr char STANDARD_STREAM[] = "-";

/// The whole file, or what is left of standard input, decompressed when it is compressed (gzip, zlib).
/// @throws std::runtime_error when it cannot be read, CZrException when it decompresses to more than the library reads.
std::vector<unsigned char> ReadBytes(const std::string& fileName);

/// Replaces the file, or writes to standard output. Returns when the octets have left the program.
/// @throws std::runtime_error when they cannot be written.
void WriteBytes(const std::string& fileName, const void* bytes, unsigned long length);

} // namespace Convert

#endif
