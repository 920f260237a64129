// SPDX-License-Identifier: MIT
// Typed collections as members of generated classes, through whole documents.
#include "lexical/TypedCollectionFixture.h"
#include "support/Failure.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

/// A repeated enumeration as generated code has it.
class ColourCol : public CXmlTypeCollection {
public:
    ColourCol(const wchar_t* name, const wchar_t* namespaceUri, int minOccurs, int maxOccurs)
        : CXmlTypeCollection(ItemType_string, name, namespaceUri, minOccurs, maxOccurs, L"", -1, -1, L"", L"", L"", L"",
            -1, -1, -1, CWhitespaceUtils::Rule_None, L"")
    {
    }
    void Add(int colour)
    {
        FireOnCollectionAdd(&colour);
        m_items.push_back(colour);
        FireOnCollectionAddComplete(&colour);
        FireOnCollectionChange();
    }
    int Item(int index) const { return m_items.at(static_cast<std::size_t>(index)); }
    void AddFromString(std::wstring text) override { Add(StringToColour(text.c_str())); }
    int GetCount() const override { return static_cast<int>(m_items.size()); }
    void Clear() override { m_items.clear(); }

protected:
    void ToXml_Int(CXmlWriter* writer, bool, const wchar_t*, const CSerializationContext&, bool) const override
    {
        for (const int colour : m_items) {
            writer->WriteStartElement(ElementName(), Namespace());
            writer->WriteString(ColourToString(colour), ItemType_string, false);
            writer->WriteEndElement();
        }
    }

private:
    std::vector<int> m_items;
};

/// An object whose repeated values are held in typed collections: "n" of i4, "s" of strings, "colour" of the
/// enumeration.
class Order : public TestObject {
public:
    /// The counts are those of all collections, the facets those of "n".
    explicit Order(const TestClass& type, const CollectionArguments& arguments = {})
        : TestObject(type)
        , m_class(type)
        , m_arguments(arguments)
    {
        Order::Init();
    }
    Ci4Col& Numbers() { return dynamic_cast<Ci4Col&>(*(*this)[L"n"].GetXmlCollection().GetPtr()); }

    /// The unformatted text of the object after reading, or the failure.
    std::string Copy(const std::wstring& content, const CSerializationContext& context = CSerializationContext())
    {
        const std::wstring xml =
            L"<r xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' xmlns:p='urn:s'>" + content + L"</r>";
        const std::string failure = FailureOf([&] { FromXml(xml.c_str(), context); });
        return failure.empty() ? Write(*this, context) : failure;
    }

    /// Called at the end of each Init.
    std::function<void()> m_onInit;

protected:
    void Init() override
    {
        TestObject::Init();
        Hold(L"n", NewTyped<Ci4Col>(m_arguments).GetPtr());
        CollectionArguments strings;
        strings.name = L"s";
        strings.namespaceUri = L"urn:s";
        strings.minOccurs = m_arguments.minOccurs;
        strings.maxOccurs = m_arguments.maxOccurs;
        Hold(L"s", NewTyped<CstringCol>(strings).GetPtr());
        Hold(L"colour", new ColourCol(L"colour", L"", m_arguments.minOccurs, m_arguments.maxOccurs));
        if (m_onInit)
            m_onInit();
    }

private:
    void Hold(const wchar_t* property, const CSmartPtr<CXmlTypeCollection>& collection)
    {
        for (const PropertySpec& spec : m_class.Data().properties)
            if (spec.name == property)
                (*this)[property].SetXmlCollection(collection);
    }

    TestClass m_class;
    CollectionArguments m_arguments;
};

TestClass WithCollections(TestClass type)
{
    return type.Prim(L"n", ItemType_i4).Col().Prim(L"s").Col().Ns(L"urn:s").Enum(L"colour").Col();
}

CollectionArguments Counts(int minOccurs, int maxOccurs)
{
    CollectionArguments arguments;
    arguments.minOccurs = minOccurs;
    arguments.maxOccurs = maxOccurs;
    return arguments;
}

const char numberTwice[] = "<r><n>1</n><n>2</n></r>";

} // namespace

TEST(TypedCollectionDocument, ItemsAreWrittenAsTheyAreRead)
{
    const std::wstring numbers = L"<n>1</n><n>-2</n>";
    const std::wstring strings = L"<p:s>a</p:s><p:s/>";
    const std::wstring colours = L"<colour>blue</colour><colour>red</colour>";
    const std::string writtenNumbers = "<n>1</n><n>-2</n>";
    const std::string writtenStrings = "<AA:s xmlns:AA=\"urn:s\">a</AA:s><AA:s xmlns:AA=\"urn:s\"/>";
    const std::string writtenColours = "<colour>blue</colour><colour>red</colour>";
    const std::string all = "<r>" + writtenNumbers + writtenStrings + writtenColours + "</r>";

    Order sequence(WithCollections(Class(L"r")));
    EXPECT_EQ(all, sequence.Copy(numbers + strings + colours));
    EXPECT_EQ("<r>" + writtenNumbers + writtenColours + "</r>", sequence.Copy(numbers + colours));
    EXPECT_EQ("<r/>", sequence.Copy(L""));

    Order any(WithCollections(Class(L"r").All()));
    EXPECT_EQ(all, any.Copy(L"<n>1</n>" + colours + strings + L"<n>-2</n>"));

    Order choice(WithCollections(Class(L"r").Choice()));
    EXPECT_EQ("<r>" + writtenNumbers + "</r>", choice.Copy(numbers));
    EXPECT_EQ("<r>" + writtenStrings + "</r>", choice.Copy(strings));
    EXPECT_EQ("<r>" + writtenColours + "</r>", choice.Copy(colours));
}

TEST(TypedCollectionDocument, NamesDecideWhatAnItemIs)
{
    Order order(WithCollections(Class(L"r")));
    const wchar_t* otherNamespaces = L"<n xmlns='urn:other'>1</n><s>a</s>";
    EXPECT_EQ(LeftOver("/r", "r", "n"), order.Copy(otherNamespaces));
    CSerializationContext context;
    context.SetIgnoreNamespaces(true);
    EXPECT_EQ("<r><n>1</n><AA:s xmlns:AA=\"urn:s\">a</AA:s></r>", order.Copy(otherNamespaces, context));
}

TEST(TypedCollectionDocument, CountsAreCheckedUnlessTheContextIgnoresThem)
{
    CSerializationContext ignoring;
    ignoring.SetIgnoreInvalidCollectionCounts(true);
    const std::string few = "Validation: The Minimum number of [n] elements allowed in this collection is 2";
    const std::string many = "Validation: The Maximum number of [n] elements allowed in this collection is 3";
    const std::wstring four = L"<n>1</n><n>2</n><n>3</n><n>4</n>";
    for (const bool isSequence : {true, false}) {
        SCOPED_TRACE(isSequence ? "sequence" : "all");
        TestClass type = isSequence ? Class(L"r") : Class(L"r").All();
        Order order(type.Prim(L"n", ItemType_i4).Col(), Counts(2, 3));
        EXPECT_EQ(numberTwice, order.Copy(L"<n>1</n><n>2</n>"));
        EXPECT_EQ(Unprocessed("/r", few), order.Copy(L"<n>1</n>"));
        EXPECT_EQ(Unprocessed("/r", many), order.Copy(four));
        EXPECT_EQ("<r><n>1</n></r>", order.Copy(L"<n>1</n>", ignoring));
        EXPECT_EQ("<r><n>1</n><n>2</n><n>3</n><n>4</n></r>", order.Copy(four, ignoring));
        EXPECT_EQ("Validation: Failed to convert the element [r] to XML <- " + many, Write(order));
        order.Numbers().Clear();
        EXPECT_EQ("Validation: Failed to convert the element [r] to XML <- " + few, Write(order));
    }
    Order choice(Class(L"r").Choice().Prim(L"n", ItemType_i4).Col().Prim(L"other"), Counts(2, 3));
    EXPECT_EQ(Unprocessed("/r", few), choice.Copy(L"<n>1</n>"));
    EXPECT_EQ("<r><other>1</other></r>", choice.Copy(L"<other>1</other>"));
}

TEST(TypedCollectionDocument, keeps_ReadingStopsAtTheFirstOtherName)
{
    Order order(Class(L"r").Prim(L"n", ItemType_i4).Col().Prim(L"other").Opt());
    EXPECT_EQ(LeftOver("/r", "r", "n"), order.Copy(L"<n>1</n><other/><n>2</n>"));
    EXPECT_EQ(1, order.Numbers().GetCount());
}

TEST(TypedCollectionDocument, keeps_AttributesOfItemsAreIgnored)
{
    Order order(Class(L"r").Prim(L"n", ItemType_i4).Col());
    EXPECT_EQ(numberTwice, order.Copy(L"<n a='x' p:b='y'>1</n><n xsi:nil='true' xsi:type='t'>2</n>"));
    EXPECT_EQ(Unprocessed("/r", "InvalidValue: The value [] can not be converted to a i4"),
        order.Copy(L"<n xsi:nil='true'/>"));
}

TEST(TypedCollectionDocument, FailuresKeepWhatWasReadBefore)
{
    CollectionArguments arguments;
    arguments.facets.m_maxInclusive = L"5";
    Order order(Class(L"r").Prim(L"n", ItemType_i4).Col(), arguments);
    EXPECT_EQ(Unprocessed("/r", "Zr: Invalid Value for n [6]"), order.Copy(L"<n>1</n><n>2</n><n>6</n><n>3</n>"));
    EXPECT_EQ(2, order.Numbers().GetCount());
    EXPECT_EQ(
        Unprocessed("/r", "InvalidValue: The value [x] can not be converted to a i4"), order.Copy(L"<n>1</n><n>x</n>"));
    EXPECT_EQ(1, order.Numbers().GetCount());

    Order colours(Class(L"r").Enum(L"colour").Col());
    EXPECT_EQ(Unprocessed("/r", "InvalidValue: Unknown colour [grey]"), colours.Copy(L"<colour>grey</colour>"));
}

TEST(TypedCollectionDocument, ItemsOfAnInlineGroupStandAmongTheParentsChildren)
{
    const TestClass group = Class(L"group").Group().Prim(L"n", ItemType_i4).Col().Prim(L"x").Opt();
    const CollectionArguments atLeastTwo = Counts(2, -1);
    const auto copy = [&](const TestClass& type, const wchar_t* content) {
        Order order(type);
        order.m_onInit = [&] { order[L"group"].SetXmlObject(new Order(group, atLeastTwo)); };
        return order.Copy(content);
    };
    const TestClass sequence = Class(L"r").Prim(L"a").Cls(L"group", group).Prim(L"b").Opt();
    EXPECT_EQ("<r><a/><n>1</n><n>2</n><x>3</x><b/></r>", copy(sequence, L"<a/><n>1</n><n>2</n><x>3</x><b/>"));
    // Too few items make the group absent.
    EXPECT_EQ("Zr: Failed to find the required child element [group].\nPath: /r", copy(sequence, L"<a/><n>1</n><b/>"));
    const TestClass choice = Class(L"r").Choice().Cls(L"group", group).Prim(L"b");
    EXPECT_EQ(numberTwice, copy(choice, L"<n>1</n><n>2</n>"));
}

TEST(TypedCollectionDocument, LargeCollectionsTakeLinearTime)
{
    // Quadratic work would take minutes.
    constexpr int count = 200000;
    std::wstring content;
    for (int i = 0; i < count; ++i)
        content += L"<n>" + std::to_wstring(i) + L"</n>";
    Order order(Class(L"r").Prim(L"n", ItemType_i4).Col());
    EXPECT_EQ("<r>" + Narrow(content) + "</r>", order.Copy(content));
    ASSERT_EQ(count, order.Numbers().GetCount());
    long sum = 0;
    for (int i = 0; i < count; ++i)
        sum += order.Numbers().Item(i);
    EXPECT_EQ(19999900000, sum);
}
