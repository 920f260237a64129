// SPDX-License-Identifier: MIT
#include "support/Failure.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <new>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

struct Case {
    const wchar_t* xml;
    std::string expected;
};

const wchar_t xsi[] = L" xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' ";

std::wstring WithXsi(const wchar_t* attributes)
{
    return std::wstring(L"<order") + xsi + attributes + L"><qty>5</qty></order>";
}

} // namespace

TEST(ReadWalk, AttributesOfAClass)
{
    const TestClass type =
        Class(L"order").Prim(L"qty").Attr(L"id", ItemType_i4).Required().EnumAttr(L"colour").Attr(L"q").Ns(L"urn:q");
    const TestClass tolerant = Class(L"order").AnyAttributes().Prim(L"qty");
    const Case cases[] = {
        {L"id='7' colour='red'", "order{qty=5,id=7,colour=red}"},
        {L"colour='blue' id=' 8' xmlns:p='urn:q' p:q='v'", "order{qty=5,id=8,colour=blue,q=v}"},
        {L"id='7' xsi:schemaLocation='a b' xsi:noNamespaceSchemaLocation='c' xsi:type='order'", "order{qty=5,id=7}"},
        {L"", Unprocessed("/order", "Validation: Failed to find the required Attribute [id].")},
        {L"id='7' x='1'", "Zr: Unexpected Attribute found.\nPath: /order/@x"},
        {L"id='7' q='1'", "Zr: Unexpected Attribute found.\nPath: /order/@q"},
        {L"x='1'", "Zr: Unexpected Attribute found.\nPath: /order/@x"},
        {L"id='seven'", Unprocessed("/order", "InvalidValue: The value [seven] can not be converted to a i4")},
        {L"id='7' colour='pink'", Unprocessed("/order", "InvalidValue: Unknown colour [pink]")},
        {L"id='7' xsi:nil='true'", "Zr: Invalid use of 'nil' attribute in non-nillable element.\nPath: /order"},
        {L"id='7' xsi:nil='false'", "Zr: Invalid use of 'nil' attribute in non-nillable element.\nPath: /order"},
    };
    CSerializationContext ignoring;
    ignoring.SetIgnoreUnknownAttributes(true);
    for (const Case& row : cases)
        EXPECT_EQ(row.expected, Read(type, WithXsi(row.xml).c_str()));
    EXPECT_EQ("order{qty=5,id=7}", Read(type, WithXsi(L"x='1' id='7'").c_str(), ignoring));
    EXPECT_EQ("order{qty=5}", Read(tolerant, WithXsi(L"x='1' y='2'").c_str()));
}

TEST(ReadWalk, NilObjects)
{
    const TestClass note = Class(L"note").Nil().Prim(L"qty");
    const TestClass type = Class(L"order").Cls(L"note", note);
    struct {
        const wchar_t* nil;
        const wchar_t* content;
        std::string expected;
    } const cases[] = {
        {L"true", L"", "order{note=note=nil}"},
        {L"TRUE", L"<anything/>", "order{note=note=nil}"},
        {L"1", L"<qty>5</qty>", "order{note=note=nil}"},
        {L"false", L"<qty>5</qty>", "order{note=note{qty=5}}"},
        {L"0", L"<qty>5</qty>", "order{note=note{qty=5}}"},
        {L"False", L"", "Zr: Failed to find the required child element [qty].\nPath: /order/note"},
        {L"yes", L"", "Zr: Unexpected Value [yes] for 'nil' Attribute found.\nPath: /order/note/xsi:@nil"},
        {L"", L"", "Zr: Unexpected Value [] for 'nil' Attribute found.\nPath: /order/note/xsi:@nil"},
        {L" true", L"", "Zr: Unexpected Value [ true] for 'nil' Attribute found.\nPath: /order/note/xsi:@nil"},
    };
    for (const auto& row : cases) {
        const std::wstring xml =
            std::wstring(L"<order") + xsi + L"><note xsi:nil='" + row.nil + L"'>" + row.content + L"</note></order>";
        EXPECT_EQ(row.expected, Read(type, xml.c_str())) << Narrow(row.nil);
    }
}

TEST(ReadWalk, ReadingStartsOverAndTakesTheName)
{
    const TestClass type =
        Class(L"order").Prim(L"qty").Opt().Prim(L"item").Col().Cls(L"child", Class(L"c").Prim(L"x").Opt()).Opt();
    TestObject order(type, L"before");
    order.FromXml(L"<first><qty>1</qty><item>a</item><item>b</item><child><x>1</x></child></first>");
    EXPECT_EQ(L"first{qty=1,item=[item{#value=a},item{#value=b}],child=child{x=1}}", DescribeObject(order));
    order.FromXml(L"<second><item>c</item></second>");
    EXPECT_EQ(L"second{item=[item{#value=c}]}", DescribeObject(order));
    EXPECT_EQ(2, order.m_initCount);
}

TEST(ReadWalk, SimpleContent)
{
    const TestClass number = Class(L"n").Value(ItemType_i4).Attr(L"unit");
    const TestClass raw = Class(L"n").Value(ItemType_i4, L"", true);
    const TestClass mixed = Class(L"n").Prim(L"a").Opt().Value(ItemType_string);
    EXPECT_EQ("n{#value=42,unit=kg}", Read(number, L"<n unit='kg'>42</n>"));
    EXPECT_EQ(Unprocessed("/n", "InvalidValue: The value [] can not be converted to a i4"), Read(number, L"<n/>"));
    EXPECT_EQ(
        Unprocessed("/n", "InvalidValue: The value [4 ] can not be converted to a i4"), Read(number, L"<n>4 </n>"));
    EXPECT_EQ("n{#value= x }", Read(raw, L"<n> x </n>"));
    EXPECT_EQ("n{a=1,#value=xy}", Read(mixed, L"<n>x<a>1</a>y</n>"));
    EXPECT_EQ(LeftOver("/n", "n", "b"), Read(number, L"<n>1<b/></n>"));
}

TEST(ReadWalk, keeps_PlainExceptionOfTheInnermostLocation)
{
    const TestClass leaf = Class(L"leaf").Prim(L"price", ItemType_i4).Attr(L"id").Required();
    const TestClass item = Class(L"item").Cls(L"leaf", leaf).Opt();
    const TestClass type = Class(L"order").Cls(L"item", item).Col(0, 2);
    const Case cases[] = {
        {L"<item/><item><leaf id='1'/></item>",
            "Zr: Failed to find the required child element [price].\nPath: /order/item[2]/leaf"},
        {L"<item/><item><leaf id='1'><price>x</price></leaf></item>",
            "Zr: Failed to process the element.\nPath: /order/item[2]/leaf <- InvalidValue: The value [x] can not be "
            "converted to a i4"},
        {L"<item><leaf><price>1</price></leaf></item>",
            "Zr: Failed to process the element.\nPath: /order/item/leaf <- Validation: Failed to find the required "
            "Attribute [id]."},
        {L"<item><leaf id='1'><price>1</price><price>2</price></leaf></item>",
            LeftOver("/order/item/leaf", "leaf", "price")},
        {L"<item/><item/><item/>",
            Unprocessed("/order", "Validation: The Maximum number of [item] elements allowed in this collection is 2")},
        {L"<item/><other/>", LeftOver("/order", "order", "other")},
    };
    for (const Case& row : cases)
        EXPECT_EQ(row.expected, Read(type, (std::wstring(L"<order>") + row.xml + L"</order>").c_str()));
}

TEST(ReadWalk, FailingAccessors)
{
    const TestClass leaf = Class(L"leaf").Prim(L"x").Opt();
    const TestClass type = Class(L"order")
                               .Prim(L"qty")
                               .Cls(L"item", leaf)
                               .Col()
                               .Cls(L"leaf", leaf)
                               .Opt()
                               .Attr(L"id")
                               .Value(ItemType_string);
    struct {
        const wchar_t* property;
        bool read;
        std::string failure;
    } const cases[] = {
        {L"qty", false, "Zr: Failed to set the property value.\nPath: /order/qty <- InvalidState: boom"},
        {L"id", false, "Zr: Failed to set the property value.\nPath: /order/@id <- InvalidState: boom"},
        {L"leaf", false, "Zr: Failed to set the property value.\nPath: /order/leaf <- InvalidState: boom"},
        {L"item", true,
            Unprocessed("/order", "Validation: Failed to get the property value for [item]. <- InvalidState: boom")},
        {L"#value", false, Unprocessed("/order", "InvalidState: boom")},
    };
    for (const auto& row : cases) {
        TestObject order(type);
        order.m_onAccess = [&](const std::wstring& property, bool read) {
            if (property == row.property && read == row.read)
                throw CZrInvalidStateException(L"boom");
        };
        EXPECT_EQ(row.failure, FailureOf([&] { order.FromXml("<order id='1'><qty>1</qty><item/><leaf/>v</order>"); }));
        order.m_onAccess = [&](const std::wstring& property, bool read) {
            if (property == row.property && read == row.read)
                throw std::bad_alloc();
        };
        EXPECT_THROW(order.FromXml("<order id='1'><qty>1</qty><item/><leaf/>v</order>"), std::bad_alloc);
    }
}

TEST(ReadWalk, NamespacesAndSchemaTypes)
{
    const TestClass leaf = Class(L"leaf").Prim(L"x").Ns(L"urn:a");
    const TestClass type = Class(L"order").Cls(L"leaf", leaf).Ns(L"urn:b").Enum(L"colour").Ns(L"").Opt();
    const wchar_t exact[] =
        L"<order xmlns:a='urn:a' xmlns:b='urn:b'><b:leaf><a:x>1</a:x></b:leaf><colour>red</colour></order>";
    const wchar_t wrong[] = L"<order xmlns='urn:c'><leaf><x>1</x></leaf><colour>red</colour></order>";
    const wchar_t prefixed[] = L"<order xmlns:a='urn:a'><a:leaf><x>1</x></a:leaf></order>";
    CSerializationContext ignoring, local;
    ignoring.SetIgnoreNamespaces(true);
    local.SetSchemaType(SchemaType_DTD);
    EXPECT_EQ("order{leaf=leaf{x=1},colour=red}", Read(type, exact));
    EXPECT_EQ("Zr: Failed to find the required child element [leaf].\nPath: /order", Read(type, wrong));
    EXPECT_EQ("order{leaf=leaf{x=1},colour=red}", Read(type, exact, ignoring));
    EXPECT_EQ("order{leaf=leaf{x=1},colour=red}", Read(type, wrong, ignoring));
    // Names keep their prefixes without namespace processing, and declarations are not unknown attributes.
    EXPECT_EQ("order{leaf=leaf{x=1},colour=red}", Read(type, wrong, local));
    EXPECT_EQ("Zr: Failed to find the required child element [leaf].\nPath: /order", Read(type, prefixed, local));
    EXPECT_EQ("order{leaf=leaf{x=1},colour=red}",
        Read(type,
            L"<order xmlns:p='urn:p'><leaf xmlns='q'><x xmlns='r' xmlns:s='t'>1</x></leaf><colour "
            L"xmlns='q'>red</colour></order>",
            local));
    EXPECT_EQ("Zr: Unexpected Attribute found.\nPath: /order/@xsi:nil", Read(type, L"<order xsi:nil='true'/>", local));
}

TEST(ReadWalk, RootsMayStandOnTheStackAndChildrenAreHeld)
{
    const TestClass held = Class(L"held").Prim(L"x").Opt();
    const TestClass type = Class(L"order").Cls(L"held", held).Held().Cls(L"made", held);
    TestObject order(type);
    for (int round = 0; round < 3; ++round) {
        order.FromXml("<order><held><x>1</x></held><made/></order>");
        EXPECT_EQ(L"order{held=held{x=1},made=made{}}", DescribeObject(order));
        EXPECT_EQ("<order><held><x>1</x></held><made/></order>", Write(order));
    }
    // A mandatory child that is there reads itself, a missing one is created.
    const CSmartPtr<TestObject> child(order.Child(L"held"));
    EXPECT_EQ(1, child->m_initCount);
}

TEST(ReadWalk, FailedReadKeepsWhatWasRead)
{
    const TestClass type = Class(L"order").Prim(L"a").Prim(L"b", ItemType_i4).Prim(L"c").Attr(L"id");
    TestObject order(type);
    FailureOf([&] { order.FromXml("<order id='1'><a>x</a><b>y</b><c>z</c></order>"); });
    EXPECT_EQ(L"order{a=x,id=1}", DescribeObject(order));
}
