// SPDX-License-Identifier: MIT
#include "support/Failure.h"

#include <gmock/gmock.h>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

std::wstring Order(const wchar_t* attributes, const wchar_t* content)
{
    return std::wstring(L"<order xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' ") + attributes + L">" + content
        + L"</order>";
}

const std::string failed = "Zr: Failed to process the element.\nPath: /order <- ";

} // namespace

TEST(InlineGroup, ClaimsTheAttributesOfItsParent)
{
    const TestClass pseudo = Class(L"pseudo").Pseudo().AnyAttributes().Prim(L"a").Attr(L"innerId").Required();
    const TestClass type = Class(L"order").AnyAttributes().Cls(L"pseudo", pseudo).Attr(L"id");
    EXPECT_EQ("order{pseudo=pseudo{a=1,innerId=x},id=5}", Read(type, Order(L"id='5' innerId='x'", L"<a>1</a>")));
    EXPECT_EQ(failed + "Validation: Failed to find the required Attribute [innerId].",
        Read(type, Order(L"id='5'", L"<a>1</a>")));
    TestObject order(type);
    order.Add(L"pseudo")->Set(L"a", L"1").Set(L"innerId", L"x");
    order.Set(L"id", L"5");
    EXPECT_EQ("<order id=\"5\" innerId=\"x\"><a>1</a></order>", Write(order));
    // A group of the schema has no attributes to write.
    TestObject other(Class(L"order").Cls(L"group", Class(L"group").Group().Prim(L"a").Attr(L"innerId")));
    other.Add(L"group")->Set(L"a", L"1").Set(L"innerId", L"x");
    EXPECT_EQ("<order><a>1</a></order>", Write(other));
}

TEST(InlineGroup, AlternativeThatIsOnlyAttributes)
{
    const TestClass first = Class(L"first").Pseudo().AnyAttributes().Prim(L"a").Opt().Attr(L"x");
    const TestClass type = Class(L"order").AnyAttributes().Choice().Cls(L"first", first).Prim(L"b");
    EXPECT_EQ("order{first=first{x=1}}", Read(type, Order(L"x='1'", L"")));
    EXPECT_EQ("order{b=2}", Read(type, Order(L"", L"<b>2</b>")));
    EXPECT_EQ("order{}", Read(type, Order(L"", L"")));
}

TEST(InlineGroup, CollectionThatTakesNothingLeavesTheChoiceToOthers)
{
    const TestClass group = Class(L"group").Group().Prim(L"a");
    const TestClass type = Class(L"order").Choice().Cls(L"group", group).Col().Prim(L"b");
    EXPECT_EQ("order{group=[group{a=1},group{a=2}]}", Read(type, Order(L"", L"<a>1</a><a>2</a>")));
    EXPECT_THAT(Read(type, Order(L"", L"<b>3</b>")), testing::EndsWith("b=3}"));
}

TEST(InlineGroup, NilOfTheParentIsNotTheGroups)
{
    const TestClass plain = Class(L"p").Group().Prim(L"a").Opt();
    const TestClass nillable = Class(L"n").Group().Nil().Prim(L"b").Opt();
    const TestClass type = Class(L"order").Nil().Cls(L"plain", plain).Cls(L"nillable", nillable);
    EXPECT_EQ(
        "order{plain=plain{a=1},nillable=nillable{b=2}}", Read(type, Order(L"xsi:nil='false'", L"<a>1</a><b>2</b>")));
    EXPECT_EQ("order=nil", Read(type, Order(L"xsi:nil='true'", L"<a>1</a>")));
    EXPECT_EQ("Zr: Invalid use of 'nil' attribute in non-nillable element.\nPath: /order",
        Read(Class(L"order").Cls(L"nillable", nillable), Order(L"xsi:nil='true'", L"")));
}

TEST(InlineGroup, ObjectComesFromThePropertyOrTheFactory)
{
    const TestClass group = Class(L"group").Group().Prim(L"a");
    const std::pair<bool, TestClass> cases[] = {{true, Class(L"order").Cls(L"group", group).Held()},
        {true, Class(L"order").Cls(L"group", group).Opt().Held()},
        {false, Class(L"order").Cls(L"group", group).Held().CreateInline()},
        {false, Class(L"order").Cls(L"group", group)}};
    for (const auto& row : cases) {
        SCOPED_TRACE(&row - cases);
        TestObject order(row.second);
        CSmartPtr<TestObject> before;
        order.m_onAccess = [&](const std::wstring&, bool) {
            if (!before)
                before = order.Child(L"group");
        };
        order.FromXml("<order><a>1</a></order>");
        EXPECT_EQ(L"order{group=group{a=1}}", DescribeObject(order));
        EXPECT_EQ(row.first, before && order.Child(L"group") == before.GetPtr());
        EXPECT_EQ(1, order.Child(L"group")->m_initCount);
    }
}

TEST(InlineGroup, AbsentOptionalGroupIsNotStored)
{
    const TestClass group = Class(L"group").Group().Prim(L"a").Opt();
    EXPECT_EQ("order{b=1}", Read(Class(L"order").Cls(L"group", group).Opt().Prim(L"b"), L"<order><b>1</b></order>"));
    EXPECT_EQ(
        "order{group=group{},b=1}", Read(Class(L"order").Cls(L"group", group).Prim(L"b"), L"<order><b>1</b></order>"));
}

TEST(InlineGroup, FailuresInsideNameTheParentElement)
{
    const TestClass innermost = Class(L"innermost").Group().Prim(L"a", ItemType_i4);
    const TestClass group = Class(L"group").Group().Cls(L"innermost", innermost);
    const TestClass type = Class(L"order").Cls(L"group", group);
    EXPECT_EQ(
        failed + "InvalidValue: The value [x] can not be converted to a i4", Read(type, L"<order><a>x</a></order>"));
    TestObject order(type);
    order.Add(L"group")->Add(L"innermost");
    EXPECT_EQ("Validation: Failed to convert the element [order] to XML <- Validation: Failed to convert the element "
              "[group] to XML <- Validation: Failed to convert the element [innermost] to XML <- InvalidParam: The "
              "Property [a] is mandatory, it may not be NULL",
        Write(order));
}
