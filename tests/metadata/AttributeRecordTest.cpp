// SPDX-License-Identifier: MIT
#include "support/Failure.h"

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

const std::string failedAttributes =
    "Validation: Failed to convert the element [order] to XML <- Zr: Failed to convert attributes to XML <- ";

} // namespace

TEST(AttributeRecord, keeps_RequiredAttributesThatEqualTheirDefault)
{
    TestClass type = Class(L"order").Attr(L"optional").Default(L"d").Attr(L"required").Required().Default(L"d");
    type.EnumAttr(L"colour").Default(L"red").EnumAttr(L"must").Required().Default(L"red").Attr(L"none");
    TestObject order(type);
    order.Set(L"optional", L"d").Set(L"required", L"d").Set(L"colour", L"red").Set(L"must", L"red");
    CSerializationContext brief;
    brief.SetNoOptionalAttributeDefaultOutput(true);
    EXPECT_EQ("<order optional=\"d\" required=\"d\" colour=\"red\" must=\"red\"/>", Write(order));
    EXPECT_EQ("<order required=\"d\" must=\"red\"/>", Write(order, brief));
    order.Set(L"optional", L"e").Set(L"colour", L"blue").Set(L"none", L"");
    EXPECT_EQ("<order optional=\"e\" required=\"d\" colour=\"blue\" must=\"red\" none=\"\"/>", Write(order, brief));
}

TEST(AttributeRecord, RequiredAttributesNeedAValue)
{
    for (const TestClass& type : {Class(L"order").Attr(L"a").Required(), Class(L"order").EnumAttr(L"a").Required()}) {
        TestObject order(type);
        EXPECT_EQ(failedAttributes + "Zr: Invalid Type 0 to convert to string", Write(order));
        EXPECT_EQ(
            Unprocessed("/order", "Validation: Failed to find the required Attribute [a]."), Read(type, L"<order/>"));
    }
    TestObject colour(Class(L"order").EnumAttr(L"a"));
    colour[L"a"].SetI4(77);
    EXPECT_EQ(failedAttributes + "Zr: Invalid Type 0 to convert to string", Write(colour));
}

TEST(AttributeRecord, FacetsAndFormatsApplyOnWriting)
{
    const TestClass type =
        Class(L"order").Attr(L"a").MaxLength(2).Default(L"longer").Attr(L"f", ItemType_r8).Format(L"%.3f");
    TestObject order(type);
    order.FromXml("<order a='longer' f='1.5'/>");
    EXPECT_EQ(failedAttributes + "Zr: Invalid Value for a [longer].", Write(order));
    order.Set(L"a", L"ok");
    EXPECT_EQ("<order a=\"ok\" f=\"1.500\"/>", Write(order));
}

TEST(AttributeRecord, keeps_PrimitivesThatNeverIgnoreNamespaces)
{
    const TestClass type =
        Class(L"order").AnyAttributes().Attr(L"a").Ns(L"urn:a").EnumAttr(L"b").Ns(L"urn:b").Attr(L"c");
    CSerializationContext ignoring;
    ignoring.SetIgnoreNamespaces(true);
    const wchar_t exact[] = L"<order xmlns:a='urn:a' xmlns:b='urn:b' a:a='1' b:b='red' c='2'/>";
    const wchar_t bare[] = L"<order xmlns:a='urn:a' a='1' b='red' a:c='2'/>";
    EXPECT_EQ("order{a=1,b=red,c=2}", Read(type, exact));
    EXPECT_EQ("order{}", Read(type, bare));
    EXPECT_EQ("order{a=1,b=red,c=2}", Read(type, exact, ignoring));
    EXPECT_EQ("order{b=red}", Read(type, bare, ignoring));
}

TEST(AttributeRecord, IsSoughtAnewInEveryReadOfATree)
{
    const TestClass line = Class(L"line").Attr(L"b").EnumAttr(L"a");
    const TestClass type =
        Class(L"order").AnyAttributes().EnumAttr(L"a").Ns(L"urn:a").Attr(L"b").Cls(L"line", line).Col();
    CSerializationContext ignoring;
    ignoring.SetIgnoreNamespaces(true);
    const auto read = [&](const CXmlDocument& document, const CSerializationContext& context) {
        TestObject order(type);
        order.FromXmlElement(document.GetDocumentElement(), context);
        return DescribeObject(order);
    };
    const struct {
        std::string xml;
        std::wstring lines;
    } cases[] = {
        {"", L"}"}, {"<line a='blue' b='3'/><line b='4' a='red'/>", L",line=[line{b=3,a=blue},line{b=4,a=red}]}"}};
    for (const auto& row : cases) {
        CXmlDocument document;
        document.LoadXml(("<order a='red' b='2'>" + row.xml + "</order>").c_str());
        for (int round = 0; round < 2; ++round) {
            EXPECT_EQ(L"order{b=2" + row.lines, read(document, CSerializationContext()));
            EXPECT_EQ(L"order{a=red,b=2" + row.lines, read(document, ignoring));
        }
    }
}

TEST(AttributeRecord, WildcardsCollectWhatNoOtherRecordTakes)
{
    const TestClass type =
        Class(L"order").In(L"urn:t").Attr(L"id").AnyAttr(L"others", L"##other").AnyAttr(L"locals", L"##local urn:x");
    const std::string read =
        Read(type, L"<order xmlns:o='urn:o' xmlns:t='urn:t' id='1' o:a='2' c='3' o:d='4' xmlns='urn:t'/>");
    EXPECT_EQ("order{id=1,others=[{urn:o}a=2,{urn:o}d=4],locals=[{}c=3]}", read);
    EXPECT_EQ("Zr: Unexpected Attribute found.\nPath: /order/t:@z", Read(type, L"<order xmlns:t='urn:t' t:z='1'/>"));
    TestObject order(type);
    order.Set(L"id", L"1");
    order.Attributes(L"others")->Add(L"urn:o", L"2", L"a");
    order.Attributes(L"locals")->Add(L"", L"3", L"c");
    EXPECT_EQ("<AA:order xmlns:AA=\"urn:t\" id=\"1\" xmlns:AB=\"urn:o\" AB:a=\"2\" c=\"3\"/>", Write(order));
}

TEST(AttributeRecord, WildcardPropertyMustBeAnAttributeCollection)
{
    TestObject order(Class(L"order").AnyAttr(L"any", L"##any"));
    order.m_onAccess = [&](const std::wstring&, bool) {
        order[L"any"].SetXmlCollection(new TestCollection(L"", L"", 0, -1, nullptr));
    };
    EXPECT_EQ(
        Unprocessed("/order", "Zr: Serialization Data Error : The collection should be a CAttributeCol, it was not!"),
        FailureOf([&] { order.FromXml("<order a='1'/>"); }));
}

TEST(AttributeRecord, PropertiesThatCannotBeAccessed)
{
    TestObject order(Class(L"order").Attr(L"id").AnyAttr(L"others", L"##any"));
    order.Set(L"id", L"1");
    std::wstring broken = L"id";
    order.m_onAccess = [&](const std::wstring& property, bool) {
        if (property == broken)
            throw CZrException(L"no " + property);
    };
    EXPECT_EQ("Validation: Failed to convert the element [order] to XML <- Zr: Failed to convert attributes to XML <- "
              "Zr: no id",
        Write(order));
    EXPECT_EQ("Zr: Failed to set the property value.\nPath: /order/@id <- Zr: no id",
        FailureOf([&] { order.FromXml("<order id='1'/>"); }));
    broken = L"others";
    EXPECT_EQ(Unprocessed("/order", "Validation: Failed to get the property value for [others]. <- Zr: no others"),
        FailureOf([&] { order.FromXml("<order a='1'/>"); }));
}

TEST(AttributeRecord, MoreRecordsThanFitABitmap)
{
    TestClass type = Class(L"order");
    std::wstring xml = L"<order";
    for (int i = 0; i < 130; ++i) {
        const std::wstring name = L"a" + std::to_wstring(i);
        type.Attr(name.c_str()).Required();
        xml += i == 100 ? L"" : L" " + name + L"='x'";
    }
    EXPECT_EQ(
        Unprocessed("/order", "Validation: Failed to find the required Attribute [a100]."), Read(type, xml + L"/>"));
    EXPECT_EQ("order{a0=x", Read(type, xml + L" a100=''/>").substr(0, 10));
}

TEST(AttributeCol, KeepsOneValuePerName)
{
    const CSmartPtr<CAttributeCol> attributes(new CAttributeCol(L"", L"##other", L"urn:t"));
    for (const auto& name : {std::pair(L"urn:o", L"a"), std::pair(L"urn:o", L"b"), std::pair(L"urn:p", L"a")})
        attributes->Add(name.first, L"1", name.second);
    EXPECT_EQ(L"4", attributes->Add(L"urn:o", L"4", L"a")->GetValue());
    EXPECT_EQ(3, attributes->GetCount());
    EXPECT_EQ(attributes->Item(0), attributes->Find(L"a", L"urn:o"));
    EXPECT_EQ(nullptr, attributes->Find(L"a", L""));
    EXPECT_EQ(
        "InvalidParam: Attribute Name must have a value", FailureOf([&] { attributes->Add(L"urn:o", L"1", L""); }));
    EXPECT_EQ(0U, FailureOf([&] { attributes->Add(L"urn:t", L"1", L"a"); }).find("InvalidNamespace: The namespace "));
    EXPECT_EQ("InvalidParam: Index 3 is out of range, use 0 - 3", FailureOf([&] { attributes->Item(3); }));
    attributes->Remove(0);
    EXPECT_EQ(L"b", attributes->Item(0)->GetName());
    EXPECT_EQ("InvalidParam: Index -1 is out of range, use 0 - 2", FailureOf([&] { attributes->Remove(-1); }));
}
