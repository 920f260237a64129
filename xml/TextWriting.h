// SPDX-License-Identifier: MIT
#ifndef XML_TEXTWRITING_H
#define XML_TEXTWRITING_H

#include "ZrXmlLib16/EOLType.h"
#include "ZrXmlLib16/TextStream.h"

#include <string>

/// What the writers of XML text and of JSON text have in common.
namespace ZrXmlLib16 {

/// @throws CZrException for a value outside the enumeration.
const wchar_t* EndOfLineText(EOLType type);

/// Appends the indent characters, repeated.
/// @param repeated the indent characters as often as they were needed up to now; grows. Empty it when they change.
void AppendIndentation(
    CTextStream& stream, const std::wstring& indentChars, std::wstring& repeated, unsigned long depth);

template <std::size_t N> void AppendLiteral(CTextStream& stream, const wchar_t (&text)[N])
{
    stream.Append(text, N - 1);
}

inline void FlushWhenFull(CTextStream& stream)
{
    constexpr unsigned long threshold = 4095;
    if (stream.GetLength() > threshold) {
        stream.Flush();
    }
}

} // namespace ZrXmlLib16

#endif
