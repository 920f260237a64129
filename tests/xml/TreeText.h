// SPDX-License-Identifier: MIT
#ifndef TESTS_XML_TREETEXT_H
#define TESTS_XML_TREETEXT_H

#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlAttribute.h"
#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"

#include <string>

namespace TestSupport {

inline std::wstring NameText(const std::wstring& namespaceUri, const std::wstring& localName)
{
    return namespaceUri.empty() ? localName : L"{" + namespaceUri + L"}" + localName;
}

/// A whole tree on one line: {namespace}name @attribute=value 'text' (children).
inline std::wstring TreeText(const ZrXmlLib16::CXmlElement* element)
{
    std::wstring text;
    for (; element; element = element->GetNextSiblingElement()) {
        text += NameText(element->GetNamespaceURI(), element->GetLocalName());
        for (const ZrXmlLib16::CXmlAttribute* attribute : element->GetAttributes()) {
            text += L" @" + NameText(attribute->GetNamespaceURI(), attribute->GetLocalName()) + L"="
                + attribute->GetValue();
        }
        if (!element->GetText().empty())
            text += L" '" + element->GetText() + L"'";
        if (element->GetFirstElement())
            text += L" (" + TreeText(element->GetFirstElement()) + L")";
        text += element->GetNextSiblingElement() ? L", " : L"";
    }
    return text;
}

inline std::wstring ParsedTree(const char* text,
    const ZrXmlLib16::CSerializationContext& context = ZrXmlLib16::CSerializationContext::m_defaultContext)
{
    ZrXmlLib16::CXmlDocument document(context);
    document.LoadXml(text);
    return TreeText(document.GetDocumentElement());
}

} // namespace TestSupport

#endif
