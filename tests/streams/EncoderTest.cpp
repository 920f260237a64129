// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Encoder.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using ZrXmlLib16::CBinaryData;
using ZrXmlLib16::CEncoder;

namespace {

/// UTF-8 by the bit table, the plain way.
std::string Utf8Of(int codePoint)
{
    const auto octet = [](int value) { return static_cast<char>(static_cast<unsigned char>(value)); };
    const auto tail = [&](int bits) { return octet(0x80 + bits % 64); };
    if (codePoint < 0x80)
        return {octet(codePoint)};
    if (codePoint < 0x800)
        return {octet(0xC0 + codePoint / 64), tail(codePoint)};
    if (codePoint < 0x10000)
        return {octet(0xE0 + codePoint / 4096), tail(codePoint / 64), tail(codePoint)};
    return {octet(0xF0 + codePoint / 262144), tail(codePoint / 4096), tail(codePoint / 64), tail(codePoint)};
}

std::wstring Units(std::initializer_list<int> values)
{
    return std::wstring(values.begin(), values.end());
}

} // namespace

TEST(Encoder, EveryCodePointRoundTrips)
{
    for (int codePoint = 0; codePoint <= 0x10FFFF; codePoint += codePoint < 0x11000 || codePoint > 0x10F000 ? 1 : 97) {
        if (codePoint >= 0xD800 && codePoint <= 0xDFFF)
            continue;
        const std::wstring units = CEncoder::ToSurrogatePairs(Units({codePoint}));
        const std::string octets = Utf8Of(codePoint);
        ASSERT_EQ(octets, CEncoder::UnicodeToUtf8(units)) << codePoint;
        ASSERT_EQ(octets, CEncoder::UnicodeToUtf8(Units({codePoint}))) << codePoint;
        ASSERT_EQ(units, CEncoder::Utf8ToUnicode(octets)) << codePoint;
    }
}

TEST(Encoder, EveryFormGivesTheSameOctets)
{
    const std::wstring text = L"ASCII run, then \u00E9\u20AC\xD83D\xDE00 and more";
    const CBinaryData binary = CEncoder::UnicodeToUtf8Binary(text);
    EXPECT_EQ(CEncoder::UnicodeToUtf8(text),
        std::string(reinterpret_cast<const char*>(binary.GetData()), binary.GetLength()));
    EXPECT_EQ(text, CEncoder::Utf8ToUnicode(binary));
    EXPECT_EQ(text, CEncoder::Utf8ToUnicode(binary.GetData(), binary.GetLength()));
    EXPECT_EQ("", CEncoder::UnicodeToUtf8(nullptr, 0));
    EXPECT_EQ(nullptr, CEncoder::UnicodeToUtf8Binary(L"").GetData());
    EXPECT_EQ(L"", CEncoder::Utf8ToUnicode(nullptr, 0));
}

TEST(Encoder, RunsOfEveryLengthAndPositionSurvive)
{
    for (std::size_t before = 0; before < 20; ++before) {
        for (std::size_t after = 0; after < 20; ++after) {
            for (const std::wstring& middle : {Units({0xE9}), Units({0xD83D, 0xDE00}), Units({0xFFFD})}) {
                const std::wstring text = std::wstring(before, L'a') + middle + std::wstring(after, L'z');
                ASSERT_EQ(text, CEncoder::Utf8ToUnicode(CEncoder::UnicodeToUtf8(text)));
            }
        }
    }
}

TEST(Encoder, WhatIsNoCharacterIsReplaced)
{
    const std::pair<std::wstring, const char*> cases[] = {{Units({0xD83D}), "\xEF\xBF\xBD"},
        {Units({0xDE00, 0xD83D, 0xD83D, 0xDE00}), "\xEF\xBF\xBD\xEF\xBF\xBD\xF0\x9F\x98\x80"},
        {Units({0xD83D, 0x1F600}), "\xEF\xBF\xBD\xF0\x9F\x98\x80"},
        {Units({0xD83D}) + L"stuvwxyz", "\xEF\xBF\xBDstuvwxyz"},
        {L"stuv" + Units({-2147483647, 0x110000, -1}) + L"z", "stuv\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBDz"}};
    for (const auto& [text, octets] : cases)
        EXPECT_EQ(octets, CEncoder::UnicodeToUtf8(text));
}

TEST(Encoder, EachIllFormedRunBecomesOneReplacement)
{
    const char* const illFormed[] = {
        "\x80", "\xFE\xFF",                                         // no lead octet
        "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", // overlong
        "\xED\xA0\x80", "\xED\xBF\xBF", "\xED\xA0\xBD\xED\xB8\x80", // surrogates
        "\xF4\x90\x80\x80", "\xF5\x80\x80\x80",                     // above the last code point
        "\x81\x90\x80\x80", "\xF9\x80\x80\x80",                     // no lead octet, and all that could follow one
        "\xC3", "\xE2\x82", "\xF0\x9F", "\xF0\x9F\x98",             // cut off
    };
    for (const std::string run : illFormed) {
        SCOPED_TRACE(testing::PrintToString(run));
        EXPECT_EQ(Units({0xFFFD}), CEncoder::Utf8ToUnicode(run));
        EXPECT_EQ(L"z\uFFFD\u00E9\uFFFDstuvwxyz\uFFFD",
            CEncoder::Utf8ToUnicode("z" + run + "\xC3\xA9" + run + run + "stuvwxyz" + run));
    }
    EXPECT_EQ(L"\uFFFD\u00E9\uFFFD", CEncoder::Utf8ToUnicode(std::string("\xF0\x9F\xC3\xA9\x98")));
    EXPECT_EQ(L"\uFEFFz", CEncoder::Utf8ToUnicode(std::string("\xEF\xBB\xBFz"))); // a byte order mark is kept
}

TEST(Encoder, Utf16IsReadUnitByUnit)
{
    const unsigned char octets[] = {0x41, 0x00, 0x3D, 0xD8, 0x00, 0xDE, 0x7F};
    EXPECT_EQ(Units({0x41, 0xD83D, 0xDE00, 0xFFFD}), CEncoder::Utf16ToUnicode(octets, 7, false));
    EXPECT_EQ(Units({0x4100, 0x3DD8, 0xDE}), CEncoder::Utf16ToUnicode(octets, 6, true));
    EXPECT_EQ(Units({0xFFFD}), CEncoder::Utf16ToUnicode(octets, 1, true));
    EXPECT_EQ(L"", CEncoder::Utf16ToUnicode(nullptr, 0, true));
}

TEST(Encoder, WideTextBecomesUnits)
{
    std::vector<unsigned char> out = {0xFF, 0xFE};
    CEncoder::UnicodeToUtf16LE(Units({0x41, 0xD83D, 0x1F600}).data(), 3, out);
    EXPECT_EQ((std::vector<unsigned char>{0xFF, 0xFE, 0x41, 0x00, 0x3D, 0xD8, 0x00, 0xF6}), out);
    EXPECT_EQ(Units({0xFFFF, 0xD800, 0xDC00, 0xDBFF, 0xDFFF, 0x110000, -1, 0xD800}),
        CEncoder::ToSurrogatePairs(Units({0xFFFF, 0x10000, 0x10FFFF, 0x110000, -1, 0xD800})));
}
