// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/FIVocabulary.h"
#include "support/TestText.h"

#include <iterator>

using namespace ZrXmlLib16;

namespace {

constexpr unsigned long LIMIT = 1048576;

std::vector<unsigned long> Parts(const CFIVocabulary::CQNameParts& name)
{
    return {name.m_prefix, name.m_namespace, name.m_local};
}

} // namespace

TEST(FIVocabulary, StartsWithTheBuiltInEntries)
{
    CFIVocabulary vocabulary;
    unsigned long index = 0;
    EXPECT_TRUE(vocabulary.FindPrefixNameIndex(L"xml", index));
    EXPECT_EQ(index, 1U);
    index = 0;
    EXPECT_TRUE(vocabulary.FindNamespaceNameIndex(L"http://www.w3.org/XML/1998/namespace", index));
    EXPECT_EQ(index, 1U);
    EXPECT_EQ(vocabulary.GetPrefixNamesTable().at(1), L"xml");
    EXPECT_EQ(vocabulary.GetNamespaceNamesTable().at(1), L"http://www.w3.org/XML/1998/namespace");
    EXPECT_EQ(vocabulary.GetRestrictedAlphabet(2), L"0123456789-:TZ ");
    EXPECT_EQ(vocabulary.GetRestrictedAlphabet(0), L"");
    EXPECT_EQ(vocabulary.GetRestrictedAlphabet(3), L"");
    EXPECT_EQ(vocabulary.GetPrefixNamesTable().size(), 1U);
    EXPECT_EQ(vocabulary.GetNamespaceNamesTable().size(), 1U);
    EXPECT_EQ(vocabulary.GetLocalNamesTable().size() + vocabulary.GetAttributeNamesTable().size()
            + vocabulary.GetAttributeValuesTable().size() + vocabulary.GetElementNamesTable().size()
            + vocabulary.GetCharacterChunksTable().size(),
        0U);

    vocabulary.AddPrefixName(L"p");
    EXPECT_TRUE(vocabulary.FindPrefixNameIndex(L"p", index));
    EXPECT_EQ(index, 2U);
    EXPECT_FALSE(vocabulary.FindPrefixNameIndex(L"q", index));
    EXPECT_FALSE(vocabulary.FindLocalNameIndex(L"p", index));
    EXPECT_EQ(index, 2U) << "left alone when nothing is found";
}

TEST(FIVocabulary, keeps_NumericAlphabetWithoutUpperCaseE)
{
    EXPECT_EQ(CFIVocabulary().GetRestrictedAlphabet(1), L"0123456789-+.e ");
}

TEST(FIVocabulary, keeps_AppendingTextsThatAreThere)
{
    CFIVocabulary vocabulary;
    for (const wchar_t* value : {L"a", L"b", L"a"}) {
        vocabulary.AddAttributeValue(value);
        vocabulary.AddElementValue(value);
    }
    unsigned long index = 0;
    EXPECT_TRUE(vocabulary.FindIndex(vocabulary.GetAttributeValuesMap(), L"a", index));
    EXPECT_EQ(index, 1U);
    EXPECT_EQ(vocabulary.GetAttributeValuesMap().size(), 2U);
    EXPECT_EQ(vocabulary.GetCharacterChunksMap().at(L"b"), 2U);
    const auto& values = vocabulary.GetAttributeValuesTable();
    EXPECT_EQ(std::vector<std::wstring>(values.begin(), values.end()), (std::vector<std::wstring>{L"a", L"b", L"a"}));
    EXPECT_EQ(vocabulary.GetCharacterChunksTable().at(3), L"a");
}

TEST(FIVocabulary, AddsQualifiedNamesByTheirParts)
{
    const struct {
        const wchar_t* prefix;
        const wchar_t* namespaceUri;
        const wchar_t* local;
        std::vector<unsigned long> parts; // empty: the name is there already
    } cases[] = {
        {L"", L"", L"a", {0, 0, 1}},
        {L"", L"", L"a", {}},
        {L"p", L"urn:p", L"a", {2, 2, 1}},
        {L"q", L"urn:p", L"a", {3, 2, 1}},
        {L"", L"urn:p", L"a", {0, 2, 1}},
        {L"xml", L"http://www.w3.org/XML/1998/namespace", L"lang", {1, 1, 2}},
        {L"q", L"urn:p", L"a", {}},
    };
    CFIVocabulary vocabulary;
    unsigned long size = 0;
    for (const auto& row : cases) {
        vocabulary.AddAttribute(row.prefix, row.namespaceUri, row.local);
        size += row.parts.empty() ? 0 : 1;
        ASSERT_EQ(vocabulary.GetAttributeNamesTable().size(), size);
        if (!row.parts.empty()) {
            EXPECT_EQ(Parts(vocabulary.GetAttributeNamesTable().at(size)), row.parts);
        }
    }
    EXPECT_EQ(vocabulary.GetElementNamesTable().size(), 0U);
    vocabulary.AddElement(L"q", L"urn:p", L"b");
    EXPECT_EQ(Parts(*vocabulary.GetElementNamesTable().begin()), (std::vector<unsigned long>{3, 2, 3}));
    EXPECT_EQ(vocabulary.GetElementNamesMap().at(L"b\001urn:p\001q"), 1U);
    EXPECT_EQ(vocabulary.GetAttributeNamesMap().at(L"a\001\001"), 1U);
}

TEST(FIVocabulary, CopiesDeeply)
{
    CFIVocabulary original;
    original.AddElement(L"p", L"urn:p", L"a");
    CFIVocabulary copy(original);
    copy.AddElement(L"p", L"urn:p", L"b");
    CFIVocabulary assigned;
    assigned = copy;
    assigned.AddLocalName(L"c");
    EXPECT_EQ(original.GetLocalNamesTable().size(), 1U);
    EXPECT_EQ(original.GetElementNamesMap().size(), 1U);
    EXPECT_EQ(copy.GetLocalNamesTable().size(), 2U);
    EXPECT_EQ(copy.GetElementNamesTable().size(), 2U);
    EXPECT_EQ(assigned.GetLocalNamesMap().at(L"c"), 3U);
    EXPECT_EQ(copy.GetPrefixNamesMap().at(L"p"), 2U);
}

TEST(FIVocabulary, StopsGrowingWhenFull)
{
    CFIVocabulary vocabulary;
    for (unsigned long i = 0; i <= LIMIT; ++i) {
        vocabulary.AddAttributeValue(std::to_wstring(i));
        vocabulary.AddQNameToVector(0, 0, i, vocabulary.GetElementNamesTable());
    }
    unsigned long index = 0;
    EXPECT_TRUE(vocabulary.FindIndex(vocabulary.GetAttributeValuesMap(), std::to_wstring(LIMIT - 1), index));
    EXPECT_EQ(index, LIMIT);
    EXPECT_FALSE(vocabulary.FindIndex(vocabulary.GetAttributeValuesMap(), std::to_wstring(LIMIT), index));
    EXPECT_EQ(vocabulary.GetAttributeValuesMap().size(), LIMIT);
    EXPECT_EQ(vocabulary.GetAttributeValuesTable().size(), LIMIT);
    EXPECT_EQ(vocabulary.GetElementNamesTable().size(), LIMIT);
}
