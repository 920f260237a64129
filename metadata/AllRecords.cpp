// SPDX-License-Identifier: MIT
// The element records of an all group, in the order content kind, then occurrence. Each only names the rules that apply
// to it.
#include "ZrXmlLib16Data/ElementInfoAllAbsClsCol.h"
#include "ZrXmlLib16Data/ElementInfoAllAbsClsMnd.h"
#include "ZrXmlLib16Data/ElementInfoAllAbsClsOpt.h"
#include "ZrXmlLib16Data/ElementInfoAllClsCol.h"
#include "ZrXmlLib16Data/ElementInfoAllClsMnd.h"
#include "ZrXmlLib16Data/ElementInfoAllClsOpt.h"
#include "ZrXmlLib16Data/ElementInfoAllCol.h"
#include "ZrXmlLib16Data/ElementInfoAllEnumCol.h"
#include "ZrXmlLib16Data/ElementInfoAllEnumMnd.h"
#include "ZrXmlLib16Data/ElementInfoAllEnumOpt.h"
#include "ZrXmlLib16Data/ElementInfoAllPrimCol.h"
#include "ZrXmlLib16Data/ElementInfoAllPrimMnd.h"
#include "ZrXmlLib16Data/ElementInfoAllPrimOpt.h"
#include "ZrXmlLib16Data/ElementInfoAllUntpdCol.h"
#include "ZrXmlLib16Data/ElementInfoAllUntpdMnd.h"
#include "ZrXmlLib16Data/ElementInfoAllUntpdOpt.h"
#include "metadata/RecordArguments.h"
#include "metadata/RecordPolicies.h"

namespace ZrXmlLib16Data {

CElementInfoAllCol::CElementInfoAllCol(Text name, Text namespaceUri, int propertyId)
    : CElementInfo(name, namespaceUri, propertyId)
{
    MarkAsCollection();
}

CElementInfoAllCol::~CElementInfoAllCol() = default;

bool CElementInfoAllCol::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteCollection(*this, {context, object, writer}, CountCheck::Always);
}

bool CElementInfoAllCol::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadCollectionInAll(*this, {context, object, parent, current, elementType});
}

CElementInfoAllPrimMnd::CElementInfoAllPrimMnd(Text name, Text namespaceUri, int propertyId, bool nillable,
    ItemType itemType, Text numberFormat, Rule rule, Facets restrictions, Text defaultValue)
    : CElementInfo(name, namespaceUri, propertyId, nillable, itemType, numberFormat, rule, restrictions, defaultValue)
{
}

CElementInfoAllPrimMnd::~CElementInfoAllPrimMnd() = default;

bool CElementInfoAllPrimMnd::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteMandatory<PrimKind>(*this, {context, object, writer});
}

bool CElementInfoAllPrimMnd::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadIfPresent<PrimKind>(
        *this, NoData(), {context, object, parent, current, elementType}, Occurrence::Mandatory, XmlElementGroup_All);
}

bool CElementInfoAllPrimMnd::Validate(Context, ConstObject, bool found, bool check) const
{
    return ValidateMandatory(*this, found, check);
}

CElementInfoAllPrimOpt::CElementInfoAllPrimOpt(Text name, Text namespaceUri, int propertyId, bool nillable,
    ItemType itemType, Text numberFormat, Rule rule, Facets restrictions, Text defaultValue)
    : CElementInfo(name, namespaceUri, propertyId, nillable, itemType, numberFormat, rule, restrictions, defaultValue)
{
}

CElementInfoAllPrimOpt::~CElementInfoAllPrimOpt() = default;

bool CElementInfoAllPrimOpt::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteOptional<PrimKind>(*this, {context, object, writer});
}

bool CElementInfoAllPrimOpt::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadIfPresent<PrimKind>(
        *this, NoData(), {context, object, parent, current, elementType}, Occurrence::Optional, XmlElementGroup_All);
}

bool CElementInfoAllPrimOpt::Validate(Context, ConstObject, bool, bool) const
{
    return true;
}

CElementInfoAllPrimCol::CElementInfoAllPrimCol(Text name, Text namespaceUri, int propertyId)
    : CElementInfoAllCol(name, namespaceUri, propertyId)
{
}

CElementInfoAllPrimCol::~CElementInfoAllPrimCol() = default;

CElementInfoAllEnumMnd::CElementInfoAllEnumMnd(Text name, Text namespaceUri, int propertyId, bool nillable,
    EnumToString enumToString, StringToEnum stringToEnum, Text defaultValue)
    : CElementInfo(name, namespaceUri, propertyId, nillable, enumToString, stringToEnum, defaultValue)
{
}

CElementInfoAllEnumMnd::~CElementInfoAllEnumMnd() = default;

bool CElementInfoAllEnumMnd::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteMandatory<EnumKind>(*this, {context, object, writer});
}

bool CElementInfoAllEnumMnd::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadIfPresent<EnumKind>(
        *this, NoData(), {context, object, parent, current, elementType}, Occurrence::Mandatory, XmlElementGroup_All);
}

bool CElementInfoAllEnumMnd::Validate(Context, ConstObject, bool found, bool check) const
{
    return ValidateMandatory(*this, found, check);
}

CElementInfoAllEnumOpt::CElementInfoAllEnumOpt(Text name, Text namespaceUri, int propertyId, bool nillable,
    EnumToString enumToString, StringToEnum stringToEnum, Text defaultValue)
    : CElementInfo(name, namespaceUri, propertyId, nillable, enumToString, stringToEnum, defaultValue)
{
}

CElementInfoAllEnumOpt::~CElementInfoAllEnumOpt() = default;

bool CElementInfoAllEnumOpt::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteOptional<EnumKind>(*this, {context, object, writer});
}

bool CElementInfoAllEnumOpt::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadIfPresent<EnumKind>(
        *this, NoData(), {context, object, parent, current, elementType}, Occurrence::Optional, XmlElementGroup_All);
}

bool CElementInfoAllEnumOpt::Validate(Context, ConstObject, bool, bool) const
{
    return true;
}

CElementInfoAllEnumCol::CElementInfoAllEnumCol(Text name, Text namespaceUri, int propertyId)
    : CElementInfoAllCol(name, namespaceUri, propertyId)
{
}

CElementInfoAllEnumCol::~CElementInfoAllEnumCol() = default;

CElementInfoAllClsMnd::CElementInfoAllClsMnd(Text name, Text namespaceUri, int propertyId, XmlElementType childType,
    ClassFactory factory, int classId, bool createInline)
    : CElementInfo(name, namespaceUri, propertyId)
    , m_data{childType, factory, classId, createInline}
{
    MarkChildType(childType);
}

CElementInfoAllClsMnd::~CElementInfoAllClsMnd() = default;

bool CElementInfoAllClsMnd::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteMandatory<ClsKind>(*this, {context, object, writer});
}

bool CElementInfoAllClsMnd::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadIfPresent<ClsKind>(
        *this, m_data, {context, object, parent, current, elementType}, Occurrence::Mandatory, XmlElementGroup_All);
}

bool CElementInfoAllClsMnd::Validate(Context, ConstObject, bool found, bool check) const
{
    return ValidateMandatory(*this, found, check);
}

void CElementInfoAllClsMnd::PseudoChildAttributeToXml(Context context, ConstObject object, Writer writer) const
{
    WriteChildAttributes(*this, m_data.childType, {context, object, writer});
}

CElementInfoAllClsOpt::CElementInfoAllClsOpt(Text name, Text namespaceUri, int propertyId, XmlElementType childType,
    ClassFactory factory, int classId, bool createInline)
    : CElementInfo(name, namespaceUri, propertyId)
    , m_data{childType, factory, classId, createInline}
{
    MarkChildType(childType);
}

CElementInfoAllClsOpt::~CElementInfoAllClsOpt() = default;

bool CElementInfoAllClsOpt::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteOptional<ClsKind>(*this, {context, object, writer});
}

bool CElementInfoAllClsOpt::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadIfPresent<ClsKind>(
        *this, m_data, {context, object, parent, current, elementType}, Occurrence::Optional, XmlElementGroup_All);
}

bool CElementInfoAllClsOpt::Validate(Context, ConstObject, bool, bool) const
{
    return true;
}

void CElementInfoAllClsOpt::PseudoChildAttributeToXml(Context context, ConstObject object, Writer writer) const
{
    WriteChildAttributes(*this, m_data.childType, {context, object, writer});
}

CElementInfoAllClsCol::CElementInfoAllClsCol(Text name, Text namespaceUri, int propertyId, XmlElementType childType)
    : CElementInfoAllCol(name, namespaceUri, propertyId)
    , m_childType(childType)
{
    MarkChildType(childType);
}

CElementInfoAllClsCol::~CElementInfoAllClsCol() = default;

void CElementInfoAllClsCol::PseudoChildAttributeToXml(Context context, ConstObject object, Writer writer) const
{
    WriteItemAttributes(*this, m_childType, {context, object, writer});
}

CElementInfoAllAbsClsMnd::CElementInfoAllAbsClsMnd(
    Text name, Text namespaceUri, int propertyId, XmlElementType childType, AbstractClassFactory factory)
    : CElementInfo(name, namespaceUri, propertyId)
    , m_data{childType, factory}
{
    MarkChildType(childType);
}

CElementInfoAllAbsClsMnd::~CElementInfoAllAbsClsMnd() = default;

bool CElementInfoAllAbsClsMnd::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteMandatory<AbsClsKind>(*this, {context, object, writer});
}

bool CElementInfoAllAbsClsMnd::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadIfPresent<AbsClsKind>(
        *this, m_data, {context, object, parent, current, elementType}, Occurrence::Mandatory, XmlElementGroup_All);
}

bool CElementInfoAllAbsClsMnd::Validate(Context, ConstObject, bool found, bool check) const
{
    return ValidateMandatory(*this, found, check);
}

void CElementInfoAllAbsClsMnd::PseudoChildAttributeToXml(Context context, ConstObject object, Writer writer) const
{
    WriteChildAttributes(*this, m_data.childType, {context, object, writer});
}

CElementInfoAllAbsClsOpt::CElementInfoAllAbsClsOpt(
    Text name, Text namespaceUri, int propertyId, XmlElementType childType, AbstractClassFactory factory)
    : CElementInfo(name, namespaceUri, propertyId)
    , m_data{childType, factory}
{
    MarkChildType(childType);
}

CElementInfoAllAbsClsOpt::~CElementInfoAllAbsClsOpt() = default;

bool CElementInfoAllAbsClsOpt::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteOptional<AbsClsKind>(*this, {context, object, writer});
}

bool CElementInfoAllAbsClsOpt::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadIfPresent<AbsClsKind>(
        *this, m_data, {context, object, parent, current, elementType}, Occurrence::Optional, XmlElementGroup_All);
}

bool CElementInfoAllAbsClsOpt::Validate(Context, ConstObject, bool, bool) const
{
    return true;
}

void CElementInfoAllAbsClsOpt::PseudoChildAttributeToXml(Context context, ConstObject object, Writer writer) const
{
    WriteChildAttributes(*this, m_data.childType, {context, object, writer});
}

CElementInfoAllAbsClsCol::CElementInfoAllAbsClsCol(
    Text name, Text namespaceUri, int propertyId, XmlElementType childType)
    : CElementInfoAllCol(name, namespaceUri, propertyId)
    , m_childType(childType)
{
    MarkChildType(childType);
}

CElementInfoAllAbsClsCol::~CElementInfoAllAbsClsCol() = default;

void CElementInfoAllAbsClsCol::PseudoChildAttributeToXml(Context context, ConstObject object, Writer writer) const
{
    WriteItemAttributes(*this, m_childType, {context, object, writer});
}

CElementInfoAllUntpdMnd::CElementInfoAllUntpdMnd(
    Text name, Text namespaceUri, int propertyId, Text namespaceSpecification, Text targetNamespace)
    : CElementInfo(name, namespaceUri, propertyId)
{
    MarkAsUntyped(namespaceSpecification, targetNamespace);
}

CElementInfoAllUntpdMnd::~CElementInfoAllUntpdMnd() = default;

bool CElementInfoAllUntpdMnd::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteMandatory<UntpdKind>(*this, {context, object, writer});
}

bool CElementInfoAllUntpdMnd::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadIfPresent<UntpdKind>(
        *this, NoData(), {context, object, parent, current, elementType}, Occurrence::Mandatory, XmlElementGroup_All);
}

bool CElementInfoAllUntpdMnd::Validate(Context, ConstObject, bool found, bool check) const
{
    return ValidateMandatory(*this, found, check);
}

CElementInfoAllUntpdOpt::CElementInfoAllUntpdOpt(
    Text name, Text namespaceUri, int propertyId, Text namespaceSpecification, Text targetNamespace)
    : CElementInfo(name, namespaceUri, propertyId)
{
    MarkAsUntyped(namespaceSpecification, targetNamespace);
}

CElementInfoAllUntpdOpt::~CElementInfoAllUntpdOpt() = default;

bool CElementInfoAllUntpdOpt::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteOptional<UntpdKind>(*this, {context, object, writer});
}

bool CElementInfoAllUntpdOpt::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadIfPresent<UntpdKind>(
        *this, NoData(), {context, object, parent, current, elementType}, Occurrence::Optional, XmlElementGroup_All);
}

bool CElementInfoAllUntpdOpt::Validate(Context, ConstObject, bool, bool) const
{
    return true;
}

CElementInfoAllUntpdCol::CElementInfoAllUntpdCol(Text name, Text namespaceUri, int propertyId)
    : CElementInfoAllCol(name, namespaceUri, propertyId)
{
    MarkAsUntyped();
}

CElementInfoAllUntpdCol::~CElementInfoAllUntpdCol() = default;

} // namespace ZrXmlLib16Data
