// SPDX-License-Identifier: MIT
#ifndef LEXICAL_NUMBERTEXT_H
#define LEXICAL_NUMBERTEXT_H

#include <string>

/// Number text as the C library reads and prints it in the "C" locale, whatever locale the program has set. Nothing
/// here allocates for texts of ordinary length. All functions may be called from any thread.
namespace ZrXmlLib16::NumberText {

enum class ScanResult { Ok, Malformed, OutOfRange };

/// Base 10 with the grammar of wcstoll / wcstoull: blanks (U+0009..U+000D, U+0020), sign, digits; nothing may follow.
/// Like there, a number out of range is reported as such even when something else follows it.
ScanResult ScanInteger(const std::wstring& text, long long& value);
/// A minus sign wraps: "-1" is the largest value.
ScanResult ScanInteger(const std::wstring& text, unsigned long long& value);

/// The grammar of wcstod without its words for infinity and NaN: blanks, sign, decimal or hexadecimal floating point.
/// Overflow gives an infinity, underflow the nearest value.
/// @return false when the text is anything else.
bool ScanDouble(const std::wstring& text, double& value);

void AppendInteger(long long value, std::wstring& text);
void AppendUnsigned(unsigned long long value, std::wstring& text);

/// `%.<precision>g` of a finite value; precision 1..17.
void AppendGeneral(double value, int precision, std::wstring& text);

/// A finite value by a caller's format: literal text (`%%` for a percent sign) around exactly one conversion
/// `%[-+ #0][width][.precision][l](a|A|e|E|f|F|g|G)` with at most three digits in width and precision.
/// @throws CZrInvalidParamException for any other format.
void AppendFormatted(double value, const wchar_t* format, std::wstring& text);

} // namespace ZrXmlLib16::NumberText

#endif
