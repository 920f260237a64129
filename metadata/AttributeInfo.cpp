// SPDX-License-Identifier: MIT
#include "ZrXmlLib16Data/AttributeInfo.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlAttribute.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "ZrXmlLib16/XmlObjectHelper.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "core/TextArgument.h"
#include "core/TextComparison.h"
#include "metadata/MetadataMessages.h"
#include "xml/NodeAccess.h"

namespace ZrXmlLib16Data {

using namespace ZrXmlLib16;

namespace {

[[noreturn]] void ThrowSetFailed(const CZrException& exception, const CXmlAttribute& source)
{
    throw CZrValidationException(Message::PROPERTY_SET_FAILED, source.GetXPath(), exception);
}

} // namespace

CAttributeInfo::CAttributeInfo(
    const wchar_t* name, const wchar_t* namespaceUri, int propertyId, bool optional, const wchar_t* defaultValue)
    : m_attributeName(TextOrEmpty(name))
    , m_namespace(TextOrEmpty(namespaceUri))
    , m_propertyId(propertyId)
    , m_optional(optional)
    , m_defaultValue(TextOrEmpty(defaultValue))
{
}

CAttributeInfo::~CAttributeInfo() = default;

bool CAttributeInfo::IsThisAttribute(const CSerializationContext& context, CXmlAttribute* attribute) const
{
    return attribute
        && (HasName(*attribute)
            || (context.GetIgnoreNamespaces() && NodeAccess::GetObjectName(*attribute).Is(m_attributeName)));
}

bool CAttributeInfo::HasName(const CXmlAttribute& attribute) const
{
    return NodeAccess::IsTaker(attribute, this)
        || (NodeAccess::GetObjectName(attribute).Is(m_attributeName)
            && SameText(attribute.GetNamespaceURI(), m_namespace));
}

bool CAttributeInfo::TestNamespace(
    const std::wstring& namespaceUri, const std::wstring& namespaceSpecification, const std::wstring& targetNamespace)
{
    return CXmlObjectHelper::TestNamespace(namespaceUri, namespaceSpecification, targetNamespace);
}

bool CAttributeInfo::IsNamespaceValid(
    const std::wstring& namespaceUri, const std::wstring& namespaceSpecification, const std::wstring& targetNamespace)
{
    return CXmlObjectHelper::IsNamespaceValid(namespaceUri, namespaceSpecification, targetNamespace);
}

std::wstring CAttributeInfo::GetTargetNamespace(const CXmlObjectBase* object)
{
    return object->GetTargetNamespace();
}

void CAttributeInfo::ToXml_Int(const CXmlObjectBase* object, CXmlWriter* writer, bool isRoot,
    const wchar_t* namespaceUri, const CSerializationContext& context)
{
    object->ToXml_Int(writer, isRoot, namespaceUri, context, false);
}

void CAttributeInfo::InvokePropertyGet(CXmlGeneratedClass* object, ZrVariant& value) const
{
    try {
        object->AccessProperty(m_propertyId, true, value);
    } catch (const CZrException& exception) {
        throw CZrValidationException(
            FormatString(Message::PROPERTY_GET_FAILED, m_attributeName.c_str()), std::wstring(), exception);
    }
}

void CAttributeInfo::InvokePropertySet(CXmlGeneratedClass* object, ZrVariant& value, const CXmlAttribute& source) const
{
    try {
        object->AccessProperty(m_propertyId, false, value);
    } catch (const CZrException& exception) {
        ThrowSetFailed(exception, source);
    }
}

void CAttributeInfo::ReadProperty(const CXmlGeneratedClass* object, ZrVariant& value) const
{
    object->ReadProperty(m_propertyId, value);
}

bool CAttributeInfo::IsOmittedDefault(const CSerializationContext& context, const std::wstring& text) const
{
    return m_optional && !m_defaultValue.empty() && context.GetNoOptionalAttributeDefaultOutput()
        && text == m_defaultValue;
}

void CAttributeInfo::RequireFound(bool found) const
{
    if (!found && !m_optional) {
        throw CZrValidationException(
            FormatString(Message::REQUIRED_ATTRIBUTE_MISSING, m_attributeName.c_str()), std::wstring());
    }
}

const std::wstring& CAttributeInfo::AttributeName() const
{
    return m_attributeName;
}

const std::wstring& CAttributeInfo::Namespace() const
{
    return m_namespace;
}

bool CAttributeInfo::IsOptional() const
{
    return m_optional;
}

} // namespace ZrXmlLib16Data
