// SPDX-License-Identifier: MIT
#ifndef LEXICAL_ITEMTYPETABLE_H
#define LEXICAL_ITEMTYPETABLE_H

#include "ZrXmlLib16/WhitespaceUtils.h"

#include <string>

namespace ZrXmlLib16 {

class CPrimitiveRestrictions;
class ZrVariant;

/// The compact encoding that Fast Infoset documents are advised to use for an item type. The kinds up to
/// EncodingAlgorithm have the values of CFastInfosetContext::EncodingKind.
struct SuggestedEncoding {
    enum Kind { Literal = 0, RestrictedAlphabet = 1, EncodingAlgorithm = 2, Unchanged = 3 };

    Kind kind;
    unsigned long number;
};

/// What is known about one primitive item type. A new type is a row of the table plus the functions the row names.
struct ItemTypeRow {
    /// As ZrVariant::GetType() returns it.
    const wchar_t* name;
    /// Parses the text and stores the value with the type's setter.
    void (*parse)(const std::wstring& text, CWhitespaceUtils::WhitespaceRule rule, ZrVariant& value);
    /// Replaces the text, reusing its capacity. The value must hold this row's type. Only r4, r8 and decimal look at
    /// the format; null is empty.
    void (*format)(const ZrVariant& value, const wchar_t* numberFormat, std::wstring& text);
    /// Throws CZrException on the first violated facet. The value must hold this row's type.
    void (*checkFacets)(const wchar_t* name, const ZrVariant& value, const CPrimitiveRestrictions& facets);
    /// Whether JSON shows a value without quotation marks.
    bool isBareInJson;
    SuggestedEncoding suggestedEncoding;
};

/// The row of an item type from 1 to 26; null for every other number.
const ItemTypeRow* FindItemType(int type);

} // namespace ZrXmlLib16

#endif
