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
    return rule == CWhitespaceUtils::Rule_None || (rule == CWhitespaceUtils::Rule_Preserve && !text.Contains(L'\r'));
}

} // namespace

ClassMemory* NodeAccess::GetClassMemory(const CXmlElement& element)
{
    DocumentStorage* const storage = element.GetStorage();
    return storage ? &storage->GetClassMemory() : nullptr;
}

INillable* NodeAccess::FindNillable(const CXmlElement& element, CXmlGeneratedClass& object)
{
    DocumentStorage* const storage = element.GetStorage();
    return storage ? storage->GetNillables().Find(object) : dynamic_cast<INillable*>(&object);
}

void NodeAccess::Parse(const NodeText& text, DocumentStorage* storage, ItemType type,
    CWhitespaceUtils::WhitespaceRule rule, ZrVariant& result)
{
    if (type == ItemType_string && KeepsText(text, rule)) {
        result.SetString(text.Copy());
    } else {
        result.FromString(text.Borrow(storage), type, rule);
    }
}

} // namespace ZrXmlLib16
