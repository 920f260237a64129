// SPDX-License-Identifier: MIT
#ifndef STREAMS_UTF8ENCODING_H
#define STREAMS_UTF8ENCODING_H

#include "ZrXmlLib16/BinaryData.h"

#include <cstddef>

namespace ZrXmlLib16 {

/// A piece of wide text; consecutive pieces form one text, in which a surrogate pair may lie across a border.
struct TextPiece {
    const wchar_t* text;
    unsigned long length;
};

/// Number of octets of the text in UTF-8.
unsigned long Utf8Length(const TextPiece* pieces, std::size_t count);

/// Writes the text in UTF-8. @param out room for Utf8Length octets. @return the end of what was written.
unsigned char* WriteUtf8(const TextPiece* pieces, std::size_t count, unsigned char* out);

/// The text in UTF-8, in an array of exactly the needed size.
CBinaryData EncodeUtf8(const TextPiece* pieces, std::size_t count);

} // namespace ZrXmlLib16

#endif
