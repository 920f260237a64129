// SPDX-License-Identifier: MIT
// Name and namespace rules that the records, collections and wildcards share.
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/XmlObjectHelper.h"

namespace ZrXmlLib16 {

namespace {

constexpr wchar_t XML_BLANKS[] = L" \t\r\n";

bool TestToken(const std::wstring& namespaceUri, const std::wstring& token, const std::wstring& targetNamespace)
{
    if (token.empty() || token == L"##any") {
        return true;
    }
    if (token == L"##other") {
        return !namespaceUri.empty() && namespaceUri != targetNamespace;
    }
    if (token == L"##local") {
        return namespaceUri.empty();
    }
    if (token == L"##targetNamespace") {
        return namespaceUri == targetNamespace;
    }
    return namespaceUri == token;
}

} // namespace

bool CXmlObjectHelper::DoesElementNameMatch(const CSerializationContext& context, const CXmlElement* element,
    const std::wstring& name, const std::wstring& namespaceUri)
{
    if (!element || element->GetLocalName() != name) {
        return false;
    }
    return context.GetIgnoreNamespaces() || context.GetSchemaType() == SchemaType_DTD
        || element->GetNamespaceURI() == namespaceUri;
}

bool CXmlObjectHelper::IsNamespaceValid(
    const std::wstring& namespaceUri, const std::wstring& namespaceSpecification, const std::wstring& targetNamespace)
{
    std::wstring::size_type begin = namespaceSpecification.find_first_not_of(XML_BLANKS);
    if (begin == std::wstring::npos) {
        return TestToken(namespaceUri, std::wstring(), targetNamespace);
    }
    while (begin != std::wstring::npos) {
        const std::wstring::size_type end = namespaceSpecification.find_first_of(XML_BLANKS, begin);
        if (TestToken(namespaceUri, namespaceSpecification.substr(begin, end - begin), targetNamespace)) {
            return true;
        }
        begin = namespaceSpecification.find_first_not_of(XML_BLANKS, end);
    }
    return false;
}

bool CXmlObjectHelper::TestNamespace(
    const std::wstring& namespaceUri, const std::wstring& namespaceSpecification, const std::wstring& targetNamespace)
{
    return IsNamespaceValid(namespaceUri, namespaceSpecification, targetNamespace);
}

} // namespace ZrXmlLib16
