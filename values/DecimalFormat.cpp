// SPDX-License-Identifier: MIT
#include "values/DecimalFormat.h"

#include "values/DecimalDigits.h"
#include "values/DigitText.h"

#include <cwchar>

namespace ZrXmlLib16 {

namespace {

constexpr std::size_t MAX_FORMAT_DIGITS = 3;

bool IsRoundedUp(const std::string& digits, std::size_t kept)
{
    if (digits[kept] != '5') {
        return digits[kept] > '5';
    }
    const bool aboveHalf = digits.find_first_not_of('0', kept + 1) != std::string::npos;
    const bool lastIsOdd = kept > 0 && (digits[kept - 1] - '0') % 2 != 0;
    return aboveHalf || lastIsOdd;
}

void Increment(std::string& digits)
{
    std::size_t at = digits.size();
    while (at > 0 && digits[at - 1] == '9') {
        digits[--at] = '0';
    }
    if (at > 0) {
        ++digits[at - 1];
    } else {
        digits.insert(0, 1, '1');
    }
}

} // namespace

bool ParseDecimalFormat(const wchar_t* format, DecimalFormat& result)
{
    CDigitScanner scanner(format, std::wcslen(format));
    if (!scanner.Take(L'%')) {
        return false;
    }
    result.padWithZeros = scanner.Take(L'0');
    std::uint32_t width = 0;
    std::uint32_t fractionDigits = 0;
    const std::size_t widthLength = scanner.TakeNumber(width);
    const bool point = scanner.Take(L'.');
    const std::size_t fractionLength = scanner.TakeNumber(fractionDigits);
    result.width = width;
    result.fractionDigits = fractionDigits;
    return point && widthLength <= MAX_FORMAT_DIGITS && fractionLength >= 1 && fractionLength <= MAX_FORMAT_DIGITS
        && scanner.Take(L'f') && scanner.AtEnd();
}

std::string RoundDigits(const std::string& digits, std::size_t fractionDigits, std::size_t wantedFractionDigits)
{
    std::string result = digits;
    if (wantedFractionDigits >= fractionDigits) {
        result.append(wantedFractionDigits - fractionDigits, '0');
        return result;
    }
    const std::size_t kept = digits.size() - (fractionDigits - wantedFractionDigits);
    result.resize(kept);
    if (IsRoundedUp(digits, kept)) {
        Increment(result);
    }
    return result;
}

void AppendDecimal(std::wstring& text, bool negative, const std::string& digits, std::size_t fractionDigits)
{
    const std::size_t integerDigits = digits.size() > fractionDigits ? digits.size() - fractionDigits : 0;
    if (negative) {
        text += L'-';
    }
    if (integerDigits == 0) {
        text += L'0';
    }
    AppendDigits(text, digits.data(), integerDigits);
    if (fractionDigits > 0) {
        text += L'.';
        AppendDigits(text, digits.data() + integerDigits, fractionDigits);
    }
}

} // namespace ZrXmlLib16
