// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Conversions.h"

#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;

namespace {

constexpr auto None = CWhitespaceUtils::Rule_None;
constexpr auto Preserve = CWhitespaceUtils::Rule_Preserve;
constexpr auto Collapse = CWhitespaceUtils::Rule_Collapse;

TEST(Conversions, Boolean)
{
    for (const wchar_t* text : {L"tRuE", L" true\n", L"1"})
        EXPECT_EQ(CConversions::booleanToString(CConversions::booleanFromString(text, Collapse)), L"true") << text;
    for (const wchar_t* text : {L"false", L"FALSE", L"\t0 "})
        EXPECT_EQ(CConversions::booleanToString(CConversions::booleanFromString(text, Collapse)), L"false") << text;
    for (const std::wstring text : {L"yes", L"", L"01", L"true ", L"tru", L"truee", L"\uff11"}) {
        EXPECT_EQ(MessageOf<CZrInvalidValueException>([&] { CConversions::booleanFromString(text, None); }),
            L"A Boolean Value read from an XML document was invalid [" + text
                + L"]. Valid values are 'true', 'false', '1', or '0'");
    }
}

TEST(Conversions, CharAndString)
{
    EXPECT_EQ(CConversions::charFromString(L" x ", Collapse), L'x');
    EXPECT_EQ(CConversions::charFromString(L" ", None), L' ');
    for (const wchar_t* text : {L" ", L"xy", L"\xd83d\xde00"}) {
        const auto read = [text] { CConversions::charFromString(text, Collapse); };
        EXPECT_EQ(MessageOf<CZrInvalidValueException>(read),
            L"The value [" + CWhitespaceUtils::Collapse(text)
                + L"] can not be a char as it is either empty of greater than 1 char long");
    }
    EXPECT_EQ(CConversions::stringFromString(L" a\r\nb ", None), L" a\r\nb ");
    EXPECT_EQ(CConversions::stringFromString(L" a\r\nb ", Preserve), L" a\nb ");
}

/// Each class type through its own parser and back, under the collapse rule.
TEST(Conversions, ClassTypesApplyTheRuleAndDelegate)
{
    using C = CConversions;
    EXPECT_EQ(C::decimalToString(C::decimalFromString(L" +01.50 ", Collapse)), L"1.5");
    EXPECT_EQ(C::decimalToString(C::decimalFromString(L"1.5", None), L"%.3f"), L"1.500");
    EXPECT_EQ(C::integerToString(C::integerFromString(L" -0099 ", Collapse)), L"-99");
    EXPECT_EQ(C::hexBinaryToString(C::hexBinaryFromString(L" 0A1B ", Collapse)), L"0A1B");
    EXPECT_EQ(C::base64BinaryToString(C::base64BinaryFromString(L" QUI= ", Collapse)), L"QUI=");
    EXPECT_EQ(C::durationToString(C::durationFromString(L" P1DT2H ", Collapse)), L"P1DT2H");
    EXPECT_EQ(C::dateToString(C::dateFromString(L" 2024-02-29Z ", Collapse)), L"2024-02-29Z");
    EXPECT_EQ(
        C::datetimeToString(C::datetimeFromString(L" 2024-02-29T01:02:03.5 ", Collapse)), L"2024-02-29T01:02:03.5");
    EXPECT_EQ(C::timeToString(C::timeFromString(L" 01:02:03 ", Collapse)), L"01:02:03");
    EXPECT_EQ(C::yearMonthToString(C::yearMonthFromString(L" 2024-02 ", Collapse)), L"2024-02");
    EXPECT_EQ(C::monthDayToString(C::monthDayFromString(L" --02-29 ", Collapse)), L"--02-29");

    EXPECT_THROW(C::decimalFromString(L" 1", None), CZrInvalidValueException);
    EXPECT_THROW(C::integerFromString(L" 1", None), CZrInvalidValueException);
    EXPECT_THROW(C::dateFromString(L"2024-02", None), CZrInvalidValueException);
    EXPECT_THROW(C::datetimeFromString(std::wstring(L"2024-02-29T01:02:03\0", 20), None), CZrInvalidValueException);
}

TEST(Conversions, YearMonthAndDay)
{
    EXPECT_EQ(CConversions::yearFromString(L" 65535 ", Collapse), 65535);
    EXPECT_EQ(CConversions::monthFromString(L"--12", None), 12);
    EXPECT_EQ(CConversions::dayFromString(L"---31", None), 31);
    for (const std::wstring text : {L"65536", L"-0001"}) {
        EXPECT_EQ(MessageOf<CZrInvalidValueException>([&] { CConversions::yearFromString(L" " + text, Collapse); }),
            L"The value [" + text + L"] is to large to fit in a year");
    }
    EXPECT_THROW(CConversions::monthFromString(L"--13", None), CZrInvalidValueException);
    EXPECT_THROW(CConversions::dayFromString(L"---32", None), CZrInvalidValueException);
}

TEST(Conversions, keeps_YearsWithoutLeadingZerosAndLostZones)
{
    EXPECT_EQ(CConversions::yearToString(CConversions::yearFromString(L"0476Z", None)), L"476");
    EXPECT_EQ(CConversions::monthToString(CConversions::monthFromString(L"--02+01:00", None)), L"--02");
    EXPECT_EQ(CConversions::dayToString(CConversions::dayFromString(L"---02-14:00", None)), L"---02");
}

} // namespace
