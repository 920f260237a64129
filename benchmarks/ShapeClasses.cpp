// SPDX-License-Identifier: MIT
#include "benchmarks/ShapeClasses.h"

#include "ZrXmlLib16Data/AttributeInfoAny.h"
#include "ZrXmlLib16Data/ElementInfoSeqClsCol.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimCol.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimOpt.h"
#include "ZrXmlLib16Data/ParentElementInfo.h"
#include "benchmarks/PropertyAccess.h"

namespace Shapes {

using namespace ZrXmlLib16;
using namespace ZrXmlLib16Data;
using PurchaseOrders::namespaceUri;

namespace {

constexpr int onlyProperty = 0;

const CParentElementInfo* SequenceInfo()
{
    static const CParentElementInfo info(XmlElementGroup_Sequence, XmlElementType_Element, L"Shape", namespaceUri, true,
        true, -1, ItemType_none, L"", false);
    return &info;
}

} // namespace

void TextHolder::AccessProperty(int, bool read, ZrVariant& value)
{
    PurchaseOrders::AccessText(read, value, m_text);
}

const CParentElementInfo* TextHolder::GetClassInfo() const
{
    return SequenceInfo();
}

CElementInfo** TextHolder::GetClassElementInfo() const
{
    static CElementInfoSeqPrimOpt text(L"text", namespaceUri, onlyProperty, false, ItemType_string, L"",
        CWhitespaceUtils::Rule_Preserve, CPrimitiveRestrictions(), L"");
    static CElementInfo* records[] = {&text, nullptr};
    return records;
}

NoteList::NoteList()
    : SchemaType(L"notes")
    , m_notes(new PurchaseOrders::Collection<PurchaseOrders::Note>(L"note", namespaceUri, 0, -1))
{
}

void NoteList::AccessProperty(int, bool read, ZrVariant& value)
{
    PurchaseOrders::AccessCollection(read, value, m_notes);
}

const CParentElementInfo* NoteList::GetClassInfo() const
{
    return SequenceInfo();
}

CElementInfo** NoteList::GetClassElementInfo() const
{
    static CElementInfoSeqClsCol notes(L"note", namespaceUri, onlyProperty, XmlElementType_Element);
    static CElementInfo* records[] = {&notes, nullptr};
    return records;
}

AttributeBag::AttributeBag()
    : SchemaType(L"bag")
    , m_attributes(new CAttributeCol(L"any", L"##any", namespaceUri))
{
}

void AttributeBag::AccessProperty(int, bool read, ZrVariant& value)
{
    PurchaseOrders::AccessCollection(read, value, m_attributes);
}

const CParentElementInfo* AttributeBag::GetClassInfo() const
{
    return SequenceInfo();
}

CAttributeInfo** AttributeBag::GetClassAttributeInfo() const
{
    static CAttributeInfoAny any(L"any", L"", onlyProperty, true, L"", L"##any", namespaceUri);
    static CAttributeInfo* records[] = {&any, nullptr};
    return records;
}

template <class Values> ValueList<Values>::ValueList()
    : SchemaType(L"values")
    , m_values(new Values(L"value", namespaceUri, 0, -1, L"", -1, -1, L"", L"", L"", L"", -1, -1, -1,
          CWhitespaceUtils::Rule_Collapse, L""))
{
}

template <class Values> void ValueList<Values>::AccessProperty(int, bool read, ZrVariant& value)
{
    PurchaseOrders::AccessCollection(read, value, m_values);
}

template <class Values> const CParentElementInfo* ValueList<Values>::GetClassInfo() const
{
    return SequenceInfo();
}

template <class Values> CElementInfo** ValueList<Values>::GetClassElementInfo() const
{
    static CElementInfoSeqPrimCol values(L"value", namespaceUri, onlyProperty);
    static CElementInfo* records[] = {&values, nullptr};
    return records;
}

template class ValueList<Ci4Col>;
template class ValueList<CstringCol>;

} // namespace Shapes
