// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_DECIMAL_H
#define ZRXMLLIB16_DECIMAL_H

#include "ZrXmlLib16/Export.h"

#include <string>

namespace ZrXmlLib16 {

/// A decimal number of any length (XML Schema Datatypes, 3.2.3), kept as decimal digits: it is read, written and
/// compared, never computed with, all in linear time. Up to 15 digits need no allocation. A moved-from value is zero.
/// Not synchronised.
class ZRXML_API CDecimal {
public:
    /// The shortest text: no leading zeros but the one before a point, no trailing zeros, no point without digits
    /// behind it.
    std::wstring ToString() const;
    /// @param format `%[0][width].nf` gives exactly n fraction digits, rounded half to even, filled up to the width
    /// with blanks or zeros (width and n have at most three digits). Null, empty text and every other format give the
    /// shortest text.
    std::wstring ToString(const wchar_t* format) const;
    /// Appends what ToString returns.
    void AppendTo(std::wstring& text) const;
    void AppendTo(std::wstring& text, const wchar_t* format) const;

    /// Zero.
    CDecimal();
    /// The value of a machine integer.
    CDecimal(int value);
    CDecimal(long value);
    CDecimal(long long value);
    /// @throws CZrInvalidValueException as Parse does.
    explicit CDecimal(const wchar_t* text);
    CDecimal(const CDecimal& other) = default;
    CDecimal(CDecimal&& other) noexcept;
    CDecimal& operator=(const CDecimal& other) = default;
    CDecimal& operator=(CDecimal&& other) noexcept;
    /// The shortest decimal that reads back as the same double. @throws CZrInvalidValueException for NaN and infinity.
    static CDecimal FromDouble(double value);

    /// Reads digits with an optional sign and point, without exponent and blanks; the value is unchanged on failure.
    /// Null is empty text. @throws CZrInvalidValueException for any other text.
    void Parse(const wchar_t* text);
    void Parse(const std::wstring& text);

    /// @return below 0, 0 or above 0.
    int Compare(const CDecimal& other) const;
    /// Digits before the point without leading zeros: 0 for 0.05, 3 for 100.
    unsigned long GetIntegerDigits() const { return m_digits.size() - m_fractionDigits; }
    /// Digits behind the point without trailing zeros: 2 for 0.05, 0 for 100.
    unsigned long GetFractionDigits() const { return m_fractionDigits; }
    /// Whether the value is below zero.
    bool IsNegative() const { return m_negative; }
    /// Whether the value is zero.
    bool IsZero() const { return m_digits.empty(); }
    /// The nearest double; infinity when the value is too large.
    double ToDouble() const;

    bool operator==(const CDecimal& other) const { return Compare(other) == 0; }
    bool operator!=(const CDecimal& other) const { return Compare(other) != 0; }
    bool operator<(const CDecimal& other) const { return Compare(other) < 0; }
    bool operator>(const CDecimal& other) const { return Compare(other) > 0; }
    bool operator<=(const CDecimal& other) const { return Compare(other) <= 0; }
    bool operator>=(const CDecimal& other) const { return Compare(other) >= 0; }

private:
    friend class PlainValue;

    void ParseText(const wchar_t* text, unsigned long length);
    bool TryParse(const wchar_t* text, unsigned long length);

    std::string m_digits; // integer part without leading zeros, then fraction without trailing zeros; empty is zero
    unsigned long m_fractionDigits;
    bool m_negative; // never for zero
};

} // namespace ZrXmlLib16

#endif
