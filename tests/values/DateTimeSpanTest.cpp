// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/DateTimeSpan.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <limits>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;

namespace {

CDateTimeSpan Parsed(const wchar_t* text)
{
    CDateTimeSpan span;
    span.ParseXSDDuration(text);
    return span;
}

} // namespace

TEST(DateTimeSpan, AcceptedTextsPrintInCanonicalForm)
{
    const std::pair<const wchar_t*, const wchar_t*> rows[] = {{L"-P1Y2M3DT4H5M6.789S", L"-P1Y2M3DT4H5M6.789S"},
        {L"P1YT1S", L"P1YT1S"}, {L"PT0.000000001S", L"PT0.000000001S"}, {L"P00Y1M", L"P1M"}, {L"PT1.10S", L"PT1.1S"},
        {L"-P0D", L"-P"}, {L"P65537Y", L"P1Y"}, {L"P4294967297D", L"P1D"}};
    for (const auto& [text, printed] : rows) {
        EXPECT_EQ(Parsed(text).ToString(), printed);
    }
    const CDateTimeSpan span(1, 2, 3, 4, 5, 6, 789, 12, 345);
    EXPECT_EQ(Parsed(L"P1Y2M3DT4H5M6.789012345S").ToString(), span.ToString());
    EXPECT_EQ(span.GetMilliSeconds() * 1000000 + span.GetMicroSeconds() * 1000 + span.GetNanoSeconds(), 789012345);
}

TEST(DateTimeSpan, RefusedTexts)
{
    const auto refusal = [](const wchar_t* text) {
        return MessageOf<CZrInvalidValueException>([text] { Parsed(text); });
    };
    for (const wchar_t* text : {L"P", L"-P", L"PT", L"P1H", L"P1S", L"P1.5D", L"PY", L"P.5S", L"PT.5S", L"PT1.S",
             L"PT1.5", L"PT1.5M", L"P1", L"PT1", L"P1YT", L"P1M1Y", L"P1D1M", L"P1Y1Y", L"PT1M1H", L"PT1S1M", L"PT1S1S",
             L"PT1HT1M", L"PT1D", L"P-1D", L"+P1D", L"--P1D", L"1D", L"p1d", L"P1D ", L" P1D", L"-"}) {
        EXPECT_EQ(refusal(text),
            std::wstring(L"Invalid XSD Duration [") + text + L"] expected [-]P[nY][nM][nD][T[nH][nM][nS.ff]]");
    }
    EXPECT_EQ(refusal(L"PT1.1234567891S"), L"Invalid XSD Duration [PT1.1234567891S] Fraction part too long");
    EXPECT_EQ(refusal(nullptr), L"Invalid XSD Duration (Null String)");
    EXPECT_EQ(refusal(L""), L"Invalid XSD Duration (Empty String)");
}

TEST(DateTimeSpan, keeps_ZeroDurationPrintsATextThatIsRefused)
{
    EXPECT_THROW(Parsed(CDateTimeSpan().ToString().c_str()), CZrInvalidValueException);
}

TEST(DateTimeSpan, keeps_GetAsNegativeSetsTheSign)
{
    CDateTimeSpan span = Parsed(L"-P3D");
    EXPECT_EQ(span.GetAsNegative().ToString(), L"-P3D");
    span.Negate();
    EXPECT_EQ(span.ToString(), L"P3D");
    EXPECT_EQ(span.GetAsNegative().ToString(), L"-P3D");
}

TEST(DateTimeSpan, keeps_FieldsAreNotNormalised)
{
    EXPECT_EQ(CDateTimeSpan(25, 90, 61).ToString(), L"PT25H90M61S");
    EXPECT_EQ(Parsed(L"P13M").GetYears(), 0);
}

TEST(DateTimeSpan, keeps_UnequalIsTrueForIndeterminatePairs)
{
    EXPECT_TRUE(Parsed(L"P1M") != Parsed(L"P30D"));
}

TEST(DateTimeSpan, SettingClearsTheRestAndTheSign)
{
    CDateTimeSpan span = Parsed(L"-P1Y2M3DT4H5M6.789S");
    span.SetDateTimeSpan(1, 2, 3);
    EXPECT_EQ(span.ToString(), L"PT1H2M3S");
    span.Clear();
    EXPECT_EQ(span, CDateTimeSpan());
}

TEST(DateTimeSpan, LargeFieldsPrintInFullAndFractionsCarry)
{
    constexpr unsigned long most = std::numeric_limits<unsigned long>::max();
    EXPECT_EQ(CDateTimeSpan(65535, most, 1, 1, 1, most - 1, 1999, 1, 0).ToString(),
        L"P65535Y18446744073709551615M1DT1H1M18446744073709551615.999001S");
    EXPECT_EQ(CDateTimeSpan(0, 0, 0, 0, 0, most, 65535, 65535, 65535).ToString(), L"PT18446744073709551680.600600535S");
}
