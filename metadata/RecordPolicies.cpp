// SPDX-License-Identifier: MIT
#include "metadata/RecordPolicies.h"

#include "ZrXmlLib16/XmlCollectionBase.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"

namespace ZrXmlLib16Data {

using namespace ZrXmlLib16;

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
    // kept: required behaviour. The counts of a choice collection are not checked on writing.
    if (check == CountCheck::Always && !call.context.GetIgnoreInvalidCollectionCounts()) {
        ZrVariant value;
        call.object->ReadProperty(record.GetPropertyId(), value);
        if (const CXmlCollectionBase* collection = value.BorrowXmlCollection()) {
            collection->ValidateCount(call.context);
        }
    }
    return CRecordAccess::WriteCollection(record, call.context, call.object, call.writer);
}

bool ReadCollection(CElementInfo& record, const ReadCall& call)
{
    ZrVariant value;
    CRecordAccess::GetProperty(record, call.object, value);
    CXmlCollectionBase* collection = value.BorrowXmlCollection();
    if (!collection) {
        throw CZrInvalidStateException(FormatString(Message::COLLECTION_IS_NULL, record.GetElementName().c_str()));
    }
    *call.current = CRecordAccess::ReadChild(record, collection, call.parent, *call.current, call.context);
    if (call.elementType != XmlElementType_Element) {
        return collection->IsValidCount(call.context);
    }
    collection->ValidateCount(call.context);
    return true;
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
