// SPDX-License-Identifier: MIT
// The element records of a sequence, in the order content kind, then occurrence. Each only names the rules that apply
// to it.
#include "ZrXmlLib16Data/ElementInfoSeqAbsClsCol.h"
#include "ZrXmlLib16Data/ElementInfoSeqAbsClsMnd.h"
#include "ZrXmlLib16Data/ElementInfoSeqAbsClsOpt.h"
#include "ZrXmlLib16Data/ElementInfoSeqClsCol.h"
#include "ZrXmlLib16Data/ElementInfoSeqClsMnd.h"
#include "ZrXmlLib16Data/ElementInfoSeqClsOpt.h"
#include "ZrXmlLib16Data/ElementInfoSeqCol.h"
#include "ZrXmlLib16Data/ElementInfoSeqEnumCol.h"
#include "ZrXmlLib16Data/ElementInfoSeqEnumMnd.h"
#include "ZrXmlLib16Data/ElementInfoSeqEnumOpt.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimCol.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimMnd.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimOpt.h"
#include "ZrXmlLib16Data/ElementInfoSeqUntpdCol.h"
#include "ZrXmlLib16Data/ElementInfoSeqUntpdMnd.h"
#include "ZrXmlLib16Data/ElementInfoSeqUntpdOpt.h"
#include "metadata/RecordArguments.h"
#include "metadata/RecordPolicies.h"

namespace ZrXmlLib16Data {

CElementInfoSeqCol::CElementInfoSeqCol(Text name, Text namespaceUri, int propertyId)
    : CElementInfo(name, namespaceUri, propertyId)
{
    MarkAsCollection();
}

CElementInfoSeqCol::~CElementInfoSeqCol() = default;

bool CElementInfoSeqCol::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteCollection(*this, {context, object, writer}, CountCheck::Always);
}

bool CElementInfoSeqCol::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadCollectionInSequence(*this, {context, object, parent, current, elementType});
}

CElementInfoSeqPrimMnd::CElementInfoSeqPrimMnd(Text name, Text namespaceUri, int propertyId, bool nillable,
    ItemType itemType, Text numberFormat, Rule rule, Facets restrictions, Text defaultValue)
    : CElementInfo(name, namespaceUri, propertyId, nillable, itemType, numberFormat, rule, restrictions, defaultValue)
{
}

CElementInfoSeqPrimMnd::~CElementInfoSeqPrimMnd() = default;

bool CElementInfoSeqPrimMnd::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteMandatory<PrimKind>(*this, {context, object, writer});
}

bool CElementInfoSeqPrimMnd::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadMandatoryInSequence<PrimKind>(*this, NoData(), {context, object, parent, current, elementType});
}

CElementInfoSeqPrimOpt::CElementInfoSeqPrimOpt(Text name, Text namespaceUri, int propertyId, bool nillable,
    ItemType itemType, Text numberFormat, Rule rule, Facets restrictions, Text defaultValue)
    : CElementInfo(name, namespaceUri, propertyId, nillable, itemType, numberFormat, rule, restrictions, defaultValue)
{
}

CElementInfoSeqPrimOpt::~CElementInfoSeqPrimOpt() = default;

bool CElementInfoSeqPrimOpt::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteOptional<PrimKind>(*this, {context, object, writer});
}

bool CElementInfoSeqPrimOpt::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadOptionalInSequence<PrimKind>(*this, NoData(), {context, object, parent, current, elementType});
}

CElementInfoSeqPrimCol::CElementInfoSeqPrimCol(Text name, Text namespaceUri, int propertyId)
    : CElementInfoSeqCol(name, namespaceUri, propertyId)
{
}

CElementInfoSeqPrimCol::~CElementInfoSeqPrimCol() = default;

CElementInfoSeqEnumMnd::CElementInfoSeqEnumMnd(Text name, Text namespaceUri, int propertyId, bool nillable,
    EnumToString enumToString, StringToEnum stringToEnum, Text defaultValue)
    : CElementInfo(name, namespaceUri, propertyId, nillable, enumToString, stringToEnum, defaultValue)
{
}

CElementInfoSeqEnumMnd::~CElementInfoSeqEnumMnd() = default;

bool CElementInfoSeqEnumMnd::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteMandatory<EnumKind>(*this, {context, object, writer});
}

bool CElementInfoSeqEnumMnd::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadMandatoryInSequence<EnumKind>(*this, NoData(), {context, object, parent, current, elementType});
}

CElementInfoSeqEnumOpt::CElementInfoSeqEnumOpt(Text name, Text namespaceUri, int propertyId, bool nillable,
    EnumToString enumToString, StringToEnum stringToEnum, Text defaultValue)
    : CElementInfo(name, namespaceUri, propertyId, nillable, enumToString, stringToEnum, defaultValue)
{
}

CElementInfoSeqEnumOpt::~CElementInfoSeqEnumOpt() = default;

bool CElementInfoSeqEnumOpt::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteOptional<EnumKind>(*this, {context, object, writer});
}

bool CElementInfoSeqEnumOpt::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadOptionalInSequence<EnumKind>(*this, NoData(), {context, object, parent, current, elementType});
}

CElementInfoSeqEnumCol::CElementInfoSeqEnumCol(Text name, Text namespaceUri, int propertyId)
    : CElementInfoSeqCol(name, namespaceUri, propertyId)
{
}

CElementInfoSeqEnumCol::~CElementInfoSeqEnumCol() = default;

CElementInfoSeqClsMnd::CElementInfoSeqClsMnd(Text name, Text namespaceUri, int propertyId, XmlElementType childType,
    ClassFactory factory, int classId, bool createInline)
    : CElementInfo(name, namespaceUri, propertyId)
    , m_data{childType, factory, classId, createInline}
{
    MarkChildType(childType);
}

CElementInfoSeqClsMnd::~CElementInfoSeqClsMnd() = default;

bool CElementInfoSeqClsMnd::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteMandatory<ClsKind>(*this, {context, object, writer});
}

bool CElementInfoSeqClsMnd::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadMandatoryInSequence<ClsKind>(*this, m_data, {context, object, parent, current, elementType});
}

void CElementInfoSeqClsMnd::PseudoChildAttributeToXml(Context context, ConstObject object, Writer writer) const
{
    WriteChildAttributes(*this, m_data.childType, {context, object, writer});
}

CElementInfoSeqClsOpt::CElementInfoSeqClsOpt(Text name, Text namespaceUri, int propertyId, XmlElementType childType,
    ClassFactory factory, int classId, bool createInline)
    : CElementInfo(name, namespaceUri, propertyId)
    , m_data{childType, factory, classId, createInline}
{
    MarkChildType(childType);
}

CElementInfoSeqClsOpt::~CElementInfoSeqClsOpt() = default;

bool CElementInfoSeqClsOpt::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteOptional<ClsKind>(*this, {context, object, writer});
}

bool CElementInfoSeqClsOpt::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadOptionalInSequence<ClsKind>(*this, m_data, {context, object, parent, current, elementType});
}

void CElementInfoSeqClsOpt::PseudoChildAttributeToXml(Context context, ConstObject object, Writer writer) const
{
    WriteChildAttributes(*this, m_data.childType, {context, object, writer});
}

CElementInfoSeqClsCol::CElementInfoSeqClsCol(Text name, Text namespaceUri, int propertyId, XmlElementType childType)
    : CElementInfoSeqCol(name, namespaceUri, propertyId)
    , m_childType(childType)
{
    MarkChildType(childType);
}

CElementInfoSeqClsCol::~CElementInfoSeqClsCol() = default;

void CElementInfoSeqClsCol::PseudoChildAttributeToXml(Context context, ConstObject object, Writer writer) const
{
    WriteItemAttributes(*this, m_childType, {context, object, writer});
}

CElementInfoSeqAbsClsMnd::CElementInfoSeqAbsClsMnd(
    Text name, Text namespaceUri, int propertyId, XmlElementType childType, AbstractClassFactory factory)
    : CElementInfo(name, namespaceUri, propertyId)
    , m_data{childType, factory}
{
    MarkChildType(childType);
}

CElementInfoSeqAbsClsMnd::~CElementInfoSeqAbsClsMnd() = default;

bool CElementInfoSeqAbsClsMnd::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteMandatory<AbsClsKind>(*this, {context, object, writer});
}

bool CElementInfoSeqAbsClsMnd::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadMandatoryInSequence<AbsClsKind>(*this, m_data, {context, object, parent, current, elementType});
}

void CElementInfoSeqAbsClsMnd::PseudoChildAttributeToXml(Context context, ConstObject object, Writer writer) const
{
    WriteChildAttributes(*this, m_data.childType, {context, object, writer});
}

CElementInfoSeqAbsClsOpt::CElementInfoSeqAbsClsOpt(
    Text name, Text namespaceUri, int propertyId, XmlElementType childType, AbstractClassFactory factory)
    : CElementInfo(name, namespaceUri, propertyId)
    , m_data{childType, factory}
{
    MarkChildType(childType);
}

CElementInfoSeqAbsClsOpt::~CElementInfoSeqAbsClsOpt() = default;

bool CElementInfoSeqAbsClsOpt::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteOptional<AbsClsKind>(*this, {context, object, writer});
}

bool CElementInfoSeqAbsClsOpt::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadOptionalInSequence<AbsClsKind>(*this, m_data, {context, object, parent, current, elementType});
}

void CElementInfoSeqAbsClsOpt::PseudoChildAttributeToXml(Context context, ConstObject object, Writer writer) const
{
    WriteChildAttributes(*this, m_data.childType, {context, object, writer});
}

CElementInfoSeqAbsClsCol::CElementInfoSeqAbsClsCol(
    Text name, Text namespaceUri, int propertyId, XmlElementType childType)
    : CElementInfoSeqCol(name, namespaceUri, propertyId)
    , m_childType(childType)
{
    MarkChildType(childType);
}

CElementInfoSeqAbsClsCol::~CElementInfoSeqAbsClsCol() = default;

void CElementInfoSeqAbsClsCol::PseudoChildAttributeToXml(Context context, ConstObject object, Writer writer) const
{
    WriteItemAttributes(*this, m_childType, {context, object, writer});
}

CElementInfoSeqUntpdMnd::CElementInfoSeqUntpdMnd(
    Text name, Text namespaceUri, int propertyId, Text namespaceSpecification, Text targetNamespace)
    : CElementInfo(name, namespaceUri, propertyId)
{
    MarkAsUntyped(namespaceSpecification, targetNamespace);
}

CElementInfoSeqUntpdMnd::~CElementInfoSeqUntpdMnd() = default;

bool CElementInfoSeqUntpdMnd::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteMandatory<UntpdKind>(*this, {context, object, writer});
}

bool CElementInfoSeqUntpdMnd::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadMandatoryUntypedInSequence(*this, {context, object, parent, current, elementType});
}

CElementInfoSeqUntpdOpt::CElementInfoSeqUntpdOpt(
    Text name, Text namespaceUri, int propertyId, Text namespaceSpecification, Text targetNamespace)
    : CElementInfo(name, namespaceUri, propertyId)
{
    MarkAsUntyped(namespaceSpecification, targetNamespace);
}

CElementInfoSeqUntpdOpt::~CElementInfoSeqUntpdOpt() = default;

bool CElementInfoSeqUntpdOpt::ElementToXml(Context context, ConstObject object, Writer writer) const
{
    return WriteOptional<UntpdKind>(*this, {context, object, writer});
}

bool CElementInfoSeqUntpdOpt::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadOptionalInSequence<UntpdKind>(*this, NoData(), {context, object, parent, current, elementType});
}

CElementInfoSeqUntpdCol::CElementInfoSeqUntpdCol(Text name, Text namespaceUri, int propertyId)
    : CElementInfoSeqCol(name, namespaceUri, propertyId)
{
    MarkAsUntyped();
}

CElementInfoSeqUntpdCol::~CElementInfoSeqUntpdCol() = default;

bool CElementInfoSeqUntpdCol::ElementFromXml(
    Context context, Object object, Element parent, Cursor current, Text, XmlElementType elementType)
{
    return ReadCollectionInSequence(*this, {context, object, parent, current, elementType});
}

} // namespace ZrXmlLib16Data
