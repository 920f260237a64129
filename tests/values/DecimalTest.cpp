// SPDX-License-Identifier: MIT
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

TEST(Decimal, TextIsCanonicalAndDigitsAreCounted)
{
    const struct {
        const wchar_t* text;
        const wchar_t* printed;
        unsigned long integerDigits;
        unsigned long fractionDigits;
    } rows[] = {
        {L"0", L"0", 0, 0},
        {L"-0.00", L"0", 0, 0},
        {L"100", L"100", 3, 0},
        {L"+1.50", L"1.5", 1, 1},
        {L"-00.050", L"-0.05", 0, 2},
        {L".5", L"0.5", 0, 1},
        {L"5.", L"5", 1, 0},
        {L"0100.0010", L"100.001", 3, 3},
        {L"-123456789012345678.000000000000000001", L"-123456789012345678.000000000000000001", 18, 18},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Narrow(row.text));
        const CDecimal value(row.text);
        EXPECT_EQ(value.ToString(), row.printed);
        EXPECT_EQ(value.GetIntegerDigits(), row.integerDigits);
        EXPECT_EQ(value.GetFractionDigits(), row.fractionDigits);
        EXPECT_EQ(value.IsNegative(), row.printed[0] == L'-');
    }
}

TEST(Decimal, RefusedTextsLeaveTheValue)
{
    CDecimal value(L"2.5");
    for (const wchar_t* text :
        {L"", L".", L"-", L"-.", L"1..2", L"1.2.3", L"1e5", L"1,5", L" 1", L"1 ", L"+-1", L"INF"}) {
        EXPECT_EQ(MessageOf<CZrInvalidValueException>([&] { value.Parse(text); }),
            std::wstring(L"The value [") + text + L"] can not be converted to a decimal");
    }
    EXPECT_THROW(value.Parse(static_cast<const wchar_t*>(nullptr)), CZrInvalidValueException);
    EXPECT_EQ(value.ToString(), L"2.5");
}

TEST(Decimal, OrderAgreesWithScaledIntegers)
{
    struct Number {
        int thousandths;
        CDecimal value;
    };
    std::vector<Number> numbers;
    for (const int integer : {0, 1, 9, 10, 11, 99, 100}) {
        for (const int fraction : {0, 1, 10, 11, 99, 100, 110, 500, 501, 999}) {
            for (const int sign : {-1, 1}) {
                const std::wstring digits = std::to_wstring(1000 + fraction).substr(1);
                const std::wstring text = (sign < 0 ? L"-" : L"") + std::to_wstring(integer) + L"." + digits;
                numbers.push_back({sign * (integer * 1000 + fraction), CDecimal(text.c_str())});
            }
        }
    }
    for (const Number& a : numbers) {
        ASSERT_EQ(a.value.ToDouble(), a.thousandths / 1000.0);
        for (const Number& b : numbers) {
            const int code = a.value.Compare(b.value);
            ASSERT_TRUE((code < 0) == (a.thousandths < b.thousandths) && (code > 0) == (a.thousandths > b.thousandths)
                && (a.value == b.value) == (a.thousandths == b.thousandths)
                && (a.value <= b.value) == (a.thousandths <= b.thousandths))
                << a.thousandths << " and " << b.thousandths;
        }
    }
}

TEST(Decimal, FormatsRoundHalfToEvenAndFillUp)
{
    const struct {
        const wchar_t* text;
        const wchar_t* format;
        const wchar_t* printed;
    } rows[] = {
        {L"1.005", L"%.2f", L"1.00"},
        {L"1.015", L"%.2f", L"1.02"},
        {L"1.0150001", L"%.2f", L"1.02"},
        {L"1.0050001", L"%.2f", L"1.01"},
        {L"0.5", L"%.0f", L"0"},
        {L"1.5", L"%.0f", L"2"},
        {L"-9.995", L"%.2f", L"-10.00"},
        {L"999.96", L"%.1f", L"1000.0"},
        {L"-0.004", L"%.2f", L"0.00"},
        {L"0.04", L"%.1f", L"0.0"},
        {L"0.06", L"%.1f", L"0.1"},
        {L"0", L"%.2f", L"0.00"},
        {L"3", L"%.3f", L"3.000"},
        {L"-1.5", L"%8.2f", L"   -1.50"},
        {L"-1.5", L"%08.2f", L"-0001.50"},
        {L"1234.5", L"%3.1f", L"1234.5"},
        {L"1.25", L"%g", L"1.25"},
        {L"1.25", L"%.1lf", L"1.25"},
        {L"1.25", L"%.1f ", L"1.25"},
        {L"1.25", L"%.1000f", L"1.25"},
        {L"1.25", L"%s%n", L"1.25"},
        {L"1.25", L"", L"1.25"},
        {L"1.25", nullptr, L"1.25"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Narrow(row.text) + " as " + Narrow(row.format ? row.format : L"null"));
        EXPECT_EQ(CDecimal(row.text).ToString(row.format), row.printed);
    }
}

TEST(Decimal, FormatAgreesWithTheCLibraryForExactBinaryFractions)
{
    for (int sixteenths = -320; sixteenths <= 320; ++sixteenths) {
        const double number = sixteenths / 16.0;
        for (int digits = 0; digits <= 5; ++digits) {
            char expected[64];
            std::snprintf(expected, sizeof(expected), "%.*f", digits, number == 0 ? 0.0 : number);
            std::string text = expected;
            if (text[0] == '-' && text.find_first_of("123456789") == std::string::npos) {
                text.erase(0, 1);
            }
            // The oracle follows the locale of the process, the library does not.
            std::replace(text.begin(), text.end(), ',', '.');
            const std::wstring format = L"%." + std::to_wstring(digits) + L"f";
            ASSERT_EQ(Narrow(CDecimal::FromDouble(number).ToString(format.c_str())), text);
        }
    }
}

TEST(Decimal, DoublesGoThroughTheShortestText)
{
    const struct {
        double number;
        const wchar_t* text;
    } rows[] = {
        {0.0, L"0"},
        {-0.0, L"0"},
        {0.1, L"0.1"},
        {-123.456, L"-123.456"},
        {1e23, L"100000000000000000000000"},
        {1.25e-7, L"0.000000125"},
        {100, L"100"},
        {12345678, L"12345678"},
    };
    for (const auto& row : rows) {
        const CDecimal value = CDecimal::FromDouble(row.number);
        EXPECT_EQ(value.ToString(), row.text);
        EXPECT_EQ(value.ToDouble(), row.number);
    }
    for (const double number : {std::numeric_limits<double>::max(), std::numeric_limits<double>::denorm_min(),
             std::numeric_limits<double>::min(), 1.0 / 3, 2.0 / 3e20}) {
        EXPECT_EQ(CDecimal::FromDouble(-number).ToDouble(), -number);
    }
    const double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(MessageOf<CZrInvalidValueException>([] { CDecimal::FromDouble(std::nan("")); }),
        L"The value [NaN] can not be converted to a decimal");
    EXPECT_EQ(MessageOf<CZrInvalidValueException>([&] { CDecimal::FromDouble(-infinity); }),
        L"The value [-INF] can not be converted to a decimal");
    CDecimal value;
    value.Parse(L"-1" + std::wstring(400, L'0'));
    EXPECT_EQ(value.ToDouble(), -infinity);
    value.Parse(L"0." + std::wstring(400, L'0') + L"1");
    EXPECT_EQ(value.ToDouble(), 0.0);
}

TEST(Decimal, AMillionDigitsAndMoves)
{
    const std::wstring text = L"-1" + std::wstring(500000, L'7') + L"." + std::wstring(499999, L'3');
    CDecimal value;
    value.Parse(text);
    EXPECT_EQ(value.ToString(), text);
    EXPECT_EQ(value.GetFractionDigits(), 499999U);
    CDecimal smaller;
    smaller.Parse(text + L"1");
    EXPECT_LT(smaller, value);
    EXPECT_EQ(value.ToString(L"%.1f"), text.substr(0, 500002) + L".3");

    const CDecimal moved(std::move(value));
    EXPECT_EQ(moved.ToString(), text);
    EXPECT_EQ(value.ToString(), L"0"); // NOLINT(bugprone-use-after-move): a moved-from value is zero
}
