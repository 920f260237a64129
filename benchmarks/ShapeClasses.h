// SPDX-License-Identifier: MIT
#ifndef ZRXML_BENCHMARKS_SHAPECLASSES_H
#define ZRXML_BENCHMARKS_SHAPECLASSES_H

#include "ZrXmlLib16/AttributeCol.h"
#include "ZrXmlLib16/i4Col.h"
#include "ZrXmlLib16/stringCol.h"
#include "benchmarks/PurchaseOrder.h"

/// Root classes with one property each, of which there is one large value or very many.
namespace Shapes {

/// One text in one child element.
class TextHolder : public PurchaseOrders::SchemaType {
public:
    TextHolder()
        : SchemaType(L"document")
    {
    }
    void SetText(std::wstring text) { m_text = std::move(text); }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    void Init() override { m_text.reset(); }

private:
    std::optional<std::wstring> m_text;
};

/// Sibling objects.
class NoteList : public PurchaseOrders::SchemaType {
public:
    NoteList();
    void Add() { m_notes->AppendItem(new PurchaseOrders::Note(L"note")); }
    const ZrXmlLib16::CXmlCollection& GetNotes() const { return *m_notes; }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    void Init() override { m_notes->Clear(); }

private:
    ZrXmlLib16::CSmartPtr<PurchaseOrders::Collection<PurchaseOrders::Note>> m_notes;
};

/// An attribute wildcard.
class AttributeBag : public PurchaseOrders::SchemaType {
public:
    AttributeBag();
    ZrXmlLib16::CAttributeCol& GetAttributes() { return *m_attributes; }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override { m_attributes->Clear(); }

private:
    ZrXmlLib16::CSmartPtr<ZrXmlLib16::CAttributeCol> m_attributes;
};

/// A repeated element of one item type; Values is one of the typed collections.
template <class Values> class ValueList : public PurchaseOrders::SchemaType {
public:
    ValueList();
    Values& GetValues() { return *m_values; }

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    void Init() override { m_values->Clear(); }

private:
    ZrXmlLib16::CSmartPtr<Values> m_values;
};

extern template class ValueList<ZrXmlLib16::Ci4Col>;
extern template class ValueList<ZrXmlLib16::CstringCol>;

} // namespace Shapes

#endif
