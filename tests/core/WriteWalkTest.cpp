// SPDX-License-Identifier: MIT
#include "support/Failure.h"
#include "support/RecordingWriter.h"

#include <gtest/gtest.h>

#include <new>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

std::string Events(
    const TestObject& object, const CSerializationContext& context, bool isRoot = true, bool isOptional = false)
{
    RecordingWriter writer;
    const std::string failure =
        FailureOf([&] { object.ToXml_Int(&writer, isRoot, object.GetNamespace().c_str(), context, isOptional); });
    return failure.empty() ? writer.m_events : failure;
}

void FillContext(CSerializationContext& context)
{
    context.GetProcessingInstructions().push_back(L"<?one?>");
    context.GetProcessingInstructions().push_back(L"<?two?>");
    context.GetNamespaceAliases().Add(L"b", L"urn:b");
    context.GetNamespaceAliases().Add(L"a", L"urn:a");
    context.SetDefaultNamespaceURI(L"urn:d");
    context.SetInLineSchema(L"<s/>");
    context.GetAdditionalRootAttributes()->Add(L"urn:x", L"1", L"extra");
}

const std::string failedOrder = "Validation: Failed to convert the element [order] to XML";

} // namespace

TEST(WriteWalk, EventsOfTheRootInOrder)
{
    const TestClass pseudo = Class(L"inlined").Pseudo().Attr(L"innerId").Prim(L"inner");
    const TestClass type = Class(L"orderType")
                               .In(L"urn:t")
                               .TypeAttribute()
                               .Cls(L"inlined", pseudo)
                               .Prim(L"qty", ItemType_i4)
                               .Attr(L"id", ItemType_i4)
                               .EnumAttr(L"colour")
                               .Ns(L"urn:c")
                               .AnyAttr(L"any", L"##any")
                               .Value(ItemType_string);
    TestObject order(type, L"order");
    order.Add(L"inlined")->Set(L"innerId", L"p").Set(L"inner", L"i");
    order.Set(L"qty", L"5").Set(L"id", L"7").Set(L"colour", L"blue").Set(L"#value", L"text");
    order.Attributes(L"any")->Add(L"", L"v", L"n");
    CSerializationContext context;
    FillContext(context);
    const std::string own = "type(orderType{urn:t}:23) @id='7':5 @colour{urn:c}='blue':23 @n='v':23 @innerId='p':23 ";
    const std::string content = "<inner 'i':23 > <qty '5':5 > 'text':23 >";
    EXPECT_EQ("PI(<?one?>) PI(<?two?>) NS(a=urn:a) NS(b=urn:b) default(urn:d) <order{urn:t} @extra{urn:x}='1':23 " + own
            + "schema(<s/>) " + content,
        Events(order, context));
    EXPECT_EQ("<order{urn:t} " + own + content, Events(order, context, false));
}

TEST(WriteWalk, keeps_InLineSchemaInsideTheStartTag)
{
    const TestClass type = Class(L"order").Prim(L"qty").Opt();
    TestObject order(type);
    order.Set(L"qty", L"5");
    CSerializationContext context;
    FillContext(context);
    EXPECT_EQ("<?one?>\n\n<?two?>\n\n<order xmlns=\"urn:d\" xmlns:a=\"urn:a\" xmlns:b=\"urn:b\" xmlns:AA=\"urn:x\" "
              "AA:extra=\"1\" \n<s/>\n><qty>5</qty></order>",
        Write(order, context));
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
    const TestClass note = Class(L"note").Nil().Prim(L"child").EnumAttr(L"colour").Value(ItemType_string);
    NillableTestObject nil(note);
    nil.Set(L"colour", L"green").Set(L"child", L"c").Set(L"#value", L"v");
    const CSerializationContext context;
    EXPECT_EQ("<note @colour='green':23 <child 'c':23 > 'v':23 >", Events(nil, context));
    nil.SetNil(true);
    EXPECT_EQ("<note @colour='green':23 nil >", Events(nil, context));
    nil.SetNil(false);
    nil[L"#value"].SetNil();
    EXPECT_EQ("<note @colour='green':23 <child 'c':23 > nil >", Events(nil, context));
}

TEST(WriteWalk, keeps_OnlyTheFirstAlternativeOfAChoice)
{
    const TestClass leaf = Class(L"leaf").Prim(L"x");
    const TestClass choice = Class(L"order").Choice().Prim(L"a").Cls(L"b", leaf).Cls(L"c", leaf).Col(2, 3).Enum(L"d");
    const CSerializationContext context;
    TestObject order(choice);
    EXPECT_EQ("<order >", Events(order, context));
    order.Set(L"d", L"blue");
    EXPECT_EQ("<order <d 'blue':23 > >", Events(order, context));
    // The count of a choice collection is never checked on writing.
    order.Add(L"c")->Set(L"x", L"1");
    EXPECT_EQ("<order <c <x '1':23 > > >", Events(order, context));
    order.Add(L"b")->Set(L"x", L"2");
    EXPECT_EQ("<order <b <x '2':23 > > >", Events(order, context));
    order.Set(L"a", L"0");
    EXPECT_EQ("<order <a '0':23 > >", Events(order, context));
}

TEST(WriteWalk, ChoiceThatMayNotBeEmpty)
{
    const TestClass strict = Class(L"order").Choice().Prim(L"a").Col(1).Enum(L"b").Col(2, 3);
    const TestClass lax = Class(L"order").Choice().Prim(L"a").Col(1).Enum(L"b").Col(0, 3);
    CSerializationContext context;
    EXPECT_EQ("<order >", Events(TestObject(lax), context));
    EXPECT_EQ("<order >", Events(TestObject(strict), context, true, true));
    EXPECT_EQ(failedOrder
            + " <- Validation: This element is a choice, and as such must have at one (and only one) valid item, "
              "currently there are none set",
        Events(TestObject(strict), context));
    context.SetIgnoreMissingChoice(true);
    EXPECT_EQ("<order >", Events(TestObject(strict), context));
}

TEST(WriteWalk, InlineClassesWriteContentOnly)
{
    const TestClass pseudo = Class(L"pseudo").Pseudo().Prim(L"a").Attr(L"id");
    const TestClass group = Class(L"group").Group().Choice().Prim(L"b").Prim(L"c").Attr(L"lost");
    const TestClass type = Class(L"order").Cls(L"pseudo", pseudo).Cls(L"group", group).Opt().Cls(L"more", pseudo).Col();
    const CSerializationContext context;
    TestObject order(type);
    order.Add(L"pseudo")->Set(L"a", L"1").Set(L"id", L"x");
    order.Add(L"group")->Set(L"c", L"2").Set(L"lost", L"y");
    order.Add(L"more")->Set(L"a", L"3");
    EXPECT_EQ("<order @id='x':23 <a '1':23 > <c '2':23 > <a '3':23 > >", Events(order, context));
    EXPECT_EQ("<c '2':23 >", Events(*order.Child(L"group"), context));
    EXPECT_EQ("<c>2</c>", Write(*order.Child(L"group")));
    const TestClass bare = Class(L"bare").Group().Nil();
    NillableTestObject root(bare);
    root.SetNil(true);
    EXPECT_EQ("Validation: Failed to convert the element [bare] to XML <- Zr: Attributes must be added before elements",
        Write(root));
}

TEST(WriteWalk, AbstractItemsNameTheirType)
{
    const TestClass circle = Class(L"wwCircle").In(L"urn:s").TypeAttribute().Prim(L"r", ItemType_i4);
    const TestClass type = Class(L"drawing").AbsCls(L"shape").Ns(L"urn:s").AbsCls(L"more").Col();
    TestObject drawing(type);
    drawing.Add(L"shape", &circle)->Set(L"r", L"1");
    drawing.Add(L"more", &circle)->Set(L"r", L"2");
    EXPECT_EQ(
        "<drawing <shape{urn:s} type(wwCircle{urn:s}:23) <r '1':5 > > <more type(wwCircle{urn:s}:23) <r '2':5 > > >",
        Events(drawing, CSerializationContext()));
    EXPECT_EQ("drawing{shape=shape{r=1},more=[more{r=2}]}", Read(type, drawing.ToXml().c_str()));
}

TEST(WriteWalk, FailuresAreWrappedOncePerLevel)
{
    const TestClass leaf = Class(L"leafType").Enum(L"colour").Attr(L"id", ItemType_i4).Required();
    const TestClass item = Class(L"itemType").Prim(L"qty").Cls(L"leaf", leaf).Opt();
    const TestClass type = Class(L"order").Cls(L"item", item).Col(1, 2).Cls(L"last", leaf).Opt();
    const CSerializationContext context;
    const std::string failedItem = failedOrder + " <- Validation: Failed to convert the element [item] to XML";
    const std::string failedLeaf = failedItem + " <- Validation: Failed to convert the element [leaf] to XML";
    TestObject order(type);
    EXPECT_EQ(failedOrder + " <- Validation: The Minimum number of [item] elements allowed in this collection is 1",
        Events(order, context));
    TestObject* first = order.Add(L"item");
    EXPECT_EQ(
        failedItem + " <- InvalidParam: The Property [qty] is mandatory, it may not be NULL", Events(order, context));
    first->Set(L"qty", L"1");
    TestObject* child = first->Add(L"leaf");
    EXPECT_EQ(0U, Events(order, context).find(failedLeaf + " <- Zr: Failed to convert attributes to XML <- "));
    child->Set(L"id", L"5");
    EXPECT_EQ(failedLeaf + " <- InvalidParam: The Property [colour] is mandatory, it may not be NULL",
        Events(order, context));
    child->Set(L"colour", L"red");
    EXPECT_EQ("<order <item <qty '1':23 > <leaf @id='5':5 <colour 'red':23 > > > >", Events(order, context));
    order.Add(L"item")->Set(L"qty", L"2");
    order.Add(L"item")->Set(L"qty", L"3");
    EXPECT_EQ(failedOrder + " <- Validation: The Maximum number of [item] elements allowed in this collection is 2",
        Events(order, context));
    CSerializationContext tolerant;
    tolerant.SetIgnoreInvalidCollectionCounts(true);
    EXPECT_NE(std::string::npos, Events(order, tolerant).find("<item <qty '3'"));
}

TEST(WriteWalk, FailingAccessors)
{
    const TestClass type = Class(L"order").Prim(L"qty").Attr(L"id");
    TestObject order(type);
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
    const TestClass type = Class(L"order").All().Prim(L"b").Opt().Enum(L"a").Cls(L"c", Class(L"leaf")).Col(0, 1);
    TestObject order(type);
    order.Add(L"c");
    order.Set(L"a", L"red").Set(L"b", L"1");
    EXPECT_EQ("<order><b>1</b><a>red</a><c/></order>", Write(order));
    order.Add(L"c");
    EXPECT_EQ(failedOrder + " <- Validation: The Maximum number of [c] elements allowed in this collection is 1",
        Write(order));
}
