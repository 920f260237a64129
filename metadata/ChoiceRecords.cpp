// SPDX-License-Identifier: MIT
// The element records of a choice, in the order content kind, then occurrence. Each only names the rules that apply to
// it.
#include "ZrXmlLib16Data/ElementInfoChoiceAbsClsCol.h"
#include "ZrXmlLib16Data/ElementInfoChoiceAbsClsOpt.h"
#include "ZrXmlLib16Data/ElementInfoChoiceClsCol.h"
#include "ZrXmlLib16Data/ElementInfoChoiceClsOpt.h"
#include "ZrXmlLib16Data/ElementInfoChoiceCol.h"
#include "ZrXmlLib16Data/ElementInfoChoiceEnumCol.h"
#include "ZrXmlLib16Data/ElementInfoChoiceEnumOpt.h"
#include "ZrXmlLib16Data/ElementInfoChoicePrimCol.h"
#include "ZrXmlLib16Data/ElementInfoChoicePrimOpt.h"
#include "ZrXmlLib16Data/ElementInfoChoiceUntpdCol.h"
#include "ZrXmlLib16Data/ElementInfoChoiceUntpdOpt.h"
#include "metadata/RecordArguments.h"
#include "metadata/RecordPolicies.h"

namespace ZrXmlLib16Data {

CElementInfoChoiceCol::CElementInfoChoiceCol(Text name, Text namespaceUri, int propertyId)
    : CElementInfo(name, namespaceUri, propertyId)
{
    MarkAsCollection();
}

CElementInfoChoiceCol::~CElementInfoChoiceCol() = default;

bool CElementInfoChoiceCol::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteCollection(*this, {context, object, writer}, CountCheck::Never);
}

bool CElementInfoChoiceCol::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadCollectionInChoice(*this, {context, object, parent, current, elementType});
}

CElementInfoChoicePrimOpt::CElementInfoChoicePrimOpt(Text name, Text namespaceUri, int propertyId, bool nillable,
    ItemType itemType, Text numberFormat, Rule rule, Facets restrictions, Text defaultValue)
    : CElementInfo(name, namespaceUri, propertyId, nillable, itemType, numberFormat, rule, restrictions, defaultValue)
{
}

CElementInfoChoicePrimOpt::~CElementInfoChoicePrimOpt() = default;

bool CElementInfoChoicePrimOpt::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteOptional<PrimKind>(*this, {context, object, writer});
}

bool CElementInfoChoicePrimOpt::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadIfPresent<PrimKind>(
        *this, NoData(), {context, object, parent, current, elementType}, Occurrence::Optional, XmlElementGroup_Choice);
}

CElementInfoChoicePrimCol::CElementInfoChoicePrimCol(Text name, Text namespaceUri, int propertyId)
    : CElementInfoChoiceCol(name, namespaceUri, propertyId)
{
}

CElementInfoChoicePrimCol::~CElementInfoChoicePrimCol() = default;

CElementInfoChoiceEnumOpt::CElementInfoChoiceEnumOpt(Text name, Text namespaceUri, int propertyId, bool nillable,
    EnumToString enumToString, StringToEnum stringToEnum, Text defaultValue)
    : CElementInfo(name, namespaceUri, propertyId, nillable, enumToString, stringToEnum, defaultValue)
{
}

CElementInfoChoiceEnumOpt::~CElementInfoChoiceEnumOpt() = default;

bool CElementInfoChoiceEnumOpt::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteOptional<EnumKind>(*this, {context, object, writer});
}

bool CElementInfoChoiceEnumOpt::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadIfPresent<EnumKind>(
        *this, NoData(), {context, object, parent, current, elementType}, Occurrence::Optional, XmlElementGroup_Choice);
}

CElementInfoChoiceEnumCol::CElementInfoChoiceEnumCol(Text name, Text namespaceUri, int propertyId)
    : CElementInfoChoiceCol(name, namespaceUri, propertyId)
{
}

CElementInfoChoiceEnumCol::~CElementInfoChoiceEnumCol() = default;

CElementInfoChoiceClsOpt::CElementInfoChoiceClsOpt(Text name, Text namespaceUri, int propertyId,
    XmlElementType childType, ClassFactory factory, int classId, bool createInline)
    : CElementInfo(name, namespaceUri, propertyId)
    , m_data{childType, factory, classId, createInline}
{
    MarkChildType(childType);
}

CElementInfoChoiceClsOpt::~CElementInfoChoiceClsOpt() = default;

bool CElementInfoChoiceClsOpt::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteOptional<ClsKind>(*this, {context, object, writer});
}

bool CElementInfoChoiceClsOpt::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadIfPresent<ClsKind>(
        *this, m_data, {context, object, parent, current, elementType}, Occurrence::Optional, XmlElementGroup_Choice);
}

void CElementInfoChoiceClsOpt::PseudoChildAttributeToXml(Context context, ConstObject object, Writer writer) const
{
    WriteChildAttributes(*this, m_data.childType, {context, object, writer});
}

CElementInfoChoiceClsCol::CElementInfoChoiceClsCol(
    Text name, Text namespaceUri, int propertyId, XmlElementType childType)
    : CElementInfoChoiceCol(name, namespaceUri, propertyId)
    , m_childType(childType)
{
    MarkChildType(childType);
}

CElementInfoChoiceClsCol::~CElementInfoChoiceClsCol() = default;

void CElementInfoChoiceClsCol::PseudoChildAttributeToXml(Context context, ConstObject object, Writer writer) const
{
    WriteItemAttributes(*this, m_childType, {context, object, writer});
}

CElementInfoChoiceAbsClsOpt::CElementInfoChoiceAbsClsOpt(
    Text name, Text namespaceUri, int propertyId, XmlElementType childType, AbstractClassFactory factory)
    : CElementInfo(name, namespaceUri, propertyId)
    , m_data{childType, factory}
{
    MarkChildType(childType);
}

CElementInfoChoiceAbsClsOpt::~CElementInfoChoiceAbsClsOpt() = default;

bool CElementInfoChoiceAbsClsOpt::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteOptional<AbsClsKind>(*this, {context, object, writer});
}

bool CElementInfoChoiceAbsClsOpt::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadIfPresent<AbsClsKind>(
        *this, m_data, {context, object, parent, current, elementType}, Occurrence::Optional, XmlElementGroup_Choice);
}

void CElementInfoChoiceAbsClsOpt::PseudoChildAttributeToXml(Context context, ConstObject object, Writer writer) const
{
    WriteChildAttributes(*this, m_data.childType, {context, object, writer});
}

CElementInfoChoiceAbsClsCol::CElementInfoChoiceAbsClsCol(
    Text name, Text namespaceUri, int propertyId, XmlElementType childType)
    : CElementInfoChoiceCol(name, namespaceUri, propertyId)
    , m_childType(childType)
{
    MarkChildType(childType);
}

CElementInfoChoiceAbsClsCol::~CElementInfoChoiceAbsClsCol() = default;

void CElementInfoChoiceAbsClsCol::PseudoChildAttributeToXml(Context context, ConstObject object, Writer writer) const
{
    WriteItemAttributes(*this, m_childType, {context, object, writer});
}

CElementInfoChoiceUntpdOpt::CElementInfoChoiceUntpdOpt(
    Text name, Text namespaceUri, int propertyId, Text namespaceSpecification, Text targetNamespace)
    : CElementInfo(name, namespaceUri, propertyId)
{
    MarkAsUntyped(namespaceSpecification, targetNamespace);
}

CElementInfoChoiceUntpdOpt::~CElementInfoChoiceUntpdOpt() = default;

bool CElementInfoChoiceUntpdOpt::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteOptional<UntpdKind>(*this, {context, object, writer});
}

bool CElementInfoChoiceUntpdOpt::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadIfPresent<UntpdKind>(
        *this, NoData(), {context, object, parent, current, elementType}, Occurrence::Optional, XmlElementGroup_Choice);
}

CElementInfoChoiceUntpdCol::CElementInfoChoiceUntpdCol(Text name, Text namespaceUri, int propertyId)
    : CElementInfoChoiceCol(name, namespaceUri, propertyId)
{
    MarkAsUntyped();
}

CElementInfoChoiceUntpdCol::~CElementInfoChoiceUntpdCol() = default;

bool CElementInfoChoiceUntpdCol::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadCollectionInChoice(*this, {context, object, parent, current, elementType});
}

} // namespace ZrXmlLib16Data
