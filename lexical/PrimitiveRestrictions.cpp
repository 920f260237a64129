// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/PrimitiveRestrictions.h"

#include "core/TextArgument.h"

namespace ZrXmlLib16 {

CPrimitiveRestrictions::CPrimitiveRestrictions()
    : m_minLength(-1)
    , m_maxLength(-1)
    , m_length(-1)
    , m_totalDigits(-1)
    , m_fractionDigits(-1)
{
}

CPrimitiveRestrictions::CPrimitiveRestrictions(const wchar_t* pattern, long minLength, long maxLength,
    const wchar_t* minInclusive, const wchar_t* maxInclusive, const wchar_t* minExclusive, const wchar_t* maxExclusive,
    long length, long totalDigits, long fractionDigits)
    : m_pattern(TextOrEmpty(pattern))
    , m_minLength(minLength)
    , m_maxLength(maxLength)
    , m_minInclusive(TextOrEmpty(minInclusive))
    , m_maxInclusive(TextOrEmpty(maxInclusive))
    , m_minExclusive(TextOrEmpty(minExclusive))
    , m_maxExclusive(TextOrEmpty(maxExclusive))
    , m_length(length)
    , m_totalDigits(totalDigits)
    , m_fractionDigits(fractionDigits)
{
}

CPrimitiveRestrictions::~CPrimitiveRestrictions() = default;

} // namespace ZrXmlLib16
