// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/PrimitiveRestrictions.h"
#include "ZrXmlLib16/XmlObjectHelper.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace ZrXmlLib16;
using Helper = CXmlObjectHelper;
using TestSupport::MessageOf;
using TestSupport::Narrow;

namespace {

std::wstring CPrimitiveRestrictions::*const Bounds[] = {&CPrimitiveRestrictions::m_minInclusive,
    &CPrimitiveRestrictions::m_maxInclusive, &CPrimitiveRestrictions::m_minExclusive,
    &CPrimitiveRestrictions::m_maxExclusive};

/// A row of the tables whose cases are a text of a type, and what the test says about it.
template <class Fact> struct Case {
    ItemType type;
    const wchar_t* text;
    Fact fact;
};

std::wstring Violation(const std::wstring& shown, const wchar_t* fullStop = L".")
{
    return L"Invalid Value for item [" + shown + L"]" + fullStop;
}

ZrVariant Variant(ItemType type, const std::wstring& text)
{
    ZrVariant value;
    value.FromString(text, type, CWhitespaceUtils::Rule_None);
    return value;
}

/// Empty when the value passes, else the message.
std::wstring Verdict(const ZrVariant& value, ItemType type, const CPrimitiveRestrictions& facets)
{
    try {
        Helper::CheckRestriction(L"item", value, type, facets);
    } catch (const CZrException& violation) {
        return violation.GetMessage();
    }
    return L"";
}

std::wstring Verdict(const std::wstring& text, ItemType type, const CPrimitiveRestrictions& facets)
{
    return Verdict(Variant(type, text), type, facets);
}

/// Whether `order` (value compared with bound: -1, 0, 1) satisfies the bound kind with this index.
bool IsAllowed(int bound, int order)
{
    const bool allowed[] = {order >= 0, order <= 0, order > 0, order < 0};
    return allowed[bound];
}

struct OrderedType {
    ItemType type;
    const wchar_t* texts[3];         // ascending
    const wchar_t *shown, *fullStop; // the middle one in a message
};

const OrderedType OrderedTypes[] = {{ItemType_i1, {L"-128", L"-1", L"127"}, L"-1", L""},
    {ItemType_i2, {L"-32768", L"-1", L"32767"}, L"-1", L""},
    {ItemType_i4, {L"-9223372036854775808", L"1099511627776", L"9223372036854775807"}, L"1099511627776", L""},
    {ItemType_i8, {L"-9223372036854775808", L"-4294967296", L"9223372036854775807"}, L"-4294967296", L""},
    {ItemType_ui1, {L"0", L"128", L"255"}, L"128", L""}, {ItemType_ui2, {L"0", L"32768", L"65535"}, L"32768", L""},
    {ItemType_ui4, {L"0", L"9223372036854775808", L"18446744073709551615"}, L"9223372036854775808", L""},
    {ItemType_ui8, {L"0", L"9223372036854775808", L"18446744073709551615"}, L"9223372036854775808", L""},
    {ItemType_r4, {L"-INF", L"0.5", L"INF"}, L"0.5", L"."},
    {ItemType_r8, {L"-1e+300", L"0.1", L"1e+300"}, L"0.1", L"."},
    {ItemType_year, {L"0", L"1999", L"65535"}, L"1999", L""}, {ItemType_month, {L"--01", L"--02", L"--12"}, L"2", L""},
    {ItemType_day, {L"---01", L"---09", L"---31"}, L"9", L""},
    {ItemType_date, {L"-0001-01-01", L"2024-02-29", L"12024-01-01"}, L"2024-02-29", L"."},
    {ItemType_datetime, {L"2024-02-28T23:59:59.9Z", L"2024-02-29T00:00:00Z", L"2024-02-29T00:00:00-00:01"},
        L"2024-02-29T00:00:00Z", L"."},
    {ItemType_time, {L"00:00:00", L"12:00:00", L"23:59:59.999999999"}, L"12:00:00", L"."},
    {ItemType_yearMonth, {L"2023-12", L"2024-01", L"2024-02"}, L"2024-01", L"."},
    {ItemType_monthDay, {L"--01-31", L"--02-29", L"--03-01"}, L"--02-29", L"."},
    {ItemType_duration, {L"P1D", L"P1M", L"P32D"}, L"P1M", L"."},
    {ItemType_decimal, {L"-99999999999999999999.5", L"0.05", L"99999999999999999999.5"}, L"0.05", L"."},
    {ItemType_integer, {L"-99999999999999999999", L"7", L"99999999999999999999"}, L"7", L"."}};

TEST(Facets, EveryBoundOnEveryOrderedType)
{
    for (const OrderedType& row : OrderedTypes) {
        const ZrVariant value = Variant(row.type, row.texts[1]);
        const std::wstring violation = Violation(row.shown, row.fullStop);
        for (int bound = 0; bound < 4; ++bound) {
            for (int order = -1; order <= 1; ++order) {
                CPrimitiveRestrictions facets;
                facets.*Bounds[bound] = std::wstring(L" \n") + row.texts[1 - order] + L" ";
                EXPECT_EQ(Verdict(value, row.type, facets), IsAllowed(bound, order) ? L"" : violation)
                    << "type " << row.type << " bound " << bound << " order " << order;
            }
        }
    }
}

TEST(Facets, AllCombinationsOfBounds)
{
    const wchar_t* const texts[] = {L"", L"1", L"2", L"3"};
    for (int combination = 0; combination < 256; ++combination) {
        CPrimitiveRestrictions facets;
        bool allowed = true;
        for (int bound = 0; bound < 4; ++bound) {
            const int choice = combination >> (2 * bound) & 3;
            facets.*Bounds[bound] = texts[choice];
            allowed = allowed && (choice == 0 || IsAllowed(bound, 2 - choice));
        }
        EXPECT_EQ(Verdict(L"2", ItemType_i4, facets).empty(), allowed) << combination;
        EXPECT_EQ(Verdict(L"2", ItemType_r8, facets).empty(), allowed) << combination;
    }
}

TEST(Facets, WhatHasNoOrderViolatesEveryBound)
{
    const Case<const wchar_t*> rows[] = {{ItemType_r4, L"NaN", L"1"}, {ItemType_r8, L"NaN", L"NaN"},
        {ItemType_r8, L"1", L"NaN"}, {ItemType_duration, L"P1M", L"P30D"},
        {ItemType_datetime, L"2024-01-01T12:00:00", L"2024-01-01T12:00:00Z"},
        {ItemType_datetime, L"2024-01-01T12:00:00Z", L"2024-01-02T02:00:00"}};
    for (const auto& row : rows) {
        for (const auto bound : Bounds) {
            CPrimitiveRestrictions facets;
            facets.*bound = row.fact;
            EXPECT_EQ(Verdict(row.text, row.type, facets), Violation(row.text)) << Narrow(row.fact);
        }
    }
    CPrimitiveRestrictions facets;
    facets.m_minInclusive = L"2024-01-01T12:00:00Z";
    EXPECT_EQ(Verdict(L"2024-01-02T02:00:01", ItemType_datetime, facets), L"") << "past the span of time zones";
}

TEST(Facets, MalformedBoundsFailWhenTheirTurnComes)
{
    const auto bounded = [](const wchar_t* least, const wchar_t* most, const wchar_t* below) {
        return CPrimitiveRestrictions(nullptr, -1, -1, least, most, nullptr, below, -1, -1, -1);
    };
    EXPECT_EQ(Verdict(L"5", ItemType_i2, bounded(L"", L"1O", L"")), L"The value [1O] can not be converted to a i4");
    EXPECT_EQ(Verdict(L"5", ItemType_i2, bounded(L"6", L"1O", L"")), L"Invalid Value for item [5]");
    EXPECT_EQ(Verdict(L"5", ItemType_r8, bounded(L" ", L"1O", L"")), L"The value [] can not be converted to a r8");
    EXPECT_EQ(Verdict(L"5", ItemType_ui1, bounded(L"", L"", L"300")), L"The value [300] is to large to fit in a ui1");
}

TEST(Facets, Lengths)
{
    const Case<long> rows[] = {{ItemType_string, L"", 0}, {ItemType_string, L"\u00e9\u20acx", 3},
        {ItemType_hexBinary, L"0A0B0C", 3}, {ItemType_base64Binary, L"QUJD", 3}, {ItemType_char, L"x", 1}};
    for (const auto& row : rows) {
        for (long limit = -1; limit <= 4; ++limit) {
            const auto expect = [&](long CPrimitiveRestrictions::*facet, bool isAllowed) {
                CPrimitiveRestrictions facets;
                facets.*facet = limit;
                EXPECT_EQ(Verdict(row.text, row.type, facets), isAllowed ? L"" : Violation(row.text)) << limit;
            };
            expect(&CPrimitiveRestrictions::m_minLength, limit < 0 || row.fact >= limit);
            expect(&CPrimitiveRestrictions::m_maxLength, limit < 0 || row.fact <= limit);
            expect(&CPrimitiveRestrictions::m_length, limit < 0 || row.fact == limit);
        }
    }
}

TEST(Facets, DecimalDigits)
{
    const struct {
        const wchar_t* text;
        long total, fraction;
    } rows[] = {{L"0", 0, 0}, {L"0.05", 2, 2}, {L"-0100.50", 4, 1}, {L"100", 3, 0}, {L"12.345", 5, 3}};
    for (const auto& row : rows) {
        const CDecimal value(row.text);
        EXPECT_EQ(Helper::GetDecimalFractionPartLen(value), row.fraction);
        EXPECT_EQ(Helper::GetDecimalIntegerPartLen(value), row.total - row.fraction);
        for (const long tighter : {0, 1}) {
            CPrimitiveRestrictions total;
            total.m_totalDigits = row.total - tighter;
            CPrimitiveRestrictions fraction;
            fraction.m_fractionDigits = row.fraction - tighter;
            const std::wstring violation = Violation(value.ToString());
            EXPECT_EQ(Verdict(row.text, ItemType_decimal, total), tighter && row.total ? violation : L"");
            EXPECT_EQ(Verdict(row.text, ItemType_decimal, fraction), tighter && row.fraction ? violation : L"");
        }
    }
}

TEST(Facets, MillionDigitNumbers)
{
    const std::wstring digits(1000000, L'7');
    const CPrimitiveRestrictions facets(
        nullptr, -1, -1, digits.substr(1).c_str(), nullptr, nullptr, (digits + L"0").c_str(), -1, 1000000, -1);
    EXPECT_EQ(Verdict(digits, ItemType_integer, facets), L"");
    EXPECT_EQ(Verdict(digits, ItemType_decimal, facets), L"");
    EXPECT_NE(Verdict(digits + L".5", ItemType_decimal, facets), L"");
}

TEST(Facets, DispatchByType)
{
    const CPrimitiveRestrictions everything(L"[^5]*", 2, 2, L"6", L"4", nullptr, L"4", 2, 0, 0);
    for (int type = ItemType_hexBinary; type <= ItemType_integer; ++type) {
        ZrVariant nil;
        nil.SetNil();
        EXPECT_EQ(Verdict(nil, static_cast<ItemType>(type), everything), L"") << type;
    }
    for (const int type : {-1, 0, 27, 28, 29}) {
        EXPECT_EQ(Verdict(Variant(ItemType_i4, L"5"), static_cast<ItemType>(type), everything),
            L"Invalid Type " + std::to_wstring(type));
    }
    EXPECT_EQ(Verdict(L"5", ItemType_char, everything), Violation(L"5"));
    EXPECT_EQ(MessageOf<CZrException>([&] { Helper::CheckRestrictionFori8(nullptr, 5, everything); }),
        L"Invalid Value for  [5]");
}

TEST(Facets, keeps_UncheckedTypesAndWideCharacterLengths)
{
    const CPrimitiveRestrictions everything(L"x", 2, 2, L"?", L"?", L"?", L"?", 2, 0, 0);
    Helper::CheckRestrictionForboolean(L"item", true, everything);
    Helper::CheckRestrictionFormonthYear(L"item", CDateTime(), everything);
    CPrimitiveRestrictions facets;
    facets.m_length = 2;
    EXPECT_EQ(Verdict(L"\xd83d\xde00", ItemType_string, facets), L"");
}

TEST(Facets, keeps_FullStopInAllButIntegerMessages)
{
    CPrimitiveRestrictions facets;
    facets.m_minInclusive = L"6";
    EXPECT_EQ(Verdict(L"5", ItemType_i4, facets), L"Invalid Value for item [5]");
    EXPECT_EQ(Verdict(L"5", ItemType_integer, facets), L"Invalid Value for item [5].");
}

} // namespace
