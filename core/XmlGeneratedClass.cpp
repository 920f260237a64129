// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/XmlGeneratedClass.h"

#include "ZrXmlLib16/ZrVariant.h"
#include "core/ChoiceCollections.h"
#include "core/SeenFlags.h"

namespace ZrXmlLib16 {

CXmlGeneratedClass::CXmlGeneratedClass()
    : m_satisfied(false)
    , m_touched(false)
    , m_isUnsetting(false)
{
}

CXmlGeneratedClass::CXmlGeneratedClass(const CXmlGeneratedClass& other)
    : CXmlObjectBase(other)
    , m_satisfied(other.m_satisfied)
    , m_touched(other.m_touched)
    , m_isUnsetting(false)
{
}

CXmlGeneratedClass& CXmlGeneratedClass::operator=(const CXmlGeneratedClass& other)
{
    CXmlObjectBase::operator=(other);
    m_satisfied = other.m_satisfied;
    m_touched = other.m_touched;
    return *this;
}

CXmlGeneratedClass::~CXmlGeneratedClass() = default;

CXmlObjectBase* CXmlGeneratedClass::GetBase()
{
    return this;
}

void CXmlGeneratedClass::ReadProperty(int index, ZrVariant& value) const
{
    // One accessor serves both directions; in this one it only reads the object.
    const_cast<CXmlGeneratedClass*>(this)->AccessProperty(index, true, value);
}

int CXmlGeneratedClass::GetClassElementInfoCount() const
{
    return static_cast<int>(CountRecords(GetClassElementInfo()));
}

} // namespace ZrXmlLib16
