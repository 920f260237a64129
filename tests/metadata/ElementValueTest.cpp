// SPDX-License-Identifier: MIT
#include "support/RecordingWriter.h"

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

std::wstring Order(const wchar_t* content)
{
    return std::wstring(L"<order xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'>") + content + L"</order>";
}

/// The same element as mandatory and as optional member of each group.
std::vector<TestClass> InEveryGroup(const std::function<void(TestClass&)>& addRecord)
{
    std::vector<TestClass> types;
    for (int i = 0; i < 6; ++i) {
        TestClass type = Class(L"order").GroupType(i % 3);
        addRecord(type);
        types.push_back(i < 3 ? type : type.Opt());
    }
    return types;
}

const std::string failedOrder = "Validation: Failed to convert the element [order] to XML <- ";
const std::string noSubstitution = "Zr: Failed to find a suitable substitution element for [s].\nPath: /order";

} // namespace

TEST(ElementValue, AttributesOfPrimitiveElements)
{
    const std::string misuse = "Zr: Invalid use of 'nil' attribute in non-nillable element.\nPath: /order/v/xsi:@nil";
    const std::string badNil = "Zr: Unexpected Value [yes] for 'nil' Attribute found.\nPath: /order/v/xsi:@nil";
    const std::string unexpected = "Zr: Unexpected Attribute found.\nPath: /order/v/";
    const struct {
        const wchar_t* xml;
        std::string plain, nillable, ignoring; // the last one is nillable and ignores unknown attributes
    } cases[] = {
        {L"<v>1</v>", "v=1", "v=1", "v=1"},
        {L"<v/>", "v=9", "v=9", "v=9"},
        {L"<v xsi:nil='0'/>", "v=9", "v=9", "v=9"},
        {L"<v xsi:nil='FALSE'>1</v>", "v=1", "v=1", "v=1"},
        {L"<v xsi:nil='TRUE'/>", misuse, "", ""},
        {L"<v xsi:nil='1'>1</v>", misuse, "", ""},
        {L"<v xsi:nil='yes'/>", misuse, badNil, badNil},
        {L"<v x='1'>1</v>", unexpected + "@x", unexpected + "@x", "v=1"},
        {L"<v xsi:type='i4'>1</v>", unexpected + "xsi:@type", unexpected + "xsi:@type", "v=1"},
    };
    CSerializationContext ignoring;
    ignoring.SetIgnoreUnknownAttributes(true);
    const auto plain = InEveryGroup([](TestClass& type) { type.Prim(L"v", ItemType_i4).Default(L"9"); });
    const auto nillable = InEveryGroup([](TestClass& type) { type.Prim(L"v", ItemType_i4).Default(L"9").Nillable(); });
    const auto isExpected = [](const std::string& expected) {
        return expected.find(": ") == std::string::npos ? "order{" + expected + "}" : expected;
    };
    for (const auto& row : cases) {
        for (std::size_t i = 0; i < plain.size(); ++i) {
            SCOPED_TRACE(Narrow(row.xml) + std::to_string(i));
            EXPECT_EQ(isExpected(row.plain), Read(plain[i], Order(row.xml)));
            EXPECT_EQ(isExpected(row.nillable), Read(nillable[i], Order(row.xml)));
            EXPECT_EQ(isExpected(row.ignoring), Read(nillable[i], Order(row.xml), ignoring));
        }
    }
}

TEST(ElementValue, keeps_MemberUntouchedByANilElement)
{
    TestObject order(Class(L"order").Prim(L"a").Nillable().Enum(L"b").Nillable());
    std::string stored;
    order.m_onAccess = [&](const std::wstring& property, bool read) { stored += read ? "" : Narrow(property); };
    order.FromXml(Order(L"<a xsi:nil='true'>x</a><b xsi:nil='1'/>").c_str());
    EXPECT_EQ("", stored);
    EXPECT_EQ(L"order{}", DescribeObject(order));
}

TEST(ElementValue, EnumerationsTakeTheRawText)
{
    for (const TestClass& type :
        InEveryGroup([](TestClass& added) { added.Enum(L"v").Default(L"green").Nillable(); })) {
        EXPECT_EQ("order{v=blue}", Read(type, Order(L"<v>blue</v>")));
        EXPECT_EQ("order{v=green}", Read(type, Order(L"<v/>")));
        EXPECT_EQ("order{}", Read(type, Order(L"<v xsi:nil='true'/>")));
        EXPECT_EQ("Zr: Unexpected Attribute found.\nPath: /order/v/@x", Read(type, Order(L"<v x=''>blue</v>")));
        EXPECT_EQ(Unprocessed("/order", "InvalidValue: Unknown colour [ red]"), Read(type, Order(L"<v> red</v>")));
    }
}

TEST(ElementValue, WritingPerOccurrence)
{
    const std::string missing = failedOrder + "InvalidParam: The Property [v] is mandatory, it may not be NULL";
    const auto prims = InEveryGroup(
        [](TestClass& type) { type.Prim(L"v", ItemType_r8).Ns(L"urn:v").Default(L"1.50").Format(L"%.2f"); });
    const auto enums = InEveryGroup([](TestClass& type) { type.Enum(L"v").Ns(L"urn:v").Default(L"red"); });
    for (std::size_t i = 0; i < 6; ++i) {
        SCOPED_TRACE(i);
        TestObject prim(prims[i]), colour(enums[i]);
        for (TestObject* order : {&prim, &colour}) {
            EXPECT_EQ(i == 0 || i == 2 ? missing : "<order >", Events(*order));
            (*order)[L"v"].SetNil();
            EXPECT_EQ("<order <v{urn:v} nil > >", Events(*order));
        }
        prim[L"v"].SetR8(2.25);
        colour.Set(L"v", L"blue");
        EXPECT_EQ("<order <v{urn:v} '2.25':12 > >", Events(prim));
        EXPECT_EQ("<order <v{urn:v} 'blue':23 > >", Events(colour));
        prim[L"v"].SetR8(1.5);
        colour.Set(L"v", L"red");
        EXPECT_EQ("<order <v{urn:v} '1.50':12! > >", Events(prim));
        EXPECT_EQ("<order <v{urn:v} 'red':23! > >", Events(colour));
        colour[L"v"].SetI4(77);
        EXPECT_EQ(failedOrder + "Zr: Invalid Type 0 to convert to string", Events(colour));
    }
}

TEST(ElementValue, keeps_FacetsForWritingOfOtherValuesThanTheDefault)
{
    for (const TestClass& type :
        InEveryGroup([](TestClass& added) { added.Prim(L"v").MaxLength(2).Default(L"long"); })) {
        EXPECT_EQ("order{v=longer}", Read(type, Order(L"<v>longer</v>")));
        TestObject order(type);
        order.Set(L"v", L"longer");
        EXPECT_EQ(failedOrder + "Zr: Invalid Value for v [longer].", Events(order));
        order.Set(L"v", L"long");
        EXPECT_EQ("<order <v 'long':23! > >", Events(order));
        order.Set(L"v", L"ok");
        EXPECT_EQ("<order <v 'ok':23 > >", Events(order));
    }
}

TEST(ElementValue, WhitespaceRuleOfTheRecord)
{
    TestClass type = Class(L"order").Prim(L"a").Rule(CWhitespaceUtils::Rule_Collapse);
    type.Prim(L"b").Rule(CWhitespaceUtils::Rule_Replace).Prim(L"c").Attr(L"d").Rule(CWhitespaceUtils::Rule_Collapse);
    EXPECT_EQ("order{a=x y,b= x  y ,c= x\t y ,d=x y}",
        Read(type, L"<order d=' x  y '><a> x\t y </a><b> x\t y </b><c> x\t y </c></order>"));
}

TEST(ElementValue, ChildrenOfOtherKinds)
{
    const TestClass leaf = Class(L"evLeaf").Prim(L"x", ItemType_i4).Opt();
    Class(L"evDerived").Prim(L"y");
    const std::wstring known = Order(L"<s xsi:type='evDerived'><y>1</y></s>"), unknown = Order(L"<s/>");
    for (int group = 0; group < 3; ++group) {
        SCOPED_TRACE(group);
        const auto order = [&] { return Class(L"order").GroupType(group); };
        const TestClass mandatory = order().Cls(L"c", leaf), optional = order().Cls(L"c", leaf).Opt();
        for (const TestClass& type : {mandatory, optional}) {
            EXPECT_EQ("order{c=c{x=1}}", Read(type, L"<order><c><x>1</x></c></order>"));
            EXPECT_EQ("Zr: Unexpected Attribute found.\nPath: /order/c/@a", Read(type, L"<order><c a='1'/></order>"));
        }
        EXPECT_EQ(group == 1, Read(mandatory, L"<order/>") == "order{}");
        EXPECT_EQ("order{}", Read(optional, L"<order/>"));
        const TestClass abstract = order().AbsCls(L"s").Opt(), collection = order().AbsCls(L"s").Col(0, 2);
        EXPECT_EQ("order{s=s{y=1}}", Read(order().AbsCls(L"s"), known));
        EXPECT_EQ("order{s=s{y=1}}", Read(abstract, known));
        EXPECT_EQ("order{s=[s{y=1}]}", Read(collection, known));
        EXPECT_EQ(noSubstitution + "/s", Read(collection, unknown));
        EXPECT_EQ(LeftOver("/order", "order", "s"), Read(abstract, unknown));
    }
    CSerializationContext tolerant, incomplete;
    tolerant.SetIgnoreUnknownElements(true);
    incomplete.SetIgnoreMissingMandatoryElements(true);
    const TestClass strict = Class(L"order").AbsCls(L"s");
    EXPECT_EQ(noSubstitution, Read(strict, L"<order/>"));
    EXPECT_EQ(noSubstitution + "/s", Read(strict, unknown));
    EXPECT_EQ("order{}", Read(strict, L"<order/>", incomplete));
    EXPECT_EQ(noSubstitution + "/s", Read(strict, unknown, incomplete));
    EXPECT_EQ("order{s=s{y=1}}", Read(strict, Order(L"<q/><s xsi:type='evDerived'><y>1</y></s>"), tolerant));
    EXPECT_EQ(Unprocessed("/order", "Validation: Failed to find the mandatory element [s]."),
        Read(Class(L"order").All().AbsCls(L"s"), L"<order/>"));
    const TestClass inlined = Class(L"order").Cls(L"g", Class(L"").Group().AbsCls(L"s").Prim(L"t")).Opt();
    EXPECT_EQ("order{}", Read(inlined, L"<order/>"));
    EXPECT_EQ(noSubstitution + "/s", Read(inlined, unknown));
}

TEST(ElementValue, CollectionsMustExistForReadingOnly)
{
    TestObject order(Class(L"order").Prim(L"item").Col(1));
    order.m_onAccess = [&](const std::wstring&, bool) { order[L"item"].SetInvalid(); };
    EXPECT_EQ(Unprocessed("/order", "InvalidState: The collection of [item] elements is NULL"),
        FailureOf([&] { order.FromXml("<order><item>1</item></order>"); }));
    EXPECT_EQ("<order >", Events(order));
}
