// SPDX-License-Identifier: MIT
#include "support/Failure.h"

#include <new>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

struct Case {
    const wchar_t* xml;
    std::string expected;
};

std::wstring Order(const std::wstring& attributes, const std::wstring& content)
{
    return L"<order xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' " + attributes + L">" + content + L"</order>";
}

} // namespace

TEST(ReadWalk, AttributesOfAClass)
{
    const TestClass type =
        Class(L"order").Prim(L"qty").Attr(L"id", ItemType_i4).Required().EnumAttr(L"colour").Attr(L"q").Ns(L"urn:q");
    const Case cases[] = {
        {L"id='7' colour='red'", "order{qty=5,id=7,colour=red}"},
        {L"colour='blue' id=' 8' xmlns:p='urn:q' p:q='v'", "order{qty=5,id=8,colour=blue,q=v}"},
        {L"id='7' xsi:schemaLocation='a b' xsi:noNamespaceSchemaLocation='c' xsi:type='order'", "order{qty=5,id=7}"},
        {L"", Unprocessed("/order", "Validation: Failed to find the required Attribute [id].")},
        {L"id='7' q='1'", "Zr: Unexpected Attribute found.\nPath: /order/@q"},
        {L"x='1'", "Zr: Unexpected Attribute found.\nPath: /order/@x"},
        {L"id='seven'", Unprocessed("/order", "InvalidValue: The value [seven] can not be converted to a i4")},
        {L"id='7' colour='pink'", Unprocessed("/order", "InvalidValue: Unknown colour [pink]")},
        {L"xsi:nil='false'", "Zr: Invalid use of 'nil' attribute in non-nillable element.\nPath: /order"},
    };
    for (const Case& row : cases)
        EXPECT_EQ(row.expected, Read(type, Order(row.xml, L"<qty>5</qty>")));
    CSerializationContext ignoring;
    ignoring.SetIgnoreUnknownAttributes(true);
    EXPECT_EQ("order{qty=5,id=7}", Read(type, Order(L"x='1' id='7'", L"<qty>5</qty>"), ignoring));
    EXPECT_EQ("order{}", Read(Class(L"order").AnyAttributes(), Order(L"x='1' y='2'", L"")));
}

TEST(ReadWalk, NilObjects)
{
    const TestClass type = Class(L"order").Nil().Prim(L"qty");
    const auto unexpected = [](const std::string& value) {
        return "Zr: Unexpected Value [" + value + "] for 'nil' Attribute found.\nPath: /order/xsi:@nil";
    };
    const Case cases[] = {{L"true", "order=nil"}, {L"TRUE", "order=nil"}, {L"1", "order=nil"},
        {L"false", "order{qty=5}"}, {L"0", "order{qty=5}"}, {L"False", "order{qty=5}"}, {L"yes", unexpected("yes")},
        {L"", unexpected("")}, {L" true", unexpected(" true")}};
    for (const Case& row : cases)
        EXPECT_EQ(row.expected, Read(type, Order(L"xsi:nil='" + std::wstring(row.xml) + L"'", L"<qty>5</qty>")));
    EXPECT_EQ("order=nil", Read(type, Order(L"xsi:nil='true'", L"<anything/>")));
}

TEST(ReadWalk, ReadingStartsOverAndTakesTheName)
{
    const TestClass child = Class(L"c").Prim(L"x").Opt();
    TestClass type = Class(L"order").Prim(L"qty").Opt().Prim(L"item").Col();
    TestObject order(type.Cls(L"held", child).Held().Cls(L"made", child).Opt());
    order.FromXml(L"<first><qty>1</qty><item>a</item><item>b</item><held><x>1</x></held><made><x>2</x></made></first>");
    EXPECT_EQ(
        L"first{qty=1,item=[item{#value=a},item{#value=b}],held=held{x=1},made=made{x=2}}", DescribeObject(order));
    order.FromXml(L"<second><item>c</item><held/></second>");
    EXPECT_EQ(L"second{item=[item{#value=c}],held=held{}}", DescribeObject(order));
    EXPECT_EQ(2, order.m_initCount);
    // A mandatory child that is there reads itself.
    EXPECT_EQ(1, order.Child(L"held")->m_initCount);
    // A failed read keeps what was read.
    EXPECT_NE("", FailureOf([&] { order.FromXml("<third><qty>1</qty><x/></third>"); }));
    EXPECT_EQ(L"third{qty=1,held=held{}}", DescribeObject(order));
}

TEST(ReadWalk, SimpleContent)
{
    const TestClass number = Class(L"n").Value(ItemType_i4).Attr(L"unit");
    const TestClass mixed = Class(L"n").Prim(L"a").Opt().Value(ItemType_string);
    EXPECT_EQ("n{#value=42,unit=kg}", Read(number, L"<n unit='kg'>42</n>"));
    for (const std::string text : {"", "4 "})
        EXPECT_EQ(Unprocessed("/n", "InvalidValue: The value [" + text + "] can not be converted to a i4"),
            Read(number, L"<n>" + std::wstring(text.begin(), text.end()) + L"</n>"));
    EXPECT_EQ(LeftOver("/n", "n", "b"), Read(number, L"<n>1<b/></n>"));
    EXPECT_EQ("n{#value= x }", Read(Class(L"n").Value(ItemType_i4, L"", true), L"<n> x </n>"));
    EXPECT_EQ("n{a=1,#value=xy}", Read(mixed, L"<n>x<a>1</a>y</n>"));
}

TEST(ReadWalk, keeps_PlainExceptionOfTheInnermostLocation)
{
    const TestClass leaf = Class(L"leaf").Prim(L"price", ItemType_i4).Attr(L"id").Required();
    const TestClass type = Class(L"order").Cls(L"item", Class(L"item").Cls(L"leaf", leaf).Opt()).Col(0, 2);
    const std::string failed = "Zr: Failed to process the element.\nPath: /order/item";
    const Case cases[] = {
        {L"<item/><item><leaf id='1'/></item>",
            "Zr: Failed to find the required child element [price].\nPath: /order/item[2]/leaf"},
        {L"<item/><item><leaf id='1'><price>x</price></leaf></item>",
            failed + "[2]/leaf <- InvalidValue: The value [x] can not be converted to a i4"},
        {L"<item><leaf><price>1</price></leaf></item>",
            failed + "/leaf <- Validation: Failed to find the required Attribute [id]."},
        {L"<item><leaf id='1'><price>1</price><price>2</price></leaf></item>",
            LeftOver("/order/item/leaf", "leaf", "price")},
        {L"<item/><item/><item/>",
            Unprocessed("/order", "Validation: The Maximum number of [item] elements allowed in this collection is 2")},
        {L"<item/><other/>", LeftOver("/order", "order", "other")},
    };
    for (const Case& row : cases)
        EXPECT_EQ(row.expected, Read(type, Order(L"", row.xml)));
}

TEST(ReadWalk, FailingAccessors)
{
    const TestClass leaf = Class(L"leaf");
    TestClass type = Class(L"order").Prim(L"qty").Cls(L"item", leaf).Col().Cls(L"leaf", leaf).Opt();
    type.Attr(L"id").Value(ItemType_string);
    const std::string unset = "Zr: Failed to set the property value.\nPath: /order/", boom = " <- InvalidState: boom";
    const Case cases[] = {{L"qty", unset + "qty" + boom}, {L"id", unset + "@id" + boom},
        {L"leaf", unset + "leaf" + boom},
        {L"item", Unprocessed("/order", "Validation: Failed to get the property value for [item]." + boom)},
        {L"#value", Unprocessed("/order", "InvalidState: boom")}};
    for (const Case& row : cases) {
        TestObject order(type);
        bool foreign = false;
        order.m_onAccess = [&](const std::wstring& property, bool read) {
            if (property == row.xml && read == (property == L"item"))
                foreign ? throw std::bad_alloc() : throw CZrInvalidStateException(L"boom");
        };
        const auto read = [&] { order.FromXml("<order id='1'><qty>1</qty><item/><leaf/>v</order>"); };
        EXPECT_EQ(row.expected, FailureOf(read));
        foreign = true;
        EXPECT_THROW(read(), std::bad_alloc);
    }
}

TEST(ReadWalk, NamespacesAndSchemaTypes)
{
    const TestClass leaf = Class(L"leaf").Prim(L"x").Ns(L"urn:a");
    const TestClass type = Class(L"order").Cls(L"leaf", leaf).Ns(L"urn:b").Enum(L"colour").Ns(L"").Opt();
    const wchar_t exact[] =
        L"<order xmlns:a='urn:a' xmlns:b='urn:b'><b:leaf><a:x>1</a:x></b:leaf><colour>red</colour></order>";
    const wchar_t wrong[] =
        L"<order xmlns='urn:c'><leaf xmlns='q'><x xmlns='r' xmlns:s='t'>1</x></leaf><colour>red</colour></order>";
    const std::string expected = "order{leaf=leaf{x=1},colour=red}";
    const std::string missing = "Zr: Failed to find the required child element [leaf].\nPath: /order";
    CSerializationContext ignoring, local;
    ignoring.SetIgnoreNamespaces(true);
    local.SetSchemaType(SchemaType_DTD);
    EXPECT_EQ(expected, Read(type, exact));
    EXPECT_EQ(missing, Read(type, wrong));
    EXPECT_EQ(expected, Read(type, exact, ignoring));
    EXPECT_EQ(expected, Read(type, wrong, ignoring));
    // Names keep their prefixes without namespace processing, and declarations are not unknown attributes.
    EXPECT_EQ(expected, Read(type, wrong, local));
    EXPECT_EQ(missing, Read(type, exact, local));
    EXPECT_EQ("Zr: Unexpected Attribute found.\nPath: /order/@xsi:nil", Read(type, L"<order xsi:nil='true'/>", local));
}
