// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/WhitespaceUtils.h"

#include "ZrXmlLib16/ZrException.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <vector>

using ZrXmlLib16::CWhitespaceUtils;
using ZrXmlLib16::CZrException;

namespace {

std::wstring Oracle(CWhitespaceUtils::WhitespaceRule rule, const std::wstring& text)
{
    std::wstring result;
    for (std::size_t i = 0; i < text.length(); ++i) {
        if (rule != CWhitespaceUtils::Rule_None && text.compare(i, 2, L"\r\n") == 0)
            continue; // the LF stands for the pair
        const wchar_t preserved = rule != CWhitespaceUtils::Rule_None && text[i] == L'\r' ? L'\n' : text[i];
        const wchar_t c = rule >= CWhitespaceUtils::Rule_Replace && preserved == L'\n' ? L' ' : preserved;
        const bool joinsRun = c == L' ' && (result.empty() || result.back() == L' ');
        if (rule != CWhitespaceUtils::Rule_Collapse || !joinsRun)
            result += c;
    }
    return rule == CWhitespaceUtils::Rule_Collapse && !result.empty() && result.back() == L' '
        ? result.substr(0, result.length() - 1)
        : result;
}

std::vector<std::wstring> AllTextsUpTo(std::size_t length)
{
    std::vector<std::wstring> texts{L""};
    for (std::size_t i = 0; texts[i].length() < length; ++i)
        for (const wchar_t c : {L'a', L' ', L'\r', L'\n'})
            texts.push_back(texts[i] + c);
    return texts;
}

TEST(Whitespace, RulesAgreeWithTheOracleOnAllShortTexts)
{
    for (const std::wstring& text : AllTextsUpTo(6)) {
        for (int number = 0; number <= 3; ++number) {
            const auto rule = static_cast<CWhitespaceUtils::WhitespaceRule>(number);
            ASSERT_EQ(CWhitespaceUtils::ApplyRule(rule, text), Oracle(rule, text)) << number << text;
        }
    }
}

TEST(Whitespace, NamedOperationsTabsAndOtherBlanks)
{
    const std::wstring text = L"\t a\u00a0\u2003\v\t";
    EXPECT_EQ(CWhitespaceUtils::Preserve(text), text);
    EXPECT_EQ(CWhitespaceUtils::Replace(text), L"  a\u00a0\u2003\v ");
    EXPECT_EQ(CWhitespaceUtils::Collapse(text), L"a\u00a0\u2003\v");
    std::wstring white;
    for (wchar_t c = 0; c < 0x3100; ++c)
        white += std::wstring(CWhitespaceUtils::IsWhiteSpace(c) ? 1 : 0, c);
    EXPECT_EQ(white, L"\t\n\r ");
}

TEST(Whitespace, CountedPreserveTakesExactlyTheLength)
{
    EXPECT_EQ(CWhitespaceUtils::Preserve(L"a\0\r\nb", 3), std::wstring(L"a\0\n", 3));
    EXPECT_EQ(CWhitespaceUtils::Preserve(L"a\0\r\nb", 5), std::wstring(L"a\0\nb", 4));
    EXPECT_EQ(CWhitespaceUtils::Preserve(nullptr, 3), L"");
}

TEST(Whitespace, keeps_PreserveNormalisingAndReplaceJoiningCrLf)
{
    EXPECT_EQ(CWhitespaceUtils::Preserve(L"a\r\nb\rc"), L"a\nb\nc");
    EXPECT_EQ(CWhitespaceUtils::Replace(L"a\r\nb\r\rc"), L"a b  c");
}

TEST(Whitespace, UnknownRule)
{
    for (const int number : {-1, 4}) {
        const auto rule = static_cast<CWhitespaceUtils::WhitespaceRule>(number);
        EXPECT_EQ(TestSupport::MessageOf<CZrException>([&] { CWhitespaceUtils::ApplyRule(rule, L""); }),
            L"Unknown WhitespaceRule");
    }
}

} // namespace
