// SPDX-License-Identifier: MIT
#include "support/TestObject.h"
#include "support/TestText.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <numeric>

using namespace ZrXmlLib16;
using namespace TestSupport;
using testing::ElementsAre;

namespace {

TEST(Ranges, ChildrenAndAttributesOfAnElement)
{
    CXmlDocument document;
    document.LoadXml("<r a='1' b='2'>t<x/>t<y><z/></y><x/></r>");
    const CXmlElement& root = *document.GetDocumentElement();
    std::wstring names;
    for (CXmlElement* child : Children(root)) {
        names += child->GetLocalName();
        for (CXmlElement* grandchild : Children(*child)) {
            names += grandchild->GetLocalName();
        }
    }
    EXPECT_EQ(L"xyzx", names);
    const auto children = Children(root);
    EXPECT_EQ(
        2, std::count_if(children.begin(), children.end(), [](auto* child) { return child->GetLocalName() == L"x"; }));
    auto second = children.begin();
    EXPECT_EQ(L"x", (*second++)->GetLocalName());
    EXPECT_EQ(L"y", (*second)->GetLocalName());
    EXPECT_TRUE(Children(**second).begin() != children.end());
    EXPECT_TRUE(Children(**children.begin()).empty());

    std::wstring values;
    for (const CXmlAttribute* attribute : Attributes(root)) {
        values += attribute->GetLocalName() + attribute->GetValue();
    }
    EXPECT_EQ(L"a1b2", values);
}

TEST(Ranges, ObjectsOfACollection)
{
    TestObject order(Class(L"order").Cls(L"item", Class(L"item").Prim(L"qty", ItemType_i4)).Col());
    EXPECT_TRUE(ItemsAs<TestObject>(*order.Collection(L"item")).empty());
    std::vector<TestObject*> added{order.Add(L"item"), order.Add(L"item"), order.Add(L"item")};
    const auto items = ItemsAs<TestObject>(*order.Collection(L"item"));
    EXPECT_EQ(added, std::vector<TestObject*>(items.begin(), items.end()));
}

template <class Collection> Collection Make()
{
    return Collection(L"v", L"", 0, -1, L"", -1, -1, L"", L"", L"", L"", -1, -1, -1, CWhitespaceUtils::Rule_None, L"");
}

TEST(Ranges, ValuesOfATypedCollection)
{
    Ci4Col numbers = Make<Ci4Col>();
    EXPECT_TRUE(begin(numbers) == end(numbers));
    for (const long value : {3L, 1L, 4L}) {
        numbers.Add(value);
    }
    EXPECT_EQ(8, std::accumulate(begin(numbers), end(numbers), 0L));
    EXPECT_THAT(std::vector<long>(begin(numbers), end(numbers)), ElementsAre(3, 1, 4));

    CstringCol texts = Make<CstringCol>();
    texts.Add(L"a");
    texts.Add(L"b");
    std::wstring all;
    for (const std::wstring& text : texts) {
        all += text;
        EXPECT_EQ(&text, &texts.Item(static_cast<int>(all.length()) - 1));
    }
    EXPECT_EQ(L"ab", all);

    CAttributeCol attributes(L"", L"##any", L"");
    attributes.Add(L"", L"1", L"a");
    attributes.Add(L"urn:u", L"2", L"b");
    std::vector<CAttribute*> found(begin(attributes), end(attributes));
    EXPECT_THAT(found, ElementsAre(attributes.Item(0), attributes.Item(1)));
}

} // namespace
