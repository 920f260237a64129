// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOCHOICEUNTPDCOL_H
#define ZRXMLLIB16DATA_ELEMENTINFOCHOICEUNTPDCOL_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfoChoiceCol.h"

namespace ZrXmlLib16Data {

/// Record of a repeated element in an xs:choice whose content is untyped. Named "AnyElement" it is a wildcard, which
/// takes any name.
class ZRXML_API CElementInfoChoiceUntpdCol : public CElementInfoChoiceCol {
public:
    /// The arguments are those of CElementInfo.
    CElementInfoChoiceUntpdCol(const wchar_t* name, const wchar_t* namespaceUri, int propertyId);
    ~CElementInfoChoiceUntpdCol() override;
    bool ElementFromXml(const ZrXmlLib16::CSerializationContext& context, ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlElement* parent, ZrXmlLib16::CXmlElement** current, const wchar_t* defaultNamespace,
        XmlElementType elementType) override;
};

} // namespace ZrXmlLib16Data

#endif
