// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Formatting.h"

#include "ZrXmlLib16/Encoder.h"
#include "core/CLocale.h"
#include "core/FormatLength.h"
#include "values/DigitText.h"

#include <sys/stat.h>

#include <cstdint>
#include <cwchar>

namespace ZrXmlLib16 {

namespace {

/// Formats into a text of the given capacity; false when the C library reports a failure, a short buffer included.
bool TryFormat(const wchar_t* format, va_list arguments, std::size_t capacity, std::wstring& text)
{
    text.resize(capacity);
    va_list copy;
    va_copy(copy, arguments);
    const int length = std::vswprintf(&text[0], capacity + 1, format, copy);
    va_end(copy);
    if (length < 0) {
        return false;
    }
    text.resize(static_cast<std::size_t>(length));
    return true;
}

template <class Text> void ReplaceFromTheStart(Text& text, const Text& from, const Text& to)
{
    // kept: required behaviour. The search starts over after each replacement, so "aab" with "ab" -> "b" becomes "b".
    for (std::size_t at = text.find(from); at != Text::npos; at = text.find(from)) {
        text.replace(at, from.size(), to);
    }
}

} // namespace

std::wstring FormatString(const wchar_t* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    std::wstring text = FormatV(format, arguments);
    va_end(arguments);
    return text;
}

std::wstring FormatV(const wchar_t* format, va_list arguments)
{
    va_list copy;
    va_copy(copy, arguments);
    const std::size_t bound = MeasureFormat(format, copy);
    va_end(copy);
    const CLocaleGuard locale;
    // One retry only: the C library gives the same answer for a short buffer and for a conversion that can never
    // succeed.
    std::wstring text;
    if (TryFormat(format, arguments, bound, text) || TryFormat(format, arguments, 4 * bound + 64, text)) {
        return text;
    }
    return format;
}

std::wstring PadZero(int value, unsigned char width)
{
    return FormatString(L"%0*d", static_cast<int>(width), value);
}

std::wstring TrimTrainingZeros(std::wstring text)
{
    // kept: required behaviour. The first character stays, even when it is a zero.
    while (text.size() > 1 && text.back() == L'0') {
        text.pop_back();
    }
    return text;
}

void FindReplace(std::string& text, const std::string& from, const std::string& to)
{
    ReplaceFromTheStart(text, from, to);
}

void FindReplace(std::wstring& text, const std::wstring& from, const std::wstring& to)
{
    ReplaceFromTheStart(text, from, to);
}

std::string UnicodeToMultiByte(const wchar_t* text)
{
    return text ? CEncoder::UnicodeToUtf8(text, std::wcslen(text)) : std::string();
}

char* strupr(char* text)
{
    for (char* at = text; at && *at; ++at) {
        if (*at >= 'a' && *at <= 'z') {
            *at = static_cast<char>(*at - 'a' + 'A');
        }
    }
    return text;
}

long _filelength(FILE* file)
{
    // fstat, because opening a directory succeeds and seeking in it reports the largest number.
    struct stat status;
    if (!file || fstat(fileno(file), &status) != 0 || !S_ISREG(status.st_mode)) {
        return -1;
    }
    return static_cast<long>(status.st_size);
}

std::wstring ToFracString(unsigned short milli, unsigned short micro, unsigned short nano)
{
    const std::uint64_t nanoseconds = milli * 1000000ULL + micro * 1000ULL + nano;
    wchar_t text[16];
    return std::wstring(text, WriteFraction(text, static_cast<std::uint32_t>(nanoseconds % 1000000000ULL)));
}

} // namespace ZrXmlLib16
