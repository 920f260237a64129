// SPDX-License-Identifier: MIT
#include "ZrXmlLib16Data/AttributeInfoPrimitive.h"

#include "ZrXmlLib16/XmlAttribute.h"
#include "ZrXmlLib16/XmlObjectHelper.h"
#include "core/TextArgument.h"
#include "lexical/FacetCheck.h"
#include "metadata/RecordAccess.h"
#include "values/BorrowingVariant.h"
#include "xml/NodeAccess.h"

namespace ZrXmlLib16Data {

using namespace ZrXmlLib16;

CAttributeInfoPrimitive::CAttributeInfoPrimitive(const wchar_t* name, const wchar_t* namespaceUri, int propertyId,
    bool optional, ItemType itemType, const wchar_t* numberFormat, CWhitespaceUtils::WhitespaceRule rule,
    const CPrimitiveRestrictions& restrictions, const wchar_t* defaultValue)
    : CAttributeInfo(name, namespaceUri, propertyId, optional, defaultValue)
    , m_restrictions(restrictions)
    , m_itemType(itemType)
    , m_numberFormat(TextOrEmpty(numberFormat))
    , m_whitespaceRule(rule)
    , m_hasFacets(HasFacets(restrictions))
{
}

CAttributeInfoPrimitive::~CAttributeInfoPrimitive() = default;

void CAttributeInfoPrimitive::AttributeToXml(
    const CSerializationContext& context, const CXmlGeneratedClass* object, CXmlWriter* writer) const
{
    CBorrowingVariant value;
    ReadProperty(object, value);
    if (IsOptional() && !value.IsValid()) {
        return;
    }
    const bool isString = value.GetItemType() == ItemType_string && !value.IsNil();
    std::wstring& scratch = CRecordAccess::Scratch(*writer);
    if (!isString) {
        value.FormatTo(m_numberFormat.c_str(), scratch);
    }
    const std::wstring& text = isString ? value.GetString() : scratch;
    // kept: required behaviour. Only an optional attribute may be left out; a required one is written even when it is
    // its default.
    if (IsOmittedDefault(context, text)) {
        return;
    }
    if (m_hasFacets) {
        CXmlObjectHelper::CheckRestriction(AttributeName().c_str(), value, m_itemType, m_restrictions);
    }
    writer->WriteAttributeString(AttributeName(), Namespace(), text, value.GetItemType());
}

bool CAttributeInfoPrimitive::AttributeFromXml(
    const CSerializationContext&, CXmlGeneratedClass* object, CXmlAttribute* attribute)
{
    // kept: required behaviour. Unlike every other record, this one compares the namespace even when namespaces are
    // ignored.
    if (!attribute || !HasName(*attribute)) {
        return false;
    }
    ZrVariant value;
    NodeAccess::ParseValue(*attribute, m_itemType, m_whitespaceRule, value);
    InvokePropertySet(object, value, *attribute);
    return true;
}

void CAttributeInfoPrimitive::Validate(const CSerializationContext&, bool found) const
{
    RequireFound(found);
}

void CAttributeInfoPrimitive::CheckRestriction(ZrVariant value) const
{
    CXmlObjectHelper::CheckRestriction(AttributeName().c_str(), value, m_itemType, m_restrictions);
}

} // namespace ZrXmlLib16Data
