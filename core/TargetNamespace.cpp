// SPDX-License-Identifier: MIT
#include "core/TargetNamespace.h"

#include <algorithm>

namespace ZrXmlLib16 {

const wchar_t* CTargetNamespace::Ask(
    const CXmlGeneratedClass& object, const CXmlElement& element, ClassMemory::Entry* known)
{
    m_own = std::make_unique<const std::wstring>(object.GetTargetNamespace());
    if (known) {
        const std::size_t size = m_own->size() + 1;
        wchar_t* const kept =
            static_cast<wchar_t*>(NodeAccess::GetArena(element).Allocate(size * sizeof(wchar_t), alignof(wchar_t)));
        std::copy_n(m_own->c_str(), size, kept);
        known->targetNamespace = kept;
    }
    return m_own->c_str();
}

} // namespace ZrXmlLib16
