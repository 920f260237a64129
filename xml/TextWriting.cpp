// SPDX-License-Identifier: MIT
#include "xml/TextWriting.h"

#include "ZrXmlLib16/ZrException.h"
#include "xml/XmlMessages.h"

namespace ZrXmlLib16 {

const wchar_t* EndOfLineText(EOLType type)
{
    switch (type) {
    case EOL_CRLF:
        return L"\r\n";
    case EOL_LF:
        return L"\n";
    }
    throw CZrException(Message::INVALID_EOL_TYPE);
}

void AppendIndentation(
    CTextStream& stream, const std::wstring& indentChars, std::wstring& repeated, unsigned long depth)
{
    const std::size_t length = depth * indentChars.size();
    while (repeated.size() < length) {
        repeated.append(indentChars);
    }
    stream.Append(repeated.data(), length);
}

} // namespace ZrXmlLib16
