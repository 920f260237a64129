// SPDX-License-Identifier: MIT
// Name and namespace rules that the records, collections and wildcards share.
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/XmlObjectHelper.h"
#include "core/TextComparison.h"
#include "xml/NodeAccess.h"

#include <string_view>

namespace ZrXmlLib16 {

namespace {

constexpr wchar_t XML_BLANKS[] = L" \t\r\n";

bool TestToken(const std::wstring& namespaceUri, std::wstring_view token, const std::wstring& targetNamespace)
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
    return element && NodeAccess::GetObjectName(*element).Is(name)
        && (context.GetIgnoreNamespaces() || context.GetSchemaType() == SchemaType_DTD
            || SameText(element->GetNamespaceURI(), namespaceUri));
}

bool CXmlObjectHelper::IsNamespaceValid(
    const std::wstring& namespaceUri, const std::wstring& namespaceSpecification, const std::wstring& targetNamespace)
{
    const std::wstring_view tokens = namespaceSpecification;
    std::size_t begin = tokens.find_first_not_of(XML_BLANKS);
    if (begin == std::wstring_view::npos) {
        return TestToken(namespaceUri, std::wstring_view(), targetNamespace);
    }
    while (begin != std::wstring_view::npos) {
        const std::size_t end = tokens.find_first_of(XML_BLANKS, begin);
        if (TestToken(namespaceUri, tokens.substr(begin, end - begin), targetNamespace)) {
            return true;
        }
        begin = tokens.find_first_not_of(XML_BLANKS, end);
    }
    return false;
}

bool CXmlObjectHelper::TestNamespace(
    const std::wstring& namespaceUri, const std::wstring& namespaceSpecification, const std::wstring& targetNamespace)
{
    return IsNamespaceValid(namespaceUri, namespaceSpecification, targetNamespace);
}

} // namespace ZrXmlLib16
