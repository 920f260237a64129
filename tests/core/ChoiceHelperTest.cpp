// SPDX-License-Identifier: MIT
// A choice class in the shape that a generator emits: its setters, reader and event handler call the choice helpers.
#include "support/Failure.h"
#include "support/TestText.h"

#include <gtest/gtest.h>

#include <memory>

using namespace ZrXmlLib16;
using namespace ZrXmlLib16Data;
using namespace TestSupport;

namespace {

const TestClass& NoteClass()
{
    static const TestClass type = Class(L"note").Value(ItemType_string);
    return type;
}

const TestClass& TransferClass()
{
    static const TestClass type = Class(L"transfer").Prim(L"iban");
    return type;
}

class Payment : public CXmlGeneratedClass {
public:
    Payment()
        : m_notes(NewNotes())
    {
        SetElementName(L"payment");
    }
    void SetCard(const wchar_t* number)
    {
        Store(m_card, Card, [number](ZrVariant& value) { value.SetString(number); });
    }
    void SetCash(long amount)
    {
        Store(m_cash, Cash, [amount](ZrVariant& value) { value.SetI4(amount); });
    }
    void SetTransfer(CXmlObjectBase* transfer)
    {
        m_transfer = transfer;
        Choice_SetElementValid(Transfer, transfer != nullptr);
    }
    void UnsetCard() { Unset(m_card, Card); }
    CXmlCollection* Notes()
    {
        Choice_Read_Collection(m_notes, Note);
        return static_cast<CXmlCollection*>(m_notes.GetPtr());
    }
    void ReplaceNotes() { m_notes = NewNotes(); }
    void AddNote(const wchar_t* text)
    {
        const CSmartPtr<TestObject> note = NoteClass().Create();
        note->Set(L"#value", text);
        Notes()->AppendItem(note);
    }

    /// What is set: "card=1 cash=2 transfer notes=3".
    std::string Set()
    {
        std::string text = m_card.IsValid() ? "card=" + Narrow(m_card.GetString()) : "";
        text += m_cash.IsValid() ? " cash=" + std::to_string(m_cash.GetI4()) : "";
        text += m_transfer ? " transfer" : "";
        return text + (m_notes->GetCount() ? " notes=" + std::to_string(m_notes->GetCount()) : "");
    }
    int m_eventCount = 0;
    bool m_cashIsStuck = false;

    void OnEvent(CXmlObjectBase* sender, MsgType type, void*) override
    {
        ++m_eventCount;
        if (type == CollectionChanged && sender == m_notes.GetPtr())
            Choice_CollectionChanged(m_notes, Note);
    }
    std::wstring GetNamespace() const override { return L""; }
    std::wstring GetTargetNamespace() const override { return L""; }

protected:
    void AccessProperty(int index, bool read, ZrVariant& value) override
    {
        switch (index) {
        case Card:
            return read ? void(value = m_card) : value.IsValid() ? SetCard(value.GetString().c_str()) : UnsetCard();
        case Cash:
            if (!read && m_cashIsStuck)
                throw CZrException(L"stuck");
            return read ? void(value = m_cash) : value.IsValid() ? SetCash(value.GetI4()) : Unset(m_cash, Cash);
        case Transfer:
            return read ? value.SetXmlObject(m_transfer) : SetTransfer(value.GetXmlObject());
        default:
            return value.SetXmlCollection(Notes());
        }
    }
    const CParentElementInfo* GetClassInfo() const override
    {
        static const CParentElementInfo info(XmlElementGroup_Choice, XmlElementType_Element, L"payment", L"", true,
            false, -1, ItemType_none, L"", false);
        return &info;
    }
    CElementInfo** GetClassElementInfo() const override
    {
        static CElementInfoChoicePrimOpt card(L"card", L"", Card, false, ItemType_string, L"",
            CWhitespaceUtils::Rule_None, CPrimitiveRestrictions(), L"");
        static CElementInfoChoicePrimOpt cash(
            L"cash", L"", Cash, false, ItemType_i4, L"", CWhitespaceUtils::Rule_None, CPrimitiveRestrictions(), L"");
        static CElementInfoChoiceClsOpt transfer(
            L"transfer", L"", Transfer, XmlElementType_Element, &CreateById, TransferClass().Data().id, false);
        static CElementInfoChoiceClsCol notes(L"note", L"", Note, XmlElementType_Element);
        static CElementInfo* records[] = {&card, &cash, &transfer, &notes, nullptr};
        return records;
    }
    CAttributeInfo** GetClassAttributeInfo() const override { return nullptr; }
    void Init() override
    {
        m_card.SetInvalid();
        m_cash.SetInvalid();
        m_transfer = nullptr;
        m_notes = NewNotes();
    }

private:
    enum { Card = 10, Cash, Transfer, Note };

    static CXmlCollectionBase* NewNotes() { return new TestCollection(L"note", L"", 0, -1, &NoteClass().Data()); }
    template <class Assign> void Store(ZrVariant& member, int id, Assign assign)
    {
        assign(member);
        Choice_SetElementValid(id, true);
    }
    void Unset(ZrVariant& member, int id)
    {
        member.SetInvalid();
        Choice_SetElementValid(id, false);
    }

    ZrVariant m_card;
    ZrVariant m_cash;
    CSmartPtr<CXmlObjectBase> m_transfer;
    CSmartPtr<CXmlCollectionBase> m_notes;
};

} // namespace

TEST(ChoiceHelper, SettingOneAlternativeUnsetsTheOthers)
{
    Payment payment;
    const CSmartPtr<TestObject> transfer = TransferClass().Create();
    const struct {
        std::function<void()> action;
        const char* expected;
    } steps[] = {
        {[&] { payment.SetCard(L"1"); }, "card=1"},
        {[&] { payment.SetCash(2); }, " cash=2"},
        {[&] { payment.SetTransfer(transfer); }, " transfer"},
        {[&] { payment.AddNote(L"a"); }, " notes=1"},
        {[&] { payment.AddNote(L"b"); }, " notes=2"},
        {[&] { payment.Notes()->Remove(0); }, " notes=1"},
        {[&] { payment.SetCard(L"3"); }, "card=3"},
        {[&] { payment.UnsetCard(); }, ""},
        {[&] { payment.SetCash(4); }, " cash=4"},
        {[&] { payment.SetTransfer(nullptr); }, " cash=4"},
        {[&] { payment.Notes()->Clear(); }, " cash=4"},
        {[&] { payment.UnsetCard(); }, " cash=4"},
    };
    for (const auto& step : steps) {
        SCOPED_TRACE(step.expected);
        step.action();
        EXPECT_EQ(step.expected, payment.Set());
    }
}

TEST(ChoiceHelper, ReadingGoesThroughTheSetters)
{
    Payment payment;
    payment.FromXml("<payment><note>a</note><note>b</note></payment>");
    EXPECT_EQ(" notes=2", payment.Set());
    EXPECT_EQ(L"<payment><note>a</note><note>b</note></payment>", payment.ToXml(false, false));
    payment.FromXml("<payment><transfer><iban>x</iban></transfer></payment>");
    EXPECT_EQ(" transfer", payment.Set());
    payment.AddNote(L"c");
    EXPECT_EQ(L"<payment><note>c</note></payment>", payment.ToXml(false, false));
}

TEST(ChoiceHelper, ListensOnceToTheCollectionItHasNow)
{
    Payment payment;
    for (int i = 0; i < 3; ++i)
        payment.Notes();
    payment.AddNote(L"a");
    EXPECT_EQ(3, payment.m_eventCount);
    const CSmartPtr<CXmlCollectionBase> former = payment.Notes();
    payment.ReplaceNotes();
    payment.Notes();
    former->Clear();
    EXPECT_EQ(3, payment.m_eventCount);
    payment.AddNote(L"b");
    EXPECT_EQ(6, payment.m_eventCount);
}

TEST(ChoiceHelper, CollectionsMayOutliveTheirOwner)
{
    std::unique_ptr<Payment> payment(new Payment);
    const CSmartPtr<CXmlCollectionBase> notes = payment->Notes();
    payment->AddNote(L"a");
    payment.reset();
    notes->Clear();
    EXPECT_EQ(0, notes->GetCount());
}

TEST(ChoiceHelper, FailureToUnsetLeavesTheHelpersUsable)
{
    Payment payment;
    payment.m_cashIsStuck = true;
    EXPECT_EQ("Zr: stuck", FailureOf([&] { payment.SetCard(L"1"); }));
    payment.m_cashIsStuck = false;
    payment.SetCash(2);
    EXPECT_EQ(" cash=2", payment.Set());
}
