// SPDX-License-Identifier: MIT
#ifndef STREAMS_UTF8DECODING_H
#define STREAMS_UTF8DECODING_H

#include <memory>
#include <string>
#include <string_view>

namespace ZrXmlLib16 {

/// Decodes UTF-8 into UTF-16 units; each maximal run of octets outside well-formed sequences becomes one U+FFFD.
std::wstring DecodeUtf8(const unsigned char* data, unsigned long length);
/// The same for long texts, which are not filled with zeros first.
struct WideText {
    std::wstring_view View() const { return std::wstring_view(characters.get(), length); }

    std::unique_ptr<wchar_t[]> characters; // NUL-terminated
    unsigned long length = 0;
};
WideText DecodeUtf8Text(const unsigned char* data, unsigned long length);
/// The same into an array that has room for as many units as there are octets.
/// @return the end of what was written.
wchar_t* DecodeUtf8(const unsigned char* data, unsigned long length, wchar_t* output);
unsigned short* DecodeUtf8(const unsigned char* data, unsigned long length, unsigned short* output);

} // namespace ZrXmlLib16

#endif
