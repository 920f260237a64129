// SPDX-License-Identifier: MIT
#ifndef LEXICAL_FACETCHECK_H
#define LEXICAL_FACETCHECK_H

#include "ZrXmlLib16/DateTimeSpan.h"
#include "ZrXmlLib16/PrimitiveRestrictions.h"
#include "ZrXmlLib16/WhitespaceUtils.h"

#include <string>

namespace ZrXmlLib16 {

/// Whether the facets restrict anything at all.
bool HasFacets(const CPrimitiveRestrictions& facets);

namespace FacetCheck {

/// What a facet violation throws: CZrException with the name (null counts as empty) and the value's text.
[[noreturn]] void FailInteger(const wchar_t* name, const std::wstring& valueText);
[[noreturn]] void FailValue(const wchar_t* name, const std::wstring& valueText);

/// The three length facets against a count of characters or octets.
bool IsLengthAllowed(unsigned long length, const CPrimitiveRestrictions& facets);
/// Length facets and pattern.
void CheckString(const wchar_t* name, const std::wstring& value, const CPrimitiveRestrictions& facets);
/// char: as a string of one character.
void CheckChar(const wchar_t* name, wchar_t value, const CPrimitiveRestrictions& facets);

template <class T> bool IsAtLeast(const T& value, const T& bound)
{
    return value >= bound;
}

inline bool IsAtLeast(const CDateTimeSpan& value, const CDateTimeSpan& bound)
{
    const int order = value.CompareTo(bound);
    return order == 0 || order == 2;
}

/// Whether the value lies on the allowed side of every bound that is present. Each test asks for the allowed side, so a
/// NaN or an indeterminate order violates every bound. Bounds are parsed by `fromString(text, rule)` at each check.
template <class T, class FromString>
bool IsWithinBounds(const T& value, const CPrimitiveRestrictions& facets, FromString fromString)
{
    const auto bound = [&fromString](
                           const std::wstring& text) { return T(fromString(text, CWhitespaceUtils::Rule_Collapse)); };
    return (facets.m_minInclusive.empty() || IsAtLeast(value, bound(facets.m_minInclusive)))
        && (facets.m_maxInclusive.empty() || IsAtLeast(bound(facets.m_maxInclusive), value))
        && (facets.m_minExclusive.empty() || value > bound(facets.m_minExclusive))
        && (facets.m_maxExclusive.empty() || value < bound(facets.m_maxExclusive));
}

} // namespace FacetCheck

} // namespace ZrXmlLib16

#endif
