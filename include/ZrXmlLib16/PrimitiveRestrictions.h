// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_PRIMITIVERESTRICTIONS_H
#define ZRXMLLIB16_PRIMITIVERESTRICTIONS_H

#include "ZrXmlLib16/Export.h"

#include <string>

namespace ZrXmlLib16 {

/// The constraining facets of a simple type (XML Schema Datatypes, 4.3) without enumerations. Bounds are kept as text
/// and parsed with the conversion of the restricted type at each check.
class ZRXML_API CPrimitiveRestrictions {
public:
    /// Restricts nothing.
    CPrimitiveRestrictions();
    /// Null texts are empty.
    CPrimitiveRestrictions(const wchar_t* pattern, long minLength, long maxLength, const wchar_t* minInclusive,
        const wchar_t* maxInclusive, const wchar_t* minExclusive, const wchar_t* maxExclusive, long length,
        long totalDigits, long fractionDigits);
    virtual ~CPrimitiveRestrictions();
    CPrimitiveRestrictions(const CPrimitiveRestrictions& other) = default;
    CPrimitiveRestrictions& operator=(const CPrimitiveRestrictions& other) = default;

    /// Regular expression in XML Schema notation; empty when absent.
    std::wstring m_pattern;
    /// Characters of a string, octets of binary data; negative when absent.
    long m_minLength;
    long m_maxLength;
    /// Bounds in lexical form; empty when absent.
    std::wstring m_minInclusive;
    std::wstring m_maxInclusive;
    std::wstring m_minExclusive;
    std::wstring m_maxExclusive;
    /// As the other lengths; negative when absent.
    long m_length;
    /// Of decimals; negative when absent.
    long m_totalDigits;
    long m_fractionDigits;
};

} // namespace ZrXmlLib16

#endif
