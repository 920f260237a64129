// SPDX-License-Identifier: MIT
#ifndef XML_XMLMESSAGES_H
#define XML_XMLMESSAGES_H

/// Every fixed text of the document, the parser and the writers, with its arguments.
namespace ZrXmlLib16 {
namespace Message {

constexpr wchar_t XML_STRING_EMPTY[] = L"XML String is empty!";
constexpr wchar_t XML_STREAM_EMPTY[] = L"XML Stream is empty!";
/// file name
constexpr wchar_t FILE_OPEN_FAILED[] = L"Failed to open the file [%ls].";
/// file name, system error number
constexpr wchar_t FILE_SIZE_FAILED[] = L"Failed to get the size of the file [%ls] Error [%d]";
/// file name, system error number
constexpr wchar_t FILE_READ_FAILED[] = L"Failed to read the contents of the file [%ls] Error [%d]";
/// limit in octets
constexpr wchar_t DOCUMENT_TOO_LARGE[] = L"The document exceeds the limit of %lu octets.";
/// limit
constexpr wchar_t TOO_MANY_ELEMENTS[] = L"The document exceeds the limit of %lu elements.";
/// limit
constexpr wchar_t NAMES_EXPAND_TOO_FAR[] = L"The names of the document exceed the limit of %lu expanded characters.";
/// limit
constexpr wchar_t START_TAG_EXPANDS_TOO_FAR[] = L"A start tag exceeds the limit of %lu expanded characters.";
constexpr wchar_t JSON_STRING_EMPTY[] = L"JSON String is empty!";
constexpr wchar_t JSON_STREAM_EMPTY[] = L"JSON Stream is empty!";
/// description, line
constexpr wchar_t PARSE_FAILED[] = L"%ls at line %d";
constexpr wchar_t NO_ELEMENT_OPEN_IN_DOCUMENT[] = L"The document has no open element.";

constexpr wchar_t ELEMENT_NOT_CLOSED[] = L"An Element has not been closed.";
constexpr wchar_t ATTRIBUTE_AFTER_CONTENT[] = L"Attributes must be added before elements";
constexpr wchar_t HEADER_AFTER_ELEMENT[] = L"Headed directives must appear before an Element has been added.";
constexpr wchar_t INVALID_EOL_TYPE[] = L"Invalid EOL type.";
/// local name of an element, an attribute or a type
constexpr wchar_t UNKNOWN_NAMESPACE[] = L"Unknown Namespace: %ls.";
constexpr wchar_t NO_ELEMENT_TO_END[] = L"There is no open element to end.";

} // namespace Message
} // namespace ZrXmlLib16

#endif
