// SPDX-License-Identifier: MIT
#include "ZrXmlLib16Data/AttributeInfoEnum.h"

#include "ZrXmlLib16/XmlAttribute.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "metadata/EnumerationText.h"
#include "metadata/RecordAccess.h"
#include "xml/NodeAccess.h"

namespace ZrXmlLib16Data {

using namespace ZrXmlLib16;

CAttributeInfoEnum::CAttributeInfoEnum(const wchar_t* name, const wchar_t* namespaceUri, int propertyId, bool optional,
    const wchar_t* (*enumToString)(int), int (*stringToEnum)(const wchar_t*), const wchar_t* defaultValue)
    : CAttributeInfo(name, namespaceUri, propertyId, optional, defaultValue)
    , m_enumToString(enumToString)
    , m_stringToEnum(stringToEnum)
{
}

CAttributeInfoEnum::~CAttributeInfoEnum() = default;

void CAttributeInfoEnum::AttributeToXml(
    const CSerializationContext& context, const CXmlGeneratedClass* object, CXmlWriter* writer) const
{
    ZrVariant value;
    ReadProperty(object, value);
    std::wstring& text = CRecordAccess::Scratch(*writer);
    if (!value.IsValid() || value.IsNil()) {
        if (IsOptional() && !value.IsValid()) {
            return;
        }
        // A value that is not there has no text; asking the variant gives the same failure as for a primitive
        // attribute.
        value.FormatTo(L"", text);
    }
    text = EnumerationText(m_enumToString, value);
    if (!IsOmittedDefault(context, text)) {
        writer->WriteAttributeString(AttributeName(), Namespace(), text, ItemType_string);
    }
}

bool CAttributeInfoEnum::AttributeFromXml(
    const CSerializationContext& context, CXmlGeneratedClass* object, CXmlAttribute* attribute)
{
    if (!IsThisAttribute(context, attribute)) {
        return false;
    }
    ZrVariant value;
    value.SetI4(NodeAccess::ConvertValue(*attribute, m_stringToEnum));
    InvokePropertySet(object, value, *attribute);
    return true;
}

void CAttributeInfoEnum::Validate(const CSerializationContext&, bool found) const
{
    RequireFound(found);
}

} // namespace ZrXmlLib16Data
