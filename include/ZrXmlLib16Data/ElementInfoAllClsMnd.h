// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOALLCLSMND_H
#define ZRXMLLIB16DATA_ELEMENTINFOALLCLSMND_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfo.h"

namespace ZrXmlLib16Data {

/// Record of a mandatory element in an xs:all whose content is a generated class.
class ZRXML_API CElementInfoAllClsMnd : public CElementInfo {
public:
    /// See CElementInfo and CClassRecordData.
    CElementInfoAllClsMnd(const wchar_t* name, const wchar_t* namespaceUri, int propertyId, XmlElementType childType,
        ClassFactory factory, int classId, bool createInline);
    ~CElementInfoAllClsMnd() override;
    bool ElementToXml(const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlWriter* writer) const override;
    bool ElementFromXml(const ZrXmlLib16::CSerializationContext& context, ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlElement* parent, ZrXmlLib16::CXmlElement** current, const wchar_t* defaultNamespace,
        XmlElementType elementType) override;
    bool Validate(const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlGeneratedClass* object,
        bool found, bool check) const override;
    void PseudoChildAttributeToXml(const ZrXmlLib16::CSerializationContext& context,
        const ZrXmlLib16::CXmlGeneratedClass* object, ZrXmlLib16::CXmlWriter* writer) const override;

private:
    CClassRecordData m_data;
};

} // namespace ZrXmlLib16Data

#endif
