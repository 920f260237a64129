// SPDX-License-Identifier: MIT
#ifndef STREAMS_STREAMMESSAGES_H
#define STREAMS_STREAMMESSAGES_H

/// Every fixed text of the streams and codecs, with its arguments.
namespace ZrXmlLib16 {
namespace Message {

constexpr wchar_t UNKNOWN_ENCODING[] = L"Unknown Encoding, select UTF-8 (contact our support team)";
/// file name
constexpr wchar_t FILE_NOT_WRITTEN[] = L"Failed to write data to the file [%ls].";
constexpr wchar_t FLUSH_FAILED[] = L"Failed to write data to the file";
/// code of the compression library (int)
constexpr wchar_t COMPRESSION_FAILED[] = L"Failed to compress data. [Error Code: %d]";
/// limit in octets
constexpr wchar_t INFLATED_TOO_LARGE[] = L"The decompressed document exceeds the limit of %lu octets.";

} // namespace Message
} // namespace ZrXmlLib16

#endif
