// SPDX-License-Identifier: MIT
#include "metadata/RecordPolicies.h"

#include "ZrXmlLib16/ElementCol.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"

namespace ZrXmlLib16Data {

using namespace ZrXmlLib16;

namespace {

/// The collection of the property. The variant holds it.
CXmlCollectionBase& GetCollection(const CElementInfo& record, const ReadCall& call, ZrVariant& value)
{
    CRecordAccess::GetProperty(record, call.object, value);
    CXmlCollectionBase* collection = value.BorrowXmlCollection();
    if (!collection) {
        throw CZrInvalidStateException(FormatString(Message::COLLECTION_IS_NULL, record.GetElementName().c_str()));
    }
    return *collection;
}

/// Whether the collection took anything.
bool ReadItems(CElementInfo& record, CXmlCollectionBase& collection, const ReadCall& call)
{
    CXmlElement* const first = *call.current;
    if (CRecordAccess::IsUntyped(record) && record.IsMatchedByName()) {
        CElementCol* elements = dynamic_cast<CElementCol*>(&collection);
        if (!elements) {
            throw CZrException(Message::NOT_AN_ELEMENT_COLLECTION);
        }
        *call.current = elements->FromXmlLockElementName_Int(
            record.GetElementName().c_str(), L"##any", call.parent, first, call.context);
    } else {
        *call.current = CRecordAccess::ReadChild(record, &collection, call.parent, first, call.context);
    }
    return *call.current != first;
}

bool HasRightCount(const CXmlCollectionBase& collection, const ReadCall& call)
{
    if (call.elementType != XmlElementType_Element) {
        return collection.IsValidCount(call.context);
    }
    collection.ValidateCount(call.context);
    return true;
}

} // namespace

bool ValidateMandatory(const CElementInfo& record, bool found, bool check)
{
    if (!found && check) {
        throw CZrValidationException(
            FormatString(Message::MANDATORY_ELEMENT_MISSING, record.GetElementName().c_str()), std::wstring());
    }
    return found;
}

bool WriteCollection(const CElementInfo& record, const WriteCall& call, CountCheck check)
{
    ZrVariant value;
    call.object->ReadProperty(record.GetPropertyId(), value);
    const CXmlCollectionBase* const collection = value.BorrowXmlCollection();
    // kept: required behaviour. The counts of a choice collection are not checked on writing.
    if (collection && check == CountCheck::Always && !call.context.GetIgnoreInvalidCollectionCounts()) {
        collection->ValidateCount(call.context);
    }
    return CRecordAccess::WriteItems(record, collection, call.context, call.writer);
}

bool ReadCollectionInSequence(CElementInfo& record, const ReadCall& call)
{
    ZrVariant value;
    CXmlCollectionBase& collection = GetCollection(record, call, value);
    ReadItems(record, collection, call);
    return HasRightCount(collection, call);
}

bool ReadCollectionInChoice(CElementInfo& record, const ReadCall& call)
{
    ZrVariant value;
    CXmlCollectionBase& collection = GetCollection(record, call, value);
    return ReadItems(record, collection, call) && HasRightCount(collection, call);
}

bool ReadCollectionInAll(CElementInfo& record, const ReadCall& call)
{
    const bool isLastTurn = !*call.current;
    ZrVariant value;
    CXmlCollectionBase& collection = GetCollection(record, call, value);
    return (ReadItems(record, collection, call) || isLastTurn) && HasRightCount(collection, call);
}

bool ReadMandatoryUntypedInSequence(CElementInfo& record, const ReadCall& call)
{
    if (record.Claims(call.context, *call.current)) {
        return UntpdKind::Read(record, NoData(), call, Occurrence::Mandatory);
    }
    if (call.elementType != XmlElementType_Element || call.context.GetIgnoreMissingMandatoryElements()) {
        return call.elementType == XmlElementType_Element;
    }
    throw CZrValidationException(record.IsMatchedByName()
            ? FormatString(Message::REQUIRED_CHILD_MISSING, record.GetElementName().c_str())
            : FormatString(Message::REQUIRED_NAMESPACE_MISSING, CRecordAccess::Wildcard(record).c_str()),
        call.parent->GetXPath());
}

void WriteChildAttributes(const CElementInfo& record, XmlElementType childType, const WriteCall& call)
{
    if (childType != XmlElementType_PseudoElement) {
        return;
    }
    ZrVariant value;
    call.object->ReadProperty(record.GetPropertyId(), value);
    if (const CXmlObjectBase* child = value.BorrowXmlObject()) {
        CRecordAccess::WriteAttributes(record, child, call.writer, call.context);
    }
}

void WriteItemAttributes(const CElementInfo& record, XmlElementType childType, const WriteCall& call)
{
    if (childType != XmlElementType_PseudoElement) {
        return;
    }
    ZrVariant value;
    call.object->ReadProperty(record.GetPropertyId(), value);
    if (const CXmlCollectionBase* items = value.BorrowXmlCollection()) {
        CRecordAccess::WriteAttributes(record, items, call.writer, call.context);
    }
}

} // namespace ZrXmlLib16Data
