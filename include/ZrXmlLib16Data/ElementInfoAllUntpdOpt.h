// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOALLUNTPDOPT_H
#define ZRXMLLIB16DATA_ELEMENTINFOALLUNTPDOPT_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfo.h"

namespace ZrXmlLib16Data {

/// Record of an optional element in an xs:all whose content is untyped. Named "AnyElement" it is a wildcard, which
/// takes any name.
class ZRXML_API CElementInfoAllUntpdOpt : public CElementInfo {
public:
    /// See CElementInfo.
    /// @param namespaceSpecification as for CAttributeInfoAny
    /// @param targetNamespace of the schema, which "##other" and "##targetNamespace" refer to
    CElementInfoAllUntpdOpt(const wchar_t* name, const wchar_t* namespaceUri, int propertyId,
        const wchar_t* namespaceSpecification, const wchar_t* targetNamespace);
    ~CElementInfoAllUntpdOpt() override;
    bool ElementToXml(const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlWriter* writer) const override;
    bool ElementFromXml(const ZrXmlLib16::CSerializationContext& context, ZrXmlLib16::CXmlGeneratedClass* object,
        ZrXmlLib16::CXmlElement* parent, ZrXmlLib16::CXmlElement** current, const wchar_t* defaultNamespace,
        XmlElementType elementType) override;
    bool Validate(const ZrXmlLib16::CSerializationContext& context, const ZrXmlLib16::CXmlGeneratedClass* object,
        bool found, bool check) const override;
};

} // namespace ZrXmlLib16Data

#endif
