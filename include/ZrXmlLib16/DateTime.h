// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_DATETIME_H
#define ZRXMLLIB16_DATETIME_H

#include "ZrXmlLib16/Export.h"

#include <string>

namespace ZrXmlLib16 {

class CDateTimeSpan;

/// A value of one of the eight date and time types (XML Schema Datatypes, 3.2.7 to 3.2.14), which it knows by its kind.
///
/// Always a real date and time of the proleptic Gregorian calendar, years -999,999,999..999,999,999 with 0 = 1 BC, down
/// to nanoseconds; text, comparison and arithmetic look only at the fields that the kind has and put
/// 1972-12-01T00:00:00 in place of the others. The time zone is optional and never shifts the fields. The order is
/// partial: a value with a zone and one without are at most 14 hours apart when nothing can be said about them. No
/// allocation; not synchronised.
class ZRXML_API CDateTime {
public:
    /// The kinds of XML Schema; each has its own text form.
    enum DateType : int {
        dt_dateTime = 0,
        dt_date = 1,
        dt_time = 2,
        dt_gYearMonth = 3,
        dt_gYear = 4,
        dt_gMonthDay = 5,
        dt_gMonth = 6,
        dt_gDay = 7
    };
    /// What CompareTo returns.
    enum CompareCode : int { cmp_equal = 0, cmp_less = 1, cmp_greater = 2, cmp_indeterminate = 3 };

    /// Reads the text form of the given kind; the value is unchanged on failure. Each form may end with a zone, `Z` or
    /// (+|-)hh:mm up to 14:00. Years have four to nine digits (a gYear alone one to nine).
    /// @throws CZrInvalidValueException for any other text, a field out of range, and null.
    /// @throws CZrInvalidParamException when the kind is none of the enumeration.
    void ParseXSDDate(const wchar_t* text, DateType kind);
    void ParseXSDDate(const std::wstring& text, DateType kind);
    /// Reads `[-]CCYY-MM-DDThh:mm:ss[.f][zone]` with one to nine fraction digits; 24:00:00 is midnight of the next day.
    void ParseXSDDateTime(const wchar_t* text);
    void ParseXSDDateTime(const std::wstring& text);
    /// Reads `hh:mm:ss[.f][zone]`; 24:00:00 is 00:00:00.
    void ParseXSDTime(const wchar_t* text);
    void ParseXSDTime(const std::wstring& text);
    /// The text form of the kind, with the zone when there is one.
    std::wstring ToString() const;
    /// Appends what ToString returns.
    void AppendTo(std::wstring& text) const;

    /// @throws CZrInvalidValueException when the year is outside 0..65535; see GetFullYear.
    unsigned short GetYear() const;
    /// 1..12.
    unsigned char GetMonth() const { return m_month; }
    /// 1..31.
    unsigned char GetDay() const { return m_day; }
    /// The partial order of date and time values (XML Schema Datatypes, 3.2.7.4).
    /// @return a CompareCode; indeterminate when the kinds differ.
    int CompareTo(const CDateTime& other) const;

    /// The dateTime 0001-01-01T00:00:00 without zone.
    CDateTime();
    /// The same fields with another kind.
    explicit CDateTime(DateType kind);
    /// A date. @throws CZrInvalidValueException when there is no such day.
    CDateTime(int year, unsigned char month, unsigned char day);
    /// A dateTime. @throws CZrInvalidValueException when there is no such day or time; hour 24 and second 60 are none.
    CDateTime(int year, unsigned char month, unsigned char day, unsigned char hour, unsigned char minute,
        unsigned char second, unsigned short milli = 0, unsigned short micro = 0, unsigned short nano = 0);
    CDateTime(const CDateTime& other) = default;
    CDateTime& operator=(const CDateTime& other) = default;
    virtual ~CDateTime();

    /// The kind.
    DateType GetDateType() const { return m_kind; }
    /// The year; 0 is 1 BC.
    int GetFullYear() const { return m_year; }
    /// 0..23.
    unsigned char GetHour() const { return m_hour; }
    /// 0..59.
    unsigned char GetMinute() const { return m_minute; }
    /// 0..59.
    unsigned char GetSecond() const { return m_second; }
    /// The first three digits of the fraction of a second.
    unsigned short GetMilliSeconds() const;
    /// The next three.
    unsigned short GetMicroSeconds() const;
    /// The last three.
    unsigned short GetNanoSeconds() const;
    /// Whether the value has a zone.
    bool HasTimeZone() const { return m_hasZone; }
    /// Minutes east of UTC, 0 when absent.
    short GetTimeZone() const { return m_zone; }

    /// Kind, time and zone stay. @throws CZrInvalidValueException when there is no such day.
    void SetDate(int year, unsigned char month, unsigned char day);
    /// Kind, date and zone stay; the fraction fields are 0..999 each. @throws CZrInvalidValueException when there is no
    /// such time.
    void SetTime(unsigned char hour, unsigned char minute, unsigned char second, unsigned short milli = 0,
        unsigned short micro = 0, unsigned short nano = 0);
    /// Changes what the fields mean, not the fields. @throws CZrInvalidParamException when the kind is none of the
    /// enumeration.
    void SetDateType(DateType kind);
    /// @param minutes east of UTC, -840..840. @throws CZrInvalidValueException outside of it.
    void SetTimeZone(short minutes);
    /// Takes the zone away; the fields stay.
    void ClearTimeZone();

    /// The same instant with the zone Z; a value without zone as it is.
    /// @throws CZrInvalidValueException when the year leaves the range.
    CDateTime ToUtc() const;
    /// The sum, as XML Schema Datatypes, appendix E defines it; zone and kind are kept.
    /// @throws CZrInvalidValueException when the year leaves the range.
    CDateTime Add(const CDateTimeSpan& span) const;

    bool operator==(const CDateTime& other) const { return CompareTo(other) == cmp_equal; }
    /// True for indeterminate pairs too.
    bool operator!=(const CDateTime& other) const { return CompareTo(other) != cmp_equal; }
    bool operator<(const CDateTime& other) const { return CompareTo(other) == cmp_less; }
    bool operator>(const CDateTime& other) const { return CompareTo(other) == cmp_greater; }
    bool operator<=(const CDateTime& other) const;
    bool operator>=(const CDateTime& other) const;

private:
    struct Instant;
    friend class PlainValue;
    void Parse(const wchar_t* text, unsigned long length, DateType kind);
    bool TryParse(const wchar_t* text, unsigned long length, DateType kind);
    class Reader;
    bool Take(Reader& reader);
    CDateTime WithReferenceFields() const;
    Instant LocalInstant() const;
    void SetLocalInstant(const Instant& instant);

    int m_year;
    unsigned m_nanos;
    short m_zone;
    unsigned char m_month;
    unsigned char m_day;
    unsigned char m_hour;
    unsigned char m_minute;
    unsigned char m_second;
    bool m_hasZone;
    DateType m_kind;
};

} // namespace ZrXmlLib16

#endif
