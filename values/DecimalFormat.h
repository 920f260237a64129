// SPDX-License-Identifier: MIT
#ifndef VALUES_DECIMALFORMAT_H
#define VALUES_DECIMALFORMAT_H

#include <cstddef>
#include <string>

namespace ZrXmlLib16 {

/// What `%[0][width].nf` asks for.
struct DecimalFormat {
    bool padWithZeros = false;
    std::size_t width = 0;
    std::size_t fractionDigits = 0;
};

/// False for every other format.
bool ParseDecimalFormat(const wchar_t* format, DecimalFormat& result);

/// The digits with exactly the wanted number of them behind the point, rounded half to even.
std::string RoundDigits(const std::string& digits, std::size_t fractionDigits, std::size_t wantedFractionDigits);

/// Appends a number of which the last digits are the fraction; at least one digit stands before the point.
void AppendDecimal(std::wstring& text, bool negative, const std::string& digits, std::size_t fractionDigits);

} // namespace ZrXmlLib16

#endif
