// SPDX-License-Identifier: MIT
#include "lexical/NumberText.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "core/CLocale.h"
#include "lexical/LexicalMessages.h"

#include <cstdio>
#include <cwchar>

namespace ZrXmlLib16::NumberText {

namespace {

/// Copies literal text up to the next conversion or the end.
void AppendLiteral(const wchar_t*& format, std::wstring& text)
{
    for (; *format != L'\0'; ++format) {
        if (*format == L'%') {
            if (format[1] != L'%') {
                return;
            }
            ++format;
        }
        text += *format;
    }
}

/// At most three digits; a fourth stays unread and is refused as a conversion letter.
void CopyDigits(const wchar_t*& format, char*& out)
{
    for (int count = 0; count < 3 && *format >= L'0' && *format <= L'9'; ++count) {
        *out++ = static_cast<char>(*format++);
    }
}

constexpr std::size_t MaxConversionLength = 32;

/// Rebuilds the conversion at `format` from the parts that are allowed, for snprintf with one double.
bool CopyConversion(const wchar_t*& format, char (&conversion)[MaxConversionLength])
{
    if (*format != L'%') {
        return false;
    }
    char* out = conversion;
    *out++ = '%';
    const wchar_t* const flags = ++format;
    for (; *format != L'\0' && std::wcschr(L"-+ #0", *format) != nullptr; ++format) {
        // A repeated flag means nothing more than the first.
        if (std::wmemchr(flags, *format, static_cast<std::size_t>(format - flags)) == nullptr) {
            *out++ = static_cast<char>(*format);
        }
    }
    CopyDigits(format, out);
    if (*format == L'.') {
        *out++ = static_cast<char>(*format++);
        CopyDigits(format, out);
    }
    if (*format == L'l') {
        ++format;
    }
    if (*format == L'\0' || std::wcschr(L"aAeEfFgG", *format) == nullptr) {
        return false;
    }
    *out++ = static_cast<char>(*format++);
    *out = '\0';
    return true;
}

void AppendConverted(double value, const char* conversion, std::wstring& text)
{
    // Longest result: sign, 309 digits, point and 999 digits; a width is at most 999.
    char buffer[1400];
    const CLocaleGuard locale;
    std::snprintf(buffer, sizeof buffer, conversion, value);
    for (const char* c = buffer; *c != '\0'; ++c) {
        text += static_cast<wchar_t>(*c);
    }
}

} // namespace

void AppendFormatted(double value, const wchar_t* format, std::wstring& text)
{
    const wchar_t* position = format;
    char conversion[MaxConversionLength];
    AppendLiteral(position, text);
    if (!CopyConversion(position, conversion)) {
        throw CZrInvalidParamException(FormatString(LexicalMessages::InvalidNumberFormat, format));
    }
    AppendConverted(value, conversion, text);
    AppendLiteral(position, text);
    if (*position != L'\0') {
        throw CZrInvalidParamException(FormatString(LexicalMessages::InvalidNumberFormat, format));
    }
}

} // namespace ZrXmlLib16::NumberText
