// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/InputLimits.h"

namespace ZrXmlLib16 {

CInputLimits::CInputLimits()
    : m_maxDocumentOctets(1UL << 34)
    , m_maxInflatedOctets(1UL << 31)
    , m_maxElements(1UL << 28)
    , m_maxExpandedCharacters(1UL << 26)
{
}

unsigned long CInputLimits::GetMaxDocumentOctets() const
{
    return m_maxDocumentOctets;
}

void CInputLimits::SetMaxDocumentOctets(unsigned long octets)
{
    m_maxDocumentOctets = octets;
}

unsigned long CInputLimits::GetMaxInflatedOctets() const
{
    return m_maxInflatedOctets;
}

void CInputLimits::SetMaxInflatedOctets(unsigned long octets)
{
    m_maxInflatedOctets = octets;
}

unsigned long CInputLimits::GetMaxElements() const
{
    return m_maxElements;
}

void CInputLimits::SetMaxElements(unsigned long elements)
{
    m_maxElements = elements;
}

unsigned long CInputLimits::GetMaxExpandedCharacters() const
{
    return m_maxExpandedCharacters;
}

void CInputLimits::SetMaxExpandedCharacters(unsigned long characters)
{
    m_maxExpandedCharacters = characters;
}

} // namespace ZrXmlLib16
