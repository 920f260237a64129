// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Conversions.h"

#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <climits>

using namespace ZrXmlLib16;

namespace {

constexpr auto None = CWhitespaceUtils::Rule_None;
constexpr auto Collapse = CWhitespaceUtils::Rule_Collapse;

/// The value printed back, or the message of the failure.
template <class FromString, class ToString> std::wstring Outcome(
    FromString fromString, ToString toString, const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule)
{
    try {
        return toString(fromString(text, rule));
    } catch (const CZrInvalidValueException& failure) {
        return failure.GetMessage();
    }
}

std::wstring ByType(const std::wstring& type, const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule)
{
    using C = CConversions;
    return type == L"i1" ? Outcome(C::i1FromString, C::i1ToString, text, rule)
        : type == L"i2"  ? Outcome(C::i2FromString, C::i2ToString, text, rule)
        : type == L"i4"  ? Outcome(C::i4FromString, C::i4ToString, text, rule)
        : type == L"i8"  ? Outcome(C::i8FromString, C::i8ToString, text, rule)
        : type == L"ui1" ? Outcome(C::ui1FromString, C::ui1ToString, text, rule)
        : type == L"ui2" ? Outcome(C::ui2FromString, C::ui2ToString, text, rule)
        : type == L"ui4" ? Outcome(C::ui4FromString, C::ui4ToString, text, rule)
                         : Outcome(C::ui8FromString, C::ui8ToString, text, rule);
}

struct Case {
    const wchar_t* type;
    std::wstring text;
    CWhitespaceUtils::WhitespaceRule rule;
    std::wstring expected;
};

std::wstring NotA(const wchar_t* type, const wchar_t* text)
{
    return std::wstring(L"The value [") + text + L"] can not be converted to a " + type;
}

std::wstring TooLarge(const wchar_t* type, const wchar_t* text)
{
    return std::wstring(L"The value [") + text + L"] is to large to fit in a " + type;
}

void Expect(const std::vector<Case>& cases)
{
    for (const Case& row : cases) {
        EXPECT_EQ(ByType(row.type, row.text, row.rule), row.expected)
            << TestSupport::Narrow(row.type) << " [" << TestSupport::Narrow(row.text) << "]";
    }
}

TEST(IntegerConversion, GrammarAndMessages)
{
    for (const wchar_t* type : {L"i4", L"i8", L"ui4", L"ui8"}) {
        Expect({
            {type, L"42", None, L"42"},
            {type, L"  42\n", Collapse, L"42"},
            {type, L"+007", None, L"7"},
            {type, L"-0", None, L"0"},
            {type, L"4 2", Collapse, NotA(type, L"4 2")},
            {type, L" 4 \t 2 ", Collapse, NotA(type, L"4 2")},
            {type, L"42 ", None, NotA(type, L"42 ")},
            {type, L"", None, NotA(type, L"")},
            {type, L"  ", Collapse, NotA(type, L"")},
            {type, L" ", None, NotA(type, L" ")},
            {type, L"-", None, NotA(type, L"-")},
            {type, L"+-1", None, NotA(type, L"+-1")},
            {type, L"0x10", None, NotA(type, L"0x10")},
            {type, L"1.0", None, NotA(type, L"1.0")},
            {type, L"\u0664\u0662", None, NotA(type, L"\u0664\u0662")},
            {type, L"\u200342", None, NotA(type, L"\u200342")},
            {type, std::wstring(L"42\0", 3), None, NotA(type, L"42")},
            {type, L"99999999999999999999x", None, TooLarge(type, L"99999999999999999999x")},
            {type, L" -99999999999999999999 ", Collapse, TooLarge(type, L"-99999999999999999999")},
        });
    }
}

TEST(IntegerConversion, Borders)
{
    for (const wchar_t* type : {L"i4", L"i8"}) {
        Expect({
            {type, L"9223372036854775807", None, L"9223372036854775807"},
            {type, L"-9223372036854775808", None, L"-9223372036854775808"},
            {type, L"9223372036854775808", None, TooLarge(type, L"9223372036854775808")},
            {type, L"-9223372036854775809", None, TooLarge(type, L"-9223372036854775809")},
            {type, L"18446744073709551616", None, TooLarge(type, L"18446744073709551616")},
        });
    }
    for (const wchar_t* type : {L"ui4", L"ui8"}) {
        Expect({
            {type, L"18446744073709551615", None, L"18446744073709551615"},
            {type, L"18446744073709551616", None, TooLarge(type, L"18446744073709551616")},
        });
    }
}

/// All values of the narrow type survive, and its neighbours quote the caller's text.
template <class T, class FromString, class ToString>
void CheckNarrow(const wchar_t* type, FromString fromString, ToString toString)
{
    const long lowest = std::numeric_limits<T>::min();
    const long highest = std::numeric_limits<T>::max();
    for (long value = lowest; value <= highest; ++value) {
        const std::wstring text = std::to_wstring(value);
        ASSERT_EQ(fromString(text, None), static_cast<T>(value));
        ASSERT_EQ(toString(static_cast<T>(value)), text);
    }
    const std::wstring above = L" " + std::to_wstring(highest + 1) + L" ";
    const std::wstring below = std::to_wstring(lowest - 1);
    EXPECT_EQ(ByType(type, above, Collapse), TooLarge(type, above.c_str()));
    EXPECT_EQ(ByType(type, below, Collapse), TooLarge(type, below.c_str()));
}

TEST(IntegerConversion, NarrowTypesExhaustively)
{
    using C = CConversions;
    CheckNarrow<signed char>(L"i1", C::i1FromString, C::i1ToString);
    CheckNarrow<unsigned char>(L"ui1", C::ui1FromString, C::ui1ToString);
    CheckNarrow<short>(L"i2", C::i2FromString, C::i2ToString);
    CheckNarrow<unsigned short>(L"ui2", C::ui2FromString, C::ui2ToString);
    Expect({{L"i2", L"x", None, NotA(L"i4", L"x")}, {L"ui1", L"", None, NotA(L"ui4", L"")}});
}

TEST(IntegerConversion, keeps_64BitsInI4AndWrappingUnsignedMinus)
{
    Expect({
        {L"i4", L"4294967296", None, L"4294967296"},
        {L"ui4", L"4294967296", None, L"4294967296"},
        {L"ui4", L"-1", None, L"18446744073709551615"},
        {L"ui8", L"-18446744073709551615", None, L"1"},
        {L"ui1", L"-1", None, TooLarge(L"ui1", L"-1")},
        {L"ui1", L"-18446744073709551615", None, L"1"},
    });
}

TEST(IntegerConversion, keeps_LeadingBlanksOfTheCConversion)
{
    Expect({{L"i4", L" \t\n\v\f\r+42", None, L"42"}, {L"ui8", L"\v42", None, L"42"}});
}

} // namespace
