// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/PrimitiveRestrictions.h"
#include "ZrXmlLib16/XmlObjectHelper.h"
#include "ZrXmlLib16/ZrException.h"
#include "support/TestText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <functional>

#include <pthread.h>

using namespace ZrXmlLib16;
using TestSupport::MessageOf;
using TestSupport::Narrow;

namespace {

using Texts = std::vector<std::wstring>;

void Expect(const wchar_t* pattern, const Texts& matching, const Texts& other)
{
    for (const Texts* texts : {&matching, &other}) {
        for (const std::wstring& text : *texts) {
            EXPECT_EQ(CXmlObjectHelper::TestRegEx(Narrow(pattern), text), texts == &matching)
                << Narrow(pattern) << " on [" << Narrow(text) << "]";
        }
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
    Expect(L"a", {L"a"}, {L"ab", L"ba", L"a\n", std::wstring(L"a\0b", 3)});
    Expect(L"a|ab", {L"ab"}, {L"aab"});
    Expect(L"", {L""}, {L"a"});
    Expect(L"a)|(b", {}, {L"ab", L"xb"});
    Expect(L"[0-9]{3}-[a-z]+", {L"123-abc"}, {});
    Expect(L"(a)(b)(c)(d)(e)(f)(g)(h)(i)(j)(k)(l)\\13", {L"abcdefghijkll"}, {});
}

TEST(Pattern, TranslatesTheNameAndBlockEscapes)
{
    Expect(L"\\i\\c*", {L"ns:name-1.x", L"_a"}, {L"1a", L"-"});
    Expect(L"\\I\\C", {L"5!"}, {L"a!", L"5-"});
    Expect(L"\\d+\\\\\\w", {L"12\\a"}, {});
    Expect(L"\\\\i\\\\c", {L"\\i\\c"}, {});
    Expect(L"\\\\\\i", {L"\\n"}, {});
    Expect(L"\\\\p{1}", {L"\\p"}, {});
    Expect(L"\\p{IsBasicLatin}+", {L"a\x7f"}, {L"\u0080"});
    Expect(L"\\p{IsLatin-1Supplement}{2}", {L"\u0080\u00ff"}, {L"\u00ff\u0100"});
    Expect(L"\\p{IsLatinExtended-A}{2}", {L"\u0100\u017f"}, {L"\u017f\u0180"});
    Expect(L"\\p{Lu}\\P{Lu}", {L"\u00c9\u00e9"}, {});
}

// What only one of the engines accepts, or reads in another way, unless its notation is adapted.
TEST(Pattern, EnginesAgreeOnDoubtfulNotation)
{
    Expect(L"[\\w-.]+", {L"a-b.c"}, {L"a/b"});
    Expect(L"[\\p{L}-_\\d-]+", {L"a-_1"}, {L".", L"\\"});
    Expect(L"[[:digit:]-z]+", {L"1-z"}, {L"a"});
    Expect(L"[^]\\s-a]", {L"b"}, {L"]", L" ", L"-", L"a"});
    Expect(L"[]\\S-]", {L"]", L"-"}, {L" "});
    Expect(L"[\\d--/]", {L"1", L".", L"/"}, {L",", L"0-"});
    Expect(L"a{,2}b{ 1 }{", {L"a{,2}b{ 1 }{"}, {L"aab{"});
    Expect(L"\\x{e9}{2}a{1}b{1,}c{1,2}", {L"\u00e9\u00e9abbc"}, {});
    Expect(L"[\\w{,2}-]+\\{", {L"a{,2}-{"}, {});
    Expect(L"\\q\\y[\\j-\\m][\\R]", {L"qylR"}, {L"qyiR"});
    Expect(L"\\Q[\\d-a{,\\E[\\d-a]", {L"[\\d-a{,-"}, {L"[\\d-a{,b"});
    Expect(L"[\\\\w-z]", {L"x", L"\\"}, {L"-", L"a"});
    for (const char* pattern : {"[\\d-z-a]", "[a-\\d]", "\\p{IsGreek}", "a{2,1}", "[b-a]", "a\\"}) {
        EXPECT_THROW(CXmlObjectHelper::TestRegEx(pattern, L"x"), CZrException) << pattern;
    }
}

TEST(Pattern, CharactersBeyondAscii)
{
    Expect(L"\u00e9\u20ac", {L"\u00e9\u20ac"}, {});
    Expect(L".", {L"\xd83d\xde00", std::wstring(1, static_cast<wchar_t>(0x1F600)), std::wstring(1, L'\0')}, {});
    Expect(L"[\xd83d\xde00-\xd83d\xde02]", {L"\xd83d\xde01"}, {});
    Expect(L"\uFFFD", {std::wstring(1, static_cast<wchar_t>(0xD83D))}, {});
}

TEST(Pattern, MessagesOfBadPatternsAndViolations)
{
    // The reason is each engine's own.
    const std::wstring message = L"Invalid Regular Expression: \\i(\u00e9 Error: '";
    EXPECT_THAT(MessageOf<CZrException>([] { CXmlObjectHelper::TestRegEx("\\i(\xC3\xA9", L"x"); }),
        testing::AnyOf(message + L"missing )'", message + L"missing closing parenthesis'"));
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
        EXPECT_FALSE(CXmlObjectHelper::TestRegEx("(a+)+$", std::wstring(60, L'a') + L'!'));
        EXPECT_FALSE(CXmlObjectHelper::TestRegEx("((a+)+)+", std::wstring(40, L'a') + L'!'));
    });
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST(Pattern, keeps_AsciiWordsAnchorsAndThePlainTranslation)
{
    Expect(L"\\w", {}, {L"\u00e9"});
    Expect(L"\\i", {}, {L"\u00e9"});
    Expect(L"\\c", {}, {L"\u00e9"});
    Expect(L"^a$", {L"a"}, {L"^a$"});
    Expect(L"a|a\n", {}, {L"a\n"});
    EXPECT_THROW(CXmlObjectHelper::TestRegEx("\\p{IsLatinExtended-B}", L"\u0180"), CZrException);
}

} // namespace
