// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/NamespaceAliasMap.h"

#include "support/Failure.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

using namespace ZrXmlLib16;
using namespace TestSupport;

TEST(NamespaceAliasMap, IsOrderedByUri)
{
    CNamespaceAliasMap map;
    map.Add(L"z", L"urn:b");
    map.Add(L"y", L"urn:a");
    map.Add(L"x", L"urn:B");
    map.Add(L"y2", L"urn:a");
    ASSERT_EQ(3, map.GetNamespaceCount());
    const wchar_t* const expected[][2] = {{L"urn:B", L"x"}, {L"urn:a", L"y2"}, {L"urn:b", L"z"}};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(expected[i][0], map.GetNamespaceAt(i));
        EXPECT_EQ(expected[i][1], map.GetAliasFromNamespace(expected[i][0]));
    }
}

TEST(NamespaceAliasMap, LooksUpBothWays)
{
    CNamespaceAliasMap map;
    map.Add(L"p", L"urn:2");
    map.Add(L"p", L"urn:1");
    EXPECT_EQ(L"urn:1", map.GetNamespaceFromAlias(L"p"));
    EXPECT_TRUE(map.DoesAliasExist(L"p"));
    EXPECT_FALSE(map.DoesAliasExist(L"P"));
    EXPECT_FALSE(map.DoesAliasExist(L""));
    EXPECT_TRUE(map.DoesNamespaceExist(L"urn:1"));
    map.RemoveNamespace(L"urn:1");
    map.RemoveNamespace(L"urn:1");
    EXPECT_FALSE(map.DoesNamespaceExist(L"urn:1"));
    EXPECT_EQ(L"urn:2", map.GetNamespaceFromAlias(L"p"));
    EXPECT_EQ("Zr: Namespace alias [q] not found", FailureOf([&] { map.GetNamespaceFromAlias(L"q"); }));
}

TEST(NamespaceAliasMap, keeps_LookupOfAnUnknownUriInsertingAnEmptyAlias)
{
    const CNamespaceAliasMap map;
    EXPECT_EQ(L"", map.GetAliasFromNamespace(L"urn:x"));
    EXPECT_EQ(1, map.GetNamespaceCount());
    EXPECT_TRUE(map.DoesAliasExist(L""));
    EXPECT_EQ(L"urn:x", map.GetNamespaceFromAlias(L""));
}

TEST(NamespaceAliasMap, EmptyAliasIsNotDeclared)
{
    const TestClass type = Class(L"order").In(L"urn:x").Prim(L"qty").Ns(L"urn:x").Opt();
    TestObject object(type);
    object.Set(L"qty", L"1");
    CSerializationContext context;
    context.GetNamespaceAliases().GetAliasFromNamespace(L"urn:x");
    EXPECT_EQ("<AA:order xmlns:AA=\"urn:x\"><AA:qty>1</AA:qty></AA:order>", Write(object, context));
}
