// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/XmlObjectHelper.h"

#include "ZrXmlLib16/Conversions.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrException.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "lexical/FacetCheck.h"
#include "lexical/ItemTypeTable.h"
#include "lexical/LexicalMessages.h"
#include "lexical/PatternMatcher.h"

namespace ZrXmlLib16 {

namespace {

using Facets = CPrimitiveRestrictions;

template <class T, class FromString>
void CheckInteger(const wchar_t* name, T value, const Facets& facets, FromString fromString)
{
    if (!FacetCheck::IsWithinBounds(value, facets, fromString)) {
        FacetCheck::FailInteger(name, std::to_wstring(value));
    }
}

template <class T, class FromString, class ToString>
void CheckBounds(const wchar_t* name, const T& value, const Facets& facets, FromString fromString, ToString toString)
{
    if (!FacetCheck::IsWithinBounds(value, facets, fromString)) {
        FacetCheck::FailValue(name, toString(value));
    }
}

template <class FromString>
void CheckDate(const wchar_t* name, const CDateTime& value, const Facets& facets, FromString fromString)
{
    CheckBounds(name, value, facets, fromString, [](const CDateTime& date) { return date.ToString(); });
}

bool AreDigitsAllowed(const CDecimal& value, const Facets& facets)
{
    const long fraction = CXmlObjectHelper::GetDecimalFractionPartLen(value);
    const long total = CXmlObjectHelper::GetDecimalIntegerPartLen(value) + fraction;
    return (facets.m_totalDigits < 0 || total <= facets.m_totalDigits)
        && (facets.m_fractionDigits < 0 || fraction <= facets.m_fractionDigits);
}

} // namespace

void CXmlObjectHelper::CheckRestriction(
    const wchar_t* name, const ZrVariant& value, ItemType type, const CPrimitiveRestrictions& facets)
{
    const ItemTypeRow* const row = FindItemType(type);
    if (row == nullptr) {
        throw CZrException(FormatString(LexicalMessages::InvalidType, static_cast<int>(type)));
    }
    if (!value.IsNil()) {
        row->checkFacets(name, value, facets);
    }
}

void CXmlObjectHelper::CheckRestrictionFori1(const wchar_t* name, char value, const Facets& facets)
{
    CheckInteger(name, static_cast<int>(value), facets, CConversions::i1FromString);
}

void CXmlObjectHelper::CheckRestrictionFori2(const wchar_t* name, short value, const Facets& facets)
{
    CheckInteger(name, static_cast<int>(value), facets, CConversions::i2FromString);
}

void CXmlObjectHelper::CheckRestrictionFori4(const wchar_t* name, long value, const Facets& facets)
{
    CheckInteger(name, value, facets, CConversions::i4FromString);
}

void CXmlObjectHelper::CheckRestrictionFori8(const wchar_t* name, long long value, const Facets& facets)
{
    CheckInteger(name, value, facets, CConversions::i8FromString);
}

void CXmlObjectHelper::CheckRestrictionForui1(const wchar_t* name, unsigned char value, const Facets& facets)
{
    CheckInteger(name, static_cast<int>(value), facets, CConversions::ui1FromString);
}

void CXmlObjectHelper::CheckRestrictionForui2(const wchar_t* name, unsigned short value, const Facets& facets)
{
    CheckInteger(name, static_cast<int>(value), facets, CConversions::ui2FromString);
}

void CXmlObjectHelper::CheckRestrictionForui4(const wchar_t* name, unsigned long value, const Facets& facets)
{
    CheckInteger(name, value, facets, CConversions::ui4FromString);
}

void CXmlObjectHelper::CheckRestrictionForui8(const wchar_t* name, unsigned long long value, const Facets& facets)
{
    CheckInteger(name, value, facets, CConversions::ui8FromString);
}

void CXmlObjectHelper::CheckRestrictionForr4(const wchar_t* name, float value, const Facets& facets)
{
    CheckBounds(name, value, facets, CConversions::r4FromString, [](float v) { return CConversions::r4ToString(v); });
}

void CXmlObjectHelper::CheckRestrictionForr8(const wchar_t* name, double value, const Facets& facets)
{
    CheckBounds(name, value, facets, CConversions::r8FromString, [](double v) { return CConversions::r8ToString(v); });
}

void CXmlObjectHelper::CheckRestrictionForyear(const wchar_t* name, unsigned short value, const Facets& facets)
{
    CheckInteger(name, static_cast<int>(value), facets, CConversions::yearFromString);
}

void CXmlObjectHelper::CheckRestrictionFormonth(const wchar_t* name, unsigned char value, const Facets& facets)
{
    CheckInteger(name, static_cast<int>(value), facets, CConversions::monthFromString);
}

void CXmlObjectHelper::CheckRestrictionForday(const wchar_t* name, unsigned char value, const Facets& facets)
{
    CheckInteger(name, static_cast<int>(value), facets, CConversions::dayFromString);
}

void CXmlObjectHelper::CheckRestrictionFordate(const wchar_t* name, const CDateTime& value, const Facets& facets)
{
    CheckDate(name, value, facets, CConversions::dateFromString);
}

void CXmlObjectHelper::CheckRestrictionFordatetime(const wchar_t* name, const CDateTime& value, const Facets& facets)
{
    CheckDate(name, value, facets, CConversions::datetimeFromString);
}

void CXmlObjectHelper::CheckRestrictionFortime(const wchar_t* name, const CDateTime& value, const Facets& facets)
{
    CheckDate(name, value, facets, CConversions::timeFromString);
}

void CXmlObjectHelper::CheckRestrictionForyearMonth(const wchar_t* name, const CDateTime& value, const Facets& facets)
{
    CheckDate(name, value, facets, CConversions::yearMonthFromString);
}

void CXmlObjectHelper::CheckRestrictionFormonthDay(const wchar_t* name, const CDateTime& value, const Facets& facets)
{
    CheckDate(name, value, facets, CConversions::monthDayFromString);
}

// kept: required behaviour. Nothing is checked; generated code calls it.
void CXmlObjectHelper::CheckRestrictionFormonthYear(const wchar_t*, const CDateTime&, const Facets&) { }

void CXmlObjectHelper::CheckRestrictionForduration(
    const wchar_t* name, const CDateTimeSpan& value, const Facets& facets)
{
    CheckBounds(name, value, facets, CConversions::durationFromString, CConversions::durationToString);
}

void CXmlObjectHelper::CheckRestrictionFordecimal(const wchar_t* name, const CDecimal& value, const Facets& facets)
{
    if (!FacetCheck::IsWithinBounds(value, facets, CConversions::decimalFromString)
        || !AreDigitsAllowed(value, facets)) {
        FacetCheck::FailValue(name, value.ToString());
    }
}

void CXmlObjectHelper::CheckRestrictionForinteger(const wchar_t* name, const CBigInteger& value, const Facets& facets)
{
    CheckBounds(name, value, facets, CConversions::integerFromString, CConversions::integerToString);
}

void CXmlObjectHelper::CheckRestrictionForstring(const wchar_t* name, std::wstring value, const Facets& facets)
{
    FacetCheck::CheckString(name, value, facets);
}

void CXmlObjectHelper::CheckRestrictionForhexBinary(const wchar_t* name, const CBinaryData& value, const Facets& facets)
{
    if (!FacetCheck::IsLengthAllowed(value.GetLength(), facets)) {
        FacetCheck::FailValue(name, value.GetAsHexString());
    }
}

void CXmlObjectHelper::CheckRestrictionForbase64Binary(
    const wchar_t* name, const CBinaryData& value, const Facets& facets)
{
    if (!FacetCheck::IsLengthAllowed(value.GetLength(), facets)) {
        FacetCheck::FailValue(name, value.GetAsBase64());
    }
}

// kept: required behaviour. A boolean has no facets to violate.
void CXmlObjectHelper::CheckRestrictionForboolean(const wchar_t*, bool, const Facets&) { }

bool CXmlObjectHelper::TestRegEx(std::string pattern, std::wstring text)
{
    return MatchesPattern(pattern, text);
}

long CXmlObjectHelper::GetDecimalIntegerPartLen(const CDecimal& value)
{
    return static_cast<long>(value.GetIntegerDigits());
}

long CXmlObjectHelper::GetDecimalFractionPartLen(const CDecimal& value)
{
    return static_cast<long>(value.GetFractionDigits());
}

} // namespace ZrXmlLib16
