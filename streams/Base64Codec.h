// SPDX-License-Identifier: MIT
#ifndef STREAMS_BASE64CODEC_H
#define STREAMS_BASE64CODEC_H

#include <string>

namespace ZrXmlLib16 {

/// Base64 text of any length, padded and without line breaks; empty for null.
std::wstring EncodeBase64(const unsigned char* bytes, unsigned long length);

/// Room that decoding a text of this length may need.
unsigned long DecodedBase64Bound(unsigned long textLength);

/// Decodes as CBase64::Decode does, without clearing the output first.
/// @param out room for DecodedBase64Bound octets.
/// @return the number of octets written.
unsigned long DecodeBase64(const wchar_t* text, unsigned long length, unsigned char* out);

} // namespace ZrXmlLib16

#endif
