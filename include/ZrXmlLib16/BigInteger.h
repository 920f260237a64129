// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_BIGINTEGER_H
#define ZRXMLLIB16_BIGINTEGER_H

#include "ZrXmlLib16/Export.h"

#include <string>

namespace ZrXmlLib16 {

/// An integer without bounds (XML Schema Datatypes, 3.3.13), kept as decimal digits: it is read, written and compared,
/// never computed with, all in linear time. Up to 15 digits need no allocation. A moved-from value is zero. Not
/// synchronised.
class ZRXML_API CBigInteger {
public:
    /// The digits without leading zeros, behind "-" when negative; "0" for zero.
    std::wstring ToString() const;
    /// Appends what ToString returns.
    void AppendTo(std::wstring& text) const;

    /// Zero.
    CBigInteger();
    /// The value of a machine integer.
    CBigInteger(int value);
    CBigInteger(long value);
    CBigInteger(long long value);
    /// @throws CZrInvalidValueException as Parse does.
    explicit CBigInteger(const wchar_t* text);
    CBigInteger(const CBigInteger& other) = default;
    CBigInteger(CBigInteger&& other) noexcept;
    CBigInteger& operator=(const CBigInteger& other) = default;
    CBigInteger& operator=(CBigInteger&& other) noexcept;
    /// The value of an unsigned machine integer.
    static CBigInteger FromUInt64(unsigned long long value);

    /// Reads `[+-]digits`, without blanks; the value is unchanged on failure. Null is empty text.
    /// @throws CZrInvalidValueException for any other text.
    void Parse(const wchar_t* text);
    void Parse(const std::wstring& text);

    /// @return below 0, 0 or above 0.
    int Compare(const CBigInteger& other) const;
    /// Whether the value is below zero.
    bool IsNegative() const { return m_negative; }
    /// Whether the value is zero.
    bool IsZero() const { return m_digits.empty(); }
    /// Number of digits without leading zeros; 0 for zero.
    unsigned long GetDigitCount() const { return m_digits.size(); }
    /// @return false when the value does not fit; the argument is then unchanged.
    bool ToInt64(long long& value) const;
    /// @return false when the value does not fit; the argument is then unchanged.
    bool ToUInt64(unsigned long long& value) const;

    bool operator==(const CBigInteger& other) const { return Compare(other) == 0; }
    bool operator!=(const CBigInteger& other) const { return Compare(other) != 0; }
    bool operator<(const CBigInteger& other) const { return Compare(other) < 0; }
    bool operator>(const CBigInteger& other) const { return Compare(other) > 0; }
    bool operator<=(const CBigInteger& other) const { return Compare(other) <= 0; }
    bool operator>=(const CBigInteger& other) const { return Compare(other) >= 0; }

private:
    void ParseText(const wchar_t* text, unsigned long length);

    std::string m_digits; // no leading zeros; empty is zero, which is never negative
    bool m_negative;
};

} // namespace ZrXmlLib16

#endif
