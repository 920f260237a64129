// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/DateTime.h"
#include "ZrXmlLib16/DateTimeSpan.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;

namespace {

CDateTime Parsed(const wchar_t* text, CDateTime::DateType kind)
{
    CDateTime value;
    value.ParseXSDDate(text, kind);
    return value;
}

CDateTimeSpan Span(const wchar_t* text)
{
    CDateTimeSpan span;
    span.ParseXSDDuration(text);
    return span;
}

constexpr struct {
    const wchar_t *name, *form;
} KINDS[] = {{L"DateTime", L"[-]CCYY-MM-DDThh:mm:ss[.s][Z|(+|-)hh:mm]"}, {L"Date", L"[-]CCYY-MM-DD[zone]"},
    {L"Time", L"hh:mm:ss[.s]"}, {L"YearMonth", L"[-]CCYY-MM"}, {L"Year", L"[-]CCYY"}, {L"MonthDay", L"--MM-DD"},
    {L"Month", L"--MM"}, {L"Day", L"---DD"}};

template <class Action> std::wstring Refusal(Action action)
{
    return MessageOf<CZrInvalidValueException>(action);
}

} // namespace

TEST(DateTimeText, AcceptedTextsPrintInCanonicalForm)
{
    const struct {
        CDateTime::DateType kind;
        std::vector<std::pair<const wchar_t*, const wchar_t*>> texts; // the second is null: as read
    } rows[] = {
        {CDateTime::dt_dateTime,
            {{L"2004-02-29T23:59:59.000000001-14:00", nullptr},
                {L"2004-02-29T00:00:00.1200Z", L"2004-02-29T00:00:00.12Z"},
                {L"2004-02-29T00:00:00.000+05:30", L"2004-02-29T00:00:00+05:30"},
                {L"2003-12-31T24:00:00.0+01:00", L"2004-01-01T00:00:00+01:00"},
                {L"-0001-12-31T24:00:00", L"0000-01-01T00:00:00"},
                {L"-999999999-12-31T23:59:59.999999999+14:00", nullptr}}},
        {CDateTime::dt_date,
            {{L"0000-02-29", nullptr}, {L"-0004-02-29-00:00", L"-0004-02-29Z"}, {L"-0000-01-01", L"0000-01-01"},
                {L"999999999-12-31", nullptr}}},
        {CDateTime::dt_time, {{L"24:00:00", L"00:00:00"}, {L"12:34:56.789Z", nullptr}}},
        {CDateTime::dt_gYearMonth, {{L"12004-02+00:00", L"12004-02Z"}}},
        {CDateTime::dt_gYear, {{L"476", L"0476"}, {L"-5Z", L"-0005Z"}, {L"2004", nullptr}}},
        {CDateTime::dt_gMonthDay, {{L"--02-29", nullptr}, {L"--12-31-01:00", nullptr}}},
        {CDateTime::dt_gMonth, {{L"--11", nullptr}, {L"--11-05:00", nullptr}}},
        {CDateTime::dt_gDay, {{L"---31", nullptr}, {L"---01+14:00", nullptr}}},
    };
    for (const auto& row : rows)
        for (const auto& [text, printed] : row.texts)
            EXPECT_EQ(Parsed(text, row.kind).ToString(), printed ? printed : text);
}

TEST(DateTimeText, RefusedTextsQuoteTheExpectedFormAndLeaveTheValue)
{
    const struct {
        CDateTime::DateType kind;
        std::vector<const wchar_t*> texts;
    } rows[] = {
        {CDateTime::dt_dateTime,
            {L"2004-02-29", L"2004-02-29T", L"2004-02-29 00:00:00", L"2003-02-29T00:00:00", L"2004-02-29T24:00:01",
                L"2004-02-29T24:00:00.1", L"2004-02-29T25:00:00", L"2004-02-29T23:60:00", L"2004-02-29T23:59:60",
                L"2004-02-29T0:00:00", L"2004-02-29T00:00", L"2004-02-29T00:00:00.", L"2004-02-29T00:00:00z",
                L"2004-02-29T00:00:00+14:01", L"2004-02-29T00:00:00+15:00", L"2004-02-29T00:00:00+01:60",
                L"2004-02-29T00:00:00+0100", L"2004-02-29T00:00:00ZZ", L"999999999-12-31T24:00:00"}},
        {CDateTime::dt_date,
            {L"204-01-01", L"02004-01-01", L"+2004-01-01", L"--2004-01-01", L"1000000000-01-01", L"2004-00-01",
                L"2004-13-01", L"2004-01-00", L"2004-04-31", L"1900-02-29", L"2004-1-01", L"-", L"2004-01-01 "}},
        {CDateTime::dt_time, {L"T00:00:00", L"1:00:00", L"-01:00:00", L"00:00:0a"}},
        {CDateTime::dt_gYearMonth, {L"2004", L"2004-00", L"2004-13", L"2004-01-01", L"204-01"}},
        {CDateTime::dt_gYear, {L"-", L"00476", L"2004-", L"+476", L"476z"}},
        {CDateTime::dt_gMonthDay, {L"--02-30", L"--04-31", L"-02-29", L"--0229", L"---02-29"}},
        {CDateTime::dt_gMonth, {L"--11--", L"--00", L"--13", L"-11", L"--1"}},
        {CDateTime::dt_gDay, {L"---32", L"---00", L"--31", L"---1"}},
    };
    for (const auto& row : rows) {
        const auto& kind = KINDS[row.kind];
        for (const wchar_t* text : row.texts) {
            CDateTime value(1999, 9, 9);
            EXPECT_EQ(Refusal([&] { value.ParseXSDDate(text, row.kind); }),
                std::wstring(L"Invalid XSD ") + kind.name + L" [" + text + L"] expected " + kind.form);
            EXPECT_EQ(value.ToString(), L"1999-09-09");
        }
    }
}

TEST(DateTimeText, NullEmptyAndLongFractionsHaveTheirOwnMessages)
{
    for (int kind = CDateTime::dt_dateTime; kind <= CDateTime::dt_gDay; ++kind) {
        const auto type = static_cast<CDateTime::DateType>(kind);
        const std::wstring start = std::wstring(L"Invalid XSD ") + KINDS[kind].name;
        EXPECT_EQ(Refusal([&] { Parsed(nullptr, type); }), start + L" (Null String)");
        EXPECT_EQ(Refusal([&] { Parsed(L"", type); }), start + L" (Empty String)");
    }
    CDateTime value;
    EXPECT_EQ(Refusal([&] { value.ParseXSDTime(L"00:00:00.1234567890"); }),
        L"Invalid XSD Time [00:00:00.1234567890] Fraction part too long");
    EXPECT_EQ(MessageOf<CZrInvalidParamException>([&] { Parsed(L"x", static_cast<CDateTime::DateType>(8)); }),
        L"Invalid date type 8");
    // A character behind an embedded NUL is not overlooked.
    EXPECT_THROW(value.ParseXSDTime(std::wstring(L"00:00:00\0Z", 10)), CZrInvalidValueException);
}

TEST(DateTimeText, FieldsAreReadIntoTheirPlaces)
{
    CDateTime value;
    value.ParseXSDDateTime(L"2003-04-05T06:07:08.009010011-03:30");
    EXPECT_TRUE(value.GetYear() == 2003 && value.GetMonth() == 4 && value.GetDay() == 5);
    EXPECT_TRUE(value.GetHour() == 6 && value.GetMinute() == 7 && value.GetSecond() == 8);
    EXPECT_TRUE(value.GetMilliSeconds() == 9 && value.GetMicroSeconds() == 10 && value.GetNanoSeconds() == 11);
    EXPECT_EQ(value.GetTimeZone(), -210);

    EXPECT_EQ(Parsed(L"65535", CDateTime::dt_gYear).GetYear(), 65535);
    for (const wchar_t* text : {L"65536", L"-1"}) {
        const CDateTime year = Parsed(text, CDateTime::dt_gYear);
        EXPECT_EQ(year.GetFullYear(), std::stoi(text));
        EXPECT_EQ(Refusal([&] { year.GetYear(); }), std::wstring(L"The year ") + text + L" is out of range");
    }
}

TEST(DateTimeText, SettersRefuseWhatIsNoDateOrTime)
{
    CDateTime value;
    EXPECT_EQ(Refusal([&] { value.SetDate(2001, 2, 29); }), L"The date is out of range");
    EXPECT_EQ(Refusal([&] { value.SetDate(1000000000, 1, 1); }), L"The date is out of range");
    EXPECT_EQ(Refusal([&] { value.SetTime(0, 0, 0, 0, 1000, 0); }), L"The time is out of range");
    EXPECT_EQ(Refusal([&] { value.SetTimeZone(841); }), L"The time zone is out of range");
    EXPECT_EQ(value.ToString(), L"0001-01-01T00:00:00");
    value.SetTime(23, 59, 59, 999, 999, 999);
    value.SetTimeZone(-840);
    EXPECT_EQ(value.ToString(), L"0001-01-01T23:59:59.999999999-14:00");
    value.ClearTimeZone();
    EXPECT_EQ(value.ToString(), L"0001-01-01T23:59:59.999999999");
}

TEST(DateTimeSpan, AcceptedTextsPrintInCanonicalForm)
{
    const std::pair<const wchar_t*, const wchar_t*> rows[] = {{L"-P1Y2M3DT4H5M6.789S", L"-P1Y2M3DT4H5M6.789S"},
        {L"P1YT1S", L"P1YT1S"}, {L"PT0.000000001S", L"PT0.000000001S"}, {L"P00Y1M", L"P1M"}, {L"PT1.10S", L"PT1.1S"},
        {L"-P0D", L"-P"}, {L"P65537Y", L"P1Y"}, {L"P4294967297D", L"P1D"}};
    for (const auto& [text, printed] : rows)
        EXPECT_EQ(Span(text).ToString(), printed);
    const CDateTimeSpan span(1, 2, 3, 4, 5, 6, 789, 12, 345);
    EXPECT_EQ(Span(L"P1Y2M3DT4H5M6.789012345S").ToString(), span.ToString());
    EXPECT_EQ(span.GetMilliSeconds() * 1000000 + span.GetMicroSeconds() * 1000 + span.GetNanoSeconds(), 789012345);
}

TEST(DateTimeSpan, RefusedTexts)
{
    for (const wchar_t* text : {L"P", L"-P", L"PT", L"P1H", L"P1S", L"P1.5D", L"PY", L"P.5S", L"PT.5S", L"PT1.S",
             L"PT1.5", L"PT1.5M", L"P1", L"PT1", L"P1YT", L"P1M1Y", L"P1D1M", L"P1Y1Y", L"PT1M1H", L"PT1S1M", L"PT1S1S",
             L"PT1HT1M", L"PT1D", L"P-1D", L"+P1D", L"--P1D", L"1D", L"p1d", L"P1D ", L" P1D", L"-"}) {
        EXPECT_EQ(Refusal([&] { Span(text); }),
            std::wstring(L"Invalid XSD Duration [") + text + L"] expected [-]P[nY][nM][nD][T[nH][nM][nS.ff]]");
    }
    EXPECT_EQ(
        Refusal([] { Span(L"PT1.1234567891S"); }), L"Invalid XSD Duration [PT1.1234567891S] Fraction part too long");
    EXPECT_EQ(Refusal([] { Span(nullptr); }), L"Invalid XSD Duration (Null String)");
    EXPECT_EQ(Refusal([] { Span(L""); }), L"Invalid XSD Duration (Empty String)");
}

TEST(DateTimeSpan, keeps_ZeroDurationPrintsATextThatIsRefused)
{
    EXPECT_THROW(Span(CDateTimeSpan().ToString().c_str()), CZrInvalidValueException);
}

TEST(DateTimeSpan, keeps_GetAsNegativeSetsTheSign)
{
    CDateTimeSpan span = Span(L"-P3D");
    EXPECT_EQ(span.GetAsNegative().ToString(), L"-P3D");
    span.Negate();
    EXPECT_EQ(span.ToString(), L"P3D");
    EXPECT_EQ(span.GetAsNegative().ToString(), L"-P3D");
}

TEST(DateTimeSpan, keeps_FieldsAreNotNormalised)
{
    EXPECT_EQ(CDateTimeSpan(25, 90, 61).ToString(), L"PT25H90M61S");
    EXPECT_EQ(Span(L"P13M").GetYears(), 0);
}

TEST(DateTimeSpan, keeps_UnequalIsTrueForIndeterminatePairs)
{
    EXPECT_TRUE(Span(L"P1M") != Span(L"P30D"));
}

TEST(DateTimeSpan, LargeFieldsPrintInFullAndFractionsCarry)
{
    constexpr unsigned long most = std::numeric_limits<unsigned long>::max();
    EXPECT_EQ(CDateTimeSpan(65535, most, 1, 1, 1, most - 1, 1999, 1, 0).ToString(),
        L"P65535Y18446744073709551615M1DT1H1M18446744073709551615.999001S");
    EXPECT_EQ(CDateTimeSpan(0, 0, 0, 0, 0, most, 65535, 65535, 65535).ToString(), L"PT18446744073709551680.600600535S");
}
