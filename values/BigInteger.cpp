// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/BigInteger.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "values/DecimalDigits.h"
#include "values/DigitText.h"
#include "values/ValueMessages.h"

#include <charconv>
#include <cwchar>
#include <utility>

namespace ZrXmlLib16 {

namespace {

/// False when the number does not fit; the value is then unchanged.
bool DigitsToUInt64(const std::string& digits, unsigned long long& value)
{
    if (digits.empty()) {
        value = 0;
        return true;
    }
    return std::from_chars(digits.data(), digits.data() + digits.size(), value).ec == std::errc();
}

} // namespace

CBigInteger::CBigInteger()
    : m_negative(false)
{
}

CBigInteger::CBigInteger(int value)
    : CBigInteger(static_cast<long long>(value))
{
}

CBigInteger::CBigInteger(long value)
    : CBigInteger(static_cast<long long>(value))
{
}

CBigInteger::CBigInteger(long long value)
    : m_digits(DigitsOfMagnitude(value))
    , m_negative(value < 0)
{
}

CBigInteger::CBigInteger(const wchar_t* text)
    : CBigInteger()
{
    Parse(text);
}

CBigInteger::CBigInteger(CBigInteger&& other) noexcept
    : m_digits(std::move(other.m_digits))
    , m_negative(std::exchange(other.m_negative, false))
{
    other.m_digits.clear();
}

CBigInteger& CBigInteger::operator=(CBigInteger&& other) noexcept
{
    if (this != &other) {
        m_digits = std::move(other.m_digits);
        m_negative = std::exchange(other.m_negative, false);
        other.m_digits.clear();
    }
    return *this;
}

CBigInteger CBigInteger::FromUInt64(unsigned long long value)
{
    CBigInteger result;
    result.m_digits = DigitsOf(value);
    return result;
}

void CBigInteger::ParseText(const wchar_t* text, unsigned long length)
{
    CDigitScanner scanner(text, length);
    const bool negative = scanner.TakeSign(true);
    const wchar_t* first = scanner.Position();
    if (scanner.SkipDigits() == 0 || !scanner.AtEnd()) {
        throw CZrInvalidValueException(FormatString(ValueMessages::NOT_AN_INTEGER, text));
    }
    std::string digits;
    AppendDigits(digits, SkipZeros(first, scanner.Position()), scanner.Position());
    m_digits = std::move(digits);
    m_negative = negative && !m_digits.empty();
}

void CBigInteger::Parse(const wchar_t* text)
{
    text = text ? text : L"";
    ParseText(text, std::wcslen(text));
}

void CBigInteger::Parse(const std::wstring& text)
{
    ParseText(text.c_str(), text.size());
}

std::wstring CBigInteger::ToString() const
{
    std::wstring text;
    AppendTo(text);
    return text;
}

void CBigInteger::AppendTo(std::wstring& text) const
{
    if (m_negative) {
        text += L'-';
    }
    if (m_digits.empty()) {
        text += L'0';
    }
    AppendDigits(text, m_digits.data(), m_digits.size());
}

int CBigInteger::Compare(const CBigInteger& other) const
{
    return OrderWithSigns(m_negative, other.m_negative,
        CompareMagnitudes(m_digits, m_digits.size(), other.m_digits, other.m_digits.size()));
}

bool CBigInteger::ToInt64(long long& value) const
{
    unsigned long long magnitude = 0;
    constexpr unsigned long long largest = 0x7FFFFFFFFFFFFFFFULL;
    if (!DigitsToUInt64(m_digits, magnitude) || magnitude > largest + (m_negative ? 1 : 0)) {
        return false;
    }
    value = static_cast<long long>(m_negative ? 0 - magnitude : magnitude);
    return true;
}

bool CBigInteger::ToUInt64(unsigned long long& value) const
{
    return !m_negative && DigitsToUInt64(m_digits, value);
}

} // namespace ZrXmlLib16
