// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/ClassfactoryBase.h"

#include "ZrXmlLib16/XmlDocument.h"
#include "ZrXmlLib16/XmlElement.h"
#include "xml/NodeAccess.h"
#include "xml/XmlNamespaces.h"

namespace ZrXmlLib16 {

namespace {

std::wstring TypeAttribute(const CXmlElement* element)
{
    return NodeAccess::CopyAttribute(*element, L"type", SCHEMA_INSTANCE_NAMESPACE_URI);
}

} // namespace

CClassfactoryBase::CClassfactoryBase() = default;

CClassfactoryBase::~CClassfactoryBase() = default;

std::wstring CClassfactoryBase::GetElementType(CXmlElement* element)
{
    const std::wstring type = TypeAttribute(element);
    const std::wstring::size_type colon = type.find(L':');
    return colon == std::wstring::npos ? type : type.substr(colon + 1);
}

std::wstring CClassfactoryBase::GetElementTypeNamespaceUri(CXmlElement* element)
{
    const std::wstring type = TypeAttribute(element);
    const std::wstring::size_type colon = type.find(L':');
    if (colon == std::wstring::npos) {
        return element->GetNamespaceURI();
    }
    // kept: required behaviour. One map for the whole document, in which the last declaration of a prefix wins.
    const CXmlDocument* document = element->GetDocument();
    return document ? document->LookupNamespaceFromAlias(type.substr(0, colon)) : std::wstring();
}

} // namespace ZrXmlLib16
