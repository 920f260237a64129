// SPDX-License-Identifier: MIT
#include "ZrXmlLib16Data/ElementInfo.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "ZrXmlLib16/XmlObjectHelper.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "core/ErrorPosition.h"
#include "core/TextArgument.h"
#include "lexical/FacetCheck.h"
#include "metadata/MetadataMessages.h"
#include "metadata/NamespaceRule.h"
#include "metadata/RecordAccess.h"
#include "xml/NodeAccess.h"

#include <cwchar>

namespace ZrXmlLib16Data {

using namespace ZrXmlLib16;

CElementInfo::CElementInfo(const wchar_t* name, const wchar_t* namespaceUri, int propertyId)
    : CElementInfo(name, namespaceUri, propertyId, false, nullptr, nullptr, nullptr)
{
}

CElementInfo::CElementInfo(const wchar_t* name, const wchar_t* namespaceUri, int propertyId, bool nillable,
    EnumToString enumToString, StringToEnum stringToEnum, const wchar_t* defaultValue)
    : m_elementName(TextOrEmpty(name))
    , m_namespace(TextOrEmpty(namespaceUri))
    , m_propertyId(propertyId)
    , m_itemType(ItemType_none)
    , m_whitespaceRule(CWhitespaceUtils::Rule_None)
    , m_defaultValue(TextOrEmpty(defaultValue))
    , m_nillable(nillable)
    , m_enumToString(enumToString)
    , m_stringToEnum(stringToEnum)
    , m_hasRestrictions(false)
    , m_hasFacets(false)
    , m_isCollection(false)
    , m_isInline(false)
    , m_isUntyped(false)
    , m_isWildcard(false)
{
}

CElementInfo::CElementInfo(const wchar_t* name, const wchar_t* namespaceUri, int propertyId, bool nillable,
    ItemType itemType, const wchar_t* numberFormat, CWhitespaceUtils::WhitespaceRule rule,
    const CPrimitiveRestrictions& restrictions, const wchar_t* defaultValue)
    : m_elementName(TextOrEmpty(name))
    , m_namespace(TextOrEmpty(namespaceUri))
    , m_propertyId(propertyId)
    , m_restrictions(restrictions)
    , m_itemType(itemType)
    , m_numberFormat(TextOrEmpty(numberFormat))
    , m_whitespaceRule(rule)
    , m_defaultValue(TextOrEmpty(defaultValue))
    , m_nillable(nillable)
    , m_enumToString(nullptr)
    , m_stringToEnum(nullptr)
    , m_hasRestrictions(true)
    , m_hasFacets(HasFacets(restrictions))
    , m_isCollection(false)
    , m_isInline(false)
    , m_isUntyped(false)
    , m_isWildcard(false)
{
}

CElementInfo::~CElementInfo() = default;

bool CElementInfo::Validate(const CSerializationContext&, const CXmlGeneratedClass*, bool, bool) const
{
    throw CZrException(Message::VALIDATE_NOT_OVERRIDDEN);
}

void CElementInfo::PseudoChildAttributeToXml(const CSerializationContext&, const CXmlGeneratedClass*, CXmlWriter*) const
{
}

bool CElementInfo::IsThisElement(const CSerializationContext& context, const CXmlElement* element) const
{
    if (!element || NodeAccess::IsKnownAs(*element, this)) {
        return element != nullptr;
    }
    if (!CXmlObjectHelper::DoesElementNameMatch(context, element, m_elementName, m_namespace)) {
        return false;
    }
    if (!context.GetIgnoreNamespaces() && context.GetSchemaType() != SchemaType_DTD) {
        NodeAccess::KnowAs(*element, this);
    }
    return true;
}

void CElementInfo::CheckRestriction(const ZrVariant& value) const
{
    if (!m_hasRestrictions) {
        throw CZrException(FormatString(Message::NO_RESTRICTIONS, value.GetType()));
    }
    CXmlObjectHelper::CheckRestriction(m_elementName.c_str(), value, m_itemType, m_restrictions);
}

std::wstring CElementInfo::GetAnyDefaultNamespace(
    const wchar_t* namespaceSpecification, const wchar_t* currentDefault, const wchar_t* targetNamespace)
{
    std::wstring rule = TextOrEmpty(namespaceSpecification);
    // The first keyword of a list counts; a list that starts with a URI gives no namespace.
    const std::wstring::size_type blank = rule.find(L' ');
    if (blank != std::wstring::npos && rule.compare(0, 2, L"##") == 0) {
        rule.resize(blank);
    }
    if (rule == L"##any") {
        return TextOrEmpty(currentDefault);
    }
    if (rule == L"##other") {
        // kept: required behaviour. The literal text stands for any namespace but none.
        return *TextOrEmpty(currentDefault) ? L"" : L"DefaultNamespace";
    }
    return rule == L"##targetNamespace" ? TextOrEmpty(targetNamespace) : L"";
}

int CElementInfo::GetPropertyId() const
{
    return m_propertyId;
}

const std::wstring& CElementInfo::GetElementName() const
{
    return m_elementName;
}

const std::wstring& CElementInfo::GetNamespace() const
{
    return m_namespace;
}

bool CElementInfo::IsCollection() const
{
    return m_isCollection;
}

bool CElementInfo::IsMatchedByName() const
{
    return !m_isInline && !m_isWildcard;
}

bool CElementInfo::IsInline() const
{
    return m_isInline;
}

bool CElementInfo::Claims(const CSerializationContext& context, const CXmlElement* element) const
{
    if (!m_isUntyped) {
        return !m_isInline && IsThisElement(context, element);
    }
    return element && (m_isWildcard || element->GetLocalName() == m_elementName)
        && Accepts(m_namespaceRule.get(), element->GetNamespaceURI());
}

void CElementInfo::MarkAsCollection()
{
    m_isCollection = true;
}

void CElementInfo::MarkChildType(XmlElementType childType)
{
    m_isInline = childType != XmlElementType_Element;
}

void CElementInfo::MarkAsUntyped()
{
    m_isUntyped = true;
    m_isWildcard = m_elementName == L"AnyElement";
}

void CElementInfo::MarkAsUntyped(const wchar_t* namespaceSpecification, const wchar_t* targetNamespace)
{
    MarkAsUntyped();
    m_namespaceRule = MakeNamespaceRule(namespaceSpecification, targetNamespace);
}

void CElementInfo::InvokePropertyGet(CXmlGeneratedClass* object, ZrVariant& value) const
{
    try {
        object->AccessProperty(m_propertyId, true, value);
    } catch (const CZrException& exception) {
        throw CZrValidationException(
            FormatString(Message::PROPERTY_GET_FAILED, m_elementName.c_str()), std::wstring(), exception);
    }
}

void CElementInfo::InvokePropertySet(CXmlGeneratedClass* object, ZrVariant& value, const CXmlElement& source) const
{
    CRecordAccess::SetProperty(*this, object, value, source);
}

void CRecordAccess::ThrowSetFailed(CZrException& exception, const CXmlElement& source)
{
    ErrorPosition::Attach(exception, source);
    throw CZrValidationException(Message::PROPERTY_SET_FAILED, source.GetXPath(), exception);
}

void CElementInfo::ReadProperty(const CXmlGeneratedClass* object, ZrVariant& value) const
{
    object->ReadProperty(m_propertyId, value);
}

CXmlElement* CElementInfo::FromXml_Int(CXmlObjectBase* child, CXmlElement* element, CXmlElement* firstChild,
    const CSerializationContext& context, bool isOptional)
{
    return child->FromXml_Int(element, firstChild, context, isOptional);
}

void CElementInfo::AttributesToXml_Int(
    const CXmlObjectBase* object, CXmlWriter* writer, const CSerializationContext& context) const
{
    object->AttributesToXml_Int(writer, context);
}

} // namespace ZrXmlLib16Data
