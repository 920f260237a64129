// SPDX-License-Identifier: MIT
#ifndef STREAMS_INFLATE_H
#define STREAMS_INFLATE_H

namespace ZrXmlLib16 {

class CBinaryData;

/// Whether the octets begin like gzip (RFC 1952) or zlib (RFC 1950) data. Spares everything else the set-up of a
/// decompressor.
bool HasCompressionHeader(const unsigned char* data, unsigned long length);

/// Appends the decompressed octets to the result. Octets behind the end of the compressed data are ignored, further
/// gzip members too.
/// @return false when the data is damaged, cut off or not compressed.
/// @throws CZrException when the result would exceed the maximum.
bool InflateOctets(const unsigned char* data, unsigned long length, unsigned long maximum, CBinaryData& result);

} // namespace ZrXmlLib16

#endif
