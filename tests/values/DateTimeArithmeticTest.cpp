// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/DateTime.h"
#include "ZrXmlLib16/DateTimeSpan.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <limits>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::Narrow;

namespace {

/// A calendar that only knows how to go to the next day.
struct PlainDay {
    int year, month, day;

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
        return FormatString(L"%ls%04d-%02d-%02d", year < 0 ? L"-" : L"", std::abs(year), month, day);
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
    int first, last;
} YEARS[] = {{-5, 5}, {1896, 1904}, {1996, 2004}};

/// Whether both directions and all operators say the same; the codes are those of the two classes.
template <class T> void ExpectOrder(const T& left, const T& right, int code)
{
    const int mirrored[] = {0, 2, 1, 3};
    EXPECT_EQ(left.CompareTo(right), code);
    EXPECT_EQ(right.CompareTo(left), mirrored[code]);
    EXPECT_TRUE((left == right) == (code == 0) && (left != right) == (code != 0));
    EXPECT_TRUE((left < right) == (code == 1) && (left > right) == (code == 2));
}

} // namespace

TEST(DateTimeArithmetic, DaysAndMonthsAgreeWithCountingDayByDay)
{
    for (const auto& years : YEARS) {
        PlainDay day = {years.first, 1, 1};
        const CDateTime first = Parsed(day.Text(), CDateTime::dt_date);
        CDateTime previous = first;
        day.Advance();
        for (unsigned long count = 1; day.year <= years.last; day.Advance(), ++count) {
            const CDateTime value = Parsed(day.Text(), CDateTime::dt_date);
            ASSERT_EQ(value.ToString(), day.Text());
            ASSERT_TRUE(previous < value && value > previous) << Narrow(day.Text());
            CDateTimeSpan days;
            days.SetDays(count);
            ASSERT_EQ(first.Add(days).ToString(), day.Text());
            ASSERT_EQ(value.Add(days.GetAsNegative()).ToString(), first.ToString());
            previous = value;
        }
        for (int months = 0; months <= 30; ++months) {
            CDateTimeSpan span;
            span.SetMonths(static_cast<unsigned long>(months));
            PlainDay expected = {years.first + months / 12, months % 12 + 1, 31};
            expected.day = expected.MonthLength();
            ASSERT_EQ(CDateTime(years.first, 1, 31).Add(span).ToString(), expected.Text());
        }
    }
}

TEST(DateTimeArithmetic, SumsCarryThroughAllFields)
{
    const struct {
        CDateTime::DateType kind;
        const wchar_t *start, *span, *sum;
    } rows[] = {{CDateTime::dt_dateTime, L"2000-01-12T12:13:14Z", L"P1Y3M5DT7H10M3.3S", L"2001-04-17T19:23:17.3Z"},
        {CDateTime::dt_dateTime, L"1999-12-31T23:59:59.999999999", L"PT0.000000001S", L"2000-01-01T00:00:00"},
        {CDateTime::dt_dateTime, L"2000-03-30T00:00:00", L"-P1M1D", L"2000-02-28T00:00:00"},
        {CDateTime::dt_dateTime, L"0001-01-31T00:00:00", L"-P13M", L"-0001-12-31T00:00:00"},
        {CDateTime::dt_gYear, L"2000", L"-P1D", L"2000"}, {CDateTime::dt_gYearMonth, L"2000-01", L"-P1M", L"1999-12"},
        {CDateTime::dt_date, L"2000-01-31", L"PT25H", L"2000-02-01"},
        {CDateTime::dt_time, L"23:30:00Z", L"PT1H", L"00:30:00Z"}};
    for (const auto& row : rows)
        EXPECT_EQ(Parsed(row.start, row.kind).Add(Span(row.span)).ToString(), row.sum);
    EXPECT_NO_THROW(CDateTime().Add(Span(L"P65535Y4294967295M4294967295DT4294967295H")));
}

TEST(DateTimeArithmetic, LeavingTheRangeIsRefused)
{
    const auto expectRefusal = [](const CDateTime& date, const CDateTimeSpan& span) {
        EXPECT_EQ(MessageOf<CZrInvalidValueException>([&] { date.Add(span); }), L"The date is out of range");
    };
    for (auto set : {&CDateTimeSpan::SetMonths, &CDateTimeSpan::SetDays, &CDateTimeSpan::SetHours}) {
        CDateTimeSpan huge;
        (huge.*set)(std::numeric_limits<unsigned long>::max());
        expectRefusal(CDateTime(), huge);
        expectRefusal(CDateTime(), huge.GetAsNegative());
    }
    const CDateTime last = Parsed(L"999999999-12-31T23:59:59.999999999-01:00");
    expectRefusal(last, Span(L"PT0.000000001S"));
    expectRefusal(Parsed(L"-999999999-01-01T00:00:00"), Span(L"-PT0.000000001S"));
    EXPECT_THROW(last.ToUtc(), CZrInvalidValueException);
    EXPECT_EQ(last, last); // the zone takes the instant out of the range, which comparison does not mind
}

TEST(DateTimeArithmetic, UtcShiftsTheFields)
{
    EXPECT_EQ(Parsed(L"2000-01-01T00:30:00+01:00").ToUtc().ToString(), L"1999-12-31T23:30:00Z");
    EXPECT_EQ(Parsed(L"2000-02-28T23:30:00").ToUtc().ToString(), L"2000-02-28T23:30:00");
    EXPECT_EQ(Parsed(L"00:30:00+01:00", CDateTime::dt_time).ToUtc().ToString(), L"23:30:00Z");
}

TEST(DateTimeArithmetic, PartialOrderOfDates)
{
    enum { Equal, Less, Greater, Indeterminate };
    const struct {
        CDateTime::DateType kind;
        const wchar_t *left, *right;
        int code;
    } rows[] = {{CDateTime::dt_dateTime, L"2000-01-15T12:00:00Z", L"2000-01-15T13:00:00+01:00", Equal},
        {CDateTime::dt_dateTime, L"2000-01-15T00:00:00.000000001", L"2000-01-15T00:00:00", Greater},
        {CDateTime::dt_dateTime, L"-0001-12-31T23:59:59", L"0000-01-01T00:00:00", Less},
        {CDateTime::dt_dateTime, L"2000-01-16T00:00:00", L"2000-01-16T14:00:00Z", Indeterminate},
        {CDateTime::dt_dateTime, L"2000-01-16T00:00:00", L"2000-01-16T14:00:00.000000001Z", Less},
        {CDateTime::dt_dateTime, L"2000-01-16T00:00:00", L"2000-01-15T10:00:00Z", Indeterminate},
        {CDateTime::dt_dateTime, L"2000-01-16T00:00:00.000000001", L"2000-01-15T10:00:00Z", Greater},
        {CDateTime::dt_date, L"2000-01-16", L"2000-01-17-14:00", Less},
        {CDateTime::dt_date, L"2000-01-16+14:00", L"2000-01-15-10:00", Equal},
        {CDateTime::dt_time, L"00:30:00+01:00", L"23:30:00Z", Less},
        {CDateTime::dt_time, L"12:00:00", L"11:00:00Z", Indeterminate}, {CDateTime::dt_gYear, L"2000", L"2001Z", Less},
        {CDateTime::dt_gMonthDay, L"--02-29", L"--03-01", Less}, {CDateTime::dt_gMonth, L"--12", L"--11Z", Greater},
        {CDateTime::dt_gDay, L"---15", L"---15Z", Indeterminate}};
    for (const auto& row : rows) {
        SCOPED_TRACE(Narrow(row.left) + " and " + Narrow(row.right));
        const CDateTime left = Parsed(row.left, row.kind);
        const CDateTime right = Parsed(row.right, row.kind);
        ExpectOrder(left, right, row.code);
        EXPECT_EQ(left <= right, row.code == Equal || row.code == Less);
        EXPECT_EQ(left >= right, row.code == Equal || row.code == Greater);
    }
    const CDateTime date(2000, 1, 1);
    CDateTime dateTime(2000, 1, 1, 5, 0, 0);
    EXPECT_EQ(date.CompareTo(dateTime), Indeterminate);
    dateTime.SetDateType(CDateTime::dt_date);
    EXPECT_EQ(date.CompareTo(dateTime), Equal) << "fields that the kind lacks do not count";
}

TEST(DateTimeArithmetic, PartialOrderOfDurations)
{
    const struct {
        const wchar_t *left, *right;
        int code;
    } rows[] = {{L"P1M", L"P30D", 3}, {L"P1M", L"P27D", 2}, {L"P1M", L"P32D", 1}, {L"P1Y", L"P365D", 3},
        {L"P1Y", L"P364D", 2}, {L"P5M", L"P153D", 3}, {L"P5M", L"P154D", 1}, {L"PT24H", L"P1D", 0},
        {L"P12M", L"P1Y", 0}, {L"PT36H", L"P1D", 2}, {L"-P1D", L"PT0.000000001S", 1}, {L"-P2000Y", L"P1D", 1}};
    for (const auto& row : rows) {
        SCOPED_TRACE(Narrow(row.left) + " and " + Narrow(row.right));
        ExpectOrder(Span(row.left), Span(row.right), row.code);
    }
    CDateTimeSpan huge;
    huge.SetDays(std::numeric_limits<unsigned long>::max());
    EXPECT_EQ(huge.CompareTo(huge), 3) << "a sum that leaves the range of dates says nothing";
}
