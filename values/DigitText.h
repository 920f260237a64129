// SPDX-License-Identifier: MIT
#ifndef VALUES_DIGITTEXT_H
#define VALUES_DIGITTEXT_H

#include <cstddef>
#include <cstdint>

namespace ZrXmlLib16 {

constexpr bool IsDecimalDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

/// Reads a text from its start to its end, digits and single characters at a time. Borrows the text.
class CDigitScanner {
public:
    CDigitScanner(const wchar_t* text, std::size_t length)
        : m_at(text)
        , m_end(text + length)
    {
    }

    bool AtEnd() const { return m_at == m_end; }
    const wchar_t* Position() const { return m_at; }

    /// Takes the next character if it is the expected one.
    bool Take(wchar_t expected)
    {
        const bool found = m_at != m_end && *m_at == expected;
        m_at += found ? 1 : 0;
        return found;
    }

    /// Takes the next character whatever it is; NUL at the end.
    wchar_t TakeAny() { return AtEnd() ? L'\0' : *m_at++; }

    /// Takes a sign, "-" or, when allowed, "+"; true for "-".
    bool TakeSign(bool plusAllowed)
    {
        const bool negative = Take(L'-');
        if (!negative && plusAllowed) {
            Take(L'+');
        }
        return negative;
    }

    /// Takes all digits that follow and returns their number.
    std::size_t SkipDigits()
    {
        const wchar_t* start = m_at;
        while (m_at != m_end && IsDecimalDigit(*m_at)) {
            ++m_at;
        }
        return static_cast<std::size_t>(m_at - start);
    }

    /// Takes all digits that follow as narrow characters and returns their number.
    std::size_t TakeDigits(char* digits)
    {
        const wchar_t* start = m_at;
        for (; m_at != m_end && IsDecimalDigit(*m_at); ++m_at) {
            *digits++ = static_cast<char>(*m_at);
        }
        return static_cast<std::size_t>(m_at - start);
    }

    /// Takes all digits that follow and returns their number; the value wraps at 2^32.
    std::size_t TakeNumber(std::uint32_t& value)
    {
        const wchar_t* start = m_at;
        for (value = 0; m_at != m_end && IsDecimalDigit(*m_at); ++m_at) {
            value = value * 10 + static_cast<std::uint32_t>(*m_at - L'0');
        }
        return static_cast<std::size_t>(m_at - start);
    }

    /// Takes two digits; false when there are fewer.
    bool TakeTwoDigits(std::uint32_t& value)
    {
        if (m_end - m_at < 2 || !IsDecimalDigit(m_at[0]) || !IsDecimalDigit(m_at[1])) {
            return false;
        }
        value = ValueOf(m_at, 2);
        m_at += 2;
        return true;
    }

    /// Takes all digits that follow a point and returns their number; the first nine make the nanoseconds.
    std::size_t TakeFraction(std::uint32_t& nanoseconds)
    {
        const wchar_t* start = m_at;
        const std::size_t count = SkipDigits();
        nanoseconds = ValueOf(start, count < 9 ? count : 9);
        for (std::size_t place = count; place < 9; ++place) {
            nanoseconds *= 10;
        }
        return count;
    }

private:
    static std::uint32_t ValueOf(const wchar_t* digits, std::size_t count)
    {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < count; ++i) {
            value = value * 10 + static_cast<std::uint32_t>(digits[i] - L'0');
        }
        return value;
    }

    const wchar_t* m_at;
    const wchar_t* m_end;
};

/// Writes exactly the given number of digits and returns the position behind them.
inline wchar_t* WriteFixedDigits(wchar_t* at, std::uint32_t value, int count)
{
    for (int i = count; i-- > 0; value /= 10) {
        at[i] = static_cast<wchar_t>(L'0' + value % 10);
    }
    return at + count;
}

/// Writes an unsigned number without leading zeros and returns the position behind it.
template <class Unsigned> wchar_t* WriteNumber(wchar_t* at, Unsigned value)
{
    int count = 1;
    for (Unsigned rest = value; rest >= 10; rest /= 10) {
        ++count;
    }
    for (int i = count; i-- > 0; value /= 10) {
        at[i] = static_cast<wchar_t>(L'0' + static_cast<int>(value % 10));
    }
    return at + count;
}

/// Writes a point and the digits of a fraction of a second without trailing zeros, nothing when it is zero; returns the
/// position behind them.
inline wchar_t* WriteFraction(wchar_t* at, std::uint32_t nanoseconds)
{
    if (nanoseconds == 0) {
        return at;
    }
    *at++ = L'.';
    at = WriteFixedDigits(at, nanoseconds, 9);
    while (at[-1] == L'0') {
        --at;
    }
    return at;
}

} // namespace ZrXmlLib16

#endif
