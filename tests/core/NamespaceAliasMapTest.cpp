// SPDX-License-Identifier: MIT
#include "support/Failure.h"

using namespace ZrXmlLib16;
using namespace TestSupport;

TEST(NamespaceAliasMap, LooksUpBothWaysInTheOrderOfTheUris)
{
    CNamespaceAliasMap map;
    const std::pair<const wchar_t*, const wchar_t*> added[] = {
        {L"z", L"urn:b"}, {L"y", L"urn:a"}, {L"p", L"urn:B"}, {L"p", L"urn:a"}};
    for (const auto& row : added)
        map.Add(row.first, row.second);
    ASSERT_EQ(3, map.GetNamespaceCount());
    const std::pair<const wchar_t*, const wchar_t*> expected[] = {{L"urn:B", L"p"}, {L"urn:a", L"p"}, {L"urn:b", L"z"}};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(expected[i].first, map.GetNamespaceAt(i));
        EXPECT_EQ(expected[i].second, map.GetAliasFromNamespace(expected[i].first));
    }
    EXPECT_EQ(L"urn:B", map.GetNamespaceFromAlias(L"p"));
    EXPECT_TRUE(map.DoesAliasExist(L"p"));
    for (const wchar_t* alias : {L"P", L"", L"y"})
        EXPECT_FALSE(map.DoesAliasExist(alias));
    map.RemoveNamespace(L"urn:B");
    map.RemoveNamespace(L"urn:B");
    EXPECT_FALSE(map.DoesNamespaceExist(L"urn:B"));
    EXPECT_EQ(L"urn:a", map.GetNamespaceFromAlias(L"p"));
    EXPECT_EQ("Zr: Namespace alias [q] not found", FailureOf([&] { map.GetNamespaceFromAlias(L"q"); }));
}

TEST(NamespaceAliasMap, keeps_LookupOfAnUnknownUriInsertingAnEmptyAlias)
{
    CSerializationContext context;
    const CNamespaceAliasMap& map = context.GetNamespaceAliases();
    EXPECT_EQ(L"", map.GetAliasFromNamespace(L"urn:x"));
    EXPECT_EQ(1, map.GetNamespaceCount());
    EXPECT_EQ(L"urn:x", map.GetNamespaceFromAlias(L""));
    // It is not declared.
    TestObject object(Class(L"order").In(L"urn:x").Prim(L"qty").Ns(L"urn:x"));
    object.Set(L"qty", L"1");
    EXPECT_EQ("<AA:order xmlns:AA=\"urn:x\"><AA:qty>1</AA:qty></AA:order>", Write(object, context));
}
