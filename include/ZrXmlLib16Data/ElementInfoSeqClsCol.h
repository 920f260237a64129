// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOSEQCLSCOL_H
#define ZRXMLLIB16DATA_ELEMENTINFOSEQCLSCOL_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfoSeqCol.h"

namespace ZrXmlLib16Data {

/// Record of a repeated element in an xs:sequence whose content is a generated class.
class ZRXML_API CElementInfoSeqClsCol : public CElementInfoSeqCol {
public:
    /// See CElementInfo.
    /// @param childType how the items are represented
    CElementInfoSeqClsCol(const wchar_t* name, const wchar_t* namespaceUri, int propertyId, XmlElementType childType);
    ~CElementInfoSeqClsCol() override;
    void PseudoChildAttributeToXml(const ZrXmlLib16::CSerializationContext& context,
        const ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::CXmlWriter* writer) const override;

private:
    XmlElementType m_childType;
};

} // namespace ZrXmlLib16Data

#endif
