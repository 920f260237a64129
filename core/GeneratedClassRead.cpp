// SPDX-License-Identifier: MIT
// The read walk: an element of a document into a generated object. The three group kinds are in
// GeneratedClassGroups.cpp.
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/INillable.h"
#include "ZrXmlLib16/XmlAttribute.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "ZrXmlLib16Data/AttributeInfo.h"
#include "ZrXmlLib16Data/ParentElementInfo.h"
#include "core/CoreMessages.h"
#include "core/DepthGuard.h"
#include "core/ErrorPosition.h"
#include "core/NilAttribute.h"
#include "core/SeenFlags.h"
#include "xml/NodeAccess.h"

namespace ZrXmlLib16 {

using ZrXmlLib16Data::CAttributeInfo;
using ZrXmlLib16Data::CParentElementInfo;
using ZrXmlLib16Data::XmlElementType_Element;

namespace {

bool OfferAttribute(CAttributeInfo** records, const CSerializationContext& context, CXmlGeneratedClass* object,
    CXmlAttribute* attribute, CSeenFlags& seen)
{
    for (std::size_t index = 0; records && records[index]; ++index) {
        if (records[index]->AttributeFromXml(context, object, attribute)) {
            seen.Set(index);
            return true;
        }
    }
    return false;
}

} // namespace

CXmlElement* CXmlGeneratedClass::FromXml_Int(
    CXmlElement* element, CXmlElement* firstChild, const CSerializationContext& context, bool isOptional)
{
    m_satisfied = false;
    m_touched = false;
    NodeAccess::PrefetchContent(*element);
    try {
        Init();
        const CParentElementInfo& info = *GetClassInfo();
        if (info.GetElementType() != XmlElementType_Element) {
            return ReadContent(info, element, firstChild, context, isOptional);
        }
        const CDepthGuard depth;
        if (depth.IsTooDeep(context)) {
            throw CZrException(Message::NESTING_TOO_DEEP, element->GetXPath());
        }
        if (!HasElementName(element->GetLocalName())) {
            SetElementName(element->GetLocalName().c_str());
        }
        return ReadContent(info, element, firstChild, context, isOptional);
    } catch (CZrException& exception) {
        ErrorPosition::Attach(exception, *element);
        if (!exception.GetPath().empty()) {
            // kept: required behaviour. The innermost location wins, and the copy is of the base type.
            throw CZrException(exception);
        }
        throw CZrValidationException(Message::ELEMENT_FROM_XML_FAILED, element->GetXPath(), exception);
    }
}

CXmlElement* CXmlGeneratedClass::ReadContent(const CParentElementInfo& info, CXmlElement* element, CXmlElement* cursor,
    const CSerializationContext& context, bool isOptional)
{
    ProcessAttributesFromXml(context, element, info.GetRejectUnknownAttributes());
    const INillable* nillable = NodeAccess::FindNillable(*element, *this, &info);
    if (nillable && nillable->IsNil()) {
        m_satisfied = true;
        return cursor;
    }
    CXmlElement* rest = ReadGroup(info, element, cursor, context, isOptional);
    ReadSimpleContent(info, element);
    return rest;
}

CXmlElement* CXmlGeneratedClass::ReadGroup(const CParentElementInfo& info, CXmlElement* element, CXmlElement* cursor,
    const CSerializationContext& context, bool isOptional)
{
    switch (info.GetGroupType()) {
    case ZrXmlLib16Data::XmlElementGroup_Sequence:
        return ProcessElementSeqFromXml(context, element, cursor, info.GetElementType());
    case ZrXmlLib16Data::XmlElementGroup_Choice:
        return ProcessElementChoiceFromXml(context, element, cursor, info.GetElementType(), isOptional);
    case ZrXmlLib16Data::XmlElementGroup_All:
        return ProcessElementAllFromXml(context, element, cursor, info.GetElementType());
    }
    throw CZrException(Message::UNKNOWN_GROUP_TYPE_ON_READ);
}

void CXmlGeneratedClass::ReadSimpleContent(const CParentElementInfo& info, const CXmlElement* element)
{
    if (info.GetValueProperty() == -1 || info.GetValueType() == ItemType_none) {
        return;
    }
    ZrVariant value;
    if (info.GetStoreUnparsed()) {
        NodeAccess::ReadString(*element, value);
    } else {
        NodeAccess::ParseText(*element, info.GetValueType(), CWhitespaceUtils::Rule_None, value);
    }
    AccessProperty(info.GetValueProperty(), false, value);
    m_touched = true;
}

void CXmlGeneratedClass::ProcessAttributesFromXml(
    const CSerializationContext& context, CXmlElement* element, bool rejectUnknown)
{
    CAttributeInfo** records = GetClassAttributeInfo();
    const std::size_t count = CountRecords(records);
    CSeenFlags seen(count);
    const bool ownsElement = GetClassInfo()->GetElementType() == XmlElementType_Element;
    for (CXmlAttribute* attribute = NodeAccess::GetFirstAttribute(*element); attribute;
         attribute = NodeAccess::GetNextAttribute(*element, *attribute)) {
        if (IsDeclaration(context, *attribute)) {
            continue;
        }
        if (attribute->IsNilAttribute()) {
            INillable* nillable = NodeAccess::FindNillable(*element, *this, GetClassInfo());
            if (nillable) {
                nillable->SetNil(ParseNil(*attribute));
                m_touched = true;
            } else if (ownsElement) {
                throw CZrValidationException(Message::NIL_ON_NON_NILLABLE, element->GetXPath());
            }
        } else if (OfferAttribute(records, context, this, attribute, seen)) {
            m_touched = true;
        } else if (rejectUnknown && !context.GetIgnoreUnknownAttributes()) {
            throw CZrValidationException(Message::ATTRIBUTE_UNEXPECTED, attribute->GetXPath());
        }
    }
    for (std::size_t index = 0; index < count; ++index) {
        records[index]->Validate(context, seen.Test(index));
    }
}

} // namespace ZrXmlLib16
