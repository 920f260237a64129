// SPDX-License-Identifier: MIT
#ifndef TESTS_LEXICAL_TYPEDCOLLECTIONFIXTURE_H
#define TESTS_LEXICAL_TYPEDCOLLECTIONFIXTURE_H

#include "ZrXmlLib16/ZrXmlLib16.h"

namespace TestSupport {

/// The arguments of a typed collection by name; nothing is restricted.
struct CollectionArguments {
    const wchar_t* name = L"n";
    const wchar_t* namespaceUri = L"";
    int minOccurs = 0;
    int maxOccurs = -1;
    ZrXmlLib16::CPrimitiveRestrictions facets;
    ZrXmlLib16::CWhitespaceUtils::WhitespaceRule rule = ZrXmlLib16::CWhitespaceUtils::Rule_None;
    const wchar_t* format = nullptr;
};

template <class Collection> ZrXmlLib16::CSmartPtr<Collection> NewTyped(const CollectionArguments& a = {})
{
    const ZrXmlLib16::CPrimitiveRestrictions& f = a.facets;
    return new Collection(a.name, a.namespaceUri, a.minOccurs, a.maxOccurs, f.m_pattern.c_str(), f.m_minLength,
        f.m_maxLength, f.m_minInclusive.c_str(), f.m_maxInclusive.c_str(), f.m_minExclusive.c_str(),
        f.m_maxExclusive.c_str(), f.m_length, f.m_totalDigits, f.m_fractionDigits, a.rule, a.format);
}

} // namespace TestSupport

#endif
