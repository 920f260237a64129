// SPDX-License-Identifier: MIT
#include "lexical/ItemTypeTable.h"

#include "ZrXmlLib16/Conversions.h"
#include "ZrXmlLib16/ItemType.h"
#include "ZrXmlLib16/XmlObjectHelper.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "lexical/FacetCheck.h"
#include "lexical/NumberText.h"
#include "lexical/ValueText.h"
#include "lexical/Whitespace.h"

#include <iterator>

namespace ZrXmlLib16 {

namespace {

using V = ZrVariant;
using C = CConversions;
using H = CXmlObjectHelper;
using Rule = CWhitespaceUtils::WhitespaceRule;

template <auto FromString, auto Setter> void Parse(const std::wstring& text, Rule rule, ZrVariant& value)
{
    (value.*Setter)(FromString(text, rule));
}

void ParseI1(const std::wstring& text, Rule rule, ZrVariant& value)
{
    value.SetI1(static_cast<char>(C::i1FromString(text, rule)));
}

void ParseString(const std::wstring& text, Rule rule, ZrVariant& value)
{
    std::wstring scratch;
    const std::wstring& prepared = Whitespace::Apply(rule, text, scratch);
    value.SetString(prepared.data(), prepared.length());
}

template <auto Getter, auto Append> void Format(const ZrVariant& value, const wchar_t*, std::wstring& text)
{
    text.clear();
    Append((value.*Getter)(), text);
}

template <auto Getter, auto Append>
void FormatNumber(const ZrVariant& value, const wchar_t* numberFormat, std::wstring& text)
{
    text.clear();
    Append((value.*Getter)(), numberFormat, text);
}

/// For the classes that append their own text.
template <auto Getter> void FormatObject(const ZrVariant& value, const wchar_t*, std::wstring& text)
{
    text.clear();
    (value.*Getter)().AppendTo(text);
}

void FormatDecimal(const ZrVariant& value, const wchar_t* numberFormat, std::wstring& text)
{
    text.clear();
    value.GetDecimal().AppendTo(text, numberFormat);
}

void FormatHex(const ZrVariant& value, const wchar_t*, std::wstring& text)
{
    text = value.GetHexBinary().GetAsHexString();
}

void FormatBase64(const ZrVariant& value, const wchar_t*, std::wstring& text)
{
    text = value.GetBase64Binary().GetAsBase64();
}

void FormatChar(const ZrVariant& value, const wchar_t*, std::wstring& text)
{
    text.assign(1, value.GetChar());
}

void FormatString(const ZrVariant& value, const wchar_t*, std::wstring& text)
{
    text = value.GetString();
}

template <auto Getter, auto CheckValue>
void Check(const wchar_t* name, const ZrVariant& value, const CPrimitiveRestrictions& facets)
{
    CheckValue(name, (value.*Getter)(), facets);
}

constexpr auto& Signed = NumberText::AppendInteger;
constexpr auto& Unsigned = NumberText::AppendUnsigned;

constexpr bool BARE = true;
constexpr bool QUOTED = false;
constexpr SuggestedEncoding UNCHANGED = {SuggestedEncoding::Unchanged, 0};
constexpr SuggestedEncoding LITERAL = {SuggestedEncoding::Literal, 0};
constexpr SuggestedEncoding NUMERIC = {SuggestedEncoding::RestrictedAlphabet, 1};
constexpr SuggestedEncoding DATE_AND_TIME = {SuggestedEncoding::RestrictedAlphabet, 2};

constexpr SuggestedEncoding Algorithm(unsigned long number)
{
    return {SuggestedEncoding::EncodingAlgorithm, number};
}

// In the order of the ItemType values, which start with 1.
// clang-format off
constexpr ItemTypeRow Rows[] = {
    {L"hexBinary", Parse<C::hexBinaryFromString, &V::SetHexBinary>, FormatHex,
        Check<&V::GetHexBinary, H::CheckRestrictionForhexBinary>,
        QUOTED, Algorithm(1)},
    {L"base64Binary", Parse<C::base64BinaryFromString, &V::SetBase64Binary>, FormatBase64,
        Check<&V::GetBase64Binary, H::CheckRestrictionForbase64Binary>,
        QUOTED, Algorithm(2)},
    {L"i1", ParseI1, Format<&V::GetI1, Signed>,
        Check<&V::GetI1, H::CheckRestrictionFori1>,
        BARE, Algorithm(3)},
    {L"i2", Parse<C::i2FromString, &V::SetI2>, Format<&V::GetI2, Signed>,
        Check<&V::GetI2, H::CheckRestrictionFori2>,
        BARE, Algorithm(3)},
    {L"i4", Parse<C::i4FromString, &V::SetI4>, Format<&V::GetI4, Signed>,
        Check<&V::GetI4, H::CheckRestrictionFori4>,
        BARE, Algorithm(4)},
    {L"i8", Parse<C::i8FromString, &V::SetI8>, Format<&V::GetI8, Signed>,
        Check<&V::GetI8, H::CheckRestrictionFori8>,
        BARE, Algorithm(5)},
    {L"ui1", Parse<C::ui1FromString, &V::SetUI1>, Format<&V::GetUI1, Unsigned>,
        Check<&V::GetUI1, H::CheckRestrictionForui1>,
        BARE, Algorithm(3)},
    {L"ui2", Parse<C::ui2FromString, &V::SetUI2>, Format<&V::GetUI2, Unsigned>,
        Check<&V::GetUI2, H::CheckRestrictionForui2>,
        BARE, Algorithm(4)},
    {L"ui4", Parse<C::ui4FromString, &V::SetUI4>, Format<&V::GetUI4, Unsigned>,
        Check<&V::GetUI4, H::CheckRestrictionForui4>,
        BARE, Algorithm(5)},
    {L"ui8", Parse<C::ui8FromString, &V::SetUI8>, Format<&V::GetUI8, Unsigned>,
        Check<&V::GetUI8, H::CheckRestrictionForui8>,
        BARE, Algorithm(5)},
    {L"r4", Parse<C::r4FromString, &V::SetR4>, FormatNumber<&V::GetR4, ValueText::AppendR4>,
        Check<&V::GetR4, H::CheckRestrictionForr4>,
        BARE, Algorithm(7)},
    {L"r8", Parse<C::r8FromString, &V::SetR8>, FormatNumber<&V::GetR8, ValueText::AppendR8>,
        Check<&V::GetR8, H::CheckRestrictionForr8>,
        BARE, Algorithm(8)},
    {L"duration", Parse<C::durationFromString, &V::SetDuration>, FormatObject<&V::GetDuration>,
        Check<&V::GetDuration, H::CheckRestrictionForduration>,
        QUOTED, LITERAL},
    {L"yearMonth", Parse<C::yearMonthFromString, &V::SetYearMonth>, FormatObject<&V::GetYearMonth>,
        Check<&V::GetYearMonth, H::CheckRestrictionForyearMonth>,
        QUOTED, DATE_AND_TIME},
    {L"monthDay", Parse<C::monthDayFromString, &V::SetMonthDay>, FormatObject<&V::GetMonthDay>,
        Check<&V::GetMonthDay, H::CheckRestrictionFormonthDay>,
        QUOTED, DATE_AND_TIME},
    {L"year", Parse<C::yearFromString, &V::SetYear>, Format<&V::GetYear, Unsigned>,
        Check<&V::GetYear, H::CheckRestrictionForyear>,
        QUOTED, DATE_AND_TIME},
    {L"month", Parse<C::monthFromString, &V::SetMonth>, Format<&V::GetMonth, ValueText::AppendMonth>,
        Check<&V::GetMonth, H::CheckRestrictionFormonth>,
        QUOTED, DATE_AND_TIME},
    {L"day", Parse<C::dayFromString, &V::SetDay>, Format<&V::GetDay, ValueText::AppendDay>,
        Check<&V::GetDay, H::CheckRestrictionForday>,
        QUOTED, DATE_AND_TIME},
    {L"date", Parse<C::dateFromString, &V::SetDate>, FormatObject<&V::GetDate>,
        Check<&V::GetDate, H::CheckRestrictionFordate>,
        QUOTED, DATE_AND_TIME},
    {L"datetime", Parse<C::datetimeFromString, &V::SetDateTime>, FormatObject<&V::GetDateTime>,
        Check<&V::GetDateTime, H::CheckRestrictionFordatetime>,
        QUOTED, DATE_AND_TIME},
    {L"time", Parse<C::timeFromString, &V::SetTime>, FormatObject<&V::GetTime>,
        Check<&V::GetTime, H::CheckRestrictionFortime>,
        QUOTED, DATE_AND_TIME},
    {L"char", Parse<C::charFromString, &V::SetChar>, FormatChar,
        Check<&V::GetChar, FacetCheck::CheckChar>,
        QUOTED, UNCHANGED},
    {L"string", ParseString, FormatString,
        Check<&V::GetString, FacetCheck::CheckString>,
        QUOTED, UNCHANGED},
    {L"boolean", Parse<C::booleanFromString, &V::SetBoolean>, Format<&V::GetBoolean, ValueText::AppendBoolean>,
        Check<&V::GetBoolean, H::CheckRestrictionForboolean>,
        BARE, Algorithm(6)},
    {L"decimal", Parse<C::decimalFromString, &V::SetDecimal>, FormatDecimal,
        Check<&V::GetDecimal, H::CheckRestrictionFordecimal>,
        BARE, NUMERIC},
    {L"integer", Parse<C::integerFromString, &V::SetInteger>, FormatObject<&V::GetInteger>,
        Check<&V::GetInteger, H::CheckRestrictionForinteger>,
        BARE, NUMERIC},
};
// clang-format on
static_assert(std::size(Rows) == ItemType_integer, "one row for each primitive item type");

} // namespace

const ItemTypeRow* FindItemType(int type)
{
    return type >= ItemType_hexBinary && type <= ItemType_integer ? &Rows[type - ItemType_hexBinary] : nullptr;
}

} // namespace ZrXmlLib16
