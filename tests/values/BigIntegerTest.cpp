// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/BigInteger.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <limits>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::Narrow;

TEST(BigInteger, TextIsCanonical)
{
    const struct {
        const wchar_t* text;
        const wchar_t* printed;
        unsigned long digits;
    } rows[] = {
        {L"0", L"0", 0},
        {L"-000", L"0", 0},
        {L"+7", L"7", 1},
        {L"-0070", L"-70", 2},
        {L"123456789012345678901234567890", L"123456789012345678901234567890", 30},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Narrow(row.text));
        const CBigInteger value(row.text);
        EXPECT_EQ(value.ToString(), row.printed);
        EXPECT_EQ(value.GetDigitCount(), row.digits);
        EXPECT_EQ(value.IsNegative(), row.printed[0] == L'-');
        EXPECT_EQ(value.IsZero(), row.digits == 0);
    }
    std::wstring text = L"=";
    CBigInteger(L"-12").AppendTo(text);
    EXPECT_EQ(text, L"=-12");
}

TEST(BigInteger, RefusedTextsLeaveTheValue)
{
    CBigInteger value(5);
    for (const wchar_t* text : {L"", L"-", L"+", L"--1", L"+-1", L" 1", L"1 ", L"1.0", L"1e5", L"0x1", L"\x0661"}) {
        EXPECT_EQ(MessageOf<CZrInvalidValueException>([&] { value.Parse(text); }),
            std::wstring(L"The value [") + text + L"] can not be converted to a integer");
    }
    EXPECT_THROW(value.Parse(static_cast<const wchar_t*>(nullptr)), CZrInvalidValueException);
    EXPECT_THROW(value.Parse(std::wstring(L"1\0", 2)), CZrInvalidValueException);
    EXPECT_EQ(value, CBigInteger(5));
}

TEST(BigInteger, OrderAgreesWithMachineIntegers)
{
    for (int left = -111; left <= 111; ++left) {
        for (int right = -111; right <= 111; ++right) {
            const CBigInteger a(left);
            const CBigInteger b(right);
            ASSERT_TRUE((a < b) == (left < right) && (a > b) == (left > right) && (a == b) == (left == right)
                && (a != b) == (left != right) && (a <= b) == (left <= right) && (a >= b) == (left >= right))
                << left << " and " << right;
        }
    }
}

TEST(BigInteger, ConversionsHoldAtTheBorders)
{
    const struct {
        const wchar_t* text;
        bool fitsSigned;
        bool fitsUnsigned;
    } rows[] = {
        {L"0", true, true},
        {L"-1", true, false},
        {L"9223372036854775807", true, true},
        {L"9223372036854775808", false, true},
        {L"-9223372036854775808", true, false},
        {L"-9223372036854775809", false, false},
        {L"18446744073709551615", false, true},
        {L"18446744073709551616", false, false},
        {L"-99999999999999999999999", false, false},
    };
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
    EXPECT_EQ(CBigInteger(std::numeric_limits<int>::min()).ToString(), L"-2147483648");
    EXPECT_EQ(CBigInteger(-5L).ToString(), L"-5");
}

TEST(BigInteger, AMillionDigitsAndMoves)
{
    const std::wstring text = L"-1" + std::wstring(999999, L'7');
    CBigInteger value;
    value.Parse(text);
    EXPECT_EQ(value.ToString(), text);
    EXPECT_EQ(value.GetDigitCount(), 1000000U);
    CBigInteger larger;
    larger.Parse(text.substr(0, text.size() - 1) + L"6");
    EXPECT_GT(larger, value);

    const CBigInteger moved(std::move(value));
    EXPECT_EQ(moved.ToString(), text);
    EXPECT_EQ(value.ToString(), L"0"); // NOLINT(bugprone-use-after-move): a moved-from value is zero
    EXPECT_FALSE(value.IsNegative());
}
