// SPDX-License-Identifier: MIT
// How the element records of a sequence, a choice or an all group claim the children of an element.
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "ZrXmlLib16Data/ElementInfo.h"
#include "core/CoreMessages.h"
#include "core/ErrorPosition.h"
#include "core/SeenFlags.h"
#include "core/TargetNamespace.h"

#include <utility>

namespace ZrXmlLib16 {

using ZrXmlLib16Data::CElementInfo;
using ZrXmlLib16Data::XmlElementType;
using ZrXmlLib16Data::XmlElementType_Element;
using ZrXmlLib16Data::XmlElementType_PseudoElement;

namespace {

CXmlElement* Next(const CXmlElement* element)
{
    return element->GetNextSiblingElement();
}

[[noreturn]] void ThrowChildLeftOver(const CXmlElement& parent, const CXmlElement& child)
{
    ThrowAt(child,
        CZrValidationException(
            FormatString(Message::CHILD_LEFT_OVER, parent.GetLocalName().c_str(), child.GetLocalName().c_str()),
            parent.GetXPath()));
}

/// Whether a collection would have to answer for an element that is not its own: its count rule would come too early.
bool IsForeignToCollection(const CElementInfo* record, const CSerializationContext& context, const CXmlElement* cursor)
{
    return record->IsCollection() && record->IsMatchedByName() && !record->IsThisElement(context, cursor);
}

} // namespace

bool CXmlGeneratedClass::IsElementInList(const CSerializationContext& context, const CXmlElement* element) const
{
    for (CElementInfo** record = GetClassElementInfo(); record && *record; ++record) {
        if ((*record)->IsThisElement(context, element)) {
            return true;
        }
    }
    return false;
}

bool CXmlGeneratedClass::IsMatchedByNameOnly() const
{
    for (CElementInfo** record = GetClassElementInfo(); record && *record; ++record) {
        if (!(*record)->IsMatchedByName()) {
            return false;
        }
    }
    return true;
}

bool CXmlGeneratedClass::Offer(CElementInfo* record, const CSerializationContext& context, CXmlElement* parent,
    CXmlElement*& cursor, const wchar_t* target, XmlElementType type)
{
    // A record may run the cursor to the end and then answer that it found nothing.
    CXmlElement* moved = cursor;
    if (!record->ElementFromXml(context, this, parent, &moved, target, type)) {
        return false;
    }
    if (moved != cursor) {
        m_touched = true;
        cursor = moved;
    }
    return true;
}

CXmlElement* CXmlGeneratedClass::ProcessElementSeqFromXml(
    const CSerializationContext& context, CXmlElement* parent, CXmlElement* cursor, XmlElementType type)
{
    const CTargetNamespace targetNamespace(*this, GetClassInfo(), *parent);
    CElementInfo** const records = GetClassElementInfo();
    const wchar_t* const target = targetNamespace.GetText();
    if (context.GetIgnoreUnknownElements()) {
        return ReadSequenceTolerantly(context, records, parent, cursor, target, type);
    }
    CXmlElement* const entry = cursor;
    for (CElementInfo** record = records; record && *record; ++record) {
        if (!Offer(*record, context, parent, cursor, target, type)) {
            m_satisfied = false;
            return entry;
        }
    }
    m_satisfied = true;
    if (type == XmlElementType_Element && cursor) {
        ThrowChildLeftOver(*parent, *cursor);
    }
    return cursor;
}

/// Skips elements that no record takes. When every record had its turn, what is left is offered to the last one again.
CXmlElement* CXmlGeneratedClass::ReadSequenceTolerantly(const CSerializationContext& context, CElementInfo** records,
    CXmlElement* parent, CXmlElement* cursor, const wchar_t* target, XmlElementType type)
{
    const std::size_t count = CountRecords(records);
    // With names alone to go by, an element that no record knows can be skipped before a record mistakes it for its own
    // absence.
    const bool skipUnknown = type == XmlElementType_Element && IsMatchedByNameOnly();
    CXmlElement* const entry = cursor;
    bool lastTookSomething = false;
    std::size_t start = 0;
    for (bool again = false;; again = true) {
        for (std::size_t index = start; index < count; ++index) {
            while (skipUnknown && cursor && !IsElementInList(context, cursor)) {
                cursor = Next(cursor);
            }
            CElementInfo* record = records[index];
            if (again && lastTookSomething && !record->IsCollection() && !record->Claims(context, cursor)) {
                continue;
            }
            const bool touched = std::exchange(m_touched, false);
            while (!Offer(record, context, parent, cursor, target, type)) {
                if (!cursor) {
                    m_satisfied = false;
                    return entry;
                }
                cursor = Next(cursor);
            }
            lastTookSomething = m_touched || (again && lastTookSomething);
            m_touched = m_touched || touched;
        }
        m_satisfied = true;
        if (type != XmlElementType_Element || !cursor) {
            return cursor;
        }
        cursor = Next(cursor);
        if (!cursor || count == 0) {
            return nullptr;
        }
        start = count - 1;
    }
}

CXmlElement* CXmlGeneratedClass::ProcessElementChoiceFromXml(const CSerializationContext& context, CXmlElement* parent,
    CXmlElement* cursor, XmlElementType type, bool isOptional)
{
    const CTargetNamespace targetNamespace(*this, GetClassInfo(), *parent);
    CElementInfo** records = GetClassElementInfo();
    const wchar_t* const target = targetNamespace.GetText();
    CXmlElement* const entry = cursor;
    bool chosen = false;
    for (bool searching = true; searching;) {
        for (CElementInfo** record = records; record && *record && !chosen; ++record) {
            if (IsForeignToCollection(*record, context, cursor)) {
                continue;
            }
            CXmlElement* const before = cursor;
            const bool satisfied = Offer(*record, context, parent, cursor, target, type);
            // A content-only alternative may have consumed attributes alone; it answers true only when it was touched.
            const bool isInlineClass = (*record)->IsInline() && !(*record)->IsCollection();
            chosen = satisfied && (cursor != before || isInlineClass);
        }
        searching = !chosen && context.GetIgnoreUnknownElements() && cursor && type == XmlElementType_Element;
        if (searching) {
            cursor = Next(cursor);
        }
    }
    return FinishChoice(context, parent, entry, cursor, type, chosen, isOptional);
}

CXmlElement* CXmlGeneratedClass::FinishChoice(const CSerializationContext& context, CXmlElement* parent,
    CXmlElement* entry, CXmlElement* cursor, XmlElementType type, bool chosen, bool isOptional)
{
    const bool settled = chosen || isOptional;
    m_satisfied = settled || IsChoiceAllowedEmpty(context);
    if (type != XmlElementType_Element) {
        const bool handBack = !settled && type == XmlElementType_PseudoElement && context.GetIgnoreUnknownElements();
        return handBack ? entry : cursor;
    }
    if (!m_satisfied) {
        throw CZrValidationException(
            FormatString(Message::CHOICE_NOT_POPULATED, parent->GetLocalName().c_str()), parent->GetXPath());
    }
    if (cursor && !context.GetIgnoreUnknownElements()) {
        ThrowChildLeftOver(*parent, *cursor);
    }
    return cursor;
}

CXmlElement* CXmlGeneratedClass::ProcessElementAllFromXml(
    const CSerializationContext& context, CXmlElement* parent, CXmlElement* cursor, XmlElementType type)
{
    const CTargetNamespace targetNamespace(*this, GetClassInfo(), *parent);
    CElementInfo** records = GetClassElementInfo();
    const std::size_t count = CountRecords(records);
    const wchar_t* const target = targetNamespace.GetText();
    CXmlElement* const entry = cursor;
    CSeenFlags found(count);
    while (cursor) {
        bool taken = false;
        for (std::size_t index = 0; index < count && !taken; ++index) {
            CElementInfo* record = records[index];
            // Each member stands once; a repetition is a child that nobody knows.
            if ((found.Test(index) && !record->IsCollection()) || IsForeignToCollection(record, context, cursor)) {
                continue;
            }
            CXmlElement* const before = cursor;
            if (Offer(record, context, parent, cursor, target, type) && cursor != before) {
                found.Set(index);
                taken = true;
            }
        }
        if (!taken) {
            if (type != XmlElementType_Element) {
                break;
            }
            if (!context.GetIgnoreUnknownElements()) {
                ThrowChildLeftOver(*parent, *cursor);
            }
            cursor = Next(cursor);
        }
    }
    m_satisfied = ValidateAll(context, parent, target, type, found);
    return m_satisfied || type == XmlElementType_Element ? cursor : entry;
}

bool CXmlGeneratedClass::ValidateAll(const CSerializationContext& context, CXmlElement* parent, const wchar_t* target,
    XmlElementType type, const CSeenFlags& found)
{
    const bool check = type == XmlElementType_Element && !context.GetIgnoreMissingMandatoryElements();
    CElementInfo** records = GetClassElementInfo();
    bool complete = true;
    for (std::size_t index = 0; records && records[index]; ++index) {
        if (!records[index]->IsCollection()) {
            complete = records[index]->Validate(context, this, found.Test(index), check) && complete;
        } else if (!found.Test(index)) {
            // A collection that took nothing settles its minimum with an offer of nothing.
            CXmlElement* none = nullptr;
            complete = Offer(records[index], context, parent, none, target, type) && complete;
        }
    }
    return complete;
}

} // namespace ZrXmlLib16
