// SPDX-License-Identifier: MIT
#include "xml/NodeAccess.h"

#include "ZrXmlLib16/INillable.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "xml/DocumentStorage.h"

namespace ZrXmlLib16 {

ClassMemory::Entry* NodeAccess::LookUpClass(const XmlName& name, const std::type_info& type, const void* classInfo)
{
    if (name.storage) {
        name.objectClass = &name.storage->GetClassMemory().Find(type, classInfo);
    }
    return name.objectClass;
}

Arena& NodeAccess::GetArena(const CXmlElement& element)
{
    return element.GetStorage()->GetArena();
}

void NodeAccess::BeginWalk(const CXmlElement& element)
{
    if (DocumentStorage* const storage = element.GetStorage()) {
        storage->BeginWalk();
    }
}

void NodeAccess::KnowAs(const CXmlElement& element, const void* record)
{
    const XmlName& name = *element.m_name;
    if (name.storage) {
        name.element = {record, name.storage->GetWalk()};
    }
}

void NodeAccess::RememberTaker(
    const CXmlAttribute& attribute, const void* record, const void* records, std::size_t index)
{
    const XmlName& name = *attribute.m_name;
    if (name.storage) {
        name.attribute = {record, records, index, name.storage->GetWalk()};
    }
}

INillable* NodeAccess::FindNillable(const CXmlElement& element, CXmlGeneratedClass& object, const void* classInfo)
{
    ClassMemory::Entry* const known = FindClass(element, typeid(object), classInfo);
    if (!known) {
        return dynamic_cast<INillable*>(&object);
    }
    if (!known->knowsNillable) {
        known->nillable = CNillablePlace(object);
        known->knowsNillable = true;
    }
    return known->nillable.In(object);
}

void NodeAccess::ParseLonger(const NodeText& text, DocumentStorage* storage, ItemType type,
    CWhitespaceUtils::WhitespaceRule rule, ZrVariant& result)
{
    result.FromString(text.Borrow(storage), type, rule);
}

} // namespace ZrXmlLib16
