// SPDX-License-Identifier: MIT
#include "support/TestText.h"

#include <climits>
#include <cstdio>
#include <memory>
#include <tuple>

using namespace ZrXmlLib16;

TEST(Formatting, EveryConversionFits)
{
    EXPECT_EQ(L"", FormatString(L""));
    EXPECT_EQ(L"100% [a] [b]", FormatString(L"100%% [%ls] [%s]", L"a", "b"));
    EXPECT_EQ(L"-2147483648 4294967295 ff 0XFF 17", FormatString(L"%d %u %x %#X %o", INT_MIN, UINT_MAX, 255, 255, 15));
    EXPECT_EQ(L"-9223372036854775808 18446744073709551615",
        FormatString(L"%ld %llu", LONG_MIN, static_cast<unsigned long long>(ULLONG_MAX)));
    EXPECT_EQ(
        L"[  ab] [ab  ] [a] [00042]", FormatString(L"[%*ls] [%-4ls] [%.*ls] [%0*d]", 4, L"ab", L"ab", 1, L"ab", 5, 42));
    EXPECT_EQ(L"x\u20ac\u00e9",
        FormatString(L"%lc%lc%lc", static_cast<wint_t>(L'x'), static_cast<wint_t>(0x20AC), static_cast<wint_t>(0xE9)));
    EXPECT_EQ(317U, FormatString(L"%f", -1e308).length());
    EXPECT_EQ(std::wstring(300, L' ') + L"1", FormatString(L"%301d", 1));
    EXPECT_EQ(std::wstring(2999, L' ') + L"1", FormatString(L"%*d", 3000, 1));
    EXPECT_EQ(L"1" + std::wstring(2999, L' '), FormatString(L"%*d", -3000, 1));
    EXPECT_EQ(3002U, FormatString(L"%.*f", 3000, 0.5).length());
    EXPECT_EQ(L"0." + std::wstring(500, L'0') + L"e+00", FormatString(L"%.500e", 0.0));
    // No message is cut.
    const std::wstring text(100000, L'\u20ac');
    EXPECT_EQ(text + L"|" + text, FormatString(L"%ls|%ls", text.c_str(), text.c_str()));
    // Text of the caller is an argument, never a format.
    EXPECT_EQ(L"%ls%n", FormatString(L"%ls", L"%ls%n"));
}

TEST(Formatting, PaddedNumbersAndFractions)
{
    const std::tuple<int, unsigned char, const wchar_t*> cases[] = {{7, 3, L"007"}, {1234, 3, L"1234"}, {0, 0, L"0"},
        {0, 1, L"0"}, {-7, 4, L"-007"}, {-7, 0, L"-7"}, {INT_MIN, 5, L"-2147483648"}};
    for (const auto& row : cases)
        EXPECT_EQ(std::get<2>(row), PadZero(std::get<0>(row), std::get<1>(row)));
    EXPECT_EQ(255U, PadZero(-1, 255).length());
    EXPECT_EQ(L"", ToFracString(0, 0, 0));
    EXPECT_EQ(L".005", ToFracString(5, 0, 0));
    EXPECT_EQ(L".000000001", ToFracString(0, 0, 1));
    EXPECT_EQ(L".12003", ToFracString(120, 30, 0));
}

TEST(Formatting, keeps_FirstCharacterWhenTrimmingZeros)
{
    const wchar_t* const cases[][2] = {{L"", L""}, {L"0", L"0"}, {L"000", L"0"}, {L"100", L"1"}, {L".500", L".5"},
        {L"1050", L"105"}, {L"00a", L"00a"}};
    for (const auto& row : cases)
        EXPECT_EQ(row[1], TrimTrainingZeros(row[0]));
}

TEST(Formatting, keeps_FindReplaceStartingOverAfterEachReplacement)
{
    const char* const cases[][4] = {{"aab", "ab", "b", "b"}, {"a.b.c", ".", "", "abc"}, {"abc", "x", "y", "abc"},
        {"\\i\\i", "\\i", "[i]", "[i][i]"}, {"", "a", "b", ""}};
    for (const auto& row : cases) {
        std::string narrow = row[0];
        FindReplace(narrow, row[1], row[2]);
        EXPECT_EQ(row[3], narrow);
    }
    std::wstring wide = L"aab";
    FindReplace(wide, L"ab", L"b");
    EXPECT_EQ(L"b", wide);
}

TEST(Formatting, NarrowTextIsUtf8InEveryLocale)
{
    EXPECT_EQ("caf\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80", UnicodeToMultiByte(L"caf\u00e9 \u20ac \xD83D\xDE00"));
    char text[] = "aZ-1\xE9";
    EXPECT_STREQ("AZ-1\xE9", strupr(text));
    EXPECT_STREQ("AZ-1\xE9", text);
}

TEST(Formatting, FileLengthOfRegularFilesOnly)
{
    const std::unique_ptr<FILE, int (*)(FILE*)> file(tmpfile(), fclose);
    ASSERT_TRUE(file);
    fputs("12345", file.get());
    fflush(file.get());
    EXPECT_EQ(5, _filelength(file.get()));
    const std::unique_ptr<FILE, int (*)(FILE*)> folder(fopen("/", "r"), fclose);
    ASSERT_TRUE(folder);
    EXPECT_EQ(-1, _filelength(folder.get()));
}
