// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_WHITESPACEUTILS_H
#define ZRXMLLIB16_WHITESPACEUTILS_H

#include "ZrXmlLib16/Export.h"

#include <string>

namespace ZrXmlLib16 {

/// The whiteSpace facet (XML Schema Datatypes, 4.3.6) on text before it is parsed. Whitespace is U+0020, U+0009, U+000D
/// and U+000A. Stateless.
class ZRXML_API CWhitespaceUtils {
public:
    /// The facet whiteSpace; Rule_None leaves the text as it is.
    enum WhitespaceRule : int { Rule_None = 0, Rule_Preserve = 1, Rule_Replace = 2, Rule_Collapse = 3 };

    /// Whether the character is a space, tab, line feed or carriage return.
    static bool IsWhiteSpace(wchar_t c);

    /// Normalises line ends: CR LF and a lone CR become LF.
    /// @param length characters to take, NUL included; a negative length or a null text gives empty text.
    static std::wstring Preserve(const wchar_t* text, int length);
    static std::wstring Preserve(const std::wstring& text);
    /// CR LF, CR, LF and TAB become one space each.
    static std::wstring Replace(const std::wstring& text);
    /// Runs of whitespace become one space; none is left at the ends.
    static std::wstring Collapse(const std::wstring& text);
    /// The text unchanged for Rule_None, else as the operation of the rule's name.
    /// @throws CZrException for a number that is no rule.
    static std::wstring ApplyRule(WhitespaceRule rule, const std::wstring& text);
};

} // namespace ZrXmlLib16

#endif
