// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_BASE64_H
#define ZRXMLLIB16_BASE64_H

#include "ZrXmlLib16/Export.h"

#include <string>

namespace ZrXmlLib16 {

/// Base64 with the standard alphabet (RFC 4648, section 4). Stateless.
class ZRXML_API CBase64 {
public:
    /// @return the padded text without line breaks; empty for null and for a length below 1.
    static std::wstring Encode(unsigned char* bytes, int length);

    /// Decodes leniently: characters outside the alphabet are skipped wherever they stand, except that an invalid first
    /// character makes the whole text decode to nothing ("=", space, tab and CR are not invalid). Characters count by
    /// their low seven bits. Left-over bits behind the last whole octet are dropped.
    /// @param text NUL-terminated; null is empty text.
    /// @param out room for the text's length plus one octets, which are cleared first; null gives 0.
    /// @return the number of octets written.
    static int Decode(const wchar_t* text, unsigned char* out);
};

} // namespace ZrXmlLib16

#endif
