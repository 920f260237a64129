// SPDX-License-Identifier: MIT
// Which documents each group of records accepts, judged by regular expressions over all short documents.
#include "support/Failure.h"

#include <algorithm>
#include <cctype>
#include <regex>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

/// All texts over the letters up to a length, the empty one included.
std::vector<std::string> AllTexts(const std::string& letters, std::size_t length)
{
    std::vector<std::string> texts = {""};
    for (std::size_t begin = 0, end = 1; length--; begin = end, end = texts.size())
        for (std::size_t i = begin; i < end; ++i)
            for (char letter : letters)
                texts.push_back(texts[i] + letter);
    return texts;
}

/// The elements that arrived in the object, in declared order, or the failure.
std::string ReadBack(const TestClass& type, const std::string& letters, const CSerializationContext& context)
{
    const CSmartPtr<TestObject> object = type.Create(L"r");
    std::string xml = "<r>";
    for (char letter : letters)
        xml += std::string("<") + letter + "/>";
    const std::string failure = FailureOf([&] { object->FromXml((xml + "</r>").c_str(), context); });
    if (!failure.empty())
        return failure;
    // Values read "a=", children and items "a{"; longer names are groups.
    const std::string description = "{" + Narrow(DescribeObject(*object)) + "}}";
    const auto isName = [&](std::size_t at) { return description[at] >= 'a' && description[at] <= 'e'; };
    std::string text;
    for (std::size_t at = 1; at + 3 < description.length(); ++at) {
        const char next = description[at + 1];
        const bool isHolder = description[at + 2] == '[' || (isName(at + 2) && description[at + 3] == '{');
        if (isName(at) && !std::isalpha(description[at - 1]) && (next == '{' || (next == '=' && !isHolder)))
            text += description[at];
    }
    return text;
}

std::string Sorted(std::string text)
{
    std::sort(text.begin(), text.end());
    return text;
}

const TestClass& Leaf()
{
    static const TestClass leaf = Class(L"leaf");
    return leaf;
}

TestClass Group(const wchar_t* name)
{
    return Class(name).Group();
}

/// Only the texts of the language arrive completely.
void ExpectLanguage(const std::string& language, const TestClass& type, const CSerializationContext& context)
{
    const std::regex expression(language);
    for (const std::string& text : AllTexts("abcdx", 4)) {
        const std::string result = ReadBack(type, text, context);
        ASSERT_EQ(std::regex_match(text, expression), Sorted(result) == Sorted(text))
            << language << ": " << text << " " << result;
    }
}

class Cursor : public testing::Test {
protected:
    Cursor()
    {
        m_tolerant.SetIgnoreUnknownElements(true);
        m_incomplete.SetIgnoreMissingMandatoryElements(true);
    }
    CSerializationContext m_strict, m_tolerant, m_incomplete;
};

} // namespace

TEST_F(Cursor, SequencesAcceptExactlyTheirLanguage)
{
    const TestClass pair = Group(L"pair").Prim(L"a").Prim(L"b");
    const TestClass either = Group(L"either").Choice().Prim(L"a").Col(1).Prim(L"b").Col(1);
    const TestClass both = Group(L"both").All().Prim(L"a").Prim(L"b").Opt();
    const TestClass longer =
        Group(L"longer").Prim(L"a").Cls(L"either", Group(L"").Choice().Prim(L"b").Prim(L"c")).Opt();
    const TestClass many = Group(L"many").Prim(L"a").Col(1, 2).Prim(L"b").Opt();
    const struct {
        const char* language;
        const char* incomplete;
        TestClass type;
    } models[] = {
        {"", "", Class(L"r")},
        {"ab?c*d", "a?b?c*d?", Class(L"r").Prim(L"a").Prim(L"b").Opt().Prim(L"c").Col().Prim(L"d")},
        {"a{1,2}b{2}", "a{1,2}b{2}", Class(L"r").Plain(L"a", Leaf()).Col(1, 2).Cls(L"b", Leaf()).Col(2, 2)},
        {"abc?", "(ab)?c?", Class(L"r").Cls(L"pair", pair).Prim(L"c").Opt()},
        {"(ab)?c", "(ab)?c?", Class(L"r").Cls(L"pair", pair).Opt().Prim(L"c")},
        {"(ab)?ac", "(ab)?a?c?", Class(L"r").Cls(L"pair", pair).Opt().Prim(L"a").Prim(L"c")},
        {"(ab)*c", "(ab)*c?", Class(L"r").Cls(L"pair", pair).Col().Prim(L"c")},
        {"(ab){1,2}", "(ab){1,2}", Class(L"r").Cls(L"pair", pair).Col(1, 2)},
        {"(a+|b+)c", "(a+|b+)?c?", Class(L"r").Cls(L"either", either).Prim(L"c")},
        {"(a+|b+)?c", "(a+|b+)?c?", Class(L"r").Cls(L"either", either).Opt().CreateInline().Prim(L"c")},
        {"(a|ab|ba)c", "(a|ab|ba)?c?", Class(L"r").Cls(L"both", both).CreateInline().Prim(L"c")},
        {"(a[bc]?)d?", "(a[bc]?)?d?", Class(L"r").Cls(L"longer", longer).Prim(L"d").Opt()},
        {"(a[bc]?)*d", "(a[bc]?)*d?", Class(L"r").Cls(L"longer", longer).Col().Prim(L"d")},
        {"(a{1,2}b?)?c", "(a{1,2}b?)?c?", Class(L"r").Cls(L"many", many).Opt().Prim(L"c")},
        // An item that finds nothing ends the collection, although nothing of it is missing.
        {"a*b", "a*b?", Class(L"r").Cls(L"option", Group(L"option").Prim(L"a").Opt()).Col().Prim(L"b")},
        // The alternatives of a choice are optional, so one without any is satisfied.
        {"[ab]?c", "[ab]?c?", Class(L"r").Cls(L"g", Group(L"").Choice().Prim(L"a").Prim(L"b")).Prim(L"c")},
    };
    for (const auto& model : models) {
        ExpectLanguage(model.language, model.type, m_strict);
        ExpectLanguage(model.incomplete, model.type, m_incomplete);
    }
}

TEST_F(Cursor, UnknownElementsBetweenKnownOnes)
{
    const std::pair<const char*, TestClass> models[] = {
        {"a", Class(L"r").Prim(L"a")},
        {"ab?c?", Class(L"r").Prim(L"a").Prim(L"b").Opt().Prim(L"c").Opt()},
        {"b?a", Class(L"r").Prim(L"b").Opt().Prim(L"a")},
        {"ab?dc*", Class(L"r").Prim(L"a").Cls(L"b", Leaf()).Opt().Cls(L"d", Leaf()).Prim(L"c").Col()},
        {"a?b?", Class(L"r").Cls(L"a", Leaf()).Opt().Prim(L"b").Opt()},
    };
    for (const auto& model : models) {
        const std::regex language(model.first);
        for (const std::string& text : AllTexts("abcdx", 5)) {
            const std::string known = std::regex_replace(text, std::regex("x"), "");
            ASSERT_TRUE(!std::regex_match(known, language) || known == ReadBack(model.second, text, m_tolerant))
                << model.first << ": " << text;
        }
    }
}

TEST_F(Cursor, UnknownElementsThatCostKnownOnes)
{
    const TestClass pair = Group(L"pair").Prim(L"a").Prim(L"b");
    const TestClass option = Group(L"option").Prim(L"a").Opt();
    const struct {
        const char* text;
        std::string expected;
        TestClass type;
    } cases[] = {
        // The skip of a mandatory record passes over the rest of a collection.
        {"axab", "ab", Class(L"r").Prim(L"a").Col().Prim(L"b")},
        {"axa", "aa", Class(L"r").Prim(L"a").Col()},
        {"ba", "a", Class(L"r").Prim(L"a").Prim(L"b").Opt()},
        // An inline group that was read is not read again.
        {"abxab", "ab", Class(L"r").Cls(L"pair", pair)},
        {"abx", "ab", Class(L"r").Cls(L"pair", pair)},
        {"ax", "a", Class(L"r").Cls(L"option", option).Opt()},
        {"axc", "ac", Class(L"r").Cls(L"option", option).Prim(L"c")},
        {"xab", "ab", Class(L"r").Cls(L"pair", pair)},
        {"axb", "ab", Class(L"r").Cls(L"pair", pair)},
        {"x", "", Class(L"r").Cls(L"option", option).Opt()},
    };
    for (const auto& row : cases)
        EXPECT_EQ(row.expected, ReadBack(row.type, row.text, m_tolerant)) << row.text;
}

TEST_F(Cursor, AllGroupsAcceptAnyOrder)
{
    const TestClass models[] = {
        Class(L"r").All().Prim(L"a").Prim(L"b").Opt().Prim(L"c").Col(0, 3).Prim(L"d"),
        Class(L"r").All().Prim(L"c").Col(0, 3).Cls(L"d", Leaf()).Cls(L"b", Leaf()).Opt().Cls(L"a", Leaf()),
    };
    for (const TestClass& type : models) {
        for (const std::string& text : AllTexts("abcdx", 5)) {
            const auto count = [&](char letter) { return std::count(text.begin(), text.end(), letter); };
            const bool once = count('a') <= 1 && count('b') <= 1 && count('d') <= 1, known = count('x') == 0;
            const bool complete = count('a') && count('d'), fits = count('c') <= 3;
            std::string firsts(static_cast<std::size_t>(count('c')), 'c');
            for (char letter : {'a', 'b', 'd'})
                firsts += count(letter) ? std::string(1, letter) : "";
            EXPECT_EQ(once && known && complete && fits, Sorted(ReadBack(type, text, m_strict)) == Sorted(text))
                << text;
            EXPECT_EQ(once && known && fits, Sorted(ReadBack(type, text, m_incomplete)) == Sorted(text)) << text;
            // A repeated member is an unknown child.
            EXPECT_EQ(complete && fits, Sorted(ReadBack(type, text, m_tolerant)) == Sorted(firsts)) << text;
        }
    }
}

TEST_F(Cursor, ChoicesTakeOneAlternative)
{
    const TestClass pair = Group(L"pair").Prim(L"a").Prim(L"b"), other = Group(L"other").Prim(L"a").Prim(L"c");
    const TestClass repeated = Group(L"repeated").Prim(L"b").Col(1).Prim(L"a");
    const std::pair<const char*, TestClass> models[] = {
        {"[abc]?", Class(L"r").Choice().Prim(L"a").Cls(L"b", Leaf()).Prim(L"c")},
        {"a|b{1,2}|c",
            Class(L"r").Choice().Prim(L"b").Col(1, 2).Cls(L"a", Leaf()).Col(1, 1).Plain(L"c", Leaf()).Col(1, 1)},
        {"a|b*|c", Class(L"r").Choice().Prim(L"b").Col().Prim(L"a").Prim(L"c")},
        {"(ab|ac|d)?", Class(L"r").Choice().Cls(L"pair", pair).Cls(L"other", other).CreateInline().Prim(L"d")},
        {"(ab)*|ac|d", Class(L"r").Choice().Cls(L"pair", pair).Col().Cls(L"other", other).Prim(L"d")},
        {"(b+a|b)?", Class(L"r").Choice().Cls(L"repeated", repeated).Prim(L"b")},
    };
    for (const auto& model : models)
        ExpectLanguage(model.first, model.second, m_strict);
}

TEST_F(Cursor, ChoiceSkipsToItsFirstAlternative)
{
    const TestClass type = Class(L"r").Choice().Prim(L"b").Col(1, 2).Prim(L"a").Cls(L"c", Leaf());
    for (const std::string& text : AllTexts("abcx", 5)) {
        std::string rest = text.substr(std::min(text.find_first_not_of('x'), text.length()));
        const std::size_t run = rest[0] == 'b' ? std::min(rest.find_first_not_of('b'), rest.length())
                                               : std::min<std::size_t>(1, rest.length());
        const std::string result = ReadBack(type, text, m_tolerant);
        if (rest[0] == 'b' && run > 2)
            ASSERT_EQ(0U, result.find("Validation: Failed to process the element.")) << text;
        else
            ASSERT_EQ(rest.substr(0, run), result) << text;
    }
}

TEST_F(Cursor, Failures)
{
    const TestClass choice = Class(L"r").Choice().Prim(L"a").Col(1).Prim(L"b").Col(2);
    const TestClass lax = Class(L"r").Choice().Prim(L"a");
    const TestClass all = Class(L"r").All().Prim(L"a").Prim(L"c").Col(2, 3).Enum(L"e").Opt();
    const TestClass pair = Group(L"pair").Prim(L"a").Prim(L"b");
    const TestClass sequence = Class(L"r").Cls(L"pair", pair).Cls(L"c", Leaf()).Prim(L"d");
    const std::string empty =
        "Zr: No child elements within the element [r] were populated. The element represents a choice, so one and only "
        "one element should be populated. The element contained no sutable child elements\nPath: /r";
    const std::string leftover = LeftOver("/r", "r", "x"), invalid = Unprocessed("/r", "Validation: ");
    const std::string missing = "Zr: Failed to find the required child element [";
    CSerializationContext lenient;
    lenient.SetIgnoreMissingChoice(true);
    const struct {
        TestClass type;
        const CSerializationContext& context;
        const char* text;
        std::string failure;
    } cases[] = {
        {choice, m_strict, "", empty},
        {choice, m_tolerant, "xx", empty},
        {choice, m_strict, "b", invalid + "The Minimum number of [b] elements allowed in this collection is 2"},
        {choice, lenient, "", ""},
        {choice, lenient, "x", leftover},
        {lax, m_strict, "ax", leftover},
        {all, m_strict, "cc", invalid + "Failed to find the mandatory element [a]."},
        {all, m_strict, "aa", LeftOver("/r", "r", "a")},
        {all, m_strict, "a", invalid + "The Minimum number of [c] elements allowed in this collection is 2"},
        {all, m_strict, "acccc", invalid + "The Maximum number of [c] elements allowed in this collection is 3"},
        {sequence, m_strict, "acd", missing + "pair].\nPath: /r"},
        {sequence, m_strict, "ab", missing + "c].\nPath: /r"},
        {sequence, m_strict, "abcx", missing + "d].\nPath: /r"},
        {sequence, m_tolerant, "abcx", missing + "d].\nPath: /r"},
        {sequence, m_strict, "abcdx", leftover},
    };
    for (const auto& row : cases)
        EXPECT_EQ(row.failure, ReadBack(row.type, row.text, row.context)) << row.text;
}

TEST_F(Cursor, CollectionCountsMayBeIgnored)
{
    const TestClass type = Class(L"r").Prim(L"a").Col(2, 2).Prim(L"b").Col(1, 1);
    CSerializationContext lenient;
    lenient.SetIgnoreInvalidCollectionCounts(true);
    for (const char* text : {"", "a", "aaa", "b", "bb", "aaabbb"}) {
        EXPECT_EQ(text, ReadBack(type, text, lenient));
        EXPECT_EQ(0U, ReadBack(type, text, m_strict).find("Validation: ")) << text;
    }
}
