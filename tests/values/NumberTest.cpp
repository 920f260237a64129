// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/BigInteger.h"
#include "ZrXmlLib16/Decimal.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::Narrow;

namespace {

template <class Number> void ExpectRefusals(const wchar_t* type, std::initializer_list<const wchar_t*> texts)
{
    Number value(L"25");
    for (const wchar_t* text : texts) {
        EXPECT_EQ(MessageOf<CZrInvalidValueException>([&] { value.Parse(text); }),
            std::wstring(L"The value [") + text + L"] can not be converted to a " + type);
    }
    EXPECT_THROW(value.Parse(static_cast<const wchar_t*>(nullptr)), CZrInvalidValueException);
    EXPECT_THROW(value.Parse(std::wstring(L"1\0", 2)), CZrInvalidValueException);
    EXPECT_EQ(value.ToString(), L"25");
}

/// Whether all comparisons of the numbers agree with those of the machine integers.
template <class Number> bool IsOrderedLike(const Number& a, const Number& b, int left, int right)
{
    return (a < b) == (left < right) && (a > b) == (left > right) && (a == b) == (left == right)
        && (a != b) == (left != right) && (a <= b) == (left <= right) && (a >= b) == (left >= right);
}

template <class Number> void ExpectMovable(const std::wstring& text, const std::wstring& lowerText)
{
    Number value;
    value.Parse(text);
    EXPECT_EQ(value.ToString(), text);
    Number lower;
    lower.Parse(lowerText);
    EXPECT_LT(lower, value);
    const Number moved(std::move(value));
    EXPECT_EQ(moved.ToString(), text);
    EXPECT_EQ(value.ToString(), L"0"); // NOLINT(bugprone-use-after-move): a moved-from value is zero
}

} // namespace

TEST(BigInteger, TextIsCanonical)
{
    const struct {
        const wchar_t *text, *printed;
        unsigned long digits;
    } rows[] = {{L"0", L"0", 0}, {L"-000", L"0", 0}, {L"+7", L"7", 1}, {L"-0070", L"-70", 2},
        {L"123456789012345678901234567890", L"123456789012345678901234567890", 30}};
    for (const auto& row : rows) {
        const CBigInteger value(row.text);
        EXPECT_EQ(value.ToString(), row.printed);
        EXPECT_EQ(value.GetDigitCount(), row.digits);
        EXPECT_EQ(value.IsNegative(), row.printed[0] == L'-');
        EXPECT_EQ(value.IsZero(), row.digits == 0);
    }
    ExpectRefusals<CBigInteger>(
        L"integer", {L"", L"-", L"+", L"--1", L"+-1", L" 1", L"1 ", L"1.0", L"1e5", L"0x1", L"\x0661"});
}

TEST(BigInteger, OrderAgreesWithMachineIntegers)
{
    for (int left = -111; left <= 111; ++left)
        for (int right = -111; right <= 111; ++right)
            ASSERT_TRUE(IsOrderedLike(CBigInteger(left), CBigInteger(right), left, right)) << left << " and " << right;
}

TEST(BigInteger, ConversionsHoldAtTheBorders)
{
    const struct {
        const wchar_t* text;
        bool fitsSigned, fitsUnsigned;
    } rows[] = {{L"0", true, true}, {L"-1", true, false}, {L"9223372036854775807", true, true},
        {L"9223372036854775808", false, true}, {L"-9223372036854775808", true, false},
        {L"-9223372036854775809", false, false}, {L"18446744073709551615", false, true},
        {L"18446744073709551616", false, false}, {L"-99999999999999999999999", false, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(Narrow(row.text));
        const CBigInteger value(row.text);
        long long number = 77;
        EXPECT_EQ(value.ToInt64(number), row.fitsSigned);
        EXPECT_EQ(CBigInteger(number), row.fitsSigned ? value : CBigInteger(77));
        unsigned long long magnitude = 77;
        EXPECT_EQ(value.ToUInt64(magnitude), row.fitsUnsigned);
        EXPECT_EQ(CBigInteger::FromUInt64(magnitude), row.fitsUnsigned ? value : CBigInteger(77));
    }
}

TEST(Decimal, TextIsCanonicalAndDigitsAreCounted)
{
    const struct {
        const wchar_t *text, *printed;
        unsigned long integerDigits, fractionDigits;
    } rows[] = {{L"-0.00", L"0", 0, 0}, {L"100", L"100", 3, 0}, {L"+1.50", L"1.5", 1, 1}, {L"-00.050", L"-0.05", 0, 2},
        {L".5", L"0.5", 0, 1}, {L"5.", L"5", 1, 0}, {L"0100.0010", L"100.001", 3, 3},
        {L"-123456789012345678.000000000000000001", L"-123456789012345678.000000000000000001", 18, 18}};
    for (const auto& row : rows) {
        const CDecimal value(row.text);
        EXPECT_EQ(value.ToString(), row.printed);
        EXPECT_EQ(value.GetIntegerDigits(), row.integerDigits) << row.text;
        EXPECT_EQ(value.GetFractionDigits(), row.fractionDigits) << row.text;
        EXPECT_EQ(value.IsNegative(), row.printed[0] == L'-');
    }
    ExpectRefusals<CDecimal>(
        L"decimal", {L"", L".", L"-", L"-.", L"1..2", L"1.2.3", L"1e5", L"1,5", L" 1", L"1 ", L"+-1", L"INF"});
}

TEST(Decimal, ComesFromIntegers)
{
    for (const long long number :
        {0LL, 1LL, -1LL, 10LL, -90LL, std::numeric_limits<long long>::min(), std::numeric_limits<long long>::max()}) {
        const std::wstring text = std::to_wstring(number);
        EXPECT_EQ(CDecimal(number).ToString(), text);
        EXPECT_EQ(CDecimal(number), CDecimal(text.c_str()));
        EXPECT_EQ(CDecimal(number).IsNegative(), number < 0);
        EXPECT_EQ(CBigInteger(number).ToString(), text);
    }
    EXPECT_EQ(CDecimal(-7), CDecimal(-7L));
    EXPECT_EQ(CBigInteger(-7), CBigInteger(-7L));
}

TEST(Decimal, OrderAgreesWithScaledIntegers)
{
    std::vector<std::pair<int, CDecimal>> numbers;
    for (const int number : {0, 1, 10, 11, 99, 100, 110, 500, 501, 999, 1000, 1001, 1100, 9999, 10000, 10010, 99999}) {
        const std::wstring text =
            std::to_wstring(number / 1000) + L"." + std::to_wstring(1000 + number % 1000).substr(1);
        numbers.emplace_back(number, text.c_str());
        numbers.emplace_back(-number, (L"-" + text).c_str());
    }
    for (const auto& [left, a] : numbers) {
        ASSERT_EQ(a.ToDouble(), left / 1000.0);
        for (const auto& [right, b] : numbers)
            ASSERT_TRUE(IsOrderedLike(a, b, left, right)) << left << " and " << right;
    }
}

TEST(Decimal, FormatsRoundHalfToEvenAndFillUp)
{
    const struct {
        const wchar_t *text, *format, *printed;
    } rows[] = {{L"1.005", L"%.2f", L"1.00"}, {L"1.015", L"%.2f", L"1.02"}, {L"1.0050001", L"%.2f", L"1.01"},
        {L"0.5", L"%.0f", L"0"}, {L"-9.995", L"%.2f", L"-10.00"}, {L"-0.004", L"%.2f", L"0.00"},
        {L"0.06", L"%.1f", L"0.1"}, {L"3", L"%.3f", L"3.000"}, {L"-1.5", L"%8.2f", L"   -1.50"},
        {L"-1.5", L"%08.2f", L"-0001.50"}, {L"1234.5", L"%3.1f", L"1234.5"}, {L"1.25", L"%g", L"1.25"},
        {L"1.25", L"%.1lf", L"1.25"}, {L"1.25", L"%.1f ", L"1.25"}, {L"1.25", L"%.1000f", L"1.25"},
        {L"1.25", L"%s%n", L"1.25"}, {L"1.25", L"", L"1.25"}, {L"1.25", nullptr, L"1.25"}};
    for (const auto& row : rows)
        EXPECT_EQ(CDecimal(row.text).ToString(row.format), row.printed) << (row.format ? Narrow(row.format) : "null");
}

TEST(Decimal, FormatAgreesWithTheCLibraryForExactBinaryFractions)
{
    for (int sixteenths = -320; sixteenths <= 320; ++sixteenths) {
        const double number = sixteenths / 16.0;
        for (int digits = 0; digits <= 5; ++digits) {
            char expected[64];
            std::snprintf(expected, sizeof(expected), "%.*f", digits, number == 0 ? 0.0 : number);
            std::string text = expected;
            if (text[0] == '-' && text.find_first_of("123456789") == std::string::npos)
                text.erase(0, 1);
            // The oracle follows the locale of the process, the library does not.
            std::replace(text.begin(), text.end(), ',', '.');
            const std::wstring format = L"%." + std::to_wstring(digits) + L"f";
            ASSERT_EQ(Narrow(CDecimal::FromDouble(number).ToString(format.c_str())), text);
        }
    }
}

TEST(Decimal, DoublesGoThroughTheShortestText)
{
    const std::pair<double, const wchar_t*> rows[] = {{-0.0, L"0"}, {0.1, L"0.1"}, {-123.456, L"-123.456"},
        {1e23, L"100000000000000000000000"}, {1.25e-7, L"0.000000125"}, {12345678, L"12345678"}};
    for (const auto& [number, text] : rows)
        EXPECT_EQ(CDecimal::FromDouble(number).ToString(), text);
    using Limits = std::numeric_limits<double>;
    for (const double number : {0.1, -Limits::max(), Limits::denorm_min(), Limits::min(), 1.0 / 3, 2.0 / 3e20})
        EXPECT_EQ(CDecimal::FromDouble(number).ToDouble(), number);
    EXPECT_THROW(CDecimal::FromDouble(std::nan("")), CZrInvalidValueException);
    EXPECT_EQ(MessageOf<CZrInvalidValueException>([] { CDecimal::FromDouble(-Limits::infinity()); }),
        L"The value [-INF] can not be converted to a decimal");
    const std::wstring zeros(400, L'0');
    EXPECT_EQ(CDecimal((L"-1" + zeros).c_str()).ToDouble(), -Limits::infinity());
    EXPECT_EQ(CDecimal((L"0." + zeros + L"1").c_str()).ToDouble(), 0.0);
}

TEST(Numbers, AMillionDigitsAndMoves)
{
    const std::wstring digits = L"-1" + std::wstring(999999, L'7');
    ExpectMovable<CBigInteger>(digits, digits.substr(0, 1000000) + L"8");
    const std::wstring text = L"-1" + std::wstring(500000, L'7') + L"." + std::wstring(499999, L'3');
    ExpectMovable<CDecimal>(text, text + L"1");
    EXPECT_EQ(CDecimal(text.c_str()).ToString(L"%.1f"), text.substr(0, 500002) + L".3");
}
