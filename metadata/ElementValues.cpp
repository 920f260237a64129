// SPDX-License-Identifier: MIT
// What every element record builds its writing and reading on: one value, one enumeration, one object or one
// collection.
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlAttribute.h"
#include "ZrXmlLib16/XmlCollectionBase.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "ZrXmlLib16/XmlWriter.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "ZrXmlLib16Data/ElementInfo.h"
#include "core/CoreMessages.h"
#include "core/NilAttribute.h"
#include "metadata/EnumerationText.h"
#include "metadata/RecordAccess.h"
#include "values/BorrowingVariant.h"
#include "xml/NodeAccess.h"

namespace ZrXmlLib16Data {

using namespace ZrXmlLib16;

bool CElementInfo::ElementToXmlPrim(
    const CSerializationContext&, const CXmlGeneratedClass* object, CXmlWriter* writer) const
{
    CBorrowingVariant value;
    ReadProperty(object, value);
    if (value.IsNil()) {
        return WriteNilElement(writer);
    }
    if (!value.IsValid()) {
        return false;
    }
    const bool isString = value.GetItemType() == ItemType_string;
    std::wstring& scratch = CRecordAccess::Scratch(*writer);
    if (!isString) {
        value.FormatTo(m_numberFormat.c_str(), scratch);
    }
    const std::wstring& text = isString ? value.GetString() : scratch;
    // kept: required behaviour. The default value is written without a look at the facets.
    const bool isDefault = !m_defaultValue.empty() && text == m_defaultValue;
    if (!isDefault && (m_hasFacets || !m_hasRestrictions)) {
        CheckRestriction(value);
    }
    WriteElement(writer, text, value.GetItemType(), isDefault);
    return true;
}

bool CElementInfo::ElementToXmlEnum(
    const CSerializationContext&, const CXmlGeneratedClass* object, CXmlWriter* writer, EnumToString enumToString) const
{
    ZrVariant value;
    ReadProperty(object, value);
    if (value.IsNil()) {
        return WriteNilElement(writer);
    }
    if (!value.IsValid()) {
        return false;
    }
    std::wstring& text = CRecordAccess::Scratch(*writer);
    text = EnumerationText(enumToString, value);
    WriteElement(writer, text, ItemType_string, !m_defaultValue.empty() && text == m_defaultValue);
    return true;
}

bool CElementInfo::WriteNilElement(CXmlWriter* writer) const
{
    writer->WriteStartElement(m_elementName, m_namespace);
    writer->WriteAttributeNil();
    writer->WriteEndElement();
    return true;
}

void CElementInfo::WriteElement(CXmlWriter* writer, const std::wstring& text, ItemType type, bool isDefault) const
{
    if (CRecordAccess::WriteTextElement(*writer, m_elementName, m_namespace, text, type, isDefault)) {
        return;
    }
    writer->WriteStartElement(m_elementName, m_namespace);
    writer->WriteString(text, type, isDefault);
    writer->WriteEndElement();
}

bool CElementInfo::ElementToXmlCls(
    const CSerializationContext& context, const CXmlGeneratedClass* object, CXmlWriter* writer, bool isOptional) const
{
    ZrVariant value;
    ReadProperty(object, value);
    const CXmlObjectBase* child = value.BorrowXmlObject();
    if (!child) {
        return false;
    }
    child->ToXml_Int(writer, false, m_namespace.c_str(), context, isOptional);
    return true;
}

bool CElementInfo::ElementToXmlCol(
    const CSerializationContext& context, const CXmlGeneratedClass* object, CXmlWriter* writer) const
{
    ZrVariant value;
    ReadProperty(object, value);
    return WriteItems(value.BorrowXmlCollection(), context, writer);
}

bool CElementInfo::WriteItems(
    const CXmlCollectionBase* collection, const CSerializationContext& context, CXmlWriter* writer) const
{
    if (!collection || collection->GetCount() <= 0) {
        return false;
    }
    const CXmlObjectBase* items = collection;
    writer->SetContextState(CXmlWriter::ContextState_CollectionStart);
    items->ToXml_Int(writer, false, m_namespace.c_str(), context, false);
    writer->SetContextState(CXmlWriter::ContextState_CollectionEnd);
    return true;
}

bool CElementInfo::ReadNilAttributes(const CSerializationContext& context, const CXmlElement& element) const
{
    bool isNil = false;
    for (const CXmlAttribute* attribute = NodeAccess::GetFirstAttribute(element); attribute;
         attribute = NodeAccess::GetNextAttribute(element, *attribute)) {
        if (attribute->IsNilAttribute()) {
            if (!m_nillable && !IsNilFalse(*attribute)) {
                throw CZrValidationException(ZrXmlLib16::Message::NIL_ON_NON_NILLABLE, attribute->GetXPath());
            }
            isNil = ParseNil(*attribute);
        } else if (!IsUnprocessedDeclaration(context, *attribute) && !context.GetIgnoreUnknownAttributes()) {
            // kept: required behaviour. That includes xsi:type, which elements of classes skip.
            throw CZrValidationException(ZrXmlLib16::Message::ATTRIBUTE_UNEXPECTED, attribute->GetXPath());
        }
    }
    return isNil;
}

void CElementInfo::ElementFromXmlPrim(
    const CSerializationContext& context, CXmlGeneratedClass* object, CXmlElement** current)
{
    CRecordAccess::ReadPrim(*this, context, object, current);
}

void CElementInfo::ElementFromXmlEnum(
    const CSerializationContext& context, CXmlGeneratedClass* object, CXmlElement** current)
{
    CXmlElement* element = *current;
    if (!ReadNilAttributes(context, *element)) {
        ZrVariant value;
        value.SetI4(NodeAccess::HasText(*element) ? NodeAccess::ConvertText(*element, m_stringToEnum)
                                                  : m_stringToEnum(m_defaultValue.c_str()));
        InvokePropertySet(object, value, *element);
    }
    *current = element->GetNextSiblingElement();
}

} // namespace ZrXmlLib16Data
