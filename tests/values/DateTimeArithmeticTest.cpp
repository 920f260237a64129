// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/DateTime.h"
#include "ZrXmlLib16/DateTimeSpan.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <limits>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::Narrow;

namespace {

/// A calendar that only knows how to go to the next day.
struct PlainDay {
    int year;
    int month;
    int day;

    int MonthLength() const
    {
        static const int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
        const bool leap = year % 400 == 0 || (year % 4 == 0 && year % 100 != 0);
        return month == 2 && leap ? 29 : lengths[month - 1];
    }
    void Advance()
    {
        if (++day > MonthLength()) {
            day = 1;
            month = month % 12 + 1;
            year += month == 1 ? 1 : 0;
        }
    }
    std::wstring Text() const
    {
        char buffer[40];
        std::snprintf(
            buffer, sizeof(buffer), "%s%04d-%02d-%02d", year < 0 ? "-" : "", year < 0 ? -year : year, month, day);
        return std::wstring(buffer, buffer + std::char_traits<char>::length(buffer));
    }
    CDateTime Value() const
    {
        return CDateTime(year, static_cast<unsigned char>(month), static_cast<unsigned char>(day));
    }
};

CDateTime Parsed(const std::wstring& text, CDateTime::DateType kind = CDateTime::dt_dateTime)
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
    int first;
    int last;
} YEARS[] = {{-5, 5}, {1896, 1904}, {1996, 2004}};

} // namespace

TEST(DateTimeArithmetic, EveryDayPrintsParsesAndFollowsTheDayBefore)
{
    const CDateTimeSpan oneDay(0, 0, 1, 0, 0, 0);
    for (const auto& years : YEARS) {
        PlainDay day = {years.first, 1, 1};
        CDateTime previous = day.Value();
        for (day.Advance(); day.year <= years.last; day.Advance()) {
            const CDateTime value = Parsed(day.Text(), CDateTime::dt_date);
            ASSERT_EQ(value.ToString(), day.Text());
            ASSERT_EQ(previous.CompareTo(value), CDateTime::cmp_less) << Narrow(day.Text());
            ASSERT_EQ(value.CompareTo(previous), CDateTime::cmp_greater) << Narrow(day.Text());
            ASSERT_EQ(previous.Add(oneDay).ToString(), day.Text());
            ASSERT_EQ(value.Add(oneDay.GetAsNegative()).ToString(), previous.ToString());
            previous = value;
        }
    }
}

TEST(DateTimeArithmetic, DaysAndMonthsAgreeWithCountingDayByDay)
{
    for (const auto& years : YEARS) {
        const PlainDay first = {years.first, 1, 1};
        PlainDay day = first;
        for (unsigned long count = 0; day.year <= years.last; day.Advance(), ++count) {
            CDateTimeSpan days;
            days.SetDays(count);
            ASSERT_EQ(first.Value().Add(days).ToString(), day.Text());
            ASSERT_EQ(day.Value().Add(days.GetAsNegative()).ToString(), first.Text());
        }
        for (unsigned long months = 0; months <= 30; ++months) {
            CDateTimeSpan span;
            span.SetMonths(months);
            const int total = static_cast<int>(months);
            PlainDay expected = {years.first + total / 12, total % 12 + 1, 31};
            expected.day = expected.MonthLength();
            ASSERT_EQ((PlainDay{years.first, 1, 31}).Value().Add(span).ToString(), expected.Text());
        }
    }
}

TEST(DateTimeArithmetic, SumsCarryThroughAllFields)
{
    const struct {
        CDateTime::DateType kind;
        const wchar_t* start;
        const wchar_t* span;
        const wchar_t* sum;
    } rows[] = {
        {CDateTime::dt_dateTime, L"2000-01-12T12:13:14Z", L"P1Y3M5DT7H10M3.3S", L"2001-04-17T19:23:17.3Z"},
        {CDateTime::dt_dateTime, L"1999-12-31T23:59:59.999999999", L"PT0.000000001S", L"2000-01-01T00:00:00"},
        {CDateTime::dt_dateTime, L"2000-01-01T00:00:00+05:00", L"-PT0.000000001S",
            L"1999-12-31T23:59:59.999999999+05:00"},
        {CDateTime::dt_dateTime, L"2000-03-30T00:00:00", L"-P1M1D", L"2000-02-28T00:00:00"},
        {CDateTime::dt_dateTime, L"2000-02-29T00:00:00", L"-P2000Y", L"0000-02-29T00:00:00"},
        {CDateTime::dt_dateTime, L"0001-01-31T00:00:00", L"-P13M", L"-0001-12-31T00:00:00"},
        {CDateTime::dt_gYear, L"2000", L"-P1D", L"2000"},
        {CDateTime::dt_gYearMonth, L"2000-01", L"-P1M", L"1999-12"},
        {CDateTime::dt_date, L"2000-01-31", L"PT25H", L"2000-02-01"},
        {CDateTime::dt_time, L"23:30:00Z", L"PT1H", L"00:30:00Z"},
        {CDateTime::dt_date, L"2000-01-01", L"P65535Y4294967295M4294967295DT4294967295H", nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Narrow(row.start));
        const CDateTime sum = Parsed(row.start, row.kind).Add(Span(row.span));
        if (row.sum) {
            EXPECT_EQ(sum.ToString(), row.sum);
        }
    }
}

TEST(DateTimeArithmetic, LeavingTheRangeIsRefused)
{
    const std::wstring message = L"The date is out of range";
    CDateTimeSpan huge;
    for (auto set : {&CDateTimeSpan::SetMonths, &CDateTimeSpan::SetDays, &CDateTimeSpan::SetHours}) {
        huge.Clear();
        (huge.*set)(std::numeric_limits<unsigned long>::max());
        EXPECT_EQ(MessageOf<CZrInvalidValueException>([&] { CDateTime().Add(huge); }), message);
        EXPECT_EQ(MessageOf<CZrInvalidValueException>([&] { CDateTime().Add(huge.GetAsNegative()); }), message);
    }
    const CDateTime last = Parsed(L"999999999-12-31T23:59:59.999999999-01:00");
    EXPECT_EQ(MessageOf<CZrInvalidValueException>([&] { last.Add(Span(L"PT0.000000001S")); }), message);
    EXPECT_EQ(MessageOf<CZrInvalidValueException>([&] { last.ToUtc(); }), message);
    EXPECT_EQ(last, last); // the zone takes the instant out of the range, which comparison does not mind
    const CDateTime first = Parsed(L"-999999999-01-01T00:00:00");
    EXPECT_EQ(MessageOf<CZrInvalidValueException>([&] { first.Add(Span(L"-PT0.000000001S")); }), message);
}

TEST(DateTimeArithmetic, UtcShiftsTheFields)
{
    EXPECT_EQ(Parsed(L"2000-01-01T00:30:00+01:00").ToUtc().ToString(), L"1999-12-31T23:30:00Z");
    EXPECT_EQ(Parsed(L"2000-02-28T23:30:00-01:00").ToUtc().ToString(), L"2000-02-29T00:30:00Z");
    EXPECT_EQ(Parsed(L"2000-02-28T23:30:00").ToUtc().ToString(), L"2000-02-28T23:30:00");
    EXPECT_EQ(Parsed(L"00:30:00+01:00", CDateTime::dt_time).ToUtc().ToString(), L"23:30:00Z");
}

TEST(DateTimeArithmetic, PartialOrder)
{
    const auto equal = CDateTime::cmp_equal;
    const auto less = CDateTime::cmp_less;
    const auto greater = CDateTime::cmp_greater;
    const auto indeterminate = CDateTime::cmp_indeterminate;
    const struct {
        CDateTime::DateType kind;
        const wchar_t* left;
        const wchar_t* right;
        CDateTime::CompareCode code;
    } rows[] = {
        {CDateTime::dt_dateTime, L"2000-01-15T12:00:00Z", L"2000-01-15T13:00:00+01:00", equal},
        {CDateTime::dt_dateTime, L"2000-01-15T00:00:00", L"2000-02-15T00:00:00", less},
        {CDateTime::dt_dateTime, L"2000-01-15T00:00:00.000000001", L"2000-01-15T00:00:00", greater},
        {CDateTime::dt_dateTime, L"-0001-12-31T23:59:59", L"0000-01-01T00:00:00", less},
        {CDateTime::dt_dateTime, L"2000-01-01T00:00:00", L"1999-12-31T23:00:00Z", indeterminate},
        {CDateTime::dt_dateTime, L"2000-01-16T00:00:00", L"2000-01-16T14:00:00Z", indeterminate},
        {CDateTime::dt_dateTime, L"2000-01-16T00:00:00", L"2000-01-16T14:00:00.000000001Z", less},
        {CDateTime::dt_dateTime, L"2000-01-16T00:00:00", L"2000-01-15T10:00:00Z", indeterminate},
        {CDateTime::dt_dateTime, L"2000-01-16T00:00:00.000000001", L"2000-01-15T10:00:00Z", greater},
        {CDateTime::dt_date, L"2000-01-16", L"2000-01-17-14:00", less},
        {CDateTime::dt_date, L"2000-01-16+14:00", L"2000-01-15-10:00", equal},
        {CDateTime::dt_time, L"00:30:00+01:00", L"23:30:00Z", less},
        {CDateTime::dt_time, L"12:00:00", L"11:00:00Z", indeterminate},
        {CDateTime::dt_gYear, L"2000", L"2001Z", less},
        {CDateTime::dt_gMonthDay, L"--02-29", L"--03-01", less},
        {CDateTime::dt_gMonth, L"--12", L"--11Z", greater},
        {CDateTime::dt_gDay, L"---15", L"---15Z", indeterminate},
    };
    const CDateTime::CompareCode mirrored[] = {equal, greater, less, indeterminate};
    for (const auto& row : rows) {
        SCOPED_TRACE(Narrow(row.left) + " and " + Narrow(row.right));
        const CDateTime left = Parsed(row.left, row.kind);
        const CDateTime right = Parsed(row.right, row.kind);
        EXPECT_EQ(left.CompareTo(right), row.code);
        EXPECT_EQ(right.CompareTo(left), mirrored[row.code]);
        EXPECT_EQ(left == right, row.code == equal);
        EXPECT_EQ(left != right, row.code != equal);
        EXPECT_EQ(left < right, row.code == less);
        EXPECT_EQ(left > right, row.code == greater);
        EXPECT_EQ(left <= right, row.code == equal || row.code == less);
        EXPECT_EQ(left >= right, row.code == equal || row.code == greater);
    }
    CDateTime date(2000, 1, 1);
    CDateTime dateTime(2000, 1, 1, 0, 0, 0);
    EXPECT_EQ(date.CompareTo(dateTime), indeterminate);
    dateTime.SetTime(5, 0, 0);
    dateTime.SetDateType(CDateTime::dt_date);
    EXPECT_EQ(date.CompareTo(dateTime), equal) << "fields that the kind lacks do not count";
}
