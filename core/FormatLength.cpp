// SPDX-License-Identifier: MIT
#include "core/FormatLength.h"

#include <cstdint>
#include <cstring>
#include <cwchar>

namespace ZrXmlLib16 {

namespace {

// The longest number without a precision: a double of 309 digits and a fraction of six.
constexpr std::size_t LONGEST_NUMBER = 330;
constexpr std::size_t LONGEST_NULL_TEXT = 6;

std::size_t Larger(std::size_t a, std::size_t b)
{
    return a > b ? a : b;
}

/// Walks over a format once, taking the arguments that it names.
class FormatScanner {
public:
    FormatScanner(const wchar_t* format, va_list arguments)
        : m_next(format)
    {
        va_copy(m_arguments, arguments);
    }
    ~FormatScanner() { va_end(m_arguments); }
    FormatScanner(const FormatScanner&) = delete;
    FormatScanner& operator=(const FormatScanner&) = delete;

    std::size_t Measure()
    {
        std::size_t total = 0;
        while (*m_next) {
            if (*m_next++ != L'%') {
                ++total;
            } else if (*m_next == L'%') {
                ++m_next;
                ++total;
            } else {
                total += MeasureConversion();
            }
        }
        return total;
    }

private:
    std::size_t MeasureConversion()
    {
        while (*m_next && std::wcschr(L"-+ #0'", *m_next)) {
            ++m_next;
        }
        const std::size_t width = ReadCount();
        std::size_t precision = 0;
        if (*m_next == L'.') {
            ++m_next;
            precision = ReadCount();
        }
        int longs = 0;
        bool longDouble = false;
        for (; *m_next && std::wcschr(L"hlLqjzt", *m_next); ++m_next) {
            longs += *m_next == L'h' ? 0 : 1;
            longDouble = longDouble || *m_next == L'L';
        }
        if (!*m_next) {
            return 0;
        }
        return Larger(width, TakeArgument(*m_next++, longs, longDouble) + precision);
    }

    std::size_t ReadCount()
    {
        if (*m_next == L'*') {
            ++m_next;
            const int count = va_arg(m_arguments, int);
            return count < 0 ? static_cast<std::size_t>(-static_cast<long>(count)) : static_cast<std::size_t>(count);
        }
        std::size_t count = 0;
        for (; *m_next >= L'0' && *m_next <= L'9'; ++m_next) {
            count = count * 10 + static_cast<std::size_t>(*m_next - L'0');
        }
        return count;
    }

    std::size_t TakeArgument(wchar_t conversion, int longs, bool longDouble)
    {
        switch (conversion) {
        case L's':
        case L'S':
            return TakeText(conversion == L'S' || longs > 0);
        case L'c':
        case L'C':
            va_arg(m_arguments, int);
            return 1;
        case L'a':
        case L'A':
        case L'e':
        case L'E':
        case L'f':
        case L'F':
        case L'g':
        case L'G':
            if (longDouble) {
                va_arg(m_arguments, long double);
                return LONGEST_NUMBER + 4640;
            }
            va_arg(m_arguments, double);
            return LONGEST_NUMBER;
        case L'p':
            va_arg(m_arguments, void*);
            return LONGEST_NUMBER;
        default:
            if (longs > 0) {
                va_arg(m_arguments, long long);
            } else {
                va_arg(m_arguments, int);
            }
            return LONGEST_NUMBER;
        }
    }

    std::size_t TakeText(bool wide)
    {
        if (wide) {
            const wchar_t* text = va_arg(m_arguments, const wchar_t*);
            return text ? std::wcslen(text) : LONGEST_NULL_TEXT;
        }
        const char* text = va_arg(m_arguments, const char*);
        return text ? std::strlen(text) : LONGEST_NULL_TEXT;
    }

    const wchar_t* m_next;
    va_list m_arguments;
};

} // namespace

std::size_t MeasureFormat(const wchar_t* format, va_list arguments)
{
    return FormatScanner(format, arguments).Measure();
}

} // namespace ZrXmlLib16
