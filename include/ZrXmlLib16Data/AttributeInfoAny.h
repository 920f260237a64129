// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ATTRIBUTEINFOANY_H
#define ZRXMLLIB16DATA_ATTRIBUTEINFOANY_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/AttributeInfo.h"

namespace ZrXmlLib16Data {

/// Record of an attribute wildcard: its property holds a CAttributeCol that collects every attribute in an allowed
/// namespace.
class ZRXML_API CAttributeInfoAny : public CAttributeInfo {
public:
    /// @param namespaceSpecification "##any", "##other", or a list of "##local", "##targetNamespace" and URIs
    CAttributeInfoAny(const wchar_t* name, const wchar_t* namespaceUri, int propertyId, bool optional,
        const wchar_t* defaultValue, const wchar_t* namespaceSpecification, const wchar_t* targetNamespace);
    ~CAttributeInfoAny() override;
    void AttributeToXml(const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlWriter* writer) const override;
    bool AttributeFromXml(const ZrXmlLib16::CSerializationContext& context, ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlAttribute* attribute) override;
    void Validate(const ZrXmlLib16::CSerializationContext& context, bool found) const override;

private:
    std::wstring m_namespaceSpecification;
    std::wstring m_targetNamespace;
};

} // namespace ZrXmlLib16Data

#endif
