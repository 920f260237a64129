// SPDX-License-Identifier: MIT
#ifndef METADATA_METADATAMESSAGES_H
#define METADATA_METADATAMESSAGES_H

/// Every fixed text of the metadata records, with its arguments.
namespace ZrXmlLib16Data {
namespace Message {

constexpr wchar_t VALIDATE_NOT_OVERRIDDEN[] = L"Not implemented, should never be called";
/// element or attribute name
constexpr wchar_t PROPERTY_GET_FAILED[] = L"Failed to get the property value for [%ls].";
constexpr wchar_t PROPERTY_SET_FAILED[] = L"Failed to set the property value.";
/// name of the variant's type
constexpr wchar_t NO_RESTRICTIONS[] = L"Cannot CheckRestriction for type: %ls";
/// number of the item type
constexpr wchar_t ENUMERATION_WITHOUT_TEXT[] = L"Invalid Type %d to convert to string";
/// element name
constexpr wchar_t MANDATORY_PROPERTY_IS_NULL[] = L"The Property [%ls] is mandatory, it may not be NULL";
/// element name
constexpr wchar_t REQUIRED_CHILD_MISSING[] = L"Failed to find the required child element [%ls].";
/// element name
constexpr wchar_t MANDATORY_ELEMENT_MISSING[] = L"Failed to find the mandatory element [%ls].";
/// element name
constexpr wchar_t NO_SUBSTITUTION[] = L"Failed to find a suitable substitution element for [%ls].";
/// attribute name
constexpr wchar_t REQUIRED_ATTRIBUTE_MISSING[] = L"Failed to find the required Attribute [%ls].";
/// element name
constexpr wchar_t COLLECTION_IS_NULL[] = L"The collection of [%ls] elements is NULL";
/// element name
constexpr wchar_t FACTORY_GAVE_NOTHING[] = L"The class factory gave no object for the element [%ls]";
constexpr wchar_t NOT_AN_ATTRIBUTE_COLLECTION[] =
    L"Serialization Data Error : The collection should be a CAttributeCol, it was not!";
/// namespace, class name, wildcard
constexpr wchar_t NAMESPACE_INVALID[] = L"The namespace %ls in the class %ls is invalid against restriction %ls";
constexpr wchar_t ATTRIBUTE_NAME_EMPTY[] = L"Attribute Name must have a value";
constexpr wchar_t ELEMENT_NAME_EMPTY[] = L"Element Name must have a value";
constexpr wchar_t NAMESPACE_RESTRICTION_EMPTY[] = L"Namespace Restriction must have a value";
constexpr wchar_t TARGET_NAMESPACE_EMPTY[] = L"Target Namespace must have a value";
/// text that is no wildcard keyword
constexpr wchar_t NOT_A_WILDCARD_KEYWORD[] = L"Invalid Namespace [%ls].";
/// local name
constexpr wchar_t ELEMENT_REFUSED[] = L"Invalid Element [%ls] found.";
constexpr wchar_t COLLECTION_WITHOUT_NAMESPACE[] = L"A Namespace has not been set for this Collection";
/// wildcard
constexpr wchar_t REQUIRED_NAMESPACE_MISSING[] = L"Failed to find the required element from namespace [%ls].";
constexpr wchar_t NOT_AN_ELEMENT_COLLECTION[] =
    L"Serialization Data Error : The collection should be a CElementCol, it was not!";
constexpr wchar_t NOT_AN_UNTYPED_ELEMENT[] = L"A CElementCol may only hold CElement objects";
constexpr wchar_t ELEMENT_SOURCE_IS_NULL[] = L"The source of an untyped element may not be NULL";

} // namespace Message
} // namespace ZrXmlLib16Data

#endif
