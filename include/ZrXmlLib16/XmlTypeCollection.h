// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_XMLTYPECOLLECTION_H
#define ZRXMLLIB16_XMLTYPECOLLECTION_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/ItemType.h"
#include "ZrXmlLib16/PrimitiveRestrictions.h"
#include "ZrXmlLib16/WhitespaceUtils.h"
#include "ZrXmlLib16/XmlCollectionBase.h"

#include <string>

namespace ZrXmlLib16 {

/// A repeated element with a primitive value: the base of the collections of each item type and of the collections that
/// generated code derives for its enumerations.
///
/// The collections of this library hold values that obey their facets. Adding announces BeforeAdd with the address of
/// the value, tests the index and then the facets, inserts, and announces AfterAdd and CollectionChanged. So listeners
/// hear of a value before it is refused; a refusal changes nothing. Removing announces BeforeRemove, AfterRemove and
/// CollectionChanged with the index, clearing a collection that is not empty the same with all items. The data of an
/// event is valid until the call returns or the collection changes. The maximum count is not checked on adding.
///
/// A copy has the same items and no listeners; assignment announces nothing.
class ZRXML_API CXmlTypeCollection : public CXmlCollectionBase {
public:
    /// Null texts are empty.
    /// @param name local name of the items
    /// @param maxOccurs -1 for no maximum
    /// @param pattern this and the next nine arguments: facets as in CPrimitiveRestrictions
    /// @param rule for the text of items
    /// @param format of written numbers, see CConversions; only for r4, r8 and decimal
    CXmlTypeCollection(ItemType type, const wchar_t* name, const wchar_t* namespaceUri, int minOccurs, int maxOccurs,
        const wchar_t* pattern, long minLength, long maxLength, const wchar_t* minInclusive,
        const wchar_t* maxInclusive, const wchar_t* minExclusive, const wchar_t* maxExclusive, long length,
        long totalDigits, long fractionDigits, CWhitespaceUtils::WhitespaceRule rule, const wchar_t* format);
    ~CXmlTypeCollection() override;
    /// Adds the value of a lexical form at the end.
    /// @throws CZrInvalidValueException for text that is no value of the item type, else as adding does.
    virtual void AddFromString(std::wstring text) = 0;
    int GetCount() const override = 0;
    void Clear() override = 0;
    /// Type of the items.
    ItemType GetItemType() const;

protected:
    /// Appends the text of the element and of the siblings after it as long as they have the name of the items. Their
    /// attributes are not looked at. What was added before a failure stays.
    /// @return the first element with another name, or null.
    CXmlElement* FromXml_Int(
        CXmlElement* element, CXmlElement* firstChild, const CSerializationContext& context, bool isOptional) override;

private:
    template <class T, class Traits> friend class TypedCol;

    ItemType m_itemType;
    CPrimitiveRestrictions m_facets;
    CWhitespaceUtils::WhitespaceRule m_whitespaceRule;
    std::wstring m_format;
    bool m_hasFacets; // spares the check of each value
};

} // namespace ZrXmlLib16

#endif
