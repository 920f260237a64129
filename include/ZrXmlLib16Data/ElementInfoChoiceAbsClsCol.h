// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOCHOICEABSCLSCOL_H
#define ZRXMLLIB16DATA_ELEMENTINFOCHOICEABSCLSCOL_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfoChoiceCol.h"

namespace ZrXmlLib16Data {

/// Record of a repeated element in an xs:choice whose content is an abstract generated class, resolved to a concrete
/// one on reading.
class ZRXML_API CElementInfoChoiceAbsClsCol : public CElementInfoChoiceCol {
public:
    /// See CElementInfo.
    /// @param childType how the items are represented
    CElementInfoChoiceAbsClsCol(
        const wchar_t* name, const wchar_t* namespaceUri, int propertyId, XmlElementType childType);
    ~CElementInfoChoiceAbsClsCol() override;
    void PseudoChildAttributeToXml(const ZrXmlLib16::CSerializationContext& context,
        const ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::CXmlWriter* writer) const override;

private:
    XmlElementType m_childType;
};

} // namespace ZrXmlLib16Data

#endif
