// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/DateTime.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "values/CivilCalendar.h"
#include "values/DateTimeInstant.h"
#include "values/DateTimeKind.h"
#include "values/DigitText.h"
#include "values/ValueMessages.h"

#include <cwchar>
#include <iterator>

namespace ZrXmlLib16 {

namespace {

constexpr DateTimeKind KINDS[] = {
    {L"DateTime", L"[-]CCYY-MM-DDThh:mm:ss[.s][Z|(+|-)hh:mm]", true, true, true, true},
    {L"Date", L"[-]CCYY-MM-DD[zone]", true, true, true, false},
    {L"Time", L"hh:mm:ss[.s]", false, false, false, true},
    {L"YearMonth", L"[-]CCYY-MM", true, true, false, false},
    {L"Year", L"[-]CCYY", true, false, false, false},
    {L"MonthDay", L"--MM-DD", false, true, true, false},
    {L"Month", L"--MM", false, true, false, false},
    {L"Day", L"---DD", false, false, true, false},
};

/// "-", nine digits of the year, the rest of a dateTime with nine fraction digits, and a zone are 41 characters.
constexpr std::size_t MAX_TEXT_LENGTH = 48;

struct DateTimeFields {
    int year = REFERENCE_YEAR;
    std::uint32_t month = REFERENCE_MONTH;
    std::uint32_t day = REFERENCE_DAY;
    std::uint32_t hour = 0;
    std::uint32_t minute = 0;
    std::uint32_t second = 0;
    std::uint32_t nanos = 0;
    int zone = 0;
    bool hasZone = false;
};

wchar_t* WriteYear(wchar_t* at, int year)
{
    const std::uint32_t magnitude = static_cast<std::uint32_t>(year < 0 ? -year : year);
    if (year < 0) {
        *at++ = L'-';
    }
    return magnitude < 10000 ? WriteFixedDigits(at, magnitude, 4) : WriteNumber(at, magnitude);
}

wchar_t* WriteTwoDigits(wchar_t* at, wchar_t separator, std::uint32_t value)
{
    *at++ = separator;
    return WriteFixedDigits(at, value, 2);
}

wchar_t* WriteZone(wchar_t* at, int zone)
{
    if (zone == 0) {
        *at++ = L'Z';
        return at;
    }
    const std::uint32_t minutes = static_cast<std::uint32_t>(zone < 0 ? -zone : zone);
    at = WriteTwoDigits(at, zone < 0 ? L'-' : L'+', minutes / 60);
    return WriteTwoDigits(at, L':', minutes % 60);
}

} // namespace

const DateTimeKind& KindOf(CDateTime::DateType kind)
{
    if (kind < 0 || static_cast<std::size_t>(kind) >= std::size(KINDS)) {
        throw CZrInvalidParamException(FormatString(ValueMessages::INVALID_DATE_TYPE, static_cast<int>(kind)));
    }
    return KINDS[kind];
}

/// Reads the text form of one kind. Each operation takes one part of the text and is false when the part is not there
/// or impossible.
class CDateTime::Reader {
public:
    Reader(const wchar_t* text, std::size_t length, DateType type)
        : m_type(type)
        , m_kind(KindOf(type))
        , m_scanner(text, length)
    {
    }

    bool Read(DateTimeFields& fields)
    {
        const bool complete = (!m_kind.HasDate() || ReadDate(fields))
            && (!m_kind.HasDate() || !m_kind.hasTime || m_scanner.Take(L'T')) && (!m_kind.hasTime || ReadTime(fields))
            && ReadZone(fields) && m_scanner.AtEnd();
        return complete && (fields.hour < 24 || MoveMidnight(fields));
    }

    DateType GetDateType() const { return m_type; }
    bool IsFractionTooLong() const { return m_isFractionTooLong; }

private:
    /// A missing year is "-", a missing month between two other parts too.
    bool ReadDate(DateTimeFields& fields)
    {
        if (m_kind.hasYear ? !ReadYear(fields.year) : !m_scanner.Take(L'-')) {
            return false;
        }
        if (m_kind.hasMonth && !(m_scanner.Take(L'-') && m_scanner.TakeTwoDigits(fields.month))) {
            return false;
        }
        if (!m_kind.hasMonth && m_kind.hasDay && !m_scanner.Take(L'-')) {
            return false;
        }
        if (m_kind.hasDay && !(m_scanner.Take(L'-') && m_scanner.TakeTwoDigits(fields.day))) {
            return false;
        }
        return fields.month >= 1 && fields.month <= 12 && fields.day >= 1
            && fields.day <= DaysInMonth(fields.year, fields.month);
    }

    bool ReadYear(int& year)
    {
        const bool negative = m_scanner.TakeSign(false);
        const wchar_t* digits = m_scanner.Position();
        std::uint32_t value = 0;
        const std::size_t count = m_scanner.TakeNumber(value);
        // A gYear prints as a bare number, 476 and not 0476, so its own output must be readable.
        const std::size_t fewest = m_type == CDateTime::dt_gYear ? 1 : 4;
        if (count < fewest || count > 9 || (count > 4 && *digits == L'0')) {
            return false;
        }
        year = negative ? -static_cast<int>(value) : static_cast<int>(value);
        return true;
    }

    bool ReadTime(DateTimeFields& fields)
    {
        const bool found = m_scanner.TakeTwoDigits(fields.hour) && m_scanner.Take(L':')
            && m_scanner.TakeTwoDigits(fields.minute) && m_scanner.Take(L':') && m_scanner.TakeTwoDigits(fields.second);
        if (!found) {
            return false;
        }
        if (m_scanner.Take(L'.')) {
            const std::size_t count = m_scanner.TakeFraction(fields.nanos);
            if (count > 9) {
                m_isFractionTooLong = true;
            }
            if (count == 0 || count > 9) {
                return false;
            }
        }
        const bool midnight = fields.hour == 24 && fields.minute == 0 && fields.second == 0 && fields.nanos == 0;
        return midnight || (fields.hour < 24 && fields.minute < 60 && fields.second < 60);
    }

    bool ReadZone(DateTimeFields& fields)
    {
        if (m_scanner.AtEnd()) {
            return true;
        }
        fields.hasZone = true;
        if (m_scanner.Take(L'Z')) {
            return true;
        }
        const bool west = m_scanner.Take(L'-');
        std::uint32_t hours = 0;
        std::uint32_t minutes = 0;
        const bool found = (west || m_scanner.Take(L'+')) && m_scanner.TakeTwoDigits(hours) && m_scanner.Take(L':')
            && m_scanner.TakeTwoDigits(minutes);
        const int zone = static_cast<int>(hours * 60 + minutes);
        fields.zone = west ? -zone : zone;
        return found && minutes < 60 && zone <= MAX_ZONE_MINUTES;
    }

    /// 24:00:00 becomes 00:00:00, of the next day where there is a day.
    bool MoveMidnight(DateTimeFields& fields) const
    {
        fields.hour = 0;
        if (!m_kind.HasDate()) {
            return true;
        }
        const long nextDay = DayNumber({fields.year, fields.month, fields.day}) + 1;
        if (nextDay > MAX_DAY_NUMBER) {
            return false;
        }
        const CivilDay date = DayFromNumber(nextDay);
        fields.year = date.year;
        fields.month = date.month;
        fields.day = date.day;
        return true;
    }

    DateType m_type;
    bool m_isFractionTooLong = false;
    const DateTimeKind& m_kind;
    CDigitScanner m_scanner;
};

void CDateTime::Parse(const wchar_t* text, unsigned long length, DateType kind)
{
    const DateTimeKind& row = KindOf(kind);
    if (!text) {
        throw CZrInvalidValueException(FormatString(ValueMessages::DATE_TIME_NULL, row.name));
    }
    if (length == 0) {
        throw CZrInvalidValueException(FormatString(ValueMessages::DATE_TIME_EMPTY, row.name));
    }
    Reader reader(text, length, kind);
    if (!Take(reader)) {
        throw CZrInvalidValueException(reader.IsFractionTooLong()
                ? FormatString(ValueMessages::DATE_TIME_FRACTION_TOO_LONG, row.name, text)
                : FormatString(ValueMessages::DATE_TIME_EXPECTED, row.name, text, row.form));
    }
}

/// Leaves the value alone when the text is not of that kind.
bool CDateTime::TryParse(const wchar_t* text, unsigned long length, DateType kind)
{
    Reader reader(text, length, kind);
    return Take(reader);
}

bool CDateTime::Take(Reader& reader)
{
    DateTimeFields fields;
    if (!reader.Read(fields)) {
        return false;
    }
    m_year = fields.year;
    m_nanos = fields.nanos;
    m_zone = static_cast<short>(fields.zone);
    m_month = static_cast<unsigned char>(fields.month);
    m_day = static_cast<unsigned char>(fields.day);
    m_hour = static_cast<unsigned char>(fields.hour);
    m_minute = static_cast<unsigned char>(fields.minute);
    m_second = static_cast<unsigned char>(fields.second);
    m_hasZone = fields.hasZone;
    m_kind = reader.GetDateType();
    return true;
}

void CDateTime::ParseXSDDate(const wchar_t* text, DateType kind)
{
    Parse(text, text ? std::wcslen(text) : 0, kind);
}

void CDateTime::ParseXSDDate(const std::wstring& text, DateType kind)
{
    Parse(text.c_str(), text.size(), kind);
}

void CDateTime::ParseXSDDateTime(const wchar_t* text)
{
    ParseXSDDate(text, dt_dateTime);
}

void CDateTime::ParseXSDDateTime(const std::wstring& text)
{
    ParseXSDDate(text, dt_dateTime);
}

void CDateTime::ParseXSDTime(const wchar_t* text)
{
    ParseXSDDate(text, dt_time);
}

void CDateTime::ParseXSDTime(const std::wstring& text)
{
    ParseXSDDate(text, dt_time);
}

std::wstring CDateTime::ToString() const
{
    std::wstring text;
    AppendTo(text);
    return text;
}

void CDateTime::AppendTo(std::wstring& text) const
{
    const DateTimeKind& kind = KindOf(m_kind);
    wchar_t buffer[MAX_TEXT_LENGTH];
    wchar_t* at = buffer;
    if (kind.hasYear) {
        at = WriteYear(at, m_year);
    } else if (kind.HasDate()) {
        *at++ = L'-';
    }
    if (kind.hasMonth) {
        at = WriteTwoDigits(at, L'-', m_month);
    } else if (kind.hasDay) {
        *at++ = L'-';
    }
    if (kind.hasDay) {
        at = WriteTwoDigits(at, L'-', m_day);
    }
    if (kind.hasTime) {
        if (kind.HasDate()) {
            *at++ = L'T';
        }
        at = WriteFixedDigits(at, m_hour, 2);
        at = WriteTwoDigits(at, L':', m_minute);
        at = WriteTwoDigits(at, L':', m_second);
        at = WriteFraction(at, m_nanos);
    }
    if (m_hasZone) {
        at = WriteZone(at, m_zone);
    }
    text.append(buffer, static_cast<std::size_t>(at - buffer));
}

} // namespace ZrXmlLib16
