// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_SIMPLETYPE_H
#define EXAMPLES_SHARED_SIMPLETYPE_H

#include "ZrXmlLib16/ItemType.h"
#include "ZrXmlLib16/PrimitiveRestrictions.h"
#include "ZrXmlLib16/WhitespaceUtils.h"

namespace Shared {

/// What a record says about a value: its type, its whitespace rule and its facets.
struct SimpleType {
    /// Strings keep their whitespace, all other types ignore it at both ends.
    explicit SimpleType(ZrXmlLib16::ItemType type)
        : itemType(type)
        , rule(type == ZrXmlLib16::ItemType_string ? ZrXmlLib16::CWhitespaceUtils::Rule_Preserve
                                                   : ZrXmlLib16::CWhitespaceUtils::Rule_Collapse)
    {
    }
    SimpleType Matching(const wchar_t* pattern) const
    {
        SimpleType type = *this;
        type.facets.m_pattern = pattern;
        return type;
    }
    SimpleType LengthFromTo(long minimum, long maximum) const
    {
        SimpleType type = *this;
        type.facets.m_minLength = minimum;
        type.facets.m_maxLength = maximum;
        return type;
    }
    SimpleType FromTo(const wchar_t* minimum, const wchar_t* maximum) const
    {
        SimpleType type = *this;
        type.facets.m_minInclusive = minimum;
        type.facets.m_maxInclusive = maximum;
        return type;
    }
    SimpleType Digits(long total, long fraction) const
    {
        SimpleType type = *this;
        type.facets.m_totalDigits = total;
        type.facets.m_fractionDigits = fraction;
        return type;
    }

    ZrXmlLib16::ItemType itemType;
    ZrXmlLib16::CWhitespaceUtils::WhitespaceRule rule;
    ZrXmlLib16::CPrimitiveRestrictions facets;
};

} // namespace Shared

#endif
