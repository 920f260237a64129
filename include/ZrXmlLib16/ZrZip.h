// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ZRZIP_H
#define ZRXMLLIB16_ZRZIP_H

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/CompressionType.h"
#include "ZrXmlLib16/Export.h"

namespace ZrXmlLib16 {

/// Compresses and decompresses buffers in the gzip (RFC 1952) and zlib (RFC 1950) formats. Stateless.
class ZRXML_API CZrZip {
public:
    /// Replaces a buffer by its compressed form; a type that is neither gzip nor zlib leaves it alone.
    ///
    /// The result never exceeds the input's length: input that does not shrink, such as short or random data, is
    /// refused.
    /// @param buffer in: array made by new[]; out: the new array, the old one is deleted. The caller owns both.
    /// @param length in and out: octets in the buffer.
    /// @throws CZrException when the compressed form does not fit; buffer and length are unchanged.
    static void Compress(unsigned char** buffer, unsigned long* length, CompressionType type);

    /// Replaces a buffer that holds gzip or zlib data by the decompressed octets; anything else, damaged data included,
    /// is left exactly as it is. Octets behind the end of the compressed data are ignored, further gzip members too.
    /// @param buffer in: array made by new[]; out: the new array, null when the data decompresses to nothing. The
    /// caller owns both.
    /// @param length in and out: octets in the buffer.
    static void Decompress(unsigned char** buffer, unsigned long* length);

    /// Compresses a value; an empty one is left alone.
    /// @throws CZrException as Compress does; the value is unchanged.
    static void CompressData(CBinaryData& data, CompressionType type);

    /// Appends what gzip or zlib data decompress to.
    /// @return false for anything else, damaged data included.
    /// @throws CZrException when that is more than the maximum.
    static bool DecompressData(
        const unsigned char* data, unsigned long length, unsigned long maximum, CBinaryData& decompressed);
};

} // namespace ZrXmlLib16

#endif
