// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOSEQENUMOPT_H
#define ZRXMLLIB16DATA_ELEMENTINFOSEQENUMOPT_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfo.h"

namespace ZrXmlLib16Data {

/// Record of an optional element in an xs:sequence whose content is an enumerated value.
class ZRXML_API CElementInfoSeqEnumOpt : public CElementInfo {
public:
    /// The arguments are those of CElementInfo.
    CElementInfoSeqEnumOpt(const wchar_t* name, const wchar_t* namespaceUri, int propertyId, bool nillable,
        EnumToString enumToString, StringToEnum stringToEnum, const wchar_t* defaultValue);
    ~CElementInfoSeqEnumOpt() override;
    bool ElementToXml(const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlWriter* writer) const override;
    bool ElementFromXml(const ZrXmlLib16::CSerializationContext& context, ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlElement* parent, ZrXmlLib16::CXmlElement** current, const wchar_t* defaultNamespace,
        XmlElementType elementType) override;
};

} // namespace ZrXmlLib16Data

#endif
