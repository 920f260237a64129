// SPDX-License-Identifier: MIT
#include "lexical/NumberText.h"

#include "core/CLocale.h"
#include "values/DigitText.h"

#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace ZrXmlLib16::NumberText {

namespace {

bool IsBlank(wchar_t c)
{
    return c == L' ' || (c >= L'\t' && c <= L'\r');
}

bool IsDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

/// Skips blanks and one sign; returns whether the sign is a minus.
bool SkipSign(const wchar_t*& position, const wchar_t* end)
{
    while (position != end && IsBlank(*position)) {
        ++position;
    }
    if (position == end || (*position != L'-' && *position != L'+')) {
        return false;
    }
    return *position++ == L'-';
}

struct Magnitude {
    unsigned long long value = 0;
    bool overflow = false;
    bool negative = false;
    bool hasDigits = false;
    bool atEnd = false;
};

Magnitude ScanMagnitude(const std::wstring& text)
{
    constexpr unsigned long long LARGEST_TENTH = ULLONG_MAX / 10;
    const wchar_t* position = text.data();
    const wchar_t* const end = position + text.length();
    Magnitude result;
    result.negative = SkipSign(position, end);
    const wchar_t* const firstDigit = position;
    for (; position != end && IsDigit(*position); ++position) {
        const auto digit = static_cast<unsigned long long>(*position - L'0');
        if (result.value > LARGEST_TENTH || (result.value == LARGEST_TENTH && digit > ULLONG_MAX % 10)) {
            result.overflow = true;
        } else {
            result.value = result.value * 10 + digit;
        }
    }
    result.hasDigits = position != firstDigit;
    result.atEnd = position == end;
    return result;
}

/// Narrow, NUL-terminated copy of a text; characters beyond ASCII become one that no number contains.
class NarrowCopy {
public:
    NarrowCopy(const wchar_t* text, std::size_t length)
    {
        char* out = m_short;
        if (length >= sizeof m_short) {
            m_long.resize(length);
            out = m_long.data();
        }
        m_begin = out;
        for (std::size_t i = 0; i < length; ++i) {
            *out++ = text[i] >= 0 && text[i] < 0x80 ? static_cast<char>(text[i]) : '?';
        }
        *out = '\0';
        m_end = out;
    }
    NarrowCopy(const NarrowCopy&) = delete;
    NarrowCopy& operator=(const NarrowCopy&) = delete;

    const char* Begin() const { return m_begin; }
    const char* End() const { return m_end; }

private:
    char m_short[64];
    std::string m_long;
    const char* m_begin;
    const char* m_end;
};

bool IsHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// Unsigned decimal or hexadecimal floating point. from_chars would take a sign and words as well, hence the look at
/// the first character.
bool ScanUnsignedDouble(const char* begin, const char* end, double& value)
{
    const bool hex = end - begin > 2 && begin[0] == '0' && (begin[1] == 'x' || begin[1] == 'X');
    const char* const number = hex ? begin + 2 : begin;
    const bool startsNumber = *number == '.' || (hex ? IsHexDigit(*number) : (*number >= '0' && *number <= '9'));
    if (!startsNumber) {
        return false;
    }
    const auto format = hex ? std::chars_format::hex : std::chars_format::general;
    const std::from_chars_result result = std::from_chars(number, end, value, format);
    if (result.ec == std::errc::invalid_argument || result.ptr != end) {
        return false;
    }
    if (result.ec == std::errc::result_out_of_range) {
        value = strtod_l(begin, nullptr, CLocale());
    }
    return true;
}

template <std::size_t Size> void AppendAscii(const char (&buffer)[Size], const char* end, std::wstring& text)
{
    wchar_t wide[Size];
    wchar_t* out = wide;
    for (const char* c = buffer; c != end; ++c) {
        *out++ = static_cast<wchar_t>(*c);
    }
    text.append(wide, static_cast<std::size_t>(out - wide));
}

/// Whether a value and the nearest decimal fraction to it, `digits` / `power`, have the same first sixteen digits.
bool AgreeInSixteenDigits(double value, std::uint64_t digits, double power)
{
    std::uint64_t aboveFirstDigit = 10;
    double halfOfLastDigit = 0.5e-15; // in units of the last of `digits`
    for (; aboveFirstDigit <= digits; aboveFirstDigit *= 10) {
        halfOfLastDigit *= 10;
    }
    const double difference = std::fma(value, power, -static_cast<double>(digits));
    const bool hasOneDigitLess = difference < 0 && digits * 10 == aboveFirstDigit;
    return !hasOneDigitLess && std::fabs(difference) < 0.99 * halfOfLastDigit;
}

void AppendFraction(bool isNegative, std::uint64_t digits, std::uint64_t power, int places, std::wstring& text)
{
    wchar_t buffer[24];
    wchar_t* end = buffer;
    if (isNegative) {
        *end++ = L'-';
    }
    end = WriteNumber(end, digits / power);
    if (places > 0) {
        *end++ = L'.';
        end = WriteFixedDigits(end, static_cast<std::uint32_t>(digits % power), places);
    }
    text.append(buffer, static_cast<std::size_t>(end - buffer));
}

/// Appends what "%.16g" makes of a number of few decimal places, which most numbers are: times a power of ten it is an
/// integer. @return false for any other number; nothing is appended then.
bool AppendFewPlaces(double value, std::wstring& text)
{
    constexpr double POWERS[] = {1, 1e1, 1e2, 1e3, 1e4};
    constexpr double SMALLEST = 1e-4; // smaller ones have an exponent
    constexpr double LIMIT = 1e15;    // below it every integer is a double
    const double magnitude = std::fabs(value);
    int places = 0;
    for (const double power : POWERS) {
        if (!(magnitude >= SMALLEST && magnitude * power < LIMIT)) {
            return false;
        }
        const auto digits = static_cast<std::uint64_t>(magnitude * power + 0.5);
        if (static_cast<double>(digits) / power == magnitude) {
            if (!AgreeInSixteenDigits(magnitude, digits, power)) {
                return false;
            }
            AppendFraction(value < 0, digits, static_cast<std::uint64_t>(power), places, text);
            return true;
        }
        ++places;
    }
    return false;
}

} // namespace

// kept: required behaviour. Leading blanks and a plus sign are taken as the C conversion takes them.
ScanResult ScanInteger(const std::wstring& text, long long& value)
{
    const Magnitude magnitude = ScanMagnitude(text);
    if (!magnitude.hasDigits) {
        return ScanResult::Malformed;
    }
    const unsigned long long limit = static_cast<unsigned long long>(LLONG_MAX) + (magnitude.negative ? 1 : 0);
    if (magnitude.overflow || magnitude.value > limit) {
        return ScanResult::OutOfRange;
    }
    // Negated as unsigned: the magnitude of LLONG_MIN has no signed counterpart.
    value = static_cast<long long>(magnitude.negative ? 0 - magnitude.value : magnitude.value);
    return magnitude.atEnd ? ScanResult::Ok : ScanResult::Malformed;
}

ScanResult ScanInteger(const std::wstring& text, unsigned long long& value)
{
    const Magnitude magnitude = ScanMagnitude(text);
    if (!magnitude.hasDigits) {
        return ScanResult::Malformed;
    }
    if (magnitude.overflow) {
        return ScanResult::OutOfRange;
    }
    // kept: required behaviour. A minus sign wraps.
    value = magnitude.negative ? 0 - magnitude.value : magnitude.value;
    return magnitude.atEnd ? ScanResult::Ok : ScanResult::Malformed;
}

// kept: required behaviour. Hexadecimal floating point and leading blanks are taken as wcstod takes them.
bool ScanDouble(const std::wstring& text, double& value)
{
    const wchar_t* position = text.data();
    const wchar_t* const end = position + text.length();
    const bool negative = SkipSign(position, end);
    const NarrowCopy number(position, static_cast<std::size_t>(end - position));
    if (!ScanUnsignedDouble(number.Begin(), number.End(), value)) {
        return false;
    }
    value = negative ? -value : value;
    return true;
}

void AppendInteger(long long value, std::wstring& text)
{
    if (value < 0) {
        text.push_back(L'-');
    }
    // Negated as unsigned: LLONG_MIN has no positive counterpart.
    const auto bits = static_cast<unsigned long long>(value);
    AppendUnsigned(value < 0 ? 0 - bits : bits, text);
}

void AppendUnsigned(unsigned long long value, std::wstring& text)
{
    wchar_t buffer[20];
    text.append(buffer, static_cast<std::size_t>(WriteNumber(buffer, value) - buffer));
}

void AppendGeneral(double value, int precision, std::wstring& text)
{
    if (precision == 16 && AppendFewPlaces(value, text)) {
        return;
    }
    // Sign, 17 digits, point, four leading zeros or an exponent of five characters fit with room to spare.
    char buffer[48];
    const std::to_chars_result result =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, precision);
    AppendAscii(buffer, result.ptr, text);
}

} // namespace ZrXmlLib16::NumberText
