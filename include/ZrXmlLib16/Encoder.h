// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ENCODER_H
#define ZRXMLLIB16_ENCODER_H

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/Export.h"

#include <string>
#include <vector>

namespace ZrXmlLib16 {

/// Converts between wide text and the Unicode encoding forms. Stateless, independent of the locale; nothing here
/// reports errors.
///
/// Wide text holds UTF-16 units, one per wide character. When it is encoded, a single wide character above U+FFFF is
/// accepted as well; a lone surrogate and a value that is no code point become U+FFFD.
class ZRXML_API CEncoder {
public:
    /// Decodes UTF-8. Supplementary characters become surrogate pairs, each maximal run of ill-formed octets becomes
    /// one U+FFFD, and a byte order mark is kept as U+FEFF. @param data may be null when the length is 0.
    static std::wstring Utf8ToUnicode(const unsigned char* data, unsigned long length);
    static std::wstring Utf8ToUnicode(const CBinaryData& data);
    static std::wstring Utf8ToUnicode(const std::string& text);

    /// Encodes wide text as UTF-8. @param text may be null when the length is 0.
    static std::string UnicodeToUtf8(const wchar_t* text, unsigned long length);
    static std::string UnicodeToUtf8(const std::wstring& text);
    /// The same as octets.
    static CBinaryData UnicodeToUtf8Binary(const wchar_t* text, unsigned long length);
    static CBinaryData UnicodeToUtf8Binary(const std::wstring& text);

    /// Reads UTF-16: one wide character per unit, surrogates untouched; an odd last octet becomes U+FFFD.
    /// @param length in octets.
    static std::wstring Utf16ToUnicode(const unsigned char* data, unsigned long length, bool bigEndian);

    /// Appends the low 16 bits of each wide character, little-endian, to the output.
    static void UnicodeToUtf16LE(const wchar_t* text, unsigned long length, std::vector<unsigned char>& out);

    /// Replaces single wide characters above U+FFFF by their surrogate pairs.
    static std::wstring ToSurrogatePairs(const std::wstring& text);
};

} // namespace ZrXmlLib16

#endif
