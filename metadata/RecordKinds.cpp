// SPDX-License-Identifier: MIT
#include "metadata/RecordKinds.h"

#include "ZrXmlLib16/Element.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "core/ErrorPosition.h"
#include "metadata/MetadataMessages.h"
#include "metadata/RecordAccess.h"

#include <utility>

namespace ZrXmlLib16Data {

using namespace ZrXmlLib16;

const wchar_t* const PrimKind::MISSING = Message::REQUIRED_CHILD_MISSING;
const wchar_t* const EnumKind::MISSING = Message::REQUIRED_CHILD_MISSING;
const wchar_t* const ClsKind::MISSING = Message::REQUIRED_CHILD_MISSING;
const wchar_t* const AbsClsKind::MISSING = Message::NO_SUBSTITUTION;

namespace {

CSmartPtr<CXmlObjectBase> HeldChild(const CElementInfo& record, CXmlGeneratedClass* object)
{
    ZrVariant value;
    CRecordAccess::GetProperty(record, object, value);
    return value.TakeXmlObject();
}

CSmartPtr<CXmlObjectBase> NewChild(const CElementInfo& record, const CClassRecordData& data)
{
    CSmartPtr<CXmlObjectBase> child;
    if (data.factory) {
        child = data.factory(data.classId, record.GetElementName().c_str());
    }
    if (!child) {
        throw CZrInvalidStateException(FormatString(Message::FACTORY_GAVE_NOTHING, record.GetElementName().c_str()));
    }
    return child;
}

void Store(
    const CElementInfo& record, CXmlGeneratedClass* object, CSmartPtr<CXmlObjectBase> child, const CXmlElement& source)
{
    ZrVariant value;
    value.AdoptXmlObject(std::move(child));
    CRecordAccess::SetProperty(record, object, value, source);
}

/// Lets the child read the current element and moves on.
void ReadElement(CElementInfo& record, CXmlObjectBase* child, const ReadCall& call)
{
    CXmlElement* element = *call.current;
    CRecordAccess::ReadChild(record, child, element, element->GetFirstElement(), call.context);
    *call.current = element->GetNextSiblingElement();
}

} // namespace

bool PrimKind::Write(const CElementInfo& record, const WriteCall& call)
{
    return CRecordAccess::WritePrim(record, call.context, call.object, call.writer);
}

bool EnumKind::Write(const CElementInfo& record, const WriteCall& call)
{
    return CRecordAccess::WriteEnum(record, call.context, call.object, call.writer);
}

bool EnumKind::Read(CElementInfo& record, const Data&, const ReadCall& call, Occurrence)
{
    ReadingAt(**call.current, [&] { CRecordAccess::ReadEnum(record, call.context, call.object, call.current); });
    return true;
}

bool ClsKind::Write(const CElementInfo& record, const WriteCall& call)
{
    return CRecordAccess::WriteClass(record, call.context, call.object, call.writer);
}

bool ClsKind::Read(CElementInfo& record, const Data& data, const ReadCall& call, Occurrence occurrence)
{
    const CXmlElement& element = **call.current;
    // A mandatory child exists from the construction of its parent on; an optional one comes to be with its element.
    CSmartPtr<CXmlObjectBase> child;
    if (occurrence == Occurrence::Mandatory) {
        child = HeldChild(record, call.object);
    }
    if (child) {
        ReadElement(record, child, call);
        return true;
    }
    child = NewChild(record, data);
    ReadElement(record, child, call);
    Store(record, call.object, std::move(child), element);
    return true;
}

CSmartPtr<CXmlObjectBase> ClsKind::InlineChild(const CElementInfo& record, const Data& data, const ReadCall& call)
{
    CSmartPtr<CXmlObjectBase> child;
    if (!data.createInline) {
        child = HeldChild(record, call.object);
    }
    return child ? child : NewChild(record, data);
}

bool AbsClsKind::Write(const CElementInfo& record, const WriteCall& call)
{
    return CRecordAccess::WriteClass(record, call.context, call.object, call.writer);
}

bool AbsClsKind::Read(CElementInfo& record, const Data& data, const ReadCall& call, Occurrence occurrence)
{
    CXmlElement* element = *call.current;
    CSmartPtr<CXmlObjectBase> child = data.factory(element);
    if (!child) {
        if (occurrence == Occurrence::Mandatory) {
            ThrowAt(*element,
                CZrValidationException(FormatString(MISSING, record.GetElementName().c_str()), element->GetXPath()));
        }
        return false;
    }
    ReadElement(record, child, call);
    Store(record, call.object, std::move(child), *element);
    return true;
}

CSmartPtr<CXmlObjectBase> AbsClsKind::InlineChild(const CElementInfo& record, const Data& data, const ReadCall& call)
{
    CSmartPtr<CXmlObjectBase> child = data.factory(call.parent);
    if (!child) {
        throw CZrValidationException(FormatString(MISSING, record.GetElementName().c_str()), call.parent->GetXPath());
    }
    return child;
}

bool UntpdKind::Write(const CElementInfo& record, const WriteCall& call)
{
    return CRecordAccess::WriteClass(record, call.context, call.object, call.writer);
}

bool UntpdKind::Read(CElementInfo& record, const Data&, const ReadCall& call, Occurrence)
{
    CXmlElement* element = *call.current;
    CSmartPtr<CXmlObjectBase> child = CRecordAccess::NewUntypedElement(record);
    // An untyped element answers with the element behind the one it has read.
    *call.current = CRecordAccess::ReadChild(record, child, element, element->GetFirstElement(), call.context);
    Store(record, call.object, std::move(child), *element);
    return true;
}

} // namespace ZrXmlLib16Data
