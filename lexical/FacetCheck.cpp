// SPDX-License-Identifier: MIT
#include "lexical/FacetCheck.h"

#include "ZrXmlLib16/Encoder.h"
#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrException.h"
#include "core/TextArgument.h"
#include "lexical/LexicalMessages.h"
#include "lexical/PatternMatcher.h"

namespace ZrXmlLib16 {

namespace {

bool MatchesFacetPattern(const wchar_t* name, const std::wstring& value, const std::wstring& pattern)
{
    try {
        return MatchesPattern(CEncoder::UnicodeToUtf8(pattern), value);
    } catch (const CZrException& failure) {
        throw CZrException(FormatString(
            LexicalMessages::InvalidPatternForValue, failure.GetMessage().c_str(), TextOrEmpty(name), value.c_str()));
    }
}

} // namespace

bool HasFacets(const CPrimitiveRestrictions& facets)
{
    return !facets.m_pattern.empty() || facets.m_minLength >= 0 || facets.m_maxLength >= 0
        || !facets.m_minInclusive.empty() || !facets.m_maxInclusive.empty() || !facets.m_minExclusive.empty()
        || !facets.m_maxExclusive.empty() || facets.m_length >= 0 || facets.m_totalDigits >= 0
        || facets.m_fractionDigits >= 0;
}

// kept: required behaviour. Only this message ends without a full stop.
void FacetCheck::FailInteger(const wchar_t* name, const std::wstring& valueText)
{
    throw CZrException(FormatString(LexicalMessages::InvalidInteger, TextOrEmpty(name), valueText.c_str()));
}

void FacetCheck::FailValue(const wchar_t* name, const std::wstring& valueText)
{
    throw CZrException(FormatString(LexicalMessages::InvalidValue, TextOrEmpty(name), valueText.c_str()));
}

bool FacetCheck::IsLengthAllowed(unsigned long length, const CPrimitiveRestrictions& facets)
{
    const auto limit = [](long facet) { return static_cast<unsigned long>(facet); };
    return (facets.m_minLength < 0 || length >= limit(facets.m_minLength))
        && (facets.m_maxLength < 0 || length <= limit(facets.m_maxLength))
        && (facets.m_length < 0 || length == limit(facets.m_length));
}

// kept: required behaviour. Lengths count wide characters, two for a surrogate pair.
void FacetCheck::CheckString(const wchar_t* name, const std::wstring& value, const CPrimitiveRestrictions& facets)
{
    if (!IsLengthAllowed(value.length(), facets)
        || (!facets.m_pattern.empty() && !MatchesFacetPattern(name, value, facets.m_pattern))) {
        FailValue(name, value);
    }
}

void FacetCheck::CheckChar(const wchar_t* name, wchar_t value, const CPrimitiveRestrictions& facets)
{
    if (HasFacets(facets)) {
        CheckString(name, std::wstring(1, value), facets);
    }
}

} // namespace ZrXmlLib16
