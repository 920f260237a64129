// SPDX-License-Identifier: MIT
// How whole trees of untyped elements are made from others, at any depth.
#include "ZrXmlLib16/AttributeCol.h"
#include "ZrXmlLib16/Element.h"
#include "ZrXmlLib16/ElementCol.h"
#include "ZrXmlLib16/XmlAttribute.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "core/NilAttribute.h"
#include "metadata/MetadataMessages.h"
#include "xml/NodeAccess.h"

#include <utility>
#include <vector>

namespace ZrXmlLib16 {

void CElement::Clear()
{
    if (m_attributes) {
        m_attributes->Clear();
    }
    if (m_elements) {
        m_elements->Clear();
    }
}

void CElement::TakeNameAndText(const CXmlElement& element)
{
    SetElementName(element.GetLocalName().c_str());
    m_namespace = element.GetNamespaceURI();
    m_text = NodeAccess::CopyText(element);
}

void CElement::TakeAttributes(const CXmlElement& element)
{
    for (const CXmlAttribute* attribute = NodeAccess::GetFirstAttribute(element); attribute;
         attribute = NodeAccess::GetNextAttribute(element, *attribute)) {
        if (IsDefaultDeclaration(*attribute)) {
            m_defaultNamespace = NodeAccess::GetValue(*attribute);
        } else if (!HasDeclarationName(*attribute)) {
            // kept: required behaviour. A prefix inside a value, such as that of xsi:type, is no more than text.
            Attributes().AddItem(
                attribute->GetNamespaceURI(), NodeAccess::GetValue(*attribute), attribute->GetLocalName());
        }
    }
}

void CElement::CopyXmlElement(CXmlElement* element)
{
    if (!element) {
        throw CZrInvalidParamException(ZrXmlLib16Data::Message::ELEMENT_SOURCE_IS_NULL);
    }
    Clear();
    TakeAttributes(*element);
    TakeNameAndText(*element);
    std::vector<std::pair<const CXmlElement*, CElement*>> parents{{element, this}};
    while (!parents.empty()) {
        const auto [source, copy] = parents.back();
        parents.pop_back();
        for (const CXmlElement* child = source->GetFirstElement(); child; child = child->GetNextSiblingElement()) {
            CElementCol& elements = copy->Elements();
            const CSmartPtr<CElement> added = new CElement(elements.m_rule);
            added->TakeAttributes(*child);
            added->TakeNameAndText(*child);
            elements.AppendItem(added);
            if (child->GetFirstElement()) {
                parents.emplace_back(child, added);
            }
        }
    }
}

void CElement::CopyOwnValues(const CElement& element)
{
    SetElementName(element.ElementName().c_str());
    m_text = element.m_text;
    m_namespace = element.m_namespace;
    m_defaultNamespace = element.m_defaultNamespace;
    for (int index = 0; element.m_attributes && index < element.m_attributes->GetCount(); ++index) {
        const CAttribute* attribute = element.m_attributes->Item(index);
        Attributes().AddItem(attribute->GetNamespace(), attribute->GetValue(), attribute->GetName());
    }
}

CSmartPtr<CElement> CElement::Clone() const
{
    const CSmartPtr<CElement> root = new CElement(m_rule);
    root->CopyOwnValues(*this);
    std::vector<std::pair<const CElement*, CElement*>> parents{{this, root}};
    while (!parents.empty()) {
        const auto [source, copy] = parents.back();
        parents.pop_back();
        if (!source->m_elements) {
            continue;
        }
        CElementCol& elements = copy->Elements();
        elements.m_rule = source->m_elements->m_rule;
        for (const CElement* child : *source->m_elements) {
            const CSmartPtr<CElement> added = new CElement(elements.m_rule);
            added->CopyOwnValues(*child);
            elements.AppendItem(added);
            parents.emplace_back(child, added);
        }
    }
    return root;
}

} // namespace ZrXmlLib16
