// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_RECORDS_H
#define EXAMPLES_SHARED_RECORDS_H

#include "ZrXmlLib16Data/AttributeInfoEnum.h"
#include "ZrXmlLib16Data/AttributeInfoPrimitive.h"
#include "ZrXmlLib16Data/ElementInfo.h"
#include "ZrXmlLib16Data/ParentElementInfo.h"
#include "shared/EnumerationText.h"
#include "shared/SimpleType.h"

namespace Shared {

/// How often an attribute occurs.
enum class Use { Required, Optional };

/// Short forms of the constructors of records: what these examples never use is filled in. A record is made in place,
/// for it cannot be copied.
/// @param property index that the record gives to AccessProperty
/// @{

/// What a class says about itself.
inline ZrXmlLib16Data::CParentElementInfo ClassInfo(
    const wchar_t* typeName, const wchar_t* uri, ZrXmlLib16Data::XmlElementGroupType group)
{
    return ZrXmlLib16Data::CParentElementInfo(group, ZrXmlLib16Data::XmlElementType_Element, typeName, uri, true, false,
        -1, ZrXmlLib16::ItemType_none, L"", false);
}

/// The same for a class that stands for an abstract one: the type is written as xsi:type.
inline ZrXmlLib16Data::CParentElementInfo DerivedClassInfo(
    const wchar_t* typeName, const wchar_t* uri, ZrXmlLib16Data::XmlElementGroupType group)
{
    return ZrXmlLib16Data::CParentElementInfo(group, ZrXmlLib16Data::XmlElementType_Element, typeName, uri, true, true,
        -1, ZrXmlLib16::ItemType_none, L"", false);
}

/// The same for a class with simple content: text and attributes, no elements.
inline ZrXmlLib16Data::CParentElementInfo SimpleContentInfo(
    const wchar_t* typeName, const wchar_t* uri, int valueProperty, ZrXmlLib16::ItemType valueType)
{
    return ZrXmlLib16Data::CParentElementInfo(ZrXmlLib16Data::XmlElementGroup_Sequence,
        ZrXmlLib16Data::XmlElementType_Element, typeName, uri, true, false, valueProperty, valueType, L"", false);
}

/// An element with a value.
template <class Record>
Record Primitive(const wchar_t* name, const wchar_t* uri, int property, const SimpleType& type, bool isNillable = false)
{
    return Record(name, uri, property, isNillable, type.itemType, L"", type.rule, type.facets, L"");
}

/// An element with an object.
/// @param classId what the factory is asked for
template <class Record>
Record Object(const wchar_t* name, const wchar_t* uri, int property, ZrXmlLib16Data::ClassFactory factory, int classId)
{
    return Record(name, uri, property, ZrXmlLib16Data::XmlElementType_Element, factory, classId, false);
}

inline ZrXmlLib16Data::CAttributeInfoPrimitive Attribute(
    const wchar_t* name, int property, Use use, const SimpleType& type)
{
    return ZrXmlLib16Data::CAttributeInfoPrimitive(
        name, L"", property, use == Use::Optional, type.itemType, L"", type.rule, type.facets, L"");
}

/// @tparam texts the lexical forms of the enumeration
/// @param byDefault what an absent attribute stands for; empty for nothing
template <const auto& texts> ZrXmlLib16Data::CAttributeInfoEnum EnumerationAttribute(
    const wchar_t* name, int property, Use use, const wchar_t* byDefault = L"")
{
    return ZrXmlLib16Data::CAttributeInfoEnum(
        name, L"", property, use == Use::Optional, EnumerationToString<texts>, EnumerationFromString<texts>, byDefault);
}
/// @}

} // namespace Shared

#endif
