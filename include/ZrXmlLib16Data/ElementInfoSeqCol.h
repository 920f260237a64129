// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOSEQCOL_H
#define ZRXMLLIB16DATA_ELEMENTINFOSEQCOL_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfo.h"

namespace ZrXmlLib16Data {

/// Record of a repeated element in an xs:sequence: the collection that the property holds reads and writes its items.
/// Base of every collection record of its group.
class ZRXML_API CElementInfoSeqCol : public CElementInfo {
public:
    /// The arguments are those of CElementInfo.
    CElementInfoSeqCol(const wchar_t* name, const wchar_t* namespaceUri, int propertyId);
    ~CElementInfoSeqCol() override;
    bool ElementToXml(const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlWriter* writer) const override;
    bool ElementFromXml(const ZrXmlLib16::CSerializationContext& context, ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlElement* parent, ZrXmlLib16::CXmlElement** current, const wchar_t* defaultNamespace,
        XmlElementType elementType) override;
};

} // namespace ZrXmlLib16Data

#endif
