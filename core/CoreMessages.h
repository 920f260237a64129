// SPDX-License-Identifier: MIT
#ifndef CORE_COREMESSAGES_H
#define CORE_COREMESSAGES_H

/// Every fixed text of the binding core, with its arguments.
namespace ZrXmlLib16 {
namespace Message {

/// between a message and its path
constexpr wchar_t PATH_SUFFIX[] = L"\nPath: ";

/// line, column
constexpr wchar_t AT_POSITION[] = L"At line %lu, column %lu";

constexpr wchar_t VERSION_NOTICE_RULE[] = L"\n-----------------Version Mismatch-----------------\n";
constexpr wchar_t VERSION_NOTICE_TITLE[] = L"Velloc XML 2018 - Version Mismatch Error\n";
/// library major, minor, generator major, minor
constexpr wchar_t VERSION_NOTICE_ADVICE[] = L"Please ensure your generated code is the same version as this library "
                                            L"(Velloc Runtime: v%d.%d, Generator: v%d.%d).\n";
/// library major, minor, generator major, minor
constexpr wchar_t WRONG_VERSION[] = L"Wrong Version (Velloc Runtime: v%d.%d, Generator: v%d.%d)";

/// alias
constexpr wchar_t ALIAS_NOT_FOUND[] = L"Namespace alias [%ls] not found";

constexpr wchar_t INDENT_NOT_WHITESPACE[] = L"IndentChars can only contain Whitespace characters, i.e. \\t or spaces";
constexpr wchar_t UNKNOWN_EXCLUDES_MISSING[] =
    L"The parser can only ignore additional elements, or ignore the fact that some required ones are missing, you can "
    L"not "
    L"ignore both\nSet IgnoreMissingMandatoryElements to false before setting IgnoreUnknownElements to true";
constexpr wchar_t MISSING_EXCLUDES_UNKNOWN[] =
    L"The parser can only ignore additional elements, or ignore the fact that some required ones are missing, you can "
    L"not "
    L"ignore both\nSet IgnoreUnknownElements to false before setting IgnoreMissingMandatoryElements to true";
constexpr wchar_t MAXIMUM_DEPTH_TOO_SMALL[] = L"The maximum depth must be at least 1.";
constexpr wchar_t NESTING_TOO_DEEP[] = L"The element nesting is too deep.";

/// property name
constexpr wchar_t PROPERTY_IS_NULL[] = L"The Property [%ls] is mandatory, it may node be NULL";
/// required name, actual name
constexpr wchar_t ELEMENT_NAME_DIFFERS[] =
    L"This property requires an element with the name %ls the element being set has the element name %ls";
constexpr wchar_t ZLIB_ONLY_FOR_STREAMS[] = L"ZLIB Compression only available for To Stream methods.";
/// converted text
constexpr wchar_t JSON_CONVERSION_FAILED[] = L"Error converting JSON to XML:\n%ls";
constexpr wchar_t NO_ROOT_ELEMENT[] = L"The document has no root element.";

constexpr wchar_t UNKNOWN_GROUP_TYPE_ON_WRITE[] = L"Unknown XML Group Type";
constexpr wchar_t UNKNOWN_GROUP_TYPE_ON_READ[] = L"Unknown Group Type";
/// element name
constexpr wchar_t ELEMENT_TO_XML_FAILED[] = L"Failed to convert the element [%ls] to XML";
constexpr wchar_t ATTRIBUTES_TO_XML_FAILED[] = L"Failed to convert attributes to XML";
constexpr wchar_t CHOICE_WITHOUT_ITEM[] =
    L"This element is a choice, and as such must have at one (and only one) valid item, "
    L"currently there are none set";
constexpr wchar_t ELEMENT_FROM_XML_FAILED[] = L"Failed to process the element.";
/// parent's local name, child's local name
constexpr wchar_t CHILD_LEFT_OVER[] =
    L"Failed read all the elements held within the element [%ls]. The unexpected element "
    L"[%ls] remains un processed";
/// parent's local name
constexpr wchar_t CHOICE_NOT_POPULATED[] =
    L"No child elements within the element [%ls] were populated. The element represents a choice, so one and only one "
    L"element should be populated. The element contained no sutable child elements";
constexpr wchar_t NIL_ON_NON_NILLABLE[] = L"Invalid use of 'nil' attribute in non-nillable element.";
/// attribute value
constexpr wchar_t NIL_VALUE_UNEXPECTED[] = L"Unexpected Value [%ls] for 'nil' Attribute found.";
constexpr wchar_t ATTRIBUTE_UNEXPECTED[] = L"Unexpected Attribute found.";

/// element name, maximum
constexpr wchar_t TOO_MANY_ITEMS[] = L"The Maximum number of [%ls] elements allowed in this collection is %d";
/// element name, minimum
constexpr wchar_t TOO_FEW_ITEMS[] = L"The Minimum number of [%ls] elements allowed in this collection is %d";
/// index, count
constexpr wchar_t INDEX_OUT_OF_RANGE[] = L"Index %d is out of range, use 0 - %d";
constexpr wchar_t ITEM_IS_NULL[] = L"An item of a collection may not be NULL";
constexpr wchar_t ITEM_NOT_IN_COLLECTION[] = L"The item is not held by this collection";
constexpr wchar_t CHANGED_BY_LISTENER[] = L"A listener changed the collection before the announced change";
constexpr wchar_t NO_ITEM_FACTORY[] = L"The collection does not know how to create its items";
/// element name
constexpr wchar_t NO_SUBSTITUTION[] = L"Failed to find a suitable substitution element for [%ls].";

} // namespace Message
} // namespace ZrXmlLib16

#endif
