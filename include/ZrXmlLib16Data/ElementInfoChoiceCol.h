// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOCHOICECOL_H
#define ZRXMLLIB16DATA_ELEMENTINFOCHOICECOL_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfo.h"

namespace ZrXmlLib16Data {

/// Record of a repeated element in an xs:choice: the collection that the property holds reads and writes its items.
/// Base of every collection record of its group.
class ZRXML_API CElementInfoChoiceCol : public CElementInfo {
public:
    /// The arguments are those of CElementInfo.
    CElementInfoChoiceCol(const wchar_t* name, const wchar_t* namespaceUri, int propertyId);
    ~CElementInfoChoiceCol() override;
    bool ElementToXml(const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlWriter* writer) const override;
    bool ElementFromXml(const ZrXmlLib16::CSerializationContext& context, ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlElement* parent, ZrXmlLib16::CXmlElement** current, const wchar_t* defaultNamespace,
        XmlElementType elementType) override;
};

} // namespace ZrXmlLib16Data

#endif
