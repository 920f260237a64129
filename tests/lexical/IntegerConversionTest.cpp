// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Conversions.h"

#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>

using namespace ZrXmlLib16;
using C = CConversions;
using Rule = CWhitespaceUtils::WhitespaceRule;

namespace {

constexpr Rule None = CWhitespaceUtils::Rule_None;
constexpr Rule Collapse = CWhitespaceUtils::Rule_Collapse;

/// The value printed back, or the message of the failure.
template <auto FromString, auto ToString> std::wstring Outcome(const std::wstring& text, Rule rule)
{
    try {
        return ToString(FromString(text, rule));
    } catch (const CZrInvalidValueException& failure) {
        return failure.GetMessage();
    }
}

const std::map<std::wstring, std::wstring (*)(const std::wstring&, Rule)> Outcomes = {
    {L"i1", Outcome<C::i1FromString, C::i1ToString>}, {L"ui1", Outcome<C::ui1FromString, C::ui1ToString>},
    {L"i2", Outcome<C::i2FromString, C::i2ToString>}, {L"ui2", Outcome<C::ui2FromString, C::ui2ToString>},
    {L"i4", Outcome<C::i4FromString, C::i4ToString>}, {L"ui4", Outcome<C::ui4FromString, C::ui4ToString>},
    {L"i8", Outcome<C::i8FromString, C::i8ToString>}, {L"ui8", Outcome<C::ui8FromString, C::ui8ToString>}};

/// Expects the value to be printed as given. "?" stands for no number, ">" for too large; their messages quote the
/// text.
void Expect(const std::wstring& type, const std::wstring& text, Rule rule, const std::wstring& expected)
{
    const std::wstring quoted = L"The value [" + (rule == Collapse ? CWhitespaceUtils::Collapse(text) : text);
    EXPECT_EQ(Outcomes.at(type)(text, rule),
        expected == L"?"       ? quoted + L"] can not be converted to a " + type
            : expected == L">" ? quoted + L"] is to large to fit in a " + type
                               : expected)
        << TestSupport::Narrow(type);
}

TEST(IntegerConversion, GrammarAndBorders)
{
    const struct {
        std::wstring text;
        Rule rule;
        const wchar_t *asSigned, *asUnsigned;
    } rows[] = {{L"  42\n", Collapse, L"42", L"42"}, {L"+007", None, L"7", L"7"}, {L"-0", None, L"0", L"0"},
        {L"4 2", None, L"?", L"?"}, {L" 4 \t 2 ", Collapse, L"?", L"?"}, {L"42 ", None, L"?", L"?"},
        {L"  ", Collapse, L"?", L"?"}, {L" ", None, L"?", L"?"}, {L"-", None, L"?", L"?"}, {L"+-1", None, L"?", L"?"},
        {L"0x10", None, L"?", L"?"}, {L"1.0", None, L"?", L"?"}, {L"\u0664\u0662", None, L"?", L"?"},
        {L"\u200342", None, L"?", L"?"}, {L"99999999999999999999x", None, L">", L">"},
        {L" -99999999999999999999 ", Collapse, L">", L">"},
        {L"9223372036854775807", None, L"9223372036854775807", L"9223372036854775807"},
        {L"-9223372036854775808", None, L"-9223372036854775808", L"9223372036854775808"},
        {L"9223372036854775808", None, L">", L"9223372036854775808"},
        {L"-9223372036854775809", None, L">", L"9223372036854775807"},
        {L"18446744073709551615", None, L">", L"18446744073709551615"}, {L"18446744073709551616", None, L">", L">"}};
    for (const auto& row : rows) {
        for (const wchar_t* size : {L"4", L"8"}) {
            Expect(L"i" + std::wstring(size), row.text, row.rule, row.asSigned);
            Expect(L"ui" + std::wstring(size), row.text, row.rule, row.asUnsigned);
        }
    }
    EXPECT_THROW(C::i4FromString(std::wstring(L"42\0", 3), None), CZrInvalidValueException);
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
    Expect(type, std::to_wstring(lowest - 1), Collapse, L">");
    const std::wstring above = L" " + std::to_wstring(highest + 1) + L" ";
    EXPECT_EQ(Outcomes.at(type)(above, Collapse), L"The value [" + above + L"] is to large to fit in a " + type);
}

TEST(IntegerConversion, NarrowTypesExhaustively)
{
    CheckNarrow<signed char>(L"i1", C::i1FromString, C::i1ToString);
    CheckNarrow<unsigned char>(L"ui1", C::ui1FromString, C::ui1ToString);
    CheckNarrow<short>(L"i2", C::i2FromString, C::i2ToString);
    CheckNarrow<unsigned short>(L"ui2", C::ui2FromString, C::ui2ToString);
    Expect(L"i2", L"x", None, L"The value [x] can not be converted to a i4");
    Expect(L"ui1", L"", None, L"The value [] can not be converted to a ui4");
}

TEST(IntegerConversion, keeps_64BitsInI4AndWrappingUnsignedMinus)
{
    Expect(L"i4", L"4294967296", None, L"4294967296");
    Expect(L"ui4", L"-1", None, L"18446744073709551615");
    Expect(L"ui1", L"-1", None, L">");
    Expect(L"ui1", L"-18446744073709551615", None, L"1");
}

TEST(IntegerConversion, keeps_LeadingBlanksOfTheCConversion)
{
    Expect(L"i4", L" \t\n\v\f\r+42", None, L"42");
    Expect(L"ui8", L"\v42", None, L"42");
}

} // namespace
