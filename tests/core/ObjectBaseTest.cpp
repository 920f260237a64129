// SPDX-License-Identifier: MIT
#include "support/Failure.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

const TestClass& Plain()
{
    static const TestClass type = Class(L"plain").Prim(L"qty").Opt();
    return type;
}

/// Counts its destructions.
class Counted : public TestObject {
public:
    explicit Counted(std::atomic<int>& destroyed)
        : TestObject(Plain())
        , m_destroyed(destroyed)
    {
    }
    ~Counted() override { ++m_destroyed; }

private:
    std::atomic<int>& m_destroyed;
};

} // namespace

TEST(ObjectBase, CountStartsAtZeroAndEndsWithOneDestruction)
{
    std::atomic<int> destroyed{0};
    CXmlObjectBase* raw = new Counted(destroyed);
    EXPECT_EQ(1, raw->AddRef());
    EXPECT_EQ(2, raw->AddRef());
    EXPECT_EQ(1, raw->Release());
    EXPECT_EQ(0, destroyed);
    EXPECT_EQ(0, raw->Release());
    EXPECT_EQ(1, destroyed);
}

TEST(ObjectBase, SmartPointerOwnsThroughCopiesMovesAndBases)
{
    std::atomic<int> destroyed{0};
    {
        CSmartPtr<Counted> first(new Counted(destroyed));
        CSmartPtr<CXmlObjectBase> base(first);
        CSmartPtr<Counted> moved(std::move(first));
        EXPECT_EQ(nullptr, first.GetPtr());
        CSmartPtr<Counted> assigned;
        assigned = moved;
        assigned = *&assigned;
        assigned = assigned.GetPtr();
        moved = CSmartPtr<Counted>();
        base = nullptr;
        EXPECT_EQ(0, destroyed);
        EXPECT_EQ(L"plain", assigned->GetElementName());
        CXmlObjectBase* borrowed = assigned;
        EXPECT_EQ(borrowed, borrowed->GetBase());
        assigned = new Counted(destroyed);
        EXPECT_EQ(1, destroyed);
    }
    EXPECT_EQ(2, destroyed);
}

TEST(ObjectBase, OwnersOnSeveralThreadsShareAnObject)
{
    std::atomic<int> destroyed{0};
    CSmartPtr<Counted> object(new Counted(destroyed));
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([object] {
            for (int round = 0; round < 20000; ++round) {
                const CSmartPtr<CXmlObjectBase> copy(object);
                ASSERT_NE(nullptr, copy.GetPtr());
            }
        });
    object = nullptr;
    for (std::thread& thread : threads)
        thread.join();
    threads.clear();
    EXPECT_EQ(1, destroyed);
}

TEST(ObjectBase, CopiesTakeTheElementNameOnly)
{
    const CSmartPtr<TestObject> source(new TestObject(Plain(), L"named"));
    source->AddRef();
    CSmartPtr<TestObject> copy(new TestObject(*source));
    EXPECT_EQ(L"named", copy->GetElementName());
    EXPECT_EQ(2, copy->AddRef());
    EXPECT_EQ(1, copy->Release());
    EXPECT_EQ(1, source->Release());
    copy->SetElementName(L"other");
    EXPECT_EQ(L"named", source->GetElementName());
    copy->SetElementName(nullptr);
    EXPECT_EQ(L"", copy->GetElementName());
}

TEST(ObjectBase, keeps_MisspelledMessageForNullProperties)
{
    TestObject object(Plain(), L"item");
    EXPECT_EQ("InvalidParam: The Property [Item] is mandatory, it may node be NULL",
        FailureOf([] { CXmlObjectBase::Throw_IfPropertyIsNull(nullptr, L"Item"); }));
    EXPECT_EQ("", FailureOf([&] { CXmlObjectBase::Throw_IfPropertyIsNull(&object, L"Item"); }));
    EXPECT_EQ("", FailureOf([] { CXmlObjectBase::Throw_IfElementNameDiffers(nullptr, L"item"); }));
    EXPECT_EQ("", FailureOf([&] { CXmlObjectBase::Throw_IfElementNameDiffers(&object, L"item"); }));
    EXPECT_EQ("InvalidParam: This property requires an element with the name Item the element being set has the "
              "element name item",
        FailureOf([&] { CXmlObjectBase::Throw_IfElementNameDiffers(&object, L"Item"); }));
}

TEST(ObjectBase, ElementsAreMatchedByLocalNameAndNamespace)
{
    CXmlElement element(nullptr, nullptr);
    element.SetElementName(L"item");
    element.SetNamespace(L"urn:a");
    struct {
        const wchar_t* name;
        const wchar_t* uri;
        const char* matches; // plain, ignoring namespaces, schema type without namespaces
    } const cases[] = {{L"item", L"urn:a", "yyy"}, {L"item", L"urn:A", "nyy"}, {L"item", L"", "nyy"},
        {L"Item", L"urn:a", "nnn"}, {L"ite", L"urn:a", "nnn"}, {L"items", L"urn:a", "nnn"}};
    CSerializationContext plain, ignoring, local;
    ignoring.SetIgnoreNamespaces(true);
    local.SetSchemaType(SchemaType_DTD);
    for (const auto& row : cases) {
        std::string matches;
        for (const CSerializationContext* context : {&plain, &ignoring, &local}) {
            const bool match = CXmlObjectHelper::DoesElementNameMatch(*context, &element, row.name, row.uri);
            EXPECT_EQ(match, TestObject::DoesElementNameMatch(*context, &element, row.name, row.uri));
            matches += match ? 'y' : 'n';
        }
        EXPECT_EQ(row.matches, matches) << Narrow(row.name) << " " << Narrow(row.uri);
    }
    EXPECT_FALSE(CXmlObjectHelper::DoesElementNameMatch(plain, nullptr, L"", L""));
}

TEST(ClassFactory, TypeNameAndNamespaceOfAnElement)
{
    const char xsi[] = "xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'";
    struct {
        const char* attributes;
        const wchar_t* name;
        const wchar_t* uri;
    } const cases[] = {
        {"", L"", L"urn:own"},
        {"type='p:x'", L"", L"urn:own"},
        {"xsi:type='derived'", L"derived", L"urn:own"},
        {"xsi:type='p:derived' xmlns:p='urn:p'", L"derived", L"urn:p"},
        {"xsi:type='p:a:b' xmlns:p='urn:p'", L"a:b", L"urn:p"},
        {"xsi:type='unbound:derived'", L"derived", L""},
        {"xsi:type=' p:derived ' xmlns:p='urn:p'", L"derived ", L""},
        {"xsi:type='p:'  xmlns:p='urn:p'", L"", L"urn:p"},
        {"xsi:type=''", L"", L"urn:own"},
    };
    for (const auto& row : cases) {
        CXmlDocument document;
        document.LoadXml((std::string("<a xmlns='urn:own' ") + xsi + " " + row.attributes + "/>").c_str());
        EXPECT_EQ(row.name, CClassfactoryBase::GetElementType(document.GetDocumentElement())) << row.attributes;
        EXPECT_EQ(row.uri, CClassfactoryBase::GetElementTypeNamespaceUri(document.GetDocumentElement()))
            << row.attributes;
    }
}

TEST(ClassFactory, keeps_PrefixesOfTheWholeDocument)
{
    CXmlDocument document;
    document.LoadXml("<a xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance'><b xmlns:p='urn:1' xsi:type='p:t'/><c "
                     "xmlns:p='urn:2'/></a>");
    EXPECT_EQ(
        L"urn:2", CClassfactoryBase::GetElementTypeNamespaceUri(document.GetDocumentElement()->GetFirstElement()));
}
