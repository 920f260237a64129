// SPDX-License-Identifier: MIT
#ifndef JSON_JSONREADERMESSAGES_H
#define JSON_JSONREADERMESSAGES_H

/// Every fixed text of the JSON reader and its handlers, with its arguments.
namespace ZrXmlLib16 {
namespace Message {

/// line, position
constexpr wchar_t JSON_TOO_DEEP[] = L"JSON exceeded depth limit at line %d, position %d.";
/// found character, line, position
constexpr wchar_t JSON_VALUE_EXPECTED[] =
    L"Expected Value '{', '[', '\"', '0-9', '-', 'true', 'false' or 'null', found '%lc' at line %d, position %d.";

/// line, position
constexpr wchar_t JSON_END_IN_NULL[] = L"Unexpected End of File. Expected value 'NULL' at line %d, position %d.";
constexpr wchar_t JSON_END_IN_TRUE[] = L"Unexpected End of File. Expected value 'true' at line %d, position %d.";
constexpr wchar_t JSON_END_IN_FALSE[] = L"Unexpected End of File. Expected value 'false' at line %d, position %d.";
constexpr wchar_t JSON_NULL_EXPECTED[] = L"Expected 'NULL' at line %d, position %d.";
constexpr wchar_t JSON_TRUE_EXPECTED[] = L"Expected 'true' at line %d, position %d.";
constexpr wchar_t JSON_FALSE_EXPECTED[] = L"Expected 'false' at line %d, position %d.";

/// found character, line, position
constexpr wchar_t JSON_DIGIT_EXPECTED[] = L"Expected a digit '0' to '9', found '%lc' at line %d, position %d.";
/// line, position
constexpr wchar_t JSON_END_AFTER_SIGN[] = L"Unexpected End of File. Expected a number at line %d, position %d.";
constexpr wchar_t JSON_END_AFTER_POINT[] =
    L"Unexpected End of File. Expected a digit '0' to '9' at line %d, position %d.";
constexpr wchar_t JSON_END_AFTER_EXPONENT[] =
    L"Unexpected End of File. Expected '+', '-' or a number at line %d, position %d.";

/// found character, line, position
constexpr wchar_t JSON_INVALID_ESCAPE[] = L"Invalid Escape Character '%lc' at line %d, position %d.";
/// line, position
constexpr wchar_t JSON_END_IN_UNICODE_ESCAPE[] =
    L"Unexpected End of File. Expected 4 hexadecimal digits'\\uxxxx' at line %d, position %d.";
constexpr wchar_t JSON_END_IN_STRING[] = L"Unexpected End of File. Expected string value at line %d, position %d.";

/// line, position
// kept: required behaviour. The brace is doubled when the text ends right behind the opening one.
constexpr wchar_t JSON_END_AFTER_OPENING_BRACE[] =
    L"Unexpected End of File. Expected Object terminator character '}}' at line %d, position %d.";
constexpr wchar_t JSON_END_IN_OBJECT[] =
    L"Unexpected End of File. Expected Object terminator character '}' at line %d, position %d.";
constexpr wchar_t JSON_END_BEFORE_COLON[] =
    L"Unexpected End of File. Expected Object Name/Value separator character ':' at line %d, position %d.";
constexpr wchar_t JSON_END_BEFORE_VALUE[] = L"Unexpected End of File. Expected Object Value at line %d, position %d.";
/// found character, line, position
constexpr wchar_t JSON_NAME_EXPECTED[] =
    L"Expected quotation mark character '\"' before Name, found '%lc' at line %d, position %d.";
constexpr wchar_t JSON_COLON_EXPECTED[] =
    L"Expected Object Name/Value separator character ':', found '%lc' at line %d, position %d.";
constexpr wchar_t JSON_OBJECT_COMMA_EXPECTED[] =
    L"Expected Object separator character ',', found '%lc' at line %d, position %d.";
constexpr wchar_t JSON_NAME_TOO_LONG[] = L"The JSON name at this place is too long";

/// line, position
constexpr wchar_t JSON_END_IN_ARRAY[] =
    L"Unexpected End of File. Expected Array terminator character ']' at line %d, position %d.";
/// found character, line, position
constexpr wchar_t JSON_ARRAY_COMMA_EXPECTED[] =
    L"Expected Array separator character ',', found '%lc' at line %d, position %d.";

constexpr wchar_t JSON_ROOT_NOT_SINGLE[] = L"A JSON document must hold exactly one root element";
/// member name
constexpr wchar_t JSON_ATTRIBUTE_NOT_SIMPLE[] = L"The JSON attribute [%ls] must have a simple value";
constexpr wchar_t JSON_EVENTS_NOT_NESTED[] = L"The starts and ends of the JSON events do not match.";
/// limit in octets
constexpr wchar_t JSON_EXPANDS_TOO_FAR[] = L"The JSON document exceeds the limit of %lu expanded characters.";

} // namespace Message
} // namespace ZrXmlLib16

#endif
