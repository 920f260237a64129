// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOALLABSCLSCOL_H
#define ZRXMLLIB16DATA_ELEMENTINFOALLABSCLSCOL_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfoAllCol.h"

namespace ZrXmlLib16Data {

/// Record of a repeated element in an xs:all whose content is an abstract generated class, resolved to a concrete one
/// on reading.
class ZRXML_API CElementInfoAllAbsClsCol : public CElementInfoAllCol {
public:
    /// See CElementInfo.
    /// @param childType how the items are represented
    CElementInfoAllAbsClsCol(
        const wchar_t* name, const wchar_t* namespaceUri, int propertyId, XmlElementType childType);
    ~CElementInfoAllAbsClsCol() override;
    void PseudoChildAttributeToXml(const ZrXmlLib16::CSerializationContext& context,
        const ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::CXmlWriter* writer) const override;

private:
    XmlElementType m_childType;
};

} // namespace ZrXmlLib16Data

#endif
