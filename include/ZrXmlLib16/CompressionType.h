// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_COMPRESSIONTYPE_H
#define ZRXMLLIB16_COMPRESSIONTYPE_H

#include "ZrXmlLib16/Export.h"

namespace ZrXmlLib16 {

/// How encoded output is compressed.
enum CompressionType : int {
    Compression_None = 0,
    Compression_GZip = 1, ///< gzip format, RFC 1952
    Compression_ZLib = 2  ///< zlib format, RFC 1950
};

} // namespace ZrXmlLib16

#endif
