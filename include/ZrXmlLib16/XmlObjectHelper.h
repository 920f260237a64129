// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_XMLOBJECTHELPER_H
#define ZRXMLLIB16_XMLOBJECTHELPER_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/ItemType.h"

#include <string>

namespace ZrXmlLib16 {

class CBinaryData;
class CSerializationContext;
class CXmlElement;
class CPrimitiveRestrictions;
class ZrVariant;
class CDateTime;
class CDateTimeSpan;
class CDecimal;
class CBigInteger;

/// Checks that metadata records and generated classes share: names, wildcard namespaces and facets. Stateless.
class ZRXML_API CXmlObjectHelper {
public:
    /// Whether the local names are equal and, unless the context ignores namespaces or has schema type 2, the
    /// namespaces too.
    /// @param element may be null, which never matches.
    static bool DoesElementNameMatch(const CSerializationContext& context, const CXmlElement* element,
        const std::wstring& name, const std::wstring& namespaceUri);
    /// Whether a wildcard admits the namespace (XML Schema Structures, 3.10.4).
    /// @param namespaceSpecification "##any", "##other", "##local", "##targetNamespace" or a URI, or several of them
    /// separated by blanks, of which one must admit the namespace.
    static bool IsNamespaceValid(const std::wstring& namespaceUri, const std::wstring& namespaceSpecification,
        const std::wstring& targetNamespace);
    /// The test for one token of the wildcard; a text with blanks is taken as a list.
    static bool TestNamespace(const std::wstring& namespaceUri, const std::wstring& namespaceSpecification,
        const std::wstring& targetNamespace);

    /// Checks a value against the facets that apply to its type; a nil value passes.
    /// @param name element or attribute name for the message; null is empty.
    /// @param type the type that the value holds, 1..26.
    /// @throws CZrException "Invalid Value for ..." on the first violated facet, "Invalid Type ..." for any other type.
    /// @throws CZrInvalidValueException for a bound that cannot be parsed.
    static void CheckRestriction(
        const wchar_t* name, const ZrVariant& value, ItemType type, const CPrimitiveRestrictions& facets);

    /// @{
    /// One check per type. They throw as CheckRestriction does. Numbers, dates and durations are checked against the
    /// four bounds; a NaN and a date or duration whose order is indeterminate violate every bound.
    static void CheckRestrictionFori1(const wchar_t* name, char value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionFori2(const wchar_t* name, short value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionFori4(const wchar_t* name, long value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionFori8(const wchar_t* name, long long value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionForui1(const wchar_t* name, unsigned char value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionForui2(const wchar_t* name, unsigned short value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionForui4(const wchar_t* name, unsigned long value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionForui8(
        const wchar_t* name, unsigned long long value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionForr4(const wchar_t* name, float value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionForr8(const wchar_t* name, double value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionForyear(
        const wchar_t* name, unsigned short value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionFormonth(
        const wchar_t* name, unsigned char value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionForday(const wchar_t* name, unsigned char value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionFordate(
        const wchar_t* name, const CDateTime& value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionFordatetime(
        const wchar_t* name, const CDateTime& value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionFortime(
        const wchar_t* name, const CDateTime& value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionForyearMonth(
        const wchar_t* name, const CDateTime& value, const CPrimitiveRestrictions& facets);
    static void CheckRestrictionFormonthDay(
        const wchar_t* name, const CDateTime& value, const CPrimitiveRestrictions& facets);
    /// Checks nothing.
    static void CheckRestrictionFormonthYear(
        const wchar_t* name, const CDateTime& value, const CPrimitiveRestrictions& facets);
    /// Against the four bounds.
    static void CheckRestrictionForduration(
        const wchar_t* name, const CDateTimeSpan& value, const CPrimitiveRestrictions& facets);
    /// Bounds, totalDigits and fractionDigits.
    static void CheckRestrictionFordecimal(
        const wchar_t* name, const CDecimal& value, const CPrimitiveRestrictions& facets);
    /// Against the four bounds.
    static void CheckRestrictionForinteger(
        const wchar_t* name, const CBigInteger& value, const CPrimitiveRestrictions& facets);
    /// Length facets, in wide characters, and pattern.
    static void CheckRestrictionForstring(
        const wchar_t* name, std::wstring value, const CPrimitiveRestrictions& facets);
    /// Length facets, in octets.
    static void CheckRestrictionForhexBinary(
        const wchar_t* name, const CBinaryData& value, const CPrimitiveRestrictions& facets);
    /// Length facets, in octets.
    static void CheckRestrictionForbase64Binary(
        const wchar_t* name, const CBinaryData& value, const CPrimitiveRestrictions& facets);
    /// Checks nothing.
    static void CheckRestrictionForboolean(const wchar_t* name, bool value, const CPrimitiveRestrictions& facets);
    /// @}

    /// Whether the whole text matches a pattern.
    /// @param pattern UTF-8, XML Schema notation (Datatypes, appendix F) as far as the Perl-compatible engine shares
    /// it; the classes `\i`, `\c`, `\I`, `\C` and the first four Unicode blocks are translated. The class `\w` knows
    /// ASCII only.
    /// @throws CZrException "Invalid Regular Expression: ..." for a pattern that cannot be compiled or needs too much
    /// memory.
    static bool TestRegEx(std::string pattern, std::wstring text);
    /// Digits before the point without leading zeros.
    static long GetDecimalIntegerPartLen(const CDecimal& value);
    /// Digits behind the point without trailing zeros.
    static long GetDecimalFractionPartLen(const CDecimal& value);
};

} // namespace ZrXmlLib16

#endif
