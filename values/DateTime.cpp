// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/DateTime.h"

#include "ZrXmlLib16/DateTimeSpan.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "values/CivilCalendar.h"
#include "values/DateTimeInstant.h"
#include "values/DateTimeKind.h"
#include "values/ValueMessages.h"

namespace ZrXmlLib16 {

namespace {

static_assert(sizeof(CDateTime) == 32, "a property of this type is copied on every read");

constexpr long SECONDS_PER_DAY = 86400;
constexpr long NANOS_PER_SECOND = 1000000000;

CDateTime::CompareCode CodeOf(bool less, bool greater)
{
    return less ? CDateTime::cmp_less : greater ? CDateTime::cmp_greater : CDateTime::cmp_equal;
}

} // namespace

CDateTime::CDateTime()
    : m_year(1)
    , m_nanos(0)
    , m_zone(0)
    , m_month(1)
    , m_day(1)
    , m_hour(0)
    , m_minute(0)
    , m_second(0)
    , m_hasZone(false)
    , m_kind(dt_dateTime)
{
}

CDateTime::CDateTime(DateType kind)
    : CDateTime()
{
    SetDateType(kind);
}

CDateTime::CDateTime(int year, unsigned char month, unsigned char day)
    : CDateTime(dt_date)
{
    SetDate(year, month, day);
}

CDateTime::CDateTime(int year, unsigned char month, unsigned char day, unsigned char hour, unsigned char minute,
    unsigned char second, unsigned short milli, unsigned short micro, unsigned short nano)
    : CDateTime()
{
    SetDate(year, month, day);
    SetTime(hour, minute, second, milli, micro, nano);
}

CDateTime::~CDateTime() = default;

unsigned short CDateTime::GetYear() const
{
    if (m_year < 0 || m_year > 65535) {
        throw CZrInvalidValueException(FormatString(ValueMessages::YEAR_OUT_OF_RANGE, m_year));
    }
    return static_cast<unsigned short>(m_year);
}

unsigned short CDateTime::GetMilliSeconds() const
{
    return static_cast<unsigned short>(m_nanos / 1000000);
}

unsigned short CDateTime::GetMicroSeconds() const
{
    return static_cast<unsigned short>(m_nanos / 1000 % 1000);
}

unsigned short CDateTime::GetNanoSeconds() const
{
    return static_cast<unsigned short>(m_nanos % 1000);
}

void CDateTime::SetDate(int year, unsigned char month, unsigned char day)
{
    if (year < MIN_YEAR || year > MAX_YEAR || month < 1 || month > 12 || day < 1 || day > DaysInMonth(year, month)) {
        throw CZrInvalidValueException(ValueMessages::DATE_OUT_OF_RANGE);
    }
    m_year = year;
    m_month = month;
    m_day = day;
}

void CDateTime::SetTime(unsigned char hour, unsigned char minute, unsigned char second, unsigned short milli,
    unsigned short micro, unsigned short nano)
{
    if (hour > 23 || minute > 59 || second > 59 || milli > 999 || micro > 999 || nano > 999) {
        throw CZrInvalidValueException(ValueMessages::TIME_OUT_OF_RANGE);
    }
    m_hour = hour;
    m_minute = minute;
    m_second = second;
    m_nanos = milli * 1000000U + micro * 1000U + nano;
}

void CDateTime::SetDateType(DateType kind)
{
    KindOf(kind);
    m_kind = kind;
}

void CDateTime::SetTimeZone(short minutes)
{
    if (minutes < -MAX_ZONE_MINUTES || minutes > MAX_ZONE_MINUTES) {
        throw CZrInvalidValueException(ValueMessages::TIME_ZONE_OUT_OF_RANGE);
    }
    m_zone = minutes;
    m_hasZone = true;
}

void CDateTime::ClearTimeZone()
{
    m_zone = 0;
    m_hasZone = false;
}

CDateTime CDateTime::WithReferenceFields() const
{
    const DateTimeKind& kind = KindOf(m_kind);
    CDateTime result(*this);
    result.m_year = kind.hasYear ? m_year : REFERENCE_YEAR;
    result.m_month = kind.hasMonth ? m_month : REFERENCE_MONTH;
    result.m_day = kind.hasDay ? m_day : REFERENCE_DAY;
    if (!kind.hasTime) {
        result.m_hour = result.m_minute = result.m_second = 0;
        result.m_nanos = 0;
    }
    return result;
}

CDateTime::Instant CDateTime::LocalInstant() const
{
    const long secondOfDay = m_hour * 3600L + m_minute * 60L + m_second;
    return {DayNumber({m_year, m_month, m_day}) * SECONDS_PER_DAY + secondOfDay, m_nanos};
}

void CDateTime::SetLocalInstant(const Instant& instant)
{
    const Int128 dayNumber = FloorDivide<Int128>(instant.seconds, SECONDS_PER_DAY);
    if (dayNumber < MIN_DAY_NUMBER || dayNumber > MAX_DAY_NUMBER) {
        throw CZrInvalidValueException(ValueMessages::DATE_OUT_OF_RANGE);
    }
    const CivilDay date = DayFromNumber(static_cast<long>(dayNumber));
    const long secondOfDay = static_cast<long>(instant.seconds - dayNumber * SECONDS_PER_DAY);
    m_year = date.year;
    m_month = static_cast<unsigned char>(date.month);
    m_day = static_cast<unsigned char>(date.day);
    m_hour = static_cast<unsigned char>(secondOfDay / 3600);
    m_minute = static_cast<unsigned char>(secondOfDay / 60 % 60);
    m_second = static_cast<unsigned char>(secondOfDay % 60);
    m_nanos = instant.nanos;
}

int CDateTime::CompareTo(const CDateTime& other) const
{
    if (m_kind != other.m_kind) {
        return cmp_indeterminate;
    }
    // An absent zone is stored as 0, so subtracting the zones is right for all pairs.
    const Instant left = WithReferenceFields().LocalInstant().Plus(m_zone * -60L);
    const Instant right = other.WithReferenceFields().LocalInstant().Plus(other.m_zone * -60L);
    if (m_hasZone == other.m_hasZone) {
        return CodeOf(left < right, right < left);
    }
    // The value without zone may be anywhere within 14 hours of its local time.
    const CompareCode code =
        CodeOf(left.Plus(MAX_ZONE_MINUTES * 60L) < right, right.Plus(MAX_ZONE_MINUTES * 60L) < left);
    return code == cmp_equal ? cmp_indeterminate : code;
}

bool CDateTime::operator<=(const CDateTime& other) const
{
    const int code = CompareTo(other);
    return code == cmp_equal || code == cmp_less;
}

bool CDateTime::operator>=(const CDateTime& other) const
{
    const int code = CompareTo(other);
    return code == cmp_equal || code == cmp_greater;
}

CDateTime CDateTime::ToUtc() const
{
    if (!m_hasZone) {
        return *this;
    }
    CDateTime result = WithReferenceFields();
    result.SetLocalInstant(result.LocalInstant().Plus(m_zone * -60L));
    result.m_zone = 0;
    return result;
}

CDateTime CDateTime::Add(const CDateTimeSpan& span) const
{
    const int sign = span.IsNegative() ? -1 : 1;
    CDateTime result = WithReferenceFields();

    const Int128 spanMonths = static_cast<Int128>(span.GetYears()) * 12 + span.GetMonths();
    const Int128 months = static_cast<Int128>(result.m_year) * 12 + (result.m_month - 1) + sign * spanMonths;
    const Int128 year = FloorDivide<Int128>(months, 12);
    if (year < MIN_YEAR || year > MAX_YEAR) {
        throw CZrInvalidValueException(ValueMessages::DATE_OUT_OF_RANGE);
    }
    result.m_year = static_cast<int>(year);
    result.m_month = static_cast<unsigned char>(months - year * 12 + 1);
    const unsigned lastDay = DaysInMonth(result.m_year, result.m_month);
    result.m_day = static_cast<unsigned char>(result.m_day < lastDay ? result.m_day : lastDay);

    const long spanNanos = span.GetMilliSeconds() * 1000000L + span.GetMicroSeconds() * 1000L + span.GetNanoSeconds();
    const long nanos = static_cast<long>(result.m_nanos) + sign * spanNanos;
    const long carry = FloorDivide(nanos, NANOS_PER_SECOND);
    const Int128 spanSeconds = static_cast<Int128>(span.GetDays()) * SECONDS_PER_DAY
        + static_cast<Int128>(span.GetHours()) * 3600 + static_cast<Int128>(span.GetMinutes()) * 60 + span.GetSeconds();
    const Instant start = result.LocalInstant();
    result.SetLocalInstant(
        {start.seconds + sign * spanSeconds + carry, static_cast<unsigned>(nanos - carry * NANOS_PER_SECOND)});
    return result;
}

} // namespace ZrXmlLib16
