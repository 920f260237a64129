// SPDX-License-Identifier: MIT
#ifndef VALUES_DATETIMEINSTANT_H
#define VALUES_DATETIMEINSTANT_H

#include "ZrXmlLib16/DateTime.h"
#include "values/Int128.h"

namespace ZrXmlLib16 {

/// The date and time that stands for the fields that a kind lacks. It is a leap year and a month of 31 days, so that
/// every month-day and every day is real in it.
constexpr int REFERENCE_YEAR = 1972;
constexpr unsigned char REFERENCE_MONTH = 12;
constexpr unsigned char REFERENCE_DAY = 1;

/// The largest distance of a time zone from UTC.
constexpr int MAX_ZONE_MINUTES = 14 * 60;

/// A point of time as seconds since the start of the day number count and nanoseconds. Wide enough for a sum with any
/// duration.
struct CDateTime::Instant {
    Int128 seconds;
    unsigned nanos;

    Instant Plus(long moreSeconds) const { return {seconds + moreSeconds, nanos}; }
    bool operator<(const Instant& other) const
    {
        return seconds != other.seconds ? seconds < other.seconds : nanos < other.nanos;
    }
};

} // namespace ZrXmlLib16

#endif
