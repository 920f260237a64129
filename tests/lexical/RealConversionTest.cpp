// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Conversions.h"

#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "ZrXmlLib16/ZrInvalidValueException.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <clocale>
#include <cmath>
#include <cstring>
#include <cwchar>
#include <limits>
#include <random>

#include <locale.h>

using namespace ZrXmlLib16;
using TestSupport::Narrow;

namespace {

constexpr auto None = CWhitespaceUtils::Rule_None;
constexpr auto Collapse = CWhitespaceUtils::Rule_Collapse;
const double Infinity = std::numeric_limits<double>::infinity();

locale_t CLocaleObject()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

/// The C library's text in the "C" locale, whatever locale the test runs in.
template <class T> std::wstring Printf(const char* format, T value)
{
    char buffer[2000];
    const locale_t previous = uselocale(CLocaleObject());
    std::snprintf(buffer, sizeof buffer, format, static_cast<double>(value));
    uselocale(previous);
    return std::wstring(buffer, buffer + std::strlen(buffer));
}

double Strtod(const std::wstring& text, wchar_t** end = nullptr)
{
    return wcstod_l(text.c_str(), end, CLocaleObject());
}

bool IsConvertible(const std::wstring& text)
{
    try {
        CConversions::r8FromString(text, None);
        return true;
    } catch (const CZrInvalidValueException& failure) {
        EXPECT_EQ(failure.GetMessage(), L"The value [" + text + L"] can not be converted to a r8");
        return false;
    }
}

/// Whether two doubles are the same to the bit.
bool IsSame(double left, double right)
{
    return std::memcmp(&left, &right, sizeof left) == 0;
}

template <class T, class Bits> T RandomValue(std::mt19937_64& random)
{
    const auto bits = static_cast<Bits>(random());
    T value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

TEST(RealConversion, RandomBitPatternsAgreeWithTheCLibrary)
{
    std::mt19937_64 random(1);
    for (int i = 0; i < 300000; ++i) {
        const double value = RandomValue<double, std::uint64_t>(random);
        const float single = RandomValue<float, std::uint32_t>(random);
        if (std::isfinite(value)) {
            const std::wstring text = Printf("%.16g", value);
            ASSERT_EQ(CConversions::r8ToString(value), text);
            ASSERT_TRUE(IsSame(CConversions::r8FromString(text, None), Strtod(text)));
            ASSERT_EQ(CConversions::r8FromString(Printf("%a", value), None), value);
        }
        if (std::isfinite(single)) {
            const std::wstring text = Printf("%.7g", single);
            ASSERT_EQ(CConversions::r4ToString(single), text);
            ASSERT_EQ(CConversions::r4FromString(text, None), static_cast<float>(Strtod(text)));
        }
    }
}

TEST(RealConversion, NumbersOfFewPlacesAgreeWithTheCLibrary)
{
    std::mt19937_64 random(7);
    const double powers[] = {1, 1e1, 1e2, 1e3, 1e4, 1e5};
    const auto check = [](double value) {
        ASSERT_EQ(Printf("%.16g", value), CConversions::r8ToString(value)) << std::hexfloat << value;
    };
    for (int round = 0; round < 400000; ++round) {
        // As many digits as there are powers of two in a number below 2^51, at all places.
        const double digits = static_cast<double>(random() >> (13 + random() % 50));
        const double value = digits / powers[random() % 6] * (round % 2 == 0 ? 1 : -1);
        for (const double near : {value, std::nextafter(value, 0), std::nextafter(value, 1e300)}) {
            check(near);
        }
    }
    for (double tenth = 1e-5; tenth < 1e17; tenth *= 10) {
        for (const double value : {tenth, std::nextafter(tenth, 0), std::nextafter(tenth, 1e300), 9 * tenth}) {
            check(value);
        }
    }
}

TEST(RealConversion, RandomTextsAreAcceptedExactlyWhenTheCLibraryReadsThemWhole)
{
    std::mt19937_64 random(2);
    const std::wstring alphabet = L"00191.5eExXpPfF+- \t";
    for (int i = 0; i < 300000; ++i) {
        std::wstring text;
        for (auto length = random() % 9 + 1; length > 0; --length)
            text += alphabet[random() % alphabet.length()];
        wchar_t* end = nullptr;
        const double expected = Strtod(text, &end);
        const bool whole = end != text.c_str() && *end == L'\0';
        ASSERT_EQ(IsConvertible(text), whole) << Narrow(text);
        ASSERT_TRUE(!whole || IsSame(CConversions::r8FromString(text, None), expected)) << Narrow(text);
    }
}

TEST(RealConversion, SpecialWordsInExactlyThisSpelling)
{
    for (const wchar_t* text : {L"NaN", L"1.#QNAN", L"-NAN"}) {
        EXPECT_TRUE(std::isnan(CConversions::r8FromString(text, None)));
        const float value = CConversions::r4FromString(text, None);
        std::uint32_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        EXPECT_EQ(bits, 0x7FC00000u);
    }
    EXPECT_EQ(CConversions::r8FromString(L" INF\n", Collapse), Infinity);
    EXPECT_EQ(CConversions::r4FromString(L"-INF", None), -std::numeric_limits<float>::infinity());
    for (const wchar_t* text : {L"", L" ", L"inf", L"+INF", L"INFINITY", L"-Infinity", L"nan", L"nan(1)", L"-NaN",
             L" INF", L"0xinf", L"0x-1", L"1,5", L"1.5 ", L".", L"1e", L"1.0f", L"\u0661", L"\u20031"})
        EXPECT_FALSE(IsConvertible(text)) << Narrow(text);
    EXPECT_THROW(CConversions::r8FromString(std::wstring(L"1\0", 2), None), CZrInvalidValueException);
    EXPECT_EQ(TestSupport::MessageOf<CZrInvalidValueException>([] { CConversions::r4FromString(L" 1 x", Collapse); }),
        L"The value [1 x] can not be converted to a r4");
}

TEST(RealConversion, RangeAndLongTexts)
{
    const std::pair<std::wstring, double> doubles[] = {{L"-1e400", -Infinity}, {L"0x1p2000", Infinity},
        {L"-1e-400", -0.0}, {L"4.9e-324", DBL_TRUE_MIN}, {L"1" + std::wstring(100000, L'0') + L"e-100000", 1},
        {L"0." + std::wstring(5000, L'0') + L"1e5001", 1}, {std::wstring(63, L'0') + L"1", 1},
        {std::wstring(62, L'0') + L"1", 1}};
    for (const auto& [text, value] : doubles)
        EXPECT_TRUE(IsSame(CConversions::r8FromString(text, None), value)) << text;
    const std::pair<const wchar_t*, double> floats[] = {
        {L"1.0e39", Infinity}, {L"-3.4028235e38", -FLT_MAX}, {L"3.40282357e38", Infinity}, {L"1e-46", 0}};
    for (const auto& [text, value] : floats)
        EXPECT_EQ(CConversions::r4FromString(text, None), value) << text;
}

TEST(RealConversion, SpecialValuesIgnoreTheFormat)
{
    for (const wchar_t* format : {L"", L"%.2f", L"hostile %n"}) {
        EXPECT_EQ(CConversions::r8ToString(NAN, format), L"NaN");
        EXPECT_EQ(CConversions::r8ToString(-Infinity, format), L"-INF");
        EXPECT_EQ(CConversions::r4ToString(static_cast<float>(Infinity), format), L"INF");
    }
    EXPECT_EQ(CConversions::r4ToString(-0.0f), L"-0");
    EXPECT_EQ(CConversions::r8ToString(1.5, nullptr), L"1.5");
}

TEST(RealConversion, CustomFormats)
{
    EXPECT_EQ(CConversions::r8ToString(-DBL_MAX, L"%.999f"), Printf("%.999f", -DBL_MAX));
    EXPECT_EQ(CConversions::r4ToString(3.4e38f, L"%999.0lf"), Printf("%999.0f", 3.4e38f));
    EXPECT_EQ(CConversions::r8ToString(1.5, L"\u20ac%+08.2e %%!"), L"\u20ac" + Printf("%+08.2e", 1.5) + L" %!");
    EXPECT_EQ(CConversions::r8ToString(1.5, L"%--++  ##00012.3A"), Printf("%-+ #012.3A", 1.5));
    for (const std::wstring format : {L"%n", L"%s", L"%d", L"%c", L"%ls", L"%*f", L"%.*f", L"%1$f", L"%Lf", L"%llf",
             L"%hf", L"%'f", L"%1000f", L"%.1000f", L"%f%f", L"%f%", L"%", L"%%", L"text", L"%5", L"%-", L"%."}) {
        EXPECT_EQ(
            TestSupport::MessageOf<CZrInvalidParamException>([&] { CConversions::r8ToString(1, format.c_str()); }),
            L"Invalid number format [" + format + L"]");
    }
}

TEST(RealConversion, keeps_HexadecimalFloatsAndLeadingBlanks)
{
    EXPECT_EQ(CConversions::r8FromString(L" \v-0x1.8P1", None), -3.0);
    const std::wstring digits = L"0123456789abcdefABCDEF";
    for (std::size_t i = 0; i < digits.size(); ++i)
        EXPECT_EQ(
            CConversions::r8FromString(L"0x" + digits.substr(i, 1), None), static_cast<double>(i < 16 ? i : i - 6));
    EXPECT_EQ(CConversions::r4FromString(L"0X.8", None), 0.5f);
}

TEST(RealConversion, keeps_DigitsThatDoNotRoundTrip)
{
    EXPECT_EQ(CConversions::r8ToString(0.1 + 0.2), L"0.3");
    EXPECT_EQ(CConversions::r4ToString(16777217.0f / 3), L"5592406");
}

TEST(RealConversion, CommaLocaleChangesNothing)
{
    const std::string previous = std::setlocale(LC_ALL, nullptr);
    if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr)
        GTEST_SKIP() << "de_DE.UTF-8 is not installed";
    EXPECT_STREQ(std::localeconv()->decimal_point, ",");
    EXPECT_EQ(CConversions::r8ToString(1.5), L"1.5");
    EXPECT_EQ(CConversions::r8ToString(1234.5, L"%.2f"), L"1234.50");
    EXPECT_EQ(CConversions::r8FromString(L"1.5", None), 1.5);
    EXPECT_EQ(CConversions::r8FromString(L"1.5e-400", None), 0.0);
    EXPECT_FALSE(IsConvertible(L"1,5"));
    EXPECT_THROW(CConversions::ui4FromString(L"\u200342", None), CZrInvalidValueException);
    EXPECT_STREQ(std::localeconv()->decimal_point, ",") << "the thread's locale is restored";
    std::setlocale(LC_ALL, previous.c_str());
}

} // namespace
