// SPDX-License-Identifier: MIT
// How a collection of generated objects is written and read.
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/XmlCollection.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "core/CoreMessages.h"
#include "core/ErrorPosition.h"
#include "core/ItemPrefetch.h"
#include "xml/NodeAccess.h"

#include <utility>

namespace ZrXmlLib16 {

using ZrXmlLib16Data::XmlElementType_Element;

void CXmlCollection::AttributesToXml_Int(CXmlWriter* writer, const CSerializationContext& context) const
{
    for (const CNode* node = m_first; node; node = node->m_next) {
        CXmlObjectBase::AttributesToXml_Int(node->m_item->GetBase(), writer, context);
    }
}

void CXmlCollection::ToXml_Int(
    CXmlWriter* writer, bool, const wchar_t* namespaceUri, const CSerializationContext& context, bool) const
{
    for (const CNode* node = m_first; node; node = node->m_next) {
        PrefetchBehind(*node);
        CXmlObjectBase::ToXml_Int(node->m_item, writer, false, namespaceUri, context, false);
    }
}

CXmlElement* CXmlCollection::FromXml_Int(
    CXmlElement* element, CXmlElement* firstChild, const CSerializationContext& context, bool)
{
    return GetItemElementType() == XmlElementType_Element ? ReadElements(firstChild, context)
                                                          : ReadInlineItems(element, firstChild, context);
}

CXmlElement* CXmlCollection::ReadElements(CXmlElement* cursor, const CSerializationContext& context)
{
    const CXmlElement* previous = nullptr;
    const auto isItem = [&] {
        return (previous && NodeAccess::SharesName(*cursor, *previous))
            || (HasElementName(NodeAccess::GetObjectName(*cursor))
                && DoesElementNameMatch(context, cursor, cursor->GetLocalName(), Namespace()));
    };
    while (cursor && isItem()) {
        CSmartPtr<CXmlObjectBase> item = RequireItem(cursor);
        CXmlObjectBase::FromXml_Int(item, cursor, cursor->GetFirstElement(), context);
        Insert(std::move(item), nullptr);
        previous = cursor;
        cursor = cursor->GetNextSiblingElement();
    }
    return cursor;
}

/// Items without an element of their own are read one after another until one finds nothing more.
CXmlElement* CXmlCollection::ReadInlineItems(
    CXmlElement* parent, CXmlElement* cursor, const CSerializationContext& context)
{
    for (;;) {
        CSmartPtr<CXmlObjectBase> item = RequireItem(parent);
        CXmlElement* next = CXmlObjectBase::FromXml_Int(item, parent, cursor, context);
        const CXmlGeneratedClass* generated = dynamic_cast<const CXmlGeneratedClass*>(item.GetPtr());
        if (next == cursor || (generated && !generated->m_satisfied)) {
            return cursor;
        }
        Insert(std::move(item), nullptr);
        cursor = next;
    }
}

CSmartPtr<CXmlObjectBase> CXmlCollection::RequireItem(CXmlElement* element)
{
    CSmartPtr<CXmlObjectBase> item = CreateItem(element);
    if (!item) {
        ThrowAt(*element,
            CZrValidationException(FormatString(Message::NO_SUBSTITUTION, ElementName().c_str()), element->GetXPath()));
    }
    return item;
}

CSmartPtr<CXmlObjectBase> CXmlCollection::CreateItem(CXmlElement*)
{
    throw CZrInvalidStateException(Message::NO_ITEM_FACTORY);
}

ZrXmlLib16Data::XmlElementType CXmlCollection::GetItemElementType() const
{
    return XmlElementType_Element;
}

} // namespace ZrXmlLib16
