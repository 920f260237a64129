// SPDX-License-Identifier: MIT
#ifndef JSON_JSONTEXT_H
#define JSON_JSONTEXT_H

#include "ZrXmlLib16/ItemType.h"

#include <string>

/// How the JSON writer shows values and other text.
namespace ZrXmlLib16 {

class CTextStream;

/// Numbers and booleans as they are, everything else quoted.
void AppendJsonValue(CTextStream& stream, const std::wstring& value, ItemType type, const std::wstring& endOfLine);
/// The translated text between quotation marks.
void AppendJsonString(CTextStream& stream, const std::wstring& value, const std::wstring& endOfLine);
/// The text up to the first NUL with line feeds replaced, carriage returns dropped and control characters written as
/// numbers.
void AppendJsonText(CTextStream& stream, const std::wstring& text, const std::wstring& endOfLine);

} // namespace ZrXmlLib16

#endif
