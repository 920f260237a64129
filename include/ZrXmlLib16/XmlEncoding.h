// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_XMLENCODING_H
#define ZRXMLLIB16_XMLENCODING_H

#include "ZrXmlLib16/Export.h"

namespace ZrXmlLib16 {

/// How a text stream turns its wide characters into octets.
enum XmlEncoding : int {
    Encoding_None = 0, ///< not given; such a stream cannot be encoded
    Encoding_UTF8 = 1,
    Encoding_UTF16 = 2, ///< see CTextStream::GetEncodedStream for what is produced
    Encoding_Wide = 3   ///< the wide characters as stored, four octets each in host byte order
};

} // namespace ZrXmlLib16

#endif
