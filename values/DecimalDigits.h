// SPDX-License-Identifier: MIT
#ifndef VALUES_DECIMALDIGITS_H
#define VALUES_DECIMALDIGITS_H

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <string>

namespace ZrXmlLib16 {

/// The digits of a number, none for zero.
inline std::string DigitsOf(unsigned long long value)
{
    char buffer[24];
    const char* end = std::to_chars(buffer, buffer + sizeof(buffer), value).ptr;
    return value == 0 ? std::string() : std::string(static_cast<const char*>(buffer), end);
}

/// The digits of a number without its sign, none for zero.
inline std::string DigitsOfMagnitude(long long value)
{
    const unsigned long long bits = static_cast<unsigned long long>(value);
    return DigitsOf(value < 0 ? 0 - bits : bits);
}

/// The first character that is not a zero.
inline const wchar_t* SkipZeros(const wchar_t* first, const wchar_t* last)
{
    return std::find_if(first, last, [](wchar_t c) { return c != L'0'; });
}

/// Appends decimal digits of a wide text to a narrow one.
inline void AppendDigits(std::string& digits, const wchar_t* first, const wchar_t* last)
{
    const std::size_t old = digits.size();
    digits.resize(old + static_cast<std::size_t>(last - first));
    std::transform(
        first, last, digits.begin() + static_cast<std::ptrdiff_t>(old), [](wchar_t c) { return static_cast<char>(c); });
}

/// Appends narrow digits to a wide text.
inline void AppendDigits(std::wstring& text, const char* digits, std::size_t count)
{
    const std::size_t old = text.size();
    text.resize(old + count);
    std::transform(digits, digits + count, text.begin() + static_cast<std::ptrdiff_t>(old),
        [](char c) { return static_cast<wchar_t>(c); });
}

/// Compares two numbers without sign, each digits without needless zeros of which the given count stands before the
/// point.
/// @return below 0, 0 or above 0.
inline int CompareMagnitudes(
    const std::string& left, std::size_t leftInteger, const std::string& right, std::size_t rightInteger)
{
    if (leftInteger != rightInteger) {
        return leftInteger < rightInteger ? -1 : 1;
    }
    return left.compare(right); // equal digits: the longer fraction is the larger one, as there are no trailing zeros
}

/// The order of two signed numbers, given the order of their magnitudes; zero is never negative.
inline int OrderWithSigns(bool leftNegative, bool rightNegative, int magnitudes)
{
    if (leftNegative != rightNegative) {
        return leftNegative ? -1 : 1;
    }
    return leftNegative ? -magnitudes : magnitudes;
}

} // namespace ZrXmlLib16

#endif
