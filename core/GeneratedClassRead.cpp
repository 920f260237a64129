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

[[noreturn]] void ThrowTooDeep(const CXmlElement& element)
{
    throw CZrException(Message::NESTING_TOO_DEEP, element.GetXPath());
}

[[noreturn]] void ThrowUnexpected(const CXmlAttribute& attribute)
{
    throw CZrValidationException(Message::ATTRIBUTE_UNEXPECTED, attribute.GetXPath());
}

bool OfferAttribute(CAttributeInfo** records, std::size_t count, const CSerializationContext& context,
    CXmlGeneratedClass* object, CXmlAttribute* attribute, CSeenFlags& seen)
{
    // The name decides which record takes an attribute, so the one that took it from another object is asked first.
    const std::size_t known = NodeAccess::FindTaker(*attribute, records);
    if (known < count && records[known]->AttributeFromXml(context, object, attribute)) {
        seen.Set(known);
        return true;
    }
    for (std::size_t index = 0; index < count; ++index) {
        if (index != known && records[index]->AttributeFromXml(context, object, attribute)) {
            NodeAccess::RememberTaker(*attribute, records[index], records, index);
            seen.Set(index);
            return true;
        }
    }
    return false;
}

} // namespace

/// A name that is wide may have a NUL in it, where that of an object ends.
inline void CXmlGeneratedClass::TakeElementName(const NameText& name)
{
    if (HasElementName(name)) {
        return;
    }
    if (const std::wstring* const wide = name.FindWide()) {
        SetElementName(wide->c_str());
    } else {
        m_elementName = name;
    }
}

inline CXmlElement* CXmlGeneratedClass::ReadGroup(const CParentElementInfo& info, CXmlElement* element,
    CXmlElement* cursor, const CSerializationContext& context, bool isOptional)
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

inline void CXmlGeneratedClass::ReadSimpleContent(const CParentElementInfo& info, const CXmlElement* element)
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

inline CXmlElement* CXmlGeneratedClass::ReadContent(const CParentElementInfo& info, CXmlElement* element,
    CXmlElement* cursor, const CSerializationContext& context, bool isOptional)
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
            ThrowTooDeep(*element);
        }
        TakeElementName(NodeAccess::GetObjectName(*element));
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

void CXmlGeneratedClass::ProcessAttributesFromXml(
    const CSerializationContext& context, CXmlElement* element, bool rejectUnknown)
{
    CAttributeInfo** const records = GetClassAttributeInfo();
    const std::size_t count = CountRecords(records);
    CSeenFlags seen(count);
    for (CXmlAttribute* attribute = NodeAccess::GetFirstAttribute(*element); attribute;
         attribute = NodeAccess::GetNextAttribute(*element, *attribute)) {
        if (IsDeclaration(context, *attribute)) {
            continue;
        }
        if (attribute->IsNilAttribute()) {
            ReadNilAttribute(*element, *attribute);
        } else if (OfferAttribute(records, count, context, this, attribute, seen)) {
            m_touched = true;
        } else if (rejectUnknown && !context.GetIgnoreUnknownAttributes()) {
            ThrowUnexpected(*attribute);
        }
    }
    for (std::size_t index = 0; index < count; ++index) {
        records[index]->Validate(context, seen.Test(index));
    }
}

void CXmlGeneratedClass::ReadNilAttribute(const CXmlElement& element, const CXmlAttribute& attribute)
{
    const CParentElementInfo* const info = GetClassInfo();
    if (INillable* const nillable = NodeAccess::FindNillable(element, *this, info)) {
        nillable->SetNil(ParseNil(attribute));
        m_touched = true;
    } else if (info->GetElementType() == XmlElementType_Element) {
        throw CZrValidationException(Message::NIL_ON_NON_NILLABLE, element.GetXPath());
    }
}

} // namespace ZrXmlLib16
