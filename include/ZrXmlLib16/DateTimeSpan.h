// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_DATETIMESPAN_H
#define ZRXMLLIB16_DATETIMESPAN_H

#include "ZrXmlLib16/Export.h"

#include <string>

namespace ZrXmlLib16 {

/// A duration (XML Schema Datatypes, 3.2.6): years down to nanoseconds and one sign for the whole.
///
/// The fields are kept as they are given and never normalised: 90 minutes stay 90 minutes. The order is partial,
/// because a month has no fixed length: P1M and P30D are neither equal nor one less than the other. Not synchronised.
class ZRXML_API CDateTimeSpan {
public:
    /// Zero, positive.
    CDateTimeSpan();
    CDateTimeSpan(const CDateTimeSpan& other) = default;
    /// Positive; fields that are not given are zero.
    CDateTimeSpan(unsigned short years, unsigned long months, unsigned long days, unsigned long hours,
        unsigned long minutes, unsigned long seconds, unsigned short milli, unsigned short micro, unsigned short nano);
    CDateTimeSpan(unsigned short years, unsigned long months, unsigned long days, unsigned long hours,
        unsigned long minutes, unsigned long seconds);
    CDateTimeSpan(unsigned long hours, unsigned long minutes, unsigned long seconds);
    virtual ~CDateTimeSpan();
    CDateTimeSpan& operator=(const CDateTimeSpan& other) = default;

    /// Sets every field; the sign becomes positive.
    void SetDateTimeSpan(unsigned short years, unsigned long months, unsigned long days, unsigned long hours,
        unsigned long minutes, unsigned long seconds, unsigned short milli, unsigned short micro, unsigned short nano);
    /// The same with a zero fraction.
    void SetDateTimeSpan(unsigned short years, unsigned long months, unsigned long days, unsigned long hours,
        unsigned long minutes, unsigned long seconds);
    /// The same with all other fields zero.
    void SetDateTimeSpan(unsigned long hours, unsigned long minutes, unsigned long seconds);
    /// Zero, positive.
    void Clear();

    /// @{
    /// A field as it was set; fields are not carried into one another.
    unsigned short GetYears() const { return m_years; }
    unsigned long GetMonths() const { return m_months; }
    unsigned long GetDays() const { return m_days; }
    unsigned long GetHours() const { return m_hours; }
    unsigned long GetMinutes() const { return m_minutes; }
    unsigned long GetSeconds() const { return m_seconds; }
    /// @}
    /// The first three digits of the fraction of a second.
    unsigned short GetMilliSeconds() const { return m_milliSeconds; }
    /// The next three.
    unsigned short GetMicroSeconds() const { return m_microSeconds; }
    /// The last three.
    unsigned short GetNanoSeconds() const { return m_nanoSeconds; }
    /// Whether the sign is negative, also of zero.
    bool IsNegative() const { return m_negative; }
    /// @{
    /// Sets one field; the others and the sign stay.
    void SetYears(unsigned short value) { m_years = value; }
    void SetMonths(unsigned long value) { m_months = value; }
    void SetDays(unsigned long value) { m_days = value; }
    void SetHours(unsigned long value) { m_hours = value; }
    void SetMinutes(unsigned long long value) { m_minutes = value; }
    void SetSeconds(unsigned long long value) { m_seconds = value; }
    /// @}
    /// @{
    /// Fraction fields above 999 are taken as they are: text and arithmetic carry them into the seconds.
    void SetMilliSeconds(unsigned short value) { m_milliSeconds = value; }
    void SetMicroSeconds(unsigned short value) { m_microSeconds = value; }
    void SetNanoSeconds(unsigned short value) { m_nanoSeconds = value; }
    /// @}

    /// Flips the sign, of zero too.
    void Negate() { m_negative = !m_negative; }
    /// A copy whose sign is negative, whatever it was before.
    CDateTimeSpan GetAsNegative() const;

    /// Reads `[-]P[nY][nM][nD][T[nH][nM][n[.f]S]]` with at most nine fraction digits. Numbers wrap at 2^32, years at
    /// 2^16.
    /// @throws CZrInvalidValueException for any other text and for null; the value is then cleared or partly set.
    void ParseXSDDuration(const wchar_t* text);
    void ParseXSDDuration(const std::wstring& text);
    /// The fields that are not zero; a zero duration is "P" (which ParseXSDDuration refuses).
    std::wstring ToString() const;
    /// Appends what ToString returns.
    void AppendTo(std::wstring& text) const;

    /// The partial order of durations (XML Schema Datatypes, 3.2.6.2).
    /// @return 0 equal, 1 less, 2 greater, 3 indeterminate (also when a sum leaves the range of CDateTime).
    int CompareTo(const CDateTimeSpan& other) const;
    bool operator==(const CDateTimeSpan& other) const { return CompareTo(other) == 0; }
    // kept: required behaviour.
    /// True for indeterminate pairs too.
    bool operator!=(const CDateTimeSpan& other) const { return CompareTo(other) != 0; }
    bool operator<(const CDateTimeSpan& other) const { return CompareTo(other) == 1; }
    bool operator>(const CDateTimeSpan& other) const { return CompareTo(other) == 2; }

private:
    unsigned short m_years;
    unsigned long m_months;
    unsigned long m_days;
    unsigned long m_hours;
    unsigned long m_minutes;
    unsigned long m_seconds;
    unsigned short m_milliSeconds;
    unsigned short m_microSeconds;
    unsigned short m_nanoSeconds;
    bool m_negative;
};

} // namespace ZrXmlLib16

#endif
