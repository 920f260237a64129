// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/DateTimeSpan.h"

#include "ZrXmlLib16/DateTime.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "values/DigitText.h"
#include "values/Int128.h"
#include "values/ValueMessages.h"

#include <cwchar>

namespace ZrXmlLib16 {

namespace {

/// "-P", six numbers of at most 20 digits with their designators, "T" and a fraction stay below this.
constexpr std::size_t MAX_TEXT_LENGTH = 160;
constexpr long NANOS_PER_SECOND = 1000000000;

/// The places of the form in their order; a designator must lead to a later one.
enum class Place { Start, Years, Months, Days, TimeStart, Hours, Minutes, Seconds };

/// The place that a designator leads to from where the reader stands, or Start when it leads nowhere.
Place NextPlace(Place current, wchar_t designator)
{
    const bool inTime = current >= Place::TimeStart;
    Place next = Place::Start;
    switch (designator) {
    case L'Y':
        next = Place::Years;
        break;
    case L'M':
        next = inTime ? Place::Minutes : Place::Months;
        break;
    case L'D':
        next = Place::Days;
        break;
    case L'H':
        next = inTime ? Place::Hours : Place::Start;
        break;
    case L'S':
    case L'.':
        next = inTime ? Place::Seconds : Place::Start;
        break;
    default:
        break;
    }
    return next > current ? next : Place::Start;
}

/// Reads the text behind the sign, one component at a time.
class CDurationReader {
public:
    CDurationReader(CDigitScanner& scanner, const wchar_t* text, CDateTimeSpan& span)
        : m_scanner(scanner)
        , m_text(text)
        , m_span(span)
        , m_place(Place::Start)
    {
    }

    void Read()
    {
        Require(m_scanner.Take(L'P'));
        do {
            if (m_place < Place::TimeStart && m_scanner.Take(L'T')) {
                m_place = Place::TimeStart;
            }
            ReadComponent();
        } while (!m_scanner.AtEnd());
    }

private:
    void Require(bool condition) const
    {
        if (!condition) {
            throw CZrInvalidValueException(FormatString(ValueMessages::DURATION_EXPECTED, m_text));
        }
    }

    void ReadComponent()
    {
        std::uint32_t value = 0;
        Require(m_scanner.TakeNumber(value) > 0);
        const wchar_t designator = m_scanner.TakeAny();
        m_place = NextPlace(m_place, designator);
        Require(m_place != Place::Start);
        Store(value);
        if (designator == L'.') {
            ReadFraction();
        }
    }

    void Store(std::uint32_t value)
    {
        switch (m_place) {
        case Place::Years:
            m_span.SetYears(static_cast<unsigned short>(value));
            break;
        case Place::Months:
            m_span.SetMonths(value);
            break;
        case Place::Days:
            m_span.SetDays(value);
            break;
        case Place::Hours:
            m_span.SetHours(value);
            break;
        case Place::Minutes:
            m_span.SetMinutes(value);
            break;
        default:
            m_span.SetSeconds(value);
            break;
        }
    }

    void ReadFraction()
    {
        std::uint32_t nanos = 0;
        const std::size_t count = m_scanner.TakeFraction(nanos);
        if (count > 9) {
            throw CZrInvalidValueException(FormatString(ValueMessages::DURATION_FRACTION_TOO_LONG, m_text));
        }
        Require(count > 0 && m_scanner.Take(L'S'));
        m_span.SetMilliSeconds(static_cast<unsigned short>(nanos / 1000000));
        m_span.SetMicroSeconds(static_cast<unsigned short>(nanos / 1000 % 1000));
        m_span.SetNanoSeconds(static_cast<unsigned short>(nanos % 1000));
    }

    CDigitScanner& m_scanner;
    const wchar_t* m_text;
    CDateTimeSpan& m_span;
    Place m_place;
};

void ParseDuration(const wchar_t* text, std::size_t length, CDateTimeSpan& span)
{
    span.Clear();
    if (!text) {
        throw CZrInvalidValueException(ValueMessages::DURATION_NULL);
    }
    if (length == 0) {
        throw CZrInvalidValueException(ValueMessages::DURATION_EMPTY);
    }
    CDigitScanner scanner(text, length);
    if (scanner.TakeSign(false)) {
        span.Negate();
    }
    CDurationReader(scanner, text, span).Read();
}

wchar_t* WriteComponent(wchar_t* at, unsigned long value, wchar_t designator)
{
    if (value != 0) {
        at = WriteNumber(at, value);
        *at++ = designator;
    }
    return at;
}

CDateTime ReferenceInstant(int year, unsigned char month)
{
    CDateTime instant(year, month, 1, 0, 0, 0);
    instant.SetTimeZone(0);
    return instant;
}

} // namespace

CDateTimeSpan::CDateTimeSpan()
{
    Clear();
}

CDateTimeSpan::CDateTimeSpan(unsigned short years, unsigned long months, unsigned long days, unsigned long hours,
    unsigned long minutes, unsigned long seconds, unsigned short milli, unsigned short micro, unsigned short nano)
{
    SetDateTimeSpan(years, months, days, hours, minutes, seconds, milli, micro, nano);
}

CDateTimeSpan::CDateTimeSpan(unsigned short years, unsigned long months, unsigned long days, unsigned long hours,
    unsigned long minutes, unsigned long seconds)
{
    SetDateTimeSpan(years, months, days, hours, minutes, seconds);
}

CDateTimeSpan::CDateTimeSpan(unsigned long hours, unsigned long minutes, unsigned long seconds)
{
    SetDateTimeSpan(hours, minutes, seconds);
}

CDateTimeSpan::~CDateTimeSpan() = default;

void CDateTimeSpan::SetDateTimeSpan(unsigned short years, unsigned long months, unsigned long days, unsigned long hours,
    unsigned long minutes, unsigned long seconds, unsigned short milli, unsigned short micro, unsigned short nano)
{
    // kept: required behaviour. The fields are stored as they come, 90 minutes are not 1 hour and 30 minutes.
    m_years = years;
    m_months = months;
    m_days = days;
    m_hours = hours;
    m_minutes = minutes;
    m_seconds = seconds;
    m_milliSeconds = milli;
    m_microSeconds = micro;
    m_nanoSeconds = nano;
    m_negative = false;
}

void CDateTimeSpan::SetDateTimeSpan(unsigned short years, unsigned long months, unsigned long days, unsigned long hours,
    unsigned long minutes, unsigned long seconds)
{
    SetDateTimeSpan(years, months, days, hours, minutes, seconds, 0, 0, 0);
}

void CDateTimeSpan::SetDateTimeSpan(unsigned long hours, unsigned long minutes, unsigned long seconds)
{
    SetDateTimeSpan(0, 0, 0, hours, minutes, seconds, 0, 0, 0);
}

void CDateTimeSpan::Clear()
{
    SetDateTimeSpan(0, 0, 0);
}

CDateTimeSpan CDateTimeSpan::GetAsNegative() const
{
    // kept: required behaviour. The sign is set, not flipped, so the negative of a negative span is itself.
    CDateTimeSpan copy(*this);
    copy.m_negative = true;
    return copy;
}

void CDateTimeSpan::ParseXSDDuration(const wchar_t* text)
{
    ParseDuration(text, text ? std::wcslen(text) : 0, *this);
}

void CDateTimeSpan::ParseXSDDuration(const std::wstring& text)
{
    ParseDuration(text.c_str(), text.size(), *this);
}

std::wstring CDateTimeSpan::ToString() const
{
    std::wstring text;
    AppendTo(text);
    return text;
}

void CDateTimeSpan::AppendTo(std::wstring& text) const
{
    // kept: required behaviour. Nothing follows "P" when the span is zero.
    wchar_t buffer[MAX_TEXT_LENGTH];
    wchar_t* at = buffer;
    if (m_negative) {
        *at++ = L'-';
    }
    *at++ = L'P';
    at = WriteComponent(at, m_years, L'Y');
    at = WriteComponent(at, m_months, L'M');
    at = WriteComponent(at, m_days, L'D');

    const long nanos = m_milliSeconds * 1000000L + m_microSeconds * 1000L + m_nanoSeconds;
    if (m_hours != 0 || m_minutes != 0 || m_seconds != 0 || nanos != 0) {
        *at++ = L'T';
    }
    at = WriteComponent(at, m_hours, L'H');
    at = WriteComponent(at, m_minutes, L'M');
    if (m_seconds != 0 || nanos != 0) {
        at = WriteNumber(at, static_cast<UInt128>(m_seconds) + static_cast<UInt128>(nanos / NANOS_PER_SECOND));
        at = WriteFraction(at, static_cast<std::uint32_t>(nanos % NANOS_PER_SECOND));
        *at++ = L'S';
    }
    text.append(buffer, static_cast<std::size_t>(at - buffer));
}

int CDateTimeSpan::CompareTo(const CDateTimeSpan& other) const
{
    const struct {
        int year;
        unsigned char month;
    } references[] = {{1696, 9}, {1697, 2}, {1903, 3}, {1903, 7}};
    try {
        int common = CDateTime::cmp_indeterminate;
        for (const auto& reference : references) {
            const CDateTime start = ReferenceInstant(reference.year, reference.month);
            const int code = start.Add(*this).CompareTo(start.Add(other));
            if (&reference != references && code != common) {
                return CDateTime::cmp_indeterminate;
            }
            common = code;
        }
        return common;
    } catch (const CZrInvalidValueException&) {
        return CDateTime::cmp_indeterminate;
    }
}

} // namespace ZrXmlLib16
