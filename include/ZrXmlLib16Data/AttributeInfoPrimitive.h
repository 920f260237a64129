// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ATTRIBUTEINFOPRIMITIVE_H
#define ZRXMLLIB16DATA_ATTRIBUTEINFOPRIMITIVE_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/ZrVariant.h"
#include "ZrXmlLib16Data/AttributeInfo.h"

namespace ZrXmlLib16Data {

/// Record of an attribute that holds one primitive value.
class ZRXML_API CAttributeInfoPrimitive : public CAttributeInfo {
public:
    /// The restrictions are copied.
    CAttributeInfoPrimitive(const wchar_t* name, const wchar_t* namespaceUri, int propertyId, bool optional,
        ItemType itemType, const wchar_t* numberFormat, CWhitespaceUtils::WhitespaceRule rule,
        const CPrimitiveRestrictions& restrictions, const wchar_t* defaultValue);
    ~CAttributeInfoPrimitive() override;
    void AttributeToXml(const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlWriter* writer) const override;
    bool AttributeFromXml(const ZrXmlLib16::CSerializationContext& context, ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlAttribute* attribute) override;
    void Validate(const ZrXmlLib16::CSerializationContext& context, bool found) const override;
    /// @throws CZrException for the first facet that the value violates.
    void CheckRestriction(ZrXmlLib16::ZrVariant value) const;

private:
    CPrimitiveRestrictions m_restrictions;
    ItemType m_itemType;
    std::wstring m_numberFormat;
    CWhitespaceUtils::WhitespaceRule m_whitespaceRule;
    bool m_hasFacets;
};

} // namespace ZrXmlLib16Data

#endif
