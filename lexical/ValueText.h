// SPDX-License-Identifier: MIT
#ifndef LEXICAL_VALUETEXT_H
#define LEXICAL_VALUETEXT_H

#include <string>

/// Lexical forms appended to a text whose capacity the caller reuses; shared by CConversions and the item type table.
/// The class types append themselves.
namespace ZrXmlLib16::ValueText {

/// A null or empty format means the default one. @throws CZrInvalidParamException for an unusable format.
void AppendR4(float value, const wchar_t* format, std::wstring& text);
void AppendR8(double value, const wchar_t* format, std::wstring& text);
void AppendMonth(unsigned char value, std::wstring& text);
void AppendDay(unsigned char value, std::wstring& text);
void AppendBoolean(bool value, std::wstring& text);

} // namespace ZrXmlLib16::ValueText

#endif
