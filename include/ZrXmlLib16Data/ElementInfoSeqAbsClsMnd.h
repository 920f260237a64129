// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOSEQABSCLSMND_H
#define ZRXMLLIB16DATA_ELEMENTINFOSEQABSCLSMND_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfo.h"

namespace ZrXmlLib16Data {

/// Record of a mandatory element in an xs:sequence whose content is an abstract generated class, resolved to a concrete
/// one on reading.
class ZRXML_API CElementInfoSeqAbsClsMnd : public CElementInfo {
public:
    /// See CElementInfo and CAbstractClassRecordData.
    CElementInfoSeqAbsClsMnd(const wchar_t* name, const wchar_t* namespaceUri, int propertyId, XmlElementType childType,
        AbstractClassFactory factory);
    ~CElementInfoSeqAbsClsMnd() override;
    bool ElementToXml(const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlWriter* writer) const override;
    bool ElementFromXml(const ZrXmlLib16::CSerializationContext& context, ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlElement* parent, ZrXmlLib16::CXmlElement** current, const wchar_t* defaultNamespace,
        XmlElementType elementType) override;
    void PseudoChildAttributeToXml(const ZrXmlLib16::CSerializationContext& context,
        const ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::CXmlWriter* writer) const override;

private:
    CAbstractClassRecordData m_data;
};

} // namespace ZrXmlLib16Data

#endif
