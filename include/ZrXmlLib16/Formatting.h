// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_FORMATTING_H
#define ZRXMLLIB16_FORMATTING_H

#include "ZrXmlLib16/Export.h"

#include <cstdarg>
#include <cstdio>
#include <string>

namespace ZrXmlLib16 {

/// Wide printf-style formatting. Wide strings go in as %ls, a single character as %lc; the format is never text from
/// outside.
ZRXML_API std::wstring FormatString(const wchar_t* format, ...);
/// FormatString with an argument list; a format that cannot be carried out gives the bare format text.
ZRXML_API std::wstring FormatV(const wchar_t* format, va_list arguments);
/// Decimal text of the value, filled up with zeros on the left to at least the given width.
ZRXML_API std::wstring PadZero(int value, unsigned char width);
/// The text without its trailing zero digits; the first character always stays.
ZRXML_API std::wstring TrimTrainingZeros(std::wstring text);
/// Replaces occurrences in place, searching from the start again after each one: a replacement that contains the
/// searched text, or an empty searched text, never ends.
ZRXML_API void FindReplace(std::string& text, const std::string& from, const std::string& to);
ZRXML_API void FindReplace(std::wstring& text, const std::wstring& from, const std::wstring& to);
/// UTF-8 of a wide text, whatever the locale; null is empty.
ZRXML_API std::string UnicodeToMultiByte(const wchar_t* text);
/// Upper-cases the ASCII letters of a text in place and returns it.
ZRXML_API char* strupr(char* text);
/// Length of an open regular file in bytes; -1 for anything else.
ZRXML_API long _filelength(FILE* file);
/// Fraction of a second as a point and up to nine digits without trailing zeros; empty when all three are zero.
ZRXML_API std::wstring ToFracString(unsigned short milli, unsigned short micro, unsigned short nano);

} // namespace ZrXmlLib16

#endif
