// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Decimal.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "values/DecimalDigits.h"
#include "values/DecimalFormat.h"
#include "values/DigitText.h"
#include "values/ValueMessages.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cwchar>
#include <iterator>
#include <limits>
#include <utility>

namespace ZrXmlLib16 {

CDecimal::CDecimal()
    : m_fractionDigits(0)
    , m_negative(false)
{
}

CDecimal::CDecimal(int value)
    : CDecimal(static_cast<long long>(value))
{
}

CDecimal::CDecimal(long value)
    : CDecimal(static_cast<long long>(value))
{
}

CDecimal::CDecimal(long long value)
    : m_digits(DigitsOfMagnitude(value))
    , m_fractionDigits(0)
    , m_negative(value < 0)
{
}

CDecimal::CDecimal(const wchar_t* text)
    : CDecimal()
{
    Parse(text);
}

CDecimal::CDecimal(CDecimal&& other) noexcept
    : m_digits(std::move(other.m_digits))
    , m_fractionDigits(std::exchange(other.m_fractionDigits, 0))
    , m_negative(std::exchange(other.m_negative, false))
{
    other.m_digits.clear();
}

CDecimal& CDecimal::operator=(CDecimal&& other) noexcept
{
    if (this != &other) {
        m_digits = std::move(other.m_digits);
        m_fractionDigits = std::exchange(other.m_fractionDigits, 0);
        m_negative = std::exchange(other.m_negative, false);
        other.m_digits.clear();
    }
    return *this;
}

CDecimal CDecimal::FromDouble(double value)
{
    if (!std::isfinite(value)) {
        const wchar_t* word = std::isnan(value) ? L"NaN" : value < 0 ? L"-INF" : L"INF";
        throw CZrInvalidValueException(FormatString(ValueMessages::NOT_A_DECIMAL, word));
    }
    CDecimal result;
    if (value == 0) {
        return result;
    }
    // "d[.ddd]e(+|-)dd" with the fewest digits, the last of which is not zero.
    char buffer[40];
    const char* end =
        std::to_chars(buffer, buffer + sizeof(buffer), std::fabs(value), std::chars_format::scientific).ptr;
    const char* exponentMark = std::find(static_cast<const char*>(buffer), end, 'e');
    int exponent = 0;
    std::from_chars(exponentMark + (exponentMark[1] == '+' ? 2 : 1), end, exponent);
    std::copy_if(static_cast<const char*>(buffer), exponentMark, std::back_inserter(result.m_digits),
        [](char c) { return c != '.'; });

    const long integerDigits = exponent + 1L;
    const long digitCount = static_cast<long>(result.m_digits.size());
    if (integerDigits <= 0) {
        result.m_digits.insert(0, static_cast<std::size_t>(-integerDigits), '0');
        result.m_fractionDigits = result.m_digits.size();
    } else if (integerDigits < digitCount) {
        result.m_fractionDigits = static_cast<unsigned long>(digitCount - integerDigits);
    } else {
        result.m_digits.append(static_cast<std::size_t>(integerDigits - digitCount), '0');
    }
    result.m_negative = value < 0;
    return result;
}

void CDecimal::ParseText(const wchar_t* text, unsigned long length)
{
    if (!TryParse(text, length)) {
        throw CZrInvalidValueException(FormatString(ValueMessages::NOT_A_DECIMAL, text));
    }
}

/// Leaves the value alone when the text is no decimal number.
bool CDecimal::TryParse(const wchar_t* text, unsigned long length)
{
    constexpr std::size_t FEW = 48;
    char few[FEW];
    std::string many;
    char* digits = few;
    if (length > FEW) {
        many.resize(length);
        digits = many.data();
    }
    CDigitScanner scanner(text, length);
    const bool negative = scanner.TakeSign(true);
    const std::size_t integerCount = scanner.TakeDigits(digits);
    scanner.Take(L'.');
    const std::size_t count = integerCount + scanner.TakeDigits(digits + integerCount);
    if (count == 0 || !scanner.AtEnd()) {
        return false;
    }
    std::size_t first = 0;
    while (first < integerCount && digits[first] == '0') {
        ++first;
    }
    std::size_t last = count;
    while (last > integerCount && digits[last - 1] == '0') {
        --last;
    }
    m_digits.assign(digits + first, last - first);
    m_fractionDigits = last - integerCount;
    m_negative = negative && !m_digits.empty();
    return true;
}

void CDecimal::Parse(const wchar_t* text)
{
    text = text ? text : L"";
    ParseText(text, std::wcslen(text));
}

void CDecimal::Parse(const std::wstring& text)
{
    ParseText(text.c_str(), text.size());
}

int CDecimal::Compare(const CDecimal& other) const
{
    return OrderWithSigns(m_negative, other.m_negative,
        CompareMagnitudes(m_digits, GetIntegerDigits(), other.m_digits, other.GetIntegerDigits()));
}

double CDecimal::ToDouble() const
{
    if (m_digits.empty()) {
        return 0;
    }
    const std::string text = m_digits + "e-" + std::to_string(m_fractionDigits);
    double magnitude = 0;
    if (std::from_chars(text.data(), text.data() + text.size(), magnitude).ec == std::errc::result_out_of_range) {
        magnitude = GetIntegerDigits() > 0 ? std::numeric_limits<double>::infinity() : 0;
    }
    return m_negative ? -magnitude : magnitude;
}

std::wstring CDecimal::ToString() const
{
    std::wstring text;
    AppendTo(text);
    return text;
}

std::wstring CDecimal::ToString(const wchar_t* format) const
{
    std::wstring text;
    AppendTo(text, format);
    return text;
}

void CDecimal::AppendTo(std::wstring& text) const
{
    AppendDecimal(text, m_negative, m_digits, m_fractionDigits);
}

void CDecimal::AppendTo(std::wstring& text, const wchar_t* format) const
{
    DecimalFormat parsed;
    if (!format || !ParseDecimalFormat(format, parsed)) {
        AppendTo(text);
        return;
    }
    const std::string digits = RoundDigits(m_digits, m_fractionDigits, parsed.fractionDigits);
    const bool negative = m_negative && digits.find_first_not_of('0') != std::string::npos;
    const std::size_t start = text.size();
    AppendDecimal(text, negative, digits, parsed.fractionDigits);
    const std::size_t length = text.size() - start;
    if (length < parsed.width) {
        const std::size_t padAt = start + (parsed.padWithZeros && negative ? 1 : 0);
        text.insert(padAt, parsed.width - length, parsed.padWithZeros ? L'0' : L' ');
    }
}

} // namespace ZrXmlLib16
