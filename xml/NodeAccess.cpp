// SPDX-License-Identifier: MIT
#include "xml/NodeAccess.h"

#include "ZrXmlLib16/INillable.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "xml/DocumentStorage.h"

namespace ZrXmlLib16 {

namespace {

bool KeepsText(const NodeText& text, CWhitespaceUtils::WhitespaceRule rule)
{
    return rule == CWhitespaceUtils::Rule_None || (rule == CWhitespaceUtils::Rule_Preserve && !text.ContainsCR());
}

} // namespace

ClassMemory* NodeAccess::GetClassMemory(const CXmlElement& element)
{
    DocumentStorage* const storage = element.GetStorage();
    return storage ? &storage->GetClassMemory() : nullptr;
}

void NodeAccess::BeginWalk(const CXmlElement& element)
{
    if (DocumentStorage* const storage = element.GetStorage()) {
        storage->BeginWalk();
    }
}

bool NodeAccess::IsKnownAs(const CXmlElement& element, const void* record)
{
    const XmlName& name = *element.m_name;
    return name.matchingRecord == record && name.matchingWalk == name.storage->GetWalk();
}

void NodeAccess::KnowAs(const CXmlElement& element, const void* record)
{
    const XmlName& name = *element.m_name;
    if (name.storage) {
        name.matchingRecord = record;
        name.matchingWalk = name.storage->GetWalk();
    }
}

INillable* NodeAccess::FindNillable(const CXmlElement& element, CXmlGeneratedClass& object, const void* classInfo)
{
    DocumentStorage* const storage = element.GetStorage();
    if (!storage) {
        return dynamic_cast<INillable*>(&object);
    }
    ClassMemory::Entry& known = storage->GetClassMemory().Find(typeid(object), classInfo);
    if (!known.knowsNillable) {
        known.nillable = CNillablePlace(object);
        known.knowsNillable = true;
    }
    return known.nillable.In(object);
}

void NodeAccess::Parse(const NodeText& text, DocumentStorage* storage, ItemType type,
    CWhitespaceUtils::WhitespaceRule rule, ZrVariant& result)
{
    if (type == ItemType_string && KeepsText(text, rule)) {
        text.ReadString(result);
    } else if (!text.ReadPlain(type, result)) {
        result.FromString(text.Borrow(storage), type, rule);
    }
}

} // namespace ZrXmlLib16
