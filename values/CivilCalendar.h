// SPDX-License-Identifier: MIT
#ifndef VALUES_CIVILCALENDAR_H
#define VALUES_CIVILCALENDAR_H

#include "values/Int128.h"

namespace ZrXmlLib16 {

constexpr int MAX_YEAR = 999999999;
constexpr int MIN_YEAR = -MAX_YEAR;

/// A day of the proleptic Gregorian calendar; the year before 1 is 0.
struct CivilDay {
    int year;
    unsigned month;
    unsigned day;
};

constexpr bool IsLeapYear(int year)
{
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

constexpr unsigned DaysInMonth(int year, unsigned month)
{
    return month == 2 ? (IsLeapYear(year) ? 29 : 28) : 30 + ((month + month / 8) & 1);
}

/// The number of the day, counted from 0000-03-01. With years that begin in March the leap day is the last of its year,
/// so the days before a month follow a linear rule.
constexpr long DayNumber(const CivilDay& date)
{
    const long year = static_cast<long>(date.year) - (date.month < 3 ? 1 : 0);
    const long monthFromMarch = (date.month + 9) % 12;
    const long dayOfYear = (153 * monthFromMarch + 2) / 5 + static_cast<long>(date.day) - 1;
    return year * 365 + FloorDivide(year, 4L) - FloorDivide(year, 100L) + FloorDivide(year, 400L) + dayOfYear;
}

constexpr long MIN_DAY_NUMBER = DayNumber({MIN_YEAR, 1, 1});
constexpr long MAX_DAY_NUMBER = DayNumber({MAX_YEAR, 12, 31});

/// The inverse of DayNumber for MIN_DAY_NUMBER..MAX_DAY_NUMBER.
constexpr CivilDay DayFromNumber(long number)
{
    constexpr long daysIn400Years = 146097;
    const long era = FloorDivide(number, daysIn400Years);
    const long dayOfEra = number - era * daysIn400Years;
    const long yearOfEra = (dayOfEra - dayOfEra / 1460 + dayOfEra / 36524 - dayOfEra / 146096) / 365;
    const long dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const long monthFromMarch = (5 * dayOfYear + 2) / 153;
    const long day = dayOfYear - (153 * monthFromMarch + 2) / 5 + 1;
    const long month = monthFromMarch < 10 ? monthFromMarch + 3 : monthFromMarch - 9;
    const long year = era * 400 + yearOfEra + (month < 3 ? 1 : 0);
    return {static_cast<int>(year), static_cast<unsigned>(month), static_cast<unsigned>(day)};
}

} // namespace ZrXmlLib16

#endif
