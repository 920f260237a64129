// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/XmlTypeCollection.h"

#include "ZrXmlLib16/XmlElement.h"
#include "core/ErrorPosition.h"
#include "core/TextArgument.h"
#include "lexical/FacetCheck.h"
#include "xml/NodeAccess.h"

namespace ZrXmlLib16 {

CXmlTypeCollection::CXmlTypeCollection(ItemType type, const wchar_t* name, const wchar_t* namespaceUri, int minOccurs,
    int maxOccurs, const wchar_t* pattern, long minLength, long maxLength, const wchar_t* minInclusive,
    const wchar_t* maxInclusive, const wchar_t* minExclusive, const wchar_t* maxExclusive, long length,
    long totalDigits, long fractionDigits, CWhitespaceUtils::WhitespaceRule rule, const wchar_t* format)
    : CXmlCollectionBase(name, namespaceUri, minOccurs, maxOccurs)
    , m_itemType(type)
    , m_facets(pattern, minLength, maxLength, minInclusive, maxInclusive, minExclusive, maxExclusive, length,
          totalDigits, fractionDigits)
    , m_whitespaceRule(rule)
    , m_format(TextOrEmpty(format))
    , m_hasFacets(HasFacets(m_facets))
{
}

CXmlTypeCollection::~CXmlTypeCollection() = default;

ItemType CXmlTypeCollection::GetItemType() const
{
    return m_itemType;
}

CXmlElement* CXmlTypeCollection::FromXml_Int(
    CXmlElement*, CXmlElement* firstChild, const CSerializationContext& context, bool)
{
    // kept: required behaviour. Attributes of the items are ignored, nil included, and the first other name ends the
    // collection even when more items follow it.
    CXmlElement* cursor = firstChild;
    while (DoesElementNameMatch(context, cursor, ElementName(), Namespace())) {
        ReadingAt(*cursor, [&] { AddFromString(NodeAccess::CopyText(*cursor)); });
        cursor = cursor->GetNextSiblingElement();
    }
    return cursor;
}

} // namespace ZrXmlLib16
