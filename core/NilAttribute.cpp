// SPDX-License-Identifier: MIT
#include "core/NilAttribute.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlAttribute.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "core/CoreMessages.h"
#include "xml/NodeAccess.h"

namespace ZrXmlLib16 {

namespace {

constexpr wchar_t DECLARATION_NAME[] = L"xmlns";
constexpr wchar_t DECLARATION_PREFIX[] = L"xmlns:";
constexpr std::size_t DECLARATION_PREFIX_LENGTH = 6;

bool EqualsIgnoringCase(const std::wstring& text, const wchar_t* lowerCase)
{
    std::size_t at = 0;
    for (; at < text.size() && lowerCase[at]; ++at) {
        const wchar_t c = text[at] >= L'A' && text[at] <= L'Z' ? text[at] - L'A' + L'a' : text[at];
        if (c != lowerCase[at]) {
            return false;
        }
    }
    return at == text.size() && !lowerCase[at];
}

} // namespace

bool IsNilFalse(const CXmlAttribute& attribute)
{
    const std::wstring& value = NodeAccess::GetValue(attribute);
    return EqualsIgnoringCase(value, L"false") || value == L"0";
}

bool ParseNil(const CXmlAttribute& attribute)
{
    const std::wstring& value = NodeAccess::GetValue(attribute);
    if (EqualsIgnoringCase(value, L"true") || value == L"1") {
        return true;
    }
    if (IsNilFalse(attribute)) {
        return false;
    }
    throw CZrValidationException(
        FormatString(Message::NIL_VALUE_UNEXPECTED, attribute.GetValue().c_str()), attribute.GetXPath());
}

bool IsDefaultDeclaration(const CXmlAttribute& attribute)
{
    return attribute.GetLocalName() == DECLARATION_NAME && attribute.GetNamespaceURI().empty();
}

bool HasDeclarationName(const CXmlAttribute& attribute)
{
    return IsDefaultDeclaration(attribute)
        || (attribute.GetLocalName().compare(0, DECLARATION_PREFIX_LENGTH, DECLARATION_PREFIX) == 0
            && attribute.GetNamespaceURI().empty());
}

bool IsUnprocessedDeclaration(const CSerializationContext& context, const CXmlAttribute& attribute)
{
    return context.GetSchemaType() == SchemaType_DTD && HasDeclarationName(attribute);
}

bool IsDeclaration(const CSerializationContext& context, const CXmlAttribute& attribute)
{
    return attribute.IsNamespaceAttribute() || IsUnprocessedDeclaration(context, attribute);
}

} // namespace ZrXmlLib16
