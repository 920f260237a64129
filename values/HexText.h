// SPDX-License-Identifier: MIT
#ifndef VALUES_HEXTEXT_H
#define VALUES_HEXTEXT_H

#include <string>

namespace ZrXmlLib16 {

/// Number of octets of a hex text.
/// @throws CZrInvalidValueException for an odd number of digits.
unsigned long DecodedHexLength(unsigned long digitCount);

/// Parses hex digits in either case.
/// @param digitCount even.
/// @param out room for DecodedHexLength octets.
/// @throws CZrInvalidValueException for a character that is no hex digit.
void DecodeHex(const wchar_t* text, unsigned long digitCount, unsigned char* out);

/// Appends two upper-case digits per octet.
void AppendHex(const unsigned char* data, unsigned long length, std::wstring& text);

} // namespace ZrXmlLib16

#endif
