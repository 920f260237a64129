// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ATTRIBUTEINFOENUM_H
#define ZRXMLLIB16DATA_ATTRIBUTEINFOENUM_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/AttributeInfo.h"

namespace ZrXmlLib16Data {

/// Record of an attribute that holds an enumeration value.
class ZRXML_API CAttributeInfoEnum : public CAttributeInfo {
public:
    /// See CAttributeInfo, and EnumToString and StringToEnum in ElementInfo.h.
    CAttributeInfoEnum(const wchar_t* name, const wchar_t* namespaceUri, int propertyId, bool optional,
        const wchar_t* (*enumToString)(int), int (*stringToEnum)(const wchar_t*), const wchar_t* defaultValue);
    ~CAttributeInfoEnum() override;
    void AttributeToXml(const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlWriter* writer) const override;
    bool AttributeFromXml(const ZrXmlLib16::CSerializationContext& context, ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlAttribute* attribute) override;
    void Validate(const ZrXmlLib16::CSerializationContext& context, bool found) const override;

private:
    const wchar_t* (*m_enumToString)(int);
    int (*m_stringToEnum)(const wchar_t*);
};

} // namespace ZrXmlLib16Data

#endif
