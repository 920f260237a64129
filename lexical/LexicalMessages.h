// SPDX-License-Identifier: MIT
#ifndef LEXICAL_LEXICALMESSAGES_H
#define LEXICAL_LEXICALMESSAGES_H

/// The fixed message texts of the lexical folder.
// kept: required behaviour. The wording is part of the interface, misspellings included.
namespace ZrXmlLib16::LexicalMessages {

inline constexpr wchar_t UnknownWhitespaceRule[] = L"Unknown WhitespaceRule";

/// text, type name
inline constexpr wchar_t NotConvertible[] = L"The value [%ls] can not be converted to a %ls";
/// text, type name; used for values too small as well
inline constexpr wchar_t TooLarge[] = L"The value [%ls] is to large to fit in a %ls";
/// text
inline constexpr wchar_t InvalidBoolean[] =
    L"A Boolean Value read from an XML document was invalid [%ls]. Valid values are 'true', 'false', '1', or '0'";
/// text
inline constexpr wchar_t InvalidChar[] =
    L"The value [%ls] can not be a char as it is either empty of greater than 1 char long";
/// format
inline constexpr wchar_t InvalidNumberFormat[] = L"Invalid number format [%ls]";

/// item type (int)
inline constexpr wchar_t InvalidType[] = L"Invalid Type %d";
/// name, decimal text of an integer
inline constexpr wchar_t InvalidInteger[] = L"Invalid Value for %ls [%ls]";
/// name, text of the value
inline constexpr wchar_t InvalidValue[] = L"Invalid Value for %ls [%ls].";
/// message of the pattern's failure, name, text of the value
inline constexpr wchar_t InvalidPatternForValue[] = L"%ls\nInvalid Value for %ls [%ls].";
/// pattern, reason
inline constexpr wchar_t InvalidPattern[] = L"Invalid Regular Expression: %ls Error: '%ls'";
inline constexpr wchar_t MatchLimitExceeded[] = L"match limit exceeded";

/// name of the kind, as CDateTime::DateType has it
inline constexpr wchar_t WrongDateKind[] = L"Dates added to this collection must be of type %ls";

} // namespace ZrXmlLib16::LexicalMessages

#endif
