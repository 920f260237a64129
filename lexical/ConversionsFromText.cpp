// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Conversions.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "lexical/LexicalMessages.h"
#include "lexical/NumberText.h"
#include "lexical/Whitespace.h"

#include <cmath>
#include <limits>
#include <string_view>

namespace ZrXmlLib16 {

namespace {

using Rule = CWhitespaceUtils::WhitespaceRule;

/// The text after the whitespace rule, borrowed where the rule changes nothing; it lives as long as this object and the
/// caller's text.
class PreparedText {
public:
    PreparedText(const std::wstring& text, Rule rule)
        : m_text(Whitespace::Apply(rule, text, m_scratch))
    {
    }
    PreparedText(const PreparedText&) = delete;
    PreparedText& operator=(const PreparedText&) = delete;

    const std::wstring& Get() const { return m_text; }

private:
    std::wstring m_scratch;
    const std::wstring& m_text;
};

[[noreturn]] void Fail(const wchar_t* message, const std::wstring& text, const wchar_t* typeName)
{
    throw CZrInvalidValueException(FormatString(message, text.c_str(), typeName));
}

[[noreturn]] void Fail(const wchar_t* message, const std::wstring& text)
{
    throw CZrInvalidValueException(FormatString(message, text.c_str()));
}

// kept: required behaviour. i4 and ui4 have the platform's 64 bits, and "to large" stands for too small as well.
template <class Wide> Wide ParseWide(const std::wstring& text, Rule rule, const wchar_t* typeName)
{
    const PreparedText prepared(text, rule);
    Wide value = 0;
    switch (NumberText::ScanInteger(prepared.Get(), value)) {
    case NumberText::ScanResult::Ok:
        return value;
    case NumberText::ScanResult::OutOfRange:
        Fail(LexicalMessages::TooLarge, prepared.Get(), typeName);
    case NumberText::ScanResult::Malformed:
        break;
    }
    Fail(LexicalMessages::NotConvertible, prepared.Get(), typeName);
}

/// Range check of a narrow form; its message quotes the text as the caller gave it.
template <class Narrow, class Wide> Narrow NarrowTo(Wide value, const std::wstring& text, const wchar_t* typeName)
{
    if (value < std::numeric_limits<Narrow>::min() || value > std::numeric_limits<Narrow>::max()) {
        Fail(LexicalMessages::TooLarge, text, typeName);
    }
    return static_cast<Narrow>(value);
}

double ParseReal(const std::wstring& text, Rule rule, const wchar_t* typeName)
{
    const PreparedText prepared(text, rule);
    const std::wstring& source = prepared.Get();
    double value = 0;
    if (NumberText::ScanDouble(source, value)) {
        return value;
    }
    if (source == L"NaN" || source == L"1.#QNAN" || source == L"-NAN") {
        return std::numeric_limits<double>::quiet_NaN();
    }
    if (source == L"INF" || source == L"-INF") {
        const double infinity = std::numeric_limits<double>::infinity();
        return source[0] == L'-' ? -infinity : infinity;
    }
    Fail(LexicalMessages::NotConvertible, source, typeName);
}

/// Rounds to nearest as the hardware does; the plain cast is undefined outside float's range.
float NarrowToFloat(double value)
{
    constexpr float largest = std::numeric_limits<float>::max();
    constexpr double firstInfinite = 0x1.ffffffp127; // half a unit in the last place above the largest float
    if (std::isnan(value)) {
        return std::numeric_limits<float>::quiet_NaN();
    }
    const double magnitude = std::fabs(value);
    if (magnitude <= static_cast<double>(largest)) {
        return static_cast<float>(value);
    }
    const float limit = magnitude < firstInfinite ? largest : std::numeric_limits<float>::infinity();
    return value < 0 ? -limit : limit;
}

bool EqualsIgnoringAsciiCase(std::wstring_view text, std::wstring_view lowerCase)
{
    if (text.length() != lowerCase.length()) {
        return false;
    }
    for (std::size_t i = 0; i < text.length(); ++i) {
        const wchar_t c = text[i] >= L'A' && text[i] <= L'Z' ? text[i] + (L'a' - L'A') : text[i];
        if (c != lowerCase[i]) {
            return false;
        }
    }
    return true;
}

CDateTime ParseDate(const std::wstring& text, Rule rule, CDateTime::DateType kind)
{
    const PreparedText prepared(text, rule);
    CDateTime value;
    value.ParseXSDDate(prepared.Get(), kind);
    return value;
}

} // namespace

signed char CConversions::i1FromString(const std::wstring& text, Rule rule)
{
    return NarrowTo<signed char>(i4FromString(text, rule), text, L"i1");
}

short CConversions::i2FromString(const std::wstring& text, Rule rule)
{
    return NarrowTo<short>(i4FromString(text, rule), text, L"i2");
}

long CConversions::i4FromString(const std::wstring& text, Rule rule)
{
    return ParseWide<long long>(text, rule, L"i4");
}

long long CConversions::i8FromString(const std::wstring& text, Rule rule)
{
    return ParseWide<long long>(text, rule, L"i8");
}

unsigned char CConversions::ui1FromString(const std::wstring& text, Rule rule)
{
    return NarrowTo<unsigned char>(ui4FromString(text, rule), text, L"ui1");
}

unsigned short CConversions::ui2FromString(const std::wstring& text, Rule rule)
{
    return NarrowTo<unsigned short>(ui4FromString(text, rule), text, L"ui2");
}

unsigned long CConversions::ui4FromString(const std::wstring& text, Rule rule)
{
    return ParseWide<unsigned long long>(text, rule, L"ui4");
}

unsigned long long CConversions::ui8FromString(const std::wstring& text, Rule rule)
{
    return ParseWide<unsigned long long>(text, rule, L"ui8");
}

float CConversions::r4FromString(const std::wstring& text, Rule rule)
{
    return NarrowToFloat(ParseReal(text, rule, L"r4"));
}

double CConversions::r8FromString(const std::wstring& text, Rule rule)
{
    return ParseReal(text, rule, L"r8");
}

bool CConversions::booleanFromString(const std::wstring& text, Rule rule)
{
    const PreparedText prepared(text, rule);
    const std::wstring& source = prepared.Get();
    if (source == L"1" || EqualsIgnoringAsciiCase(source, L"true")) {
        return true;
    }
    if (source == L"0" || EqualsIgnoringAsciiCase(source, L"false")) {
        return false;
    }
    Fail(LexicalMessages::InvalidBoolean, source);
}

wchar_t CConversions::charFromString(const std::wstring& text, Rule rule)
{
    const PreparedText prepared(text, rule);
    if (prepared.Get().length() != 1) {
        Fail(LexicalMessages::InvalidChar, prepared.Get());
    }
    return prepared.Get()[0];
}

std::wstring CConversions::stringFromString(const std::wstring& text, Rule rule)
{
    return CWhitespaceUtils::ApplyRule(rule, text);
}

CDecimal CConversions::decimalFromString(const std::wstring& text, Rule rule)
{
    CDecimal value;
    value.Parse(PreparedText(text, rule).Get());
    return value;
}

CBigInteger CConversions::integerFromString(const std::wstring& text, Rule rule)
{
    CBigInteger value;
    value.Parse(PreparedText(text, rule).Get());
    return value;
}

CBinaryData CConversions::hexBinaryFromString(const std::wstring& text, Rule rule)
{
    CBinaryData value;
    value.SetAsHexString(PreparedText(text, rule).Get().c_str());
    return value;
}

CBinaryData CConversions::base64BinaryFromString(const std::wstring& text, Rule rule)
{
    CBinaryData value;
    value.SetAsBase64(PreparedText(text, rule).Get().c_str());
    return value;
}

CDateTimeSpan CConversions::durationFromString(const std::wstring& text, Rule rule)
{
    CDateTimeSpan value;
    value.ParseXSDDuration(PreparedText(text, rule).Get());
    return value;
}

CDateTime CConversions::dateFromString(const std::wstring& text, Rule rule)
{
    return ParseDate(text, rule, CDateTime::dt_date);
}

CDateTime CConversions::datetimeFromString(const std::wstring& text, Rule rule)
{
    CDateTime value;
    value.ParseXSDDateTime(PreparedText(text, rule).Get());
    return value;
}

CDateTime CConversions::timeFromString(const std::wstring& text, Rule rule)
{
    CDateTime value;
    value.ParseXSDTime(PreparedText(text, rule).Get());
    return value;
}

CDateTime CConversions::yearMonthFromString(const std::wstring& text, Rule rule)
{
    return ParseDate(text, rule, CDateTime::dt_gYearMonth);
}

CDateTime CConversions::monthDayFromString(const std::wstring& text, Rule rule)
{
    return ParseDate(text, rule, CDateTime::dt_gMonthDay);
}

unsigned short CConversions::yearFromString(const std::wstring& text, Rule rule)
{
    const PreparedText prepared(text, rule);
    const int year = ParseDate(prepared.Get(), CWhitespaceUtils::Rule_None, CDateTime::dt_gYear).GetFullYear();
    return NarrowTo<unsigned short>(year, prepared.Get(), L"year");
}

unsigned char CConversions::monthFromString(const std::wstring& text, Rule rule)
{
    return ParseDate(text, rule, CDateTime::dt_gMonth).GetMonth();
}

unsigned char CConversions::dayFromString(const std::wstring& text, Rule rule)
{
    return ParseDate(text, rule, CDateTime::dt_gDay).GetDay();
}

} // namespace ZrXmlLib16
