// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOALLENUMCOL_H
#define ZRXMLLIB16DATA_ELEMENTINFOALLENUMCOL_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfoAllCol.h"

namespace ZrXmlLib16Data {

/// Kept abstract: a repeated enumerated element cannot occur inside xs:all.
class ZRXML_API CElementInfoAllEnumCol : public CElementInfoAllCol {
public:
    /// The arguments are those of CElementInfo.
    CElementInfoAllEnumCol(const wchar_t* name, const wchar_t* namespaceUri, int propertyId);
    ~CElementInfoAllEnumCol() override;
    bool ElementToXml(const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlWriter* writer) const override = 0;
    bool ElementFromXml(const ZrXmlLib16::CSerializationContext& context, ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlElement* parent, ZrXmlLib16::CXmlElement** current, const wchar_t* defaultNamespace,
        XmlElementType elementType) override = 0;
};

} // namespace ZrXmlLib16Data

#endif
