// SPDX-License-Identifier: MIT
#include "core/ClassTraits.h"

#include "ZrXmlLib16/INillable.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/XmlGeneratedClass.h"
#include "xml/NodeAccess.h"

#include <algorithm>

namespace ZrXmlLib16 {

CClassTraits::CClassTraits(CXmlGeneratedClass& object, const void* classInfo, const CXmlElement& element)
    : m_object(object)
    , m_memory(NodeAccess::GetClassMemory(element))
    , m_entry(m_memory ? &m_memory->Find(typeid(object), classInfo) : nullptr)
{
}

INillable* CClassTraits::GetNillable() const
{
    if (!m_entry) {
        return dynamic_cast<INillable*>(&m_object);
    }
    char* const start = reinterpret_cast<char*>(&m_object);
    if (!m_entry->knowsNillable) {
        INillable* const nillable = dynamic_cast<INillable*>(&m_object);
        m_entry->isNillable = nillable != nullptr;
        m_entry->nillableOffset = nillable ? reinterpret_cast<char*>(nillable) - start : 0;
        m_entry->knowsNillable = true;
    }
    return m_entry->isNillable ? reinterpret_cast<INillable*>(start + m_entry->nillableOffset) : nullptr;
}

const wchar_t* CClassTraits::GetTargetNamespace()
{
    if (m_entry && m_entry->targetNamespace) {
        return m_entry->targetNamespace;
    }
    m_ownTarget = m_object.GetTargetNamespace();
    if (!m_entry) {
        return m_ownTarget.c_str();
    }
    const std::size_t size = m_ownTarget.size() + 1;
    wchar_t* const kept =
        static_cast<wchar_t*>(m_memory->GetArena().Allocate(size * sizeof(wchar_t), alignof(wchar_t)));
    std::copy_n(m_ownTarget.c_str(), size, kept);
    m_entry->targetNamespace = kept;
    return kept;
}

} // namespace ZrXmlLib16
