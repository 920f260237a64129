// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_RECORDS_H
#define EXAMPLES_GPX_CLASSES_RECORDS_H

#include "ZrXmlLib16Data/AttributeInfoPrimitive.h"
#include "ZrXmlLib16Data/ElementInfoSeqClsOpt.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimOpt.h"
#include "classes/GpxObject.h"

namespace Gpx {

/// What a record says about a value: its type, its whitespace rule and its facets.
struct SimpleType {
    ZrXmlLib16::ItemType itemType;
    ZrXmlLib16::CWhitespaceUtils::WhitespaceRule whitespaceRule;
    ZrXmlLib16::CPrimitiveRestrictions restrictions;
};

/// The simple types of the schema and the built-in ones that it uses.
namespace SimpleTypes {
const SimpleType& String();
const SimpleType& AnyUri();
const SimpleType& Decimal();
const SimpleType& DateTime();
const SimpleType& Year();
const SimpleType& NonNegativeInteger();
/// -90 to 90.
const SimpleType& Latitude();
/// -180 to below 180.
const SimpleType& Longitude();
/// 0 to below 360.
const SimpleType& Degrees();
/// 0 to 1023.
const SimpleType& DgpsStation();
} // namespace SimpleTypes

/// Record of an optional element with a simple type.
class OptionalElement : public ZrXmlLib16Data::CElementInfoSeqPrimOpt {
public:
    OptionalElement(const wchar_t* name, int propertyId, const SimpleType& type);
};

/// Record of the optional extensions that most classes have.
class OptionalExtensions : public ZrXmlLib16Data::CElementInfoSeqClsOpt {
public:
    explicit OptionalExtensions(int propertyId);
};

/// Record of a required attribute.
class RequiredAttribute : public ZrXmlLib16Data::CAttributeInfoPrimitive {
public:
    RequiredAttribute(const wchar_t* name, int propertyId, const SimpleType& type);
};

} // namespace Gpx

#endif
