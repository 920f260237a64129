// SPDX-License-Identifier: MIT
#include "support/Failure.h"

#include <atomic>
#include <thread>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

std::atomic<int> destroyed;

class Counted : public TestObject {
public:
    Counted()
        : TestObject(Class(L"plain"))
    {
        destroyed = 0;
    }
    ~Counted() override { ++destroyed; }
};

} // namespace

TEST(ObjectBase, LastOwnerDestroys)
{
    Counted* const raw = new Counted;
    EXPECT_EQ(1, raw->AddRef());
    CSmartPtr<Counted> first(raw);
    CSmartPtr<CXmlObjectBase> base(first);
    CSmartPtr<Counted> moved(std::move(first));
    EXPECT_EQ(nullptr, first.GetPtr());
    CSmartPtr<Counted> assigned;
    assigned = moved;
    assigned = *&assigned;
    assigned = assigned.GetPtr();
    EXPECT_EQ(3, raw->Release());
    // A copy takes the element name only.
    const CSmartPtr<TestObject> copy(new TestObject(*raw));
    EXPECT_EQ(2, copy->AddRef());
    EXPECT_EQ(1, copy->Release());
    EXPECT_EQ(L"plain", copy->GetElementName());
    moved = CSmartPtr<Counted>();
    base = nullptr;
    EXPECT_EQ(0, destroyed);
    assigned = nullptr;
    EXPECT_EQ(1, destroyed);
}

TEST(ObjectBase, NamesOfAnyLengthAreKeptAndCopied)
{
    const std::wstring names[] = {
        L"", L"a", L"exactly16letters", L"seventeen letters", L"\xFFFF", L"\x1F600", std::wstring(300, L'n')};
    for (const std::wstring& before : names) {
        for (const std::wstring& after : names) {
            TestObject object(Class(before.c_str()));
            object.SetElementName(before.c_str());
            TestObject copy(object);
            copy.SetElementName(after.c_str());
            EXPECT_EQ(before, object.GetElementName());
            EXPECT_EQ(after, copy.GetElementName());
            const auto compare = [&] { CXmlObjectBase::Throw_IfElementNameDiffers(&object, after.c_str()); };
            if (before == after)
                EXPECT_NO_THROW(compare());
            else
                EXPECT_THROW(compare(), CZrInvalidParamException);
        }
    }
}

TEST(ObjectBase, OwnersOnSeveralThreadsShareAnObject)
{
    CSmartPtr<Counted> object(new Counted);
    {
        std::vector<std::thread> threads;
        for (int i = 0; i < 4; ++i)
            threads.emplace_back([object] {
                for (int round = 0; round < 20000; ++round)
                    ASSERT_NE(nullptr, CSmartPtr<CXmlObjectBase>(object).GetPtr());
            });
        object = nullptr;
        for (std::thread& thread : threads)
            thread.join();
    }
    EXPECT_EQ(1, destroyed);
}

TEST(ObjectBase, keeps_MisspelledMessageForNullProperties)
{
    TestObject item(Class(L"item"));
    EXPECT_EQ("InvalidParam: The Property [Item] is mandatory, it may node be NULL",
        FailureOf([] { CXmlObjectBase::Throw_IfPropertyIsNull(nullptr, L"Item"); }));
    EXPECT_EQ("InvalidParam: This property requires an element with the name Item the element being set has the "
              "element name item",
        FailureOf([&] { CXmlObjectBase::Throw_IfElementNameDiffers(&item, L"Item"); }));
    EXPECT_EQ("", FailureOf([&] {
        CXmlObjectBase::Throw_IfPropertyIsNull(&item, L"Item");
        CXmlObjectBase::Throw_IfElementNameDiffers(nullptr, L"item");
        CXmlObjectBase::Throw_IfElementNameDiffers(&item, L"item");
    }));
}

TEST(ObjectBase, ElementsAreMatchedByLocalNameAndNamespace)
{
    CXmlElement element(nullptr, nullptr);
    element.SetElementName(L"item");
    element.SetNamespace(L"urn:a");
    CSerializationContext ignoring, dtd;
    ignoring.SetIgnoreNamespaces(true);
    dtd.SetSchemaType(SchemaType_DTD);
    for (const CSerializationContext& context : {CSerializationContext(), ignoring, dtd}) {
        const bool local = context.GetIgnoreNamespaces() || context.GetSchemaType() == SchemaType_DTD;
        EXPECT_TRUE(TestObject::DoesElementNameMatch(context, &element, L"item", L"urn:a"));
        for (const wchar_t* uri : {L"urn:A", L""})
            EXPECT_EQ(local, CXmlObjectHelper::DoesElementNameMatch(context, &element, L"item", uri));
        for (const wchar_t* name : {L"Item", L"ite", L"items"})
            EXPECT_FALSE(CXmlObjectHelper::DoesElementNameMatch(context, &element, name, L"urn:a"));
    }
    EXPECT_FALSE(CXmlObjectHelper::DoesElementNameMatch({}, nullptr, L"", L""));
}

TEST(ClassFactory, keeps_TypePrefixesOfTheWholeDocument)
{
    const wchar_t* const cases[][3] = {{L"type='p:x'", L"", L"urn:own"},
        {L"xsi:type='derived'", L"derived", L"urn:own"}, {L"xsi:type='p:a:b'", L"a:b", L"urn:last"},
        {L"xsi:type='unbound:derived'", L"derived", L""}, {L"xsi:type=' p:derived '", L"derived ", L""},
        {L"xsi:type='p:'", L"", L"urn:last"}, {L"xsi:type=''", L"", L"urn:own"}};
    for (const auto& row : cases) {
        CXmlDocument document;
        document.LoadXml((std::wstring(L"<a xmlns='urn:own' xmlns:xsi='http://www.w3.org/2001/XMLSchema-instance' "
                                       L"xmlns:p='urn:p' ")
            + row[0] + L"><b xmlns:p='urn:last'/></a>")
                             .c_str());
        EXPECT_EQ(row[1], CClassfactoryBase::GetElementType(document.GetDocumentElement()));
        EXPECT_EQ(row[2], CClassfactoryBase::GetElementTypeNamespaceUri(document.GetDocumentElement()));
    }
}
