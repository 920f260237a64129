// SPDX-License-Identifier: MIT
#include "core/TargetNamespace.h"

#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "xml/ClassMemory.h"
#include "xml/NodeAccess.h"

#include <algorithm>

namespace ZrXmlLib16 {

CTargetNamespace::CTargetNamespace(const CXmlGeneratedClass& object, const void* classInfo, const CXmlElement& element)
{
    ClassMemory* const memory = NodeAccess::GetClassMemory(element);
    ClassMemory::Entry* const entry = memory ? &memory->Find(typeid(object), classInfo) : nullptr;
    if (entry && entry->targetNamespace) {
        m_text = entry->targetNamespace;
        return;
    }
    m_own = object.GetTargetNamespace();
    m_text = m_own.c_str();
    if (entry) {
        const std::size_t size = m_own.size() + 1;
        wchar_t* const kept =
            static_cast<wchar_t*>(memory->GetArena().Allocate(size * sizeof(wchar_t), alignof(wchar_t)));
        std::copy_n(m_own.c_str(), size, kept);
        entry->targetNamespace = kept;
    }
}

} // namespace ZrXmlLib16
