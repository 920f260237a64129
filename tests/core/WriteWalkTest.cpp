// SPDX-License-Identifier: MIT
#include "support/Failure.h"
#include "support/RecordingWriter.h"

#include <new>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

CSerializationContext FullContext()
{
    CSerializationContext context;
    context.GetProcessingInstructions() = {L"<?one?>", L"<?two?>"};
    context.GetNamespaceAliases().Add(L"b", L"urn:b");
    context.GetNamespaceAliases().Add(L"a", L"urn:a");
    context.SetDefaultNamespaceURI(L"urn:d");
    context.SetInLineSchema(L"<s/>");
    context.GetAdditionalRootAttributes()->Add(L"urn:x", L"1", L"extra");
    return context;
}

const std::string failedOrder = "Validation: Failed to convert the element [order] to XML";

} // namespace

TEST(WriteWalk, EventsOfTheRootInOrder)
{
    const TestClass pseudo = Class(L"inlined").Pseudo().Attr(L"innerId").Prim(L"inner");
    TestClass type = Class(L"orderType").In(L"urn:t").TypeAttribute().Cls(L"inlined", pseudo).Prim(L"qty", ItemType_i4);
    type.Attr(L"id", ItemType_i4).EnumAttr(L"colour").Ns(L"urn:c").AnyAttr(L"any", L"##any").Value(ItemType_string);
    TestObject order(type, L"order");
    order.Add(L"inlined")->Set(L"innerId", L"p").Set(L"inner", L"i");
    order.Set(L"qty", L"5").Set(L"id", L"7").Set(L"colour", L"blue").Set(L"#value", L"text");
    order.Attributes(L"any")->Add(L"", L"v", L"n");
    const std::string own = "type(orderType{urn:t}:23) @id='7':5 @colour{urn:c}='blue':23 @n='v':23 @innerId='p':23 ";
    const std::string content = "<inner 'i':23 > <qty '5':5 > 'text':23 >";
    EXPECT_EQ("PI(<?one?>) PI(<?two?>) NS(a=urn:a) NS(b=urn:b) default(urn:d) <order{urn:t} @extra{urn:x}='1':23 " + own
            + "schema(<s/>) " + content,
        Events(order, FullContext()));
    EXPECT_EQ("<order{urn:t} " + own + content, Events(order, FullContext(), false));
}

TEST(WriteWalk, keeps_InLineSchemaInsideTheStartTag)
{
    TestObject order(Class(L"order").Prim(L"qty"));
    order.Set(L"qty", L"5");
    EXPECT_EQ("<?one?>\n\n<?two?>\n\n<order xmlns=\"urn:d\" xmlns:a=\"urn:a\" xmlns:b=\"urn:b\" xmlns:AA=\"urn:x\" "
              "AA:extra=\"1\" \n<s/>\n><qty>5</qty></order>",
        Write(order, FullContext()));
}

TEST(WriteWalk, TypeAttributeWhereAllowedWantedAndNews)
{
    const TestClass allowed = Class(L"orderType").TypeAttribute(), refused = Class(L"orderType");
    for (int row = 0; row < 8; ++row) {
        const bool wanted = row & 1, news = row & 2, allows = row & 4;
        CSerializationContext context;
        context.SetWriteTypeAttribute(wanted);
        const TestObject order(allows ? allowed : refused, news ? L"order" : L"orderType");
        EXPECT_EQ(wanted && news && allows, Events(order, context).find("type(orderType:23)") != std::string::npos)
            << row;
    }
}

TEST(WriteWalk, NilObjectsAndNilValues)
{
    NillableTestObject nil(Class(L"note").Nil().Prim(L"child").EnumAttr(L"colour").Value(ItemType_string));
    nil.Set(L"colour", L"green").Set(L"child", L"c").Set(L"#value", L"v");
    EXPECT_EQ("<note @colour='green':23 <child 'c':23 > 'v':23 >", Events(nil));
    nil.SetNil(true);
    EXPECT_EQ("<note @colour='green':23 nil >", Events(nil));
    nil.SetNil(false);
    nil[L"#value"].SetNil();
    EXPECT_EQ("<note @colour='green':23 <child 'c':23 > nil >", Events(nil));
}

TEST(WriteWalk, keeps_OnlyTheFirstAlternativeOfAChoice)
{
    const TestClass leaf = Class(L"leaf").Prim(L"x").Opt();
    TestObject order(Class(L"order").Choice().Prim(L"a").Cls(L"b", leaf).Cls(L"c", leaf).Col(2, 3).Enum(L"d"));
    EXPECT_EQ("<order >", Events(order));
    order.Set(L"d", L"blue");
    EXPECT_EQ("<order <d 'blue':23 > >", Events(order));
    // The count of a choice collection is never checked on writing.
    order.Add(L"c")->Set(L"x", L"1");
    EXPECT_EQ("<order <c <x '1':23 > > >", Events(order));
    order.Add(L"b");
    EXPECT_EQ("<order <b > >", Events(order));
    order.Set(L"a", L"0");
    EXPECT_EQ("<order <a '0':23 > >", Events(order));
    // A choice whose members all need something may not be empty.
    const TestObject strict(Class(L"order").Choice().Prim(L"a").Col(1).Enum(L"b").Col(2, 3));
    EXPECT_EQ("<order >", Events(TestObject(Class(L"order").Choice().Prim(L"a").Col(1).Enum(L"b").Col(0, 3))));
    EXPECT_EQ("<order >", Events(strict, {}, true, true));
    EXPECT_EQ(failedOrder
            + " <- Validation: This element is a choice, and as such must have at one (and only one) valid item, "
              "currently there are none set",
        Events(strict));
    CSerializationContext context;
    context.SetIgnoreMissingChoice(true);
    EXPECT_EQ("<order >", Events(strict, context));
}

TEST(WriteWalk, InlineClassesWriteContentOnly)
{
    const TestClass pseudo = Class(L"pseudo").Pseudo().Prim(L"a").Attr(L"id");
    const TestClass group = Class(L"group").Group().Choice().Prim(L"b").Prim(L"c").Attr(L"lost");
    TestObject order(Class(L"order").Cls(L"pseudo", pseudo).Cls(L"group", group).Opt().Cls(L"more", pseudo).Col());
    order.Add(L"pseudo")->Set(L"a", L"1").Set(L"id", L"x");
    order.Add(L"group")->Set(L"c", L"2").Set(L"lost", L"y");
    order.Add(L"more")->Set(L"a", L"3");
    EXPECT_EQ("<order @id='x':23 <a '1':23 > <c '2':23 > <a '3':23 > >", Events(order));
    EXPECT_EQ("<c>2</c>", Write(*order.Child(L"group")));
    NillableTestObject root(Class(L"bare").Group().Nil());
    root.SetNil(true);
    EXPECT_EQ("Validation: Failed to convert the element [bare] to XML <- Zr: Attributes must be added before elements",
        Write(root));
}

TEST(WriteWalk, FailuresAreWrappedOncePerLevel)
{
    const TestClass leaf = Class(L"leafType").Enum(L"colour").Attr(L"id", ItemType_i4).Required();
    const TestClass item = Class(L"itemType").Prim(L"qty").Cls(L"leaf", leaf).Opt();
    TestObject order(Class(L"order").Cls(L"item", item).Col(1, 2));
    const std::string failedItem = failedOrder + " <- Validation: Failed to convert the element [item] to XML";
    const std::string failedLeaf = failedItem + " <- Validation: Failed to convert the element [leaf] to XML";
    const std::string null = " <- InvalidParam: The Property [qty] is mandatory, it may not be NULL";
    EXPECT_EQ(failedOrder + " <- Validation: The Minimum number of [item] elements allowed in this collection is 1",
        Events(order));
    TestObject* const first = order.Add(L"item");
    EXPECT_EQ(failedItem + null, Events(order));
    TestObject* const child = first->Set(L"qty", L"1").Add(L"leaf");
    EXPECT_EQ(0U, Events(order).find(failedLeaf + " <- Zr: Failed to convert attributes to XML <- "));
    child->Set(L"id", L"5").Set(L"colour", L"red");
    order.Add(L"item")->Set(L"qty", L"2");
    const std::string items =
        "<order <item <qty '1':23 > <leaf @id='5':5 <colour 'red':23 > > > <item <qty '2':23 > > ";
    EXPECT_EQ(items + ">", Events(order));
    order.Add(L"item")->Set(L"qty", L"3");
    EXPECT_EQ(failedOrder + " <- Validation: The Maximum number of [item] elements allowed in this collection is 2",
        Events(order));
    CSerializationContext tolerant;
    tolerant.SetIgnoreInvalidCollectionCounts(true);
    EXPECT_EQ(items + "<item <qty '3':23 > > >", Events(order, tolerant));
}

TEST(WriteWalk, FailingAccessors)
{
    TestObject order(Class(L"order").Prim(L"qty").Attr(L"id"));
    order.m_onAccess = [](const std::wstring& property, bool) {
        if (property == L"qty")
            throw CZrInvalidStateException(L"boom");
    };
    EXPECT_EQ(failedOrder + " <- InvalidState: boom", Write(order));
    order.m_onAccess = [](const std::wstring&, bool) { throw CZrException(L"boom", std::wstring(L"/a")); };
    EXPECT_EQ(failedOrder + " <- Zr: Failed to convert attributes to XML <- Zr: boom\nPath: /a", Write(order));
    // Other exceptions pass unchanged.
    order.m_onAccess = [](const std::wstring&, bool) { throw std::bad_alloc(); };
    EXPECT_THROW(order.ToXml(), std::bad_alloc);
}

TEST(WriteWalk, keeps_TwoNamesForAnUnknownGroup)
{
    const TestClass type = Class(L"order").GroupType(7).Prim(L"qty");
    EXPECT_EQ(failedOrder + " <- Zr: Unknown XML Group Type", Write(TestObject(type)));
    EXPECT_EQ(Unprocessed("/order", "Zr: Unknown Group Type"), Read(type, L"<order/>"));
}

TEST(WriteWalk, AllGroupsKeepTheDeclaredOrder)
{
    TestObject order(Class(L"order").All().Prim(L"b").Opt().Enum(L"a"));
    order.Set(L"a", L"red").Set(L"b", L"1");
    EXPECT_EQ("<order><b>1</b><a>red</a></order>", Write(order));
}
