// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/PrimitiveRestrictions.h"
#include "ZrXmlLib16/XmlObjectHelper.h"
#include "ZrXmlLib16/ZrException.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>

#include <pthread.h>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::Narrow;

namespace {

struct Case {
    const wchar_t* pattern;
    std::wstring text;
    bool matches;
};

void Expect(const std::vector<Case>& cases)
{
    for (const Case& row : cases) {
        EXPECT_EQ(CXmlObjectHelper::TestRegEx(Narrow(row.pattern), row.text), row.matches)
            << Narrow(row.pattern) << " on [" << Narrow(row.text) << "]";
    }
}

/// Runs the action on a thread with a stack of 512 KiB.
void OnSmallStack(std::function<void()> action)
{
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, 512 * 1024);
    pthread_t thread;
    const auto run = [](void* argument) -> void* {
        (*static_cast<std::function<void()>*>(argument))();
        return nullptr;
    };
    ASSERT_EQ(pthread_create(&thread, &attributes, run, &action), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

TEST(Pattern, MatchesTheWholeTextOnly)
{
    Expect({
        {L"a", L"a", true},
        {L"a", L"ab", false},
        {L"a", L"ba", false},
        {L"a", L"a\n", false},
        {L"a|ab", L"ab", true},
        {L"a|b", L"ab", false},
        {L"", L"", true},
        {L"", L"a", false},
        {L"a*", L"", true},
        {L"a)|(b", L"ab", false},
        {L"a)|(b", L"xb", false},
        {L"[0-9]{3}-[a-z]+", L"123-abc", true},
        {L"(a)(b)(c)(d)(e)(f)(g)(h)(i)(j)(k)(l)\\13", L"abcdefghijkll", true},
        {L".", std::wstring(1, L'\0'), true},
        {L"a", std::wstring(L"a\0b", 3), false},
    });
}

TEST(Pattern, TranslatesTheNameAndBlockEscapes)
{
    Expect({
        {L"\\i\\c*", L"ns:name-1.x", true},
        {L"\\i\\c*", L"_a", true},
        {L"\\i\\c*", L"1a", false},
        {L"\\i", L"-", false},
        {L"\\I\\C", L"5!", true},
        {L"\\I", L"a", false},
        {L"\\C", L"-", false},
        {L"\\d+\\\\\\w", L"12\\a", true},
        {L"\\\\i\\\\c", L"\\i\\c", true},
        {L"\\\\\\i", L"\\n", true},
        {L"\\\\d", L"5", false},
        {L"\\\\p{1}", L"\\p", true},
        {L"\\p{IsBasicLatin}+", L"a\x7f", true},
        {L"\\p{IsBasicLatin}", L"\u0080", false},
        {L"\\p{IsLatin-1Supplement}{2}", L"\u0080\u00ff", true},
        {L"\\p{IsLatin-1Supplement}", L"\u0100", false},
        {L"\\p{IsLatinExtended-A}{2}", L"\u0100\u017f", true},
        {L"\\p{IsLatinExtended-A}", L"\u0180", false},
        {L"\\p{Lu}\\P{Lu}", L"\u00c9\u00e9", true},
    });
}

TEST(Pattern, CharactersBeyondAscii)
{
    Expect({
        {L"\u00e9{2}", L"\u00e9\u00e9", true},
        {L"\u20ac", L"\u20ac", true},
        {L".", L"\xd83d\xde00", true},
        {L".", std::wstring(1, static_cast<wchar_t>(0x1F600)), true},
        {L"[\xd83d\xde00-\xd83d\xde02]", L"\xd83d\xde01", true},
        {L"\uFFFD", std::wstring(1, static_cast<wchar_t>(0xD83D)), true},
    });
}

TEST(Pattern, MessagesOfBadPatternsAndViolations)
{
    EXPECT_EQ(MessageOf<CZrException>([] { CXmlObjectHelper::TestRegEx("\\i(\xC3\xA9", L"x"); }),
        L"Invalid Regular Expression: \\i(\u00e9 Error: 'missing )'");
    CPrimitiveRestrictions facets;
    facets.m_pattern = L"[\u00e9";
    EXPECT_EQ(MessageOf<CZrException>([&] { CXmlObjectHelper::CheckRestrictionForstring(L"item", L"v", facets); }),
        L"Invalid Regular Expression: [\u00e9 Error: 'missing terminating ] for character class'\n"
        L"Invalid Value for item [v].");
    facets.m_pattern = L"\u00e9+";
    CXmlObjectHelper::CheckRestrictionForstring(L"item", L"\u00e9\u00e9", facets);
    EXPECT_EQ(MessageOf<CZrException>([&] { CXmlObjectHelper::CheckRestrictionForstring(L"item", L"v", facets); }),
        L"Invalid Value for item [v].");
}

TEST(Pattern, LongTextsFitASmallStack)
{
    OnSmallStack([] {
        for (const std::size_t length : {499u, 1000u, 100000u, 1000000u}) {
            const std::wstring text(length, L'b');
            EXPECT_TRUE(CXmlObjectHelper::TestRegEx("(a|b)*", text)) << length;
            EXPECT_FALSE(CXmlObjectHelper::TestRegEx("(a|b)*", text + L'c')) << length;
            EXPECT_FALSE(CXmlObjectHelper::TestRegEx("(a|b)*", text + L'\n')) << length;
        }
    });
}

TEST(Pattern, MemoryIsBounded)
{
    const auto match = [] { CXmlObjectHelper::TestRegEx("(a|b)*", std::wstring(8000000, L'b')); };
    EXPECT_EQ(MessageOf<CZrException>(match), L"Invalid Regular Expression: (a|b)* Error: 'match limit exceeded'");
}

TEST(Pattern, HopelessSearchesEndSoon)
{
    const auto start = std::chrono::steady_clock::now();
    OnSmallStack([] {
        EXPECT_FALSE(CXmlObjectHelper::TestRegEx("(a|aa)+", std::wstring(60, L'a') + L'!'));
        EXPECT_FALSE(CXmlObjectHelper::TestRegEx("(a|aa)+", std::wstring(5000, L'a') + L'!'));
        EXPECT_FALSE(CXmlObjectHelper::TestRegEx("((a+)+)+", std::wstring(40, L'a') + L'!'));
    });
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST(Pattern, keeps_AsciiWordsAnchorsAndThePlainTranslation)
{
    Expect({
        {L"\\w", L"\u00e9", false},
        {L"\\i", L"\u00e9", false},
        {L"\\c", L"\u00e9", false},
        {L"^a$", L"a", true},
        {L"^a$", L"^a$", false},
        {L"a|a\n", L"a\n", false},
    });
    EXPECT_THROW(CXmlObjectHelper::TestRegEx("\\p{IsLatinExtended-B}", L"\u0180"), CZrException);
}

} // namespace
