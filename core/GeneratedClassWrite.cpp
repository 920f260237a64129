// SPDX-License-Identifier: MIT
// The write walk: a generated object as a sequence of writer events.
#include "ZrXmlLib16/AttributeCol.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/INillable.h"
#include "ZrXmlLib16/XmlCollectionBase.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "ZrXmlLib16/XmlWriter.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "ZrXmlLib16Data/AttributeInfo.h"
#include "ZrXmlLib16Data/ElementInfoChoiceAbsClsOpt.h"
#include "ZrXmlLib16Data/ElementInfoChoiceClsOpt.h"
#include "ZrXmlLib16Data/ElementInfoChoiceCol.h"
#include "ZrXmlLib16Data/ElementInfoChoiceEnumOpt.h"
#include "ZrXmlLib16Data/ElementInfoChoicePrimOpt.h"
#include "ZrXmlLib16Data/ElementInfoChoiceUntpdOpt.h"
#include "ZrXmlLib16Data/ParentElementInfo.h"
#include "core/CoreMessages.h"
#include "core/DepthGuard.h"
#include "core/NillableMemory.h"
#include "core/RootPreparation.h"
#include "metadata/RecordAccess.h"
#include "values/BorrowingVariant.h"

#include <cwchar>

namespace ZrXmlLib16 {

using ZrXmlLib16Data::CAttributeInfo;
using ZrXmlLib16Data::CElementInfo;
using ZrXmlLib16Data::CParentElementInfo;
using ZrXmlLib16Data::XmlElementType_Element;

namespace {

template <class Record> bool Is(const CElementInfo* record)
{
    return dynamic_cast<const Record*>(record) != nullptr;
}

bool IsOptionalAlternative(const CElementInfo* record)
{
    return Is<ZrXmlLib16Data::CElementInfoChoicePrimOpt>(record) || Is<ZrXmlLib16Data::CElementInfoChoiceClsOpt>(record)
        || Is<ZrXmlLib16Data::CElementInfoChoiceAbsClsOpt>(record)
        || Is<ZrXmlLib16Data::CElementInfoChoiceEnumOpt>(record)
        || Is<ZrXmlLib16Data::CElementInfoChoiceUntpdOpt>(record);
}

} // namespace

void CXmlGeneratedClass::ToXml_Int(CXmlWriter* writer, bool isRoot, const wchar_t* namespaceUri,
    const CSerializationContext& context, bool isOptional) const
{
    try {
        const bool ownsElement = GetClassInfo()->GetElementType() == XmlElementType_Element;
        if (!ownsElement) {
            WriteContent(writer, context, isOptional);
            return;
        }
        const CDepthGuard depth;
        if (depth.IsTooDeep(context)) {
            throw CZrException(Message::NESTING_TOO_DEEP);
        }
        WriteStartTag(writer, isRoot, namespaceUri, context, isOptional);
        WriteContent(writer, context, isOptional);
        writer->WriteEndElement();
    } catch (const CZrException& exception) {
        throw CZrValidationException(
            FormatString(Message::ELEMENT_TO_XML_FAILED, GetElementName().c_str()), std::wstring(), exception);
    }
}

void CXmlGeneratedClass::WriteStartTag(CXmlWriter* writer, bool isRoot, const wchar_t* namespaceUri,
    const CSerializationContext& context, bool isOptional) const
{
    if (isRoot) {
        WriteBeforeRoot(*writer, context, context.m_defaultNamespaceUri);
    }
    std::wstring& uri = ZrXmlLib16Data::CRecordAccess::NamespaceScratch(*writer);
    if (std::wcscmp(uri.c_str(), namespaceUri) != 0) {
        uri = namespaceUri;
    }
    std::wstring& name = ZrXmlLib16Data::CRecordAccess::NameScratch(*writer);
    m_elementName.CopyTo(name);
    writer->WriteStartElement(name, uri);
    if (isRoot) {
        if (const CAttributeCol* attributes = context.FindAdditionalRootAttributes()) {
            CXmlObjectBase::ToXml_Int(attributes, writer, false, namespaceUri, context, isOptional);
        }
    }
    AttributesToXml_Int(writer, context);
    if (isRoot && !context.m_inLineSchema.empty()) {
        // kept: required behaviour. The schema lands in the start tag, which is still open.
        writer->WriteInlineSchema(context.m_inLineSchema);
    }
}

void CXmlGeneratedClass::WriteContent(CXmlWriter* writer, const CSerializationContext& context, bool isOptional) const
{
    const INillable* nillable = ZrXmlLib16Data::CRecordAccess::Nillables(*writer).Find(*this);
    if (nillable && nillable->IsNil()) {
        writer->WriteAttributeNil();
        return;
    }
    switch (GetClassInfo()->GetGroupType()) {
    case ZrXmlLib16Data::XmlElementGroup_Sequence:
        ProcessElementSeqToXml(context, GetClassElementInfo(), writer);
        break;
    case ZrXmlLib16Data::XmlElementGroup_Choice:
        ProcessElementChoiceToXml(context, GetClassElementInfo(), writer, isOptional);
        break;
    case ZrXmlLib16Data::XmlElementGroup_All:
        ProcessElementAllToXml(context, GetClassElementInfo(), writer);
        break;
    default:
        throw CZrException(Message::UNKNOWN_GROUP_TYPE_ON_WRITE);
    }
    WriteSimpleContent(writer);
}

void CXmlGeneratedClass::WriteSimpleContent(CXmlWriter* writer) const
{
    const CParentElementInfo& info = *GetClassInfo();
    if (info.GetValueProperty() == -1 || info.GetValueType() == ItemType_none) {
        return;
    }
    CBorrowingVariant value;
    ReadProperty(info.GetValueProperty(), value);
    if (value.IsNil()) {
        writer->WriteAttributeNil();
        return;
    }
    const bool isString = value.GetItemType() == ItemType_string;
    std::wstring& scratch = ZrXmlLib16Data::CRecordAccess::Scratch(*writer);
    if (!isString) {
        value.FormatTo(info.GetValueFormat().c_str(), scratch);
    }
    const std::wstring& text = isString ? value.GetString() : scratch;
    writer->WriteString(text, value.GetItemType(), false);
}

void CXmlGeneratedClass::ProcessElementSeqToXml(
    const CSerializationContext& context, CElementInfo** elements, CXmlWriter* writer) const
{
    for (CElementInfo** record = elements; record && *record; ++record) {
        (*record)->ElementToXml(context, this, writer);
    }
}

void CXmlGeneratedClass::ProcessElementAllToXml(
    const CSerializationContext& context, CElementInfo** elements, CXmlWriter* writer) const
{
    ProcessElementSeqToXml(context, elements, writer);
}

void CXmlGeneratedClass::ProcessElementChoiceToXml(
    const CSerializationContext& context, CElementInfo** elements, CXmlWriter* writer, bool isOptional) const
{
    // kept: required behaviour. The first alternative that is set wins; further ones are not looked at.
    for (CElementInfo** record = elements; record && *record; ++record) {
        if ((*record)->ElementToXml(context, this, writer)) {
            return;
        }
    }
    if (!isOptional && !IsChoiceAllowedEmpty(context)) {
        throw CZrValidationException(Message::CHOICE_WITHOUT_ITEM, std::wstring());
    }
}

bool CXmlGeneratedClass::IsChoiceAllowedEmpty(const CSerializationContext& context) const
{
    return context.GetIgnoreMissingChoice() || DoesElementContainOptionalElements();
}

bool CXmlGeneratedClass::DoesElementContainOptionalElements() const
{
    for (CElementInfo** record = GetClassElementInfo(); record && *record; ++record) {
        if (Is<ZrXmlLib16Data::CElementInfoChoiceCol>(*record)) {
            ZrVariant value;
            ReadProperty((*record)->GetPropertyId(), value);
            const CXmlCollectionBase* collection = value.BorrowXmlCollection();
            if (collection && collection->GetMinOccurs() == 0) {
                return true;
            }
        } else if (IsOptionalAlternative(*record)) {
            return true;
        }
    }
    return false;
}

void CXmlGeneratedClass::AttributesToXml_Int(CXmlWriter* writer, const CSerializationContext& context) const
{
    try {
        const CParentElementInfo& info = *GetClassInfo();
        if (context.GetWriteTypeAttribute() && info.GetAllowTypeAttribute() && !HasElementName(info.GetTypeName())) {
            writer->WriteAttributeType(info.GetTypeName(), info.GetTypeNamespace(), ItemType_string);
        }
        ProcessAttributesToXml(context, GetClassElementInfo(), GetClassAttributeInfo(), writer);
    } catch (const CZrException& exception) {
        throw CZrException(Message::ATTRIBUTES_TO_XML_FAILED, exception);
    }
}

void CXmlGeneratedClass::ProcessAttributesToXml(const CSerializationContext& context, CElementInfo** elements,
    CAttributeInfo** attributes, CXmlWriter* writer) const
{
    for (CAttributeInfo** record = attributes; record && *record; ++record) {
        (*record)->AttributeToXml(context, this, writer);
    }
    for (CElementInfo** record = elements; record && *record; ++record) {
        (*record)->PseudoChildAttributeToXml(context, this, writer);
    }
}

} // namespace ZrXmlLib16
