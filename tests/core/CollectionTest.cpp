// SPDX-License-Identifier: MIT
#include "support/Failure.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

const TestClass& ItemClass()
{
    static const TestClass type = Class(L"item").Value(ItemType_string);
    return type;
}

CSmartPtr<TestObject> NewItem(const wchar_t* text)
{
    CSmartPtr<TestObject> item = ItemClass().Create();
    item->Set(L"#value", text);
    return item;
}

CSmartPtr<TestCollection> NewCollection(int minOccurs = 0, int maxOccurs = -1)
{
    return new TestCollection(L"item", L"urn:i", minOccurs, maxOccurs, &ItemClass().Data());
}

std::string Items(const TestCollection& collection)
{
    std::string text;
    CXmlCollection::CNode* last = nullptr;
    for (auto* node = collection.GetCount() ? collection.GetNodeAtIndex(0) : nullptr; node; node = node->GetNext()) {
        EXPECT_EQ(last, node->GetPrevious());
        last = node;
        text += Narrow((*static_cast<TestObject*>(node->GetItem()))[L"#value"].GetString());
    }
    return text;
}

/// Notes each event with the number of items at that time: +a0 is "about to add", a1 "added", -0:1, 0:0, !0.
class Listener : public TestObject {
public:
    Listener()
        : TestObject(ItemClass())
    {
    }
    std::string m_events;
    std::function<void()> m_onEvent;

    void OnEvent(CXmlObjectBase* sender, MsgType type, void* data) override
    {
        const std::string count = std::to_string(static_cast<TestCollection*>(sender)->GetCount());
        std::string subject;
        if (type == BeforeAdd || type == AfterAdd)
            subject = Narrow((*static_cast<TestObject*>(data))[L"#value"].GetString());
        else if (type != CollectionChanged)
            subject = data ? std::to_string(*static_cast<int*>(data)) + ":" : "*";
        else
            EXPECT_EQ(nullptr, data);
        static const char* const marks[] = {"!", "+", "", "-", ""};
        m_events += (m_events.empty() ? "" : " ") + std::string(marks[type]) + subject + count;
        if (m_onEvent)
            m_onEvent();
    }
};

} // namespace

TEST(Collection, InsertionsAndRemovals)
{
    const CSmartPtr<TestCollection> items = NewCollection();
    const CSmartPtr<TestObject> b = NewItem(L"b");
    EXPECT_EQ(b.GetPtr(), items->AppendItem(b)->GetItem());
    items->PrependItem(NewItem(L"a"));
    items->AddAfterItem(b, NewItem(L"d"));
    items->AddItemAt(2, NewItem(L"c"));
    items->AddBeforeItem(items->GetNodeAtIndex(0)->GetItem(), NewItem(L"_"));
    items->AddItemAt(5, NewItem(L"e"));
    EXPECT_EQ("_abcde", Items(*items));
    items->Remove(0);
    items->Remove(4);
    EXPECT_EQ("abcd", Items(*items));
    items->RemoveNode(items->GetNodeForItem(b));
    EXPECT_EQ("acd", Items(*items));
    EXPECT_EQ(nullptr, items->GetNodeForItem(b));
    EXPECT_EQ(3, items->GetCount());
    items->Clear();
    items->AppendItem(b);
    items->AppendItem(b);
    EXPECT_EQ(items->GetNodeAtIndex(0), items->GetNodeForItem(b));
    EXPECT_EQ("bb", Items(*items));
}

TEST(Collection, EventsSurroundEveryChange)
{
    const CSmartPtr<TestCollection> items = NewCollection();
    Listener listener;
    items->AddEventListener(&listener);
    struct {
        const char* name;
        std::function<void()> action;
        const char* events;
    } const steps[] = {
        {"clear empty", [&] { items->Clear(); }, ""},
        {"append", [&] { items->AppendItem(NewItem(L"a")); }, "+a0 a1 !1"},
        {"prepend", [&] { items->PrependItem(NewItem(L"b")); }, "+b1 b2 !2"},
        {"add at", [&] { items->AddItemAt(1, NewItem(L"c")); }, "+c2 c3 !3"},
        {"add after", [&] { items->AddAfterItem(items->Item(2), NewItem(L"d")); }, "+d3 d4 !4"},
        {"add before", [&] { items->AddBeforeItem(items->Item(0), NewItem(L"e")); }, "+e4 e5 !5"},
        {"remove", [&] { items->Remove(2); }, "-2:5 2:4 !4"},
        {"remove node", [&] { items->RemoveNode(items->GetNodeAtIndex(3)); }, "-3:4 3:3 !3"},
        {"refused", [&] { FailureOf([&] { items->AddItemAt(9, NewItem(L"x")); }); }, ""},
        {"clear", [&] { items->Clear(); }, "-*3 *0 !0"},
    };
    for (const auto& step : steps) {
        listener.m_events.clear();
        step.action();
        EXPECT_EQ(step.events, listener.m_events) << step.name;
    }
}

TEST(Collection, keeps_ListenersThatAreAddedTwice)
{
    const CSmartPtr<TestCollection> items = NewCollection();
    Listener twice, once;
    items->AddEventListener(&twice);
    items->AddEventListener(&once);
    items->AddEventListener(&twice);
    items->FireOnCollectionChange();
    EXPECT_EQ("!0 !0", twice.m_events);
    items->RemoveEventListener(&twice);
    items->FireOnCollectionChange();
    EXPECT_EQ("!0 !0", twice.m_events);
    EXPECT_EQ("!0 !0", once.m_events);
    items->FireOnCollectionRemove(3);
    items->FireOnCollectionRemoveComplete(-1);
    EXPECT_EQ("!0 !0 -3:0 *0", once.m_events);
}

TEST(Collection, ListenersMayLeaveDuringAnEvent)
{
    const CSmartPtr<TestCollection> items = NewCollection();
    Listener first;
    auto second = std::make_unique<Listener>();
    items->AddEventListener(&first);
    items->AddEventListener(second.get());
    first.m_onEvent = [&] {
        items->RemoveEventListener(second.get());
        items->RemoveEventListener(&first);
        second.reset();
    };
    items->AppendItem(NewItem(L"a"));
    EXPECT_EQ("+a0", first.m_events);
}

TEST(Collection, ListenersMayNotTakeThePlaceOfAChange)
{
    const std::function<void(TestCollection&)> changes[] = {
        [](TestCollection& items) { items.PrependItem(NewItem(L"x")); },
        [](TestCollection& items) { items.Remove(0); }};
    for (const auto& change : changes) {
        const CSmartPtr<TestCollection> items = NewCollection();
        items->AppendItem(NewItem(L"a"));
        Listener listener;
        bool done = false;
        listener.m_onEvent = [&] {
            if (!done) {
                done = true;
                items->Clear();
            }
        };
        items->AddEventListener(&listener);
        EXPECT_NE("", FailureOf([&] { change(*items); }));
        EXPECT_EQ(0, items->GetCount());
    }
}

TEST(Collection, BadIndexesAndItemsChangeNothing)
{
    const CSmartPtr<TestCollection> items = NewCollection();
    items->AppendItem(NewItem(L"a"));
    items->AppendItem(NewItem(L"b"));
    const CSmartPtr<TestObject> stranger = NewItem(L"x");
    struct {
        std::function<void()> action;
        const char* failure;
    } const cases[] = {
        {[&] { items->AddItemAt(-1, stranger); }, "InvalidParam: Index -1 is out of range, use 0 - 2"},
        {[&] { items->AddItemAt(3, stranger); }, "InvalidParam: Index 3 is out of range, use 0 - 2"},
        {[&] { items->Remove(2); }, "InvalidParam: Index 2 is out of range, use 0 - 2"},
        {[&] { items->Remove(-1); }, "InvalidParam: Index -1 is out of range, use 0 - 2"},
        {[&] { items->GetNodeAtIndex(2); }, "InvalidParam: Index 2 is out of range, use 0 - 2"},
    };
    for (const auto& row : cases)
        EXPECT_EQ(row.failure, FailureOf(row.action));
    for (const std::function<void()>& action : {std::function<void()>([&] { items->AppendItem(nullptr); }),
             std::function<void()>([&] { items->AddAfterItem(stranger, stranger); }),
             std::function<void()>([&] { items->AddBeforeItem(nullptr, stranger); })})
        EXPECT_EQ(0U, FailureOf(action).find("InvalidParam: "));
    EXPECT_EQ("ab", Items(*items));
}

TEST(Collection, IndexedWalksFollowInsertionsAndRemovals)
{
    const CSmartPtr<TestCollection> items = NewCollection();
    for (int i = 0; i < 50000; ++i)
        items->AppendItem(NewItem(std::to_wstring(i).c_str()));
    for (int i = 0; i < items->GetCount(); ++i)
        ASSERT_EQ(std::to_wstring(i), (*items->Item(i))[L"#value"].GetString());
    items->Remove(100);
    EXPECT_EQ(L"101", (*items->Item(100))[L"#value"].GetString());
    items->AddItemAt(100, NewItem(L"new"));
    EXPECT_EQ(L"new", (*items->Item(100))[L"#value"].GetString());
    EXPECT_EQ(L"101", (*items->Item(101))[L"#value"].GetString());
    EXPECT_EQ(L"99", (*items->Item(99))[L"#value"].GetString());
    EXPECT_EQ(L"49999", (*items->Item(49999))[L"#value"].GetString());
}

TEST(Collection, Counts)
{
    CSerializationContext strict, tolerant;
    tolerant.SetIgnoreInvalidCollectionCounts(true);
    const char* const tooFew = "Validation: The Minimum number of [item] elements allowed in this collection is ";
    const char* const tooMany = "Validation: The Maximum number of [item] elements allowed in this collection is ";
    struct {
        int minOccurs, maxOccurs, count;
        std::string failure;
    } const cases[] = {{0, -1, 0, ""}, {0, -1, 5, ""}, {1, -1, 0, tooFew + std::string("1")}, {1, -1, 1, ""},
        {0, 2, 2, ""}, {0, 2, 3, tooMany + std::string("2")}, {2, 2, 1, tooFew + std::string("2")},
        {5, 1, 2, tooMany + std::string("1")}, {0, 0, 1, tooMany + std::string("0")}};
    for (const auto& row : cases) {
        const CSmartPtr<TestCollection> items = NewCollection(row.minOccurs, row.maxOccurs);
        for (int i = 0; i < row.count; ++i)
            items->AppendItem(NewItem(L"x"));
        EXPECT_EQ(row.failure, FailureOf([&] { items->ValidateCount(strict); }));
        EXPECT_EQ(row.failure.empty(), items->IsValidCount(strict));
        EXPECT_EQ("", FailureOf([&] { items->ValidateCount(tolerant); }));
        EXPECT_TRUE(items->IsValidCount(tolerant));
    }
    const CSmartPtr<TestCollection> items = NewCollection(3, 9);
    EXPECT_EQ(3, items->GetMinOccurs());
    EXPECT_EQ(9, items->GetMaxOccurs());
    EXPECT_EQ(L"urn:i", items->GetNamespace());
    EXPECT_EQ(L"urn:i", items->GetTargetNamespace());
    EXPECT_EQ(L"item", items->GetElementName());
    EXPECT_EQ(items.GetPtr(), items->GetBase());
}

TEST(Collection, ManyItemsAreDestroyedWithoutRecursion)
{
    const CSmartPtr<TestCollection> items = NewCollection();
    const CSmartPtr<TestObject> item = NewItem(L"a");
    for (int i = 0; i < 1000000; ++i)
        items->AppendItem(item);
    items->Clear();
    EXPECT_EQ(0, items->GetCount());
}
