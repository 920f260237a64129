// SPDX-License-Identifier: MIT
#include "classes/Records.h"

#include "classes/ClassFactory.h"

namespace Gpx {

using ZrXmlLib16::CPrimitiveRestrictions;
using ZrXmlLib16::CWhitespaceUtils;

namespace {

CPrimitiveRestrictions Between(const wchar_t* minimum, const wchar_t* maximum)
{
    CPrimitiveRestrictions restrictions;
    restrictions.m_minInclusive = minimum;
    restrictions.m_maxInclusive = maximum;
    return restrictions;
}

CPrimitiveRestrictions FromToBelow(const wchar_t* minimum, const wchar_t* limit)
{
    CPrimitiveRestrictions restrictions;
    restrictions.m_minInclusive = minimum;
    restrictions.m_maxExclusive = limit;
    return restrictions;
}

} // namespace

namespace SimpleTypes {

const SimpleType& String()
{
    static const SimpleType type{ZrXmlLib16::ItemType_string, CWhitespaceUtils::Rule_Preserve, {}};
    return type;
}

const SimpleType& AnyUri()
{
    static const SimpleType type{ZrXmlLib16::ItemType_string, CWhitespaceUtils::Rule_Collapse, {}};
    return type;
}

const SimpleType& Decimal()
{
    static const SimpleType type{ZrXmlLib16::ItemType_decimal, CWhitespaceUtils::Rule_Collapse, {}};
    return type;
}

const SimpleType& DateTime()
{
    static const SimpleType type{ZrXmlLib16::ItemType_datetime, CWhitespaceUtils::Rule_Collapse, {}};
    return type;
}

const SimpleType& Year()
{
    static const SimpleType type{ZrXmlLib16::ItemType_year, CWhitespaceUtils::Rule_Collapse, {}};
    return type;
}

const SimpleType& NonNegativeInteger()
{
    static const SimpleType type{ZrXmlLib16::ItemType_integer, CWhitespaceUtils::Rule_Collapse, Between(L"0", L"")};
    return type;
}

const SimpleType& Latitude()
{
    static const SimpleType type{ZrXmlLib16::ItemType_decimal, CWhitespaceUtils::Rule_Collapse, Between(L"-90", L"90")};
    return type;
}

const SimpleType& Longitude()
{
    static const SimpleType type{
        ZrXmlLib16::ItemType_decimal, CWhitespaceUtils::Rule_Collapse, FromToBelow(L"-180", L"180")};
    return type;
}

const SimpleType& Degrees()
{
    static const SimpleType type{
        ZrXmlLib16::ItemType_decimal, CWhitespaceUtils::Rule_Collapse, FromToBelow(L"0", L"360")};
    return type;
}

const SimpleType& DgpsStation()
{
    static const SimpleType type{ZrXmlLib16::ItemType_integer, CWhitespaceUtils::Rule_Collapse, Between(L"0", L"1023")};
    return type;
}

} // namespace SimpleTypes

OptionalElement::OptionalElement(const wchar_t* name, int propertyId, const SimpleType& type)
    : CElementInfoSeqPrimOpt(
        name, NAMESPACE, propertyId, false, type.itemType, L"", type.whitespaceRule, type.restrictions, L"")
{
}

OptionalExtensions::OptionalExtensions(int propertyId)
    : CElementInfoSeqClsOpt(L"extensions", NAMESPACE, propertyId, ZrXmlLib16Data::XmlElementType_Element, CreateObject,
        ClassId_ExtensionsType, false)
{
}

RequiredAttribute::RequiredAttribute(const wchar_t* name, int propertyId, const SimpleType& type)
    : CAttributeInfoPrimitive(
        name, L"", propertyId, false, type.itemType, L"", type.whitespaceRule, type.restrictions, L"")
{
}

} // namespace Gpx
