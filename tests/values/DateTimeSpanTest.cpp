// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/DateTimeSpan.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <limits>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::Narrow;

namespace {

CDateTimeSpan Parsed(const wchar_t* text)
{
    CDateTimeSpan span;
    span.ParseXSDDuration(text);
    return span;
}

} // namespace

TEST(DateTimeSpan, AcceptedTexts)
{
    const struct {
        const wchar_t* text;
        const wchar_t* printed; // null: as read
    } rows[] = {
        {L"P1Y2M3DT4H5M6.789S", nullptr},
        {L"-P3D", nullptr},
        {L"P1YT1S", nullptr},
        {L"PT0.000000001S", nullptr},
        {L"P00Y1M", L"P1M"},
        {L"PT1.10S", L"PT1.1S"},
        {L"PT0.0S", L"P"},
        {L"-P0D", L"-P"},
        {L"P65537Y", L"P1Y"},
        {L"P4294967297D", L"P1D"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Narrow(row.text));
        EXPECT_EQ(Parsed(row.text).ToString(), row.printed ? row.printed : row.text);
    }
    const CDateTimeSpan span = Parsed(L"-P1Y2M3DT4H5M6.789012345S");
    EXPECT_EQ(span.GetYears(), 1);
    EXPECT_EQ(span.GetMonths(), 2U);
    EXPECT_EQ(span.GetDays(), 3U);
    EXPECT_EQ(span.GetHours(), 4U);
    EXPECT_EQ(span.GetMinutes(), 5U);
    EXPECT_EQ(span.GetSeconds(), 6U);
    EXPECT_EQ(span.GetMilliSeconds(), 789);
    EXPECT_EQ(span.GetMicroSeconds(), 12);
    EXPECT_EQ(span.GetNanoSeconds(), 345);
    EXPECT_TRUE(span.IsNegative());
}

TEST(DateTimeSpan, RefusedTexts)
{
    const wchar_t* texts[] = {L"P", L"-P", L"PT", L"P1H", L"P1S", L"P1.5D", L"PY", L"P.5S", L"PT.5S", L"PT1.S",
        L"PT1.5", L"PT1.5M", L"P1", L"PT1", L"P1YT", L"P1M1Y", L"P1D1M", L"P1Y1Y", L"PT1M1H", L"PT1S1M", L"PT1S1S",
        L"PT1HT1M", L"PTT1H", L"PT1D", L"PT1Y", L"P-1D", L"+P1D", L"--P1D", L"1D", L"p1d", L"P1D ", L" P1D", L"-",
        L"PT1.5S1"};
    for (const wchar_t* text : texts) {
        EXPECT_EQ(MessageOf<CZrInvalidValueException>([&] { Parsed(text); }),
            std::wstring(L"Invalid XSD Duration [") + text + L"] expected [-]P[nY][nM][nD][T[nH][nM][nS.ff]]");
    }
    EXPECT_EQ(MessageOf<CZrInvalidValueException>([] { Parsed(L"PT1.1234567891S"); }),
        L"Invalid XSD Duration [PT1.1234567891S] Fraction part too long");
    EXPECT_EQ(MessageOf<CZrInvalidValueException>([] { Parsed(nullptr); }), L"Invalid XSD Duration (Null String)");
    EXPECT_EQ(MessageOf<CZrInvalidValueException>([] { Parsed(L""); }), L"Invalid XSD Duration (Empty String)");
}

TEST(DateTimeSpan, keeps_ZeroDurationPrintsATextThatIsRefused)
{
    const std::wstring text = CDateTimeSpan().ToString();
    EXPECT_EQ(text, L"P");
    EXPECT_THROW(Parsed(text.c_str()), CZrInvalidValueException);
}

TEST(DateTimeSpan, keeps_GetAsNegativeSetsTheSign)
{
    CDateTimeSpan span = Parsed(L"-P3D");
    EXPECT_EQ(span.GetAsNegative().ToString(), L"-P3D");
    span.Negate();
    EXPECT_EQ(span.ToString(), L"P3D");
    EXPECT_EQ(span.GetAsNegative().ToString(), L"-P3D");
    EXPECT_FALSE(span.IsNegative());
}

TEST(DateTimeSpan, keeps_FieldsAreNotNormalised)
{
    EXPECT_EQ(CDateTimeSpan(25, 90, 61).ToString(), L"PT25H90M61S");
    EXPECT_EQ(Parsed(L"P13M").GetYears(), 0);
}

TEST(DateTimeSpan, keeps_UnequalIsTrueForIndeterminatePairs)
{
    EXPECT_TRUE(Parsed(L"P1M") != Parsed(L"P30D"));
    EXPECT_FALSE(Parsed(L"P1M") == Parsed(L"P30D"));
}

TEST(DateTimeSpan, SettingClearsTheRestAndTheSign)
{
    CDateTimeSpan span = Parsed(L"-P1Y2M3DT4H5M6.789S");
    span.SetDateTimeSpan(1, 2, 3);
    EXPECT_EQ(span.ToString(), L"PT1H2M3S");
    span = CDateTimeSpan(1, 2, 3, 4, 5, 6, 7, 8, 9);
    EXPECT_EQ(span.ToString(), L"P1Y2M3DT4H5M6.007008009S");
    span.SetDateTimeSpan(1, 2, 3, 4, 5, 6);
    EXPECT_EQ(span.ToString(), L"P1Y2M3DT4H5M6S");
    span.Clear();
    EXPECT_EQ(span, CDateTimeSpan());
}

TEST(DateTimeSpan, LargeFieldsPrintInFullAndFractionsCarry)
{
    constexpr unsigned long most = std::numeric_limits<unsigned long>::max();
    const std::wstring digits = L"18446744073709551615";
    const CDateTimeSpan span(65535, most, most, most, most, most - 1, 1999, 1, 0);
    EXPECT_EQ(span.ToString(),
        L"P65535Y" + digits + L"M" + digits + L"DT" + digits + L"H" + digits + L"M" + digits + L".999001S");
    EXPECT_EQ(CDateTimeSpan(0, 0, 0, 0, 0, most, 65535, 65535, 65535).ToString(), L"PT18446744073709551680.600600535S");
    EXPECT_EQ(CDateTimeSpan(0, 0, 0, 0, 0, 0, 1000, 0, 0).ToString(), L"PT1S");
}

TEST(DateTimeSpan, PartialOrder)
{
    const struct {
        const wchar_t* left;
        const wchar_t* right;
        int code;
    } rows[] = {
        {L"P1M", L"P30D", 3},
        {L"P1M", L"P27D", 2},
        {L"P1M", L"P32D", 1},
        {L"P1Y", L"P365D", 3},
        {L"P1Y", L"P364D", 2},
        {L"P5M", L"P153D", 3},
        {L"P5M", L"P154D", 1},
        {L"PT24H", L"P1D", 0},
        {L"P12M", L"P1Y", 0},
        {L"PT36H", L"P1D", 2},
        {L"-P1D", L"PT0.000000001S", 1},
        {L"-P2000Y", L"P1D", 1},
        {L"-P2000Y", L"-P24000M", 0},
    };
    const int mirrored[] = {0, 2, 1, 3};
    for (const auto& row : rows) {
        SCOPED_TRACE(Narrow(row.left) + " and " + Narrow(row.right));
        const CDateTimeSpan left = Parsed(row.left);
        const CDateTimeSpan right = Parsed(row.right);
        EXPECT_EQ(left.CompareTo(right), row.code);
        EXPECT_EQ(right.CompareTo(left), mirrored[row.code]);
        EXPECT_EQ(left == right, row.code == 0);
        EXPECT_EQ(left != right, row.code != 0);
        EXPECT_EQ(left < right, row.code == 1);
        EXPECT_EQ(left > right, row.code == 2);
    }
    CDateTimeSpan huge;
    huge.SetDays(std::numeric_limits<unsigned long>::max());
    EXPECT_EQ(huge.CompareTo(huge), 3) << "a sum that leaves the range of dates says nothing";
}
