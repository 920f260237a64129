// SPDX-License-Identifier: MIT
#ifndef METADATA_RECORDPOLICIES_H
#define METADATA_RECORDPOLICIES_H

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "ZrXmlLib16Data/XmlElementGroupType.h"
#include "metadata/MetadataMessages.h"
#include "metadata/RecordAccess.h"
#include "metadata/RecordKinds.h"
#include "xml/NodeAccess.h"

#include <type_traits>

// The rules of occurrence and group, written once over the kinds of content. The named record classes only say which
// apply to them.
namespace ZrXmlLib16Data {

/// Whether a record that goes by names alone has matched the name of the element before in this walk.
inline bool IsKnown(const CElementInfo& record, const ReadCall& call)
{
    return *call.current && ZrXmlLib16::NodeAccess::IsKnownAs(**call.current, &record);
}

template <class Kind> bool Claims(const CElementInfo& record, const ReadCall& call)
{
    constexpr bool isNamed = !std::is_same<Kind, UntpdKind>::value;
    return (isNamed && IsKnown(record, call)) || record.Claims(call.context, *call.current);
}

template <class Kind> bool WriteOptional(const CElementInfo& record, const WriteCall& call)
{
    return Kind::Write(record, call);
}

template <class Kind> bool WriteMandatory(const CElementInfo& record, const WriteCall& call)
{
    if (!Kind::Write(record, call)) {
        throw ZrXmlLib16::CZrInvalidParamException(
            ZrXmlLib16::FormatString(Message::MANDATORY_PROPERTY_IS_NULL, record.GetElementName().c_str()));
    }
    return true;
}

/// Reads a child that has no element of its own, from the current position and the attributes of its parent's element.
/// An optional child counts only when it found something; in a sequence its absence is fine.
template <class Kind> bool ReadInline(CElementInfo& record, const typename Kind::Data& data, const ReadCall& call,
    Occurrence occurrence, XmlElementGroupType group)
{
    const ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> child = Kind::InlineChild(record, data, call);
    ZrXmlLib16::CXmlElement* next = CRecordAccess::ReadChild(record, child, call.parent, *call.current, call.context);
    const bool touched = CRecordAccess::IsTouched(*child);
    if (CRecordAccess::IsSatisfied(*child) && (touched || occurrence == Occurrence::Mandatory)) {
        ZrXmlLib16::ZrVariant value;
        value.SetXmlObject(child);
        CRecordAccess::SetProperty(record, call.object, value, *call.parent);
        if (touched) {
            CRecordAccess::Touch(*call.object);
        }
        *call.current = next;
        return true;
    }
    if (occurrence == Occurrence::Optional) {
        return group == XmlElementGroup_Sequence;
    }
    if (call.elementType != XmlElementType_Element || call.context.GetIgnoreMissingMandatoryElements()) {
        return call.elementType == XmlElementType_Element;
    }
    throw ZrXmlLib16::CZrValidationException(
        ZrXmlLib16::FormatString(Message::REQUIRED_CHILD_MISSING, record.GetElementName().c_str()),
        call.parent->GetXPath());
}

/// Optional in a sequence: satisfied whether or not the element is there.
template <class Kind>
bool ReadOptionalInSequence(CElementInfo& record, const typename Kind::Data& data, const ReadCall& call)
{
    if constexpr (!std::is_same<typename Kind::Data, NoData>::value) {
        if (IsInline(data)) {
            return ReadInline<Kind>(record, data, call, Occurrence::Optional, XmlElementGroup_Sequence);
        }
    }
    if (Claims<Kind>(record, call)) {
        Kind::Read(record, data, call, Occurrence::Optional);
    }
    return true;
}

/// Mandatory in a sequence: the element is searched for as far as unknown elements may be skipped. Its absence is an
/// error for an object that is an element of its own, and a plain no for one that is being tried at this position.
template <class Kind>
bool ReadMandatoryInSequence(CElementInfo& record, const typename Kind::Data& data, const ReadCall& call)
{
    if constexpr (!std::is_same<typename Kind::Data, NoData>::value) {
        if (IsInline(data)) {
            return ReadInline<Kind>(record, data, call, Occurrence::Mandatory, XmlElementGroup_Sequence);
        }
    }
    while (!IsKnown(record, call) && !record.IsThisElement(call.context, *call.current)) {
        const bool softly = call.elementType != XmlElementType_Element;
        if (!softly && call.context.GetIgnoreMissingMandatoryElements()) {
            return true;
        }
        if (!*call.current || !call.context.GetIgnoreUnknownElements()) {
            if (softly) {
                return false;
            }
            throw ZrXmlLib16::CZrValidationException(
                ZrXmlLib16::FormatString(Kind::MISSING, record.GetElementName().c_str()), call.parent->GetXPath());
        }
        *call.current = (*call.current)->GetNextSiblingElement();
    }
    return Kind::Read(record, data, call, Occurrence::Mandatory);
}

/// In a choice or an all group: satisfied only when the element is there; the driver decides what its absence means.
template <class Kind> bool ReadIfPresent(CElementInfo& record, const typename Kind::Data& data, const ReadCall& call,
    Occurrence occurrence, XmlElementGroupType group)
{
    if constexpr (!std::is_same<typename Kind::Data, NoData>::value) {
        if (IsInline(data)) {
            return ReadInline<Kind>(record, data, call, occurrence, group);
        }
    }
    return Claims<Kind>(record, call) && Kind::Read(record, data, call, occurrence);
}

/// The answer of a mandatory member of an all group after all children were offered.
bool ValidateMandatory(const CElementInfo& record, bool found, bool check);

/// Mandatory and untyped, in a sequence: unknown elements are not skipped in search of it.
bool ReadMandatoryUntypedInSequence(CElementInfo& record, const ReadCall& call);

enum class CountCheck { Always, Never };

bool WriteCollection(const CElementInfo& record, const WriteCall& call, CountCheck check);
/// Read as many items as there are; then their number has to be right. In a choice, a collection that takes nothing
/// only leaves the choice to the other alternatives; in an all group its turn comes once more when no element is left.
bool ReadCollectionInSequence(CElementInfo& record, const ReadCall& call);
bool ReadCollectionInChoice(CElementInfo& record, const ReadCall& call);
bool ReadCollectionInAll(CElementInfo& record, const ReadCall& call);

/// Write the attributes of a child, or of the items of a collection, that are content of this element.
void WriteChildAttributes(const CElementInfo& record, XmlElementType childType, const WriteCall& call);
void WriteItemAttributes(const CElementInfo& record, XmlElementType childType, const WriteCall& call);

} // namespace ZrXmlLib16Data

#endif
