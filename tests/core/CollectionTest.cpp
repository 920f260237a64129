// SPDX-License-Identifier: MIT
#include "support/Failure.h"

#include <memory>
#include <utility>

using namespace ZrXmlLib16;
using namespace TestSupport;

namespace {

const TestClass& ItemClass()
{
    static const TestClass type = Class(L"item").Value(ItemType_string);
    return type;
}

CSmartPtr<TestObject> NewItem(const std::wstring& text)
{
    CSmartPtr<TestObject> item = ItemClass().Create();
    item->Set(L"#value", text.c_str());
    return item;
}

CSmartPtr<TestCollection> NewCollection(int count = 0, int minOccurs = 0, int maxOccurs = -1)
{
    const CSmartPtr<TestCollection> items = new TestCollection(L"item", L"", minOccurs, maxOccurs, &ItemClass().Data());
    for (int i = 0; i < count; ++i)
        items->AppendItem(NewItem(std::to_wstring(i)));
    return items;
}

std::string TextOf(void* item)
{
    return Narrow((*static_cast<TestObject*>(item))[L"#value"].GetString());
}

std::string Items(const TestCollection& collection)
{
    std::string text;
    CXmlCollection::CNode* last = nullptr;
    for (auto* node = collection.GetCount() ? collection.GetNodeAtIndex(0) : nullptr; node; node = node->GetNext()) {
        EXPECT_EQ(last, node->GetPrevious());
        last = node;
        text += TextOf(node->GetItem());
    }
    return text;
}

/// Notes each event with the number of items at that time: +a0 is "about to add", =a1 "added", -0:1, ~0:0, !0.
struct Listener final : IEventSink {
    std::string m_events;
    std::function<void()> m_onEvent = [] {};

    void OnEvent(CXmlObjectBase* sender, MsgType type, void* data) override
    {
        const std::string index = data ? std::to_string(*static_cast<int*>(data)) + ":" : "";
        m_events += (m_events.empty() ? "" : " ") + std::string(1, "!+=-~"[type])
            + (type == BeforeAdd || type == AfterAdd ? TextOf(data) : index)
            + std::to_string(static_cast<TestCollection*>(sender)->GetCount());
        m_onEvent();
    }
};

} // namespace

TEST(Collection, ChangesAndTheirEvents)
{
    const CSmartPtr<TestCollection> items = NewCollection(), others = NewCollection(1);
    const CSmartPtr<TestObject> b = NewItem(L"b"), stranger = NewItem(L"x");
    Listener listener;
    items->AddEventListener(&listener);
    const std::string notHeld = "InvalidParam: The item is not held by this collection";
    const struct {
        std::function<void()> action;
        const char* items;
        std::string events; // or the failure
    } steps[] = {
        {[&] { items->Clear(); }, "", ""},
        {[&] { EXPECT_EQ(b.GetPtr(), items->AppendItem(b)->GetItem()); }, "b", "+b0 =b1 !1"},
        {[&] { items->PrependItem(NewItem(L"a")); }, "ab", "+a1 =a2 !2"},
        {[&] { items->AddAfterItem(b, NewItem(L"d")); }, "abd", "+d2 =d3 !3"},
        {[&] { items->AddItemAt(2, NewItem(L"c")); }, "abcd", "+c3 =c4 !4"},
        {[&] { items->AddBeforeItem(items->Item(0), NewItem(L"_")); }, "_abcd", "+_4 =_5 !5"},
        {[&] { items->AddItemAt(5, NewItem(L"e")); }, "_abcde", "+e5 =e6 !6"},
        {[&] { items->Remove(0); }, "abcde", "-0:6 ~0:5 !5"},
        {[&] { items->Remove(4); }, "abcd", "-4:5 ~4:4 !4"},
        {[&] { items->RemoveNode(items->GetNodeForItem(b)); }, "acd", "-1:4 ~1:3 !3"},
        {[&] { items->AddItemAt(4, b); }, "acd", "InvalidParam: Index 4 is out of range, use 0 - 3"},
        {[&] { items->Remove(-1); }, "acd", "InvalidParam: Index -1 is out of range, use 0 - 3"},
        {[&] { items->GetNodeAtIndex(3); }, "acd", "InvalidParam: Index 3 is out of range, use 0 - 3"},
        {[&] { items->AppendItem(nullptr); }, "acd", "InvalidParam: An item of a collection may not be NULL"},
        {[&] { items->AddAfterItem(b, stranger); }, "acd", notHeld},
        {[&] { items->AddBeforeItem(nullptr, stranger); }, "acd", notHeld},
        {[&] { items->RemoveNode(others->GetNodeAtIndex(0)); }, "acd", notHeld},
        {[&] { items->RemoveNode(nullptr); }, "acd", notHeld},
        {[&] { items->Clear(); }, "", "-3 ~0 !0"},
    };
    for (const auto& step : steps) {
        SCOPED_TRACE(&step - steps);
        listener.m_events.clear();
        const std::string failure = FailureOf(step.action);
        EXPECT_EQ(step.events, failure + listener.m_events);
        EXPECT_EQ(step.items, Items(*items));
    }
    EXPECT_EQ(nullptr, items->GetNodeForItem(b));
    items->AppendItem(b);
    items->AppendItem(b);
    EXPECT_EQ(items->GetNodeAtIndex(0), items->GetNodeForItem(b));
}

TEST(Collection, keeps_ListenersThatAreAddedTwice)
{
    const CSmartPtr<TestCollection> items = NewCollection();
    Listener twice, once;
    for (Listener* listener : {&twice, &once, &twice})
        items->AddEventListener(listener);
    items->FireOnCollectionChange();
    EXPECT_EQ("!0 !0", twice.m_events);
    items->RemoveEventListener(&twice);
    items->FireOnCollectionRemove(3);
    items->FireOnCollectionRemoveComplete(-1);
    EXPECT_EQ("!0 !0", twice.m_events);
    EXPECT_EQ("!0 -3:0 ~0", once.m_events);
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
    for (const bool removes : {false, true}) {
        const CSmartPtr<TestCollection> items = NewCollection(1);
        Listener listener;
        bool done = false;
        listener.m_onEvent = [&] { std::exchange(done, true) ? void() : items->Clear(); };
        items->AddEventListener(&listener);
        EXPECT_EQ("InvalidState: A listener changed the collection before the announced change",
            FailureOf([&] { removes ? items->Remove(0) : void(items->PrependItem(NewItem(L"x"))); }));
        EXPECT_EQ(0, items->GetCount());
    }
}

TEST(Collection, ReadsNothingWithoutAFactory)
{
    TestObject order(Class(L"order").Cls(L"item", ItemClass()).Col());
    order.m_onAccess = [&](const std::wstring&, bool) {
        order[L"item"].SetXmlCollection(new CXmlCollection(L"item", L"", 0, -1));
    };
    EXPECT_EQ(Unprocessed("/order", "InvalidState: The collection does not know how to create its items"),
        FailureOf([&] { order.FromXml("<order><item/></order>"); }));
}

TEST(Collection, ManyItems)
{
    const CSmartPtr<TestCollection> items = NewCollection(50000);
    for (int i = 0; i < items->GetCount(); ++i)
        ASSERT_EQ(std::to_string(i), TextOf(items->Item(i)));
    items->Remove(100);
    items->AddItemAt(100, NewItem(L"new"));
    EXPECT_EQ("new", TextOf(items->Item(100)));
    EXPECT_EQ("101", TextOf(items->Item(101)));
    EXPECT_EQ("99", TextOf(items->Item(99)));
    // Long lists are destroyed without recursion.
    const CSmartPtr<TestObject> item = NewItem(L"a");
    for (int i = 0; i < 1000000; ++i)
        items->AppendItem(item);
    items->Clear();
    EXPECT_EQ(0, items->GetCount());
}

TEST(Collection, Counts)
{
    const std::string tooFew = "Validation: The Minimum number of [item] elements allowed in this collection is ";
    const std::string tooMany = "Validation: The Maximum number of [item] elements allowed in this collection is ";
    const struct {
        int minOccurs, maxOccurs, count;
        std::string failure;
    } cases[] = {{0, -1, 0, ""}, {0, -1, 5, ""}, {1, -1, 0, tooFew + "1"}, {1, -1, 1, ""}, {0, 2, 2, ""},
        {0, 2, 3, tooMany + "2"}, {2, 2, 1, tooFew + "2"}, {5, 1, 2, tooMany + "1"}, {0, 0, 1, tooMany + "0"}};
    for (const auto& row : cases) {
        const CSmartPtr<TestCollection> items = NewCollection(row.count, row.minOccurs, row.maxOccurs);
        EXPECT_EQ(row.failure, FailureOf([&] { items->ValidateCount(CSerializationContext()); }));
        EXPECT_EQ(row.failure.empty(), items->IsValidCount(CSerializationContext()));
    }
}

// Nodes stay where they are, and the places of removed ones are taken again.
TEST(Collection, KeepsNodesInPlaceThroughManyChanges)
{
    const CSmartPtr<TestCollection> items = NewCollection();
    std::vector<std::pair<std::string, CXmlCollection::CNode*>> expected;
    unsigned random = 1;
    for (int step = 0; step < 3000; ++step) {
        random = random * 1103515245 + 12345;
        const std::size_t at = (random >> 16) % (expected.size() + 1);
        const bool removes = (random >> 8) % 8 < (step < 1500 ? 3U : 5U) && at < expected.size();
        if (removes) {
            items->Remove(static_cast<int>(at));
            expected.erase(expected.begin() + static_cast<std::ptrdiff_t>(at));
        } else {
            const std::wstring text = std::to_wstring(step);
            auto* const node = items->AddItemAt(static_cast<int>(at), NewItem(text));
            expected.insert(expected.begin() + static_cast<std::ptrdiff_t>(at), {Narrow(text), node});
        }
    }
    ASSERT_EQ(static_cast<int>(expected.size()), items->GetCount());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        auto* const node = items->GetNodeAtIndex(static_cast<int>(i));
        ASSERT_EQ(expected[i].second, node);
        ASSERT_EQ(expected[i].first, TextOf(node->GetItem()));
    }
}

TEST(Collection, LosesNoItemWhenAListenerThrowsWhileItIsCleared)
{
    const CSmartPtr<TestObject> item = NewItem(L"a");
    const CSmartPtr<TestCollection> items = NewCollection();
    items->AppendItem(item);
    Listener listener;
    items->AddEventListener(&listener);
    int events = 0;
    listener.m_onEvent = [&] {
        if (++events == 2) {
            throw CZrException(L"refused");
        }
    };
    EXPECT_THROW(items->Clear(), CZrException);
    EXPECT_EQ(0, items->GetCount());
    EXPECT_EQ(2, item->AddRef()); // this test's reference and the new one
    item->Release();
}
