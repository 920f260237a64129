// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_CLASSFACTORYBASE_H
#define ZRXMLLIB16_CLASSFACTORYBASE_H

#include "ZrXmlLib16/Export.h"

#include <string>

namespace ZrXmlLib16 {

class CXmlElement;

/// Base of the generated class factories: finds the type that an element names with xsi:type.
class ZRXML_API CClassfactoryBase {
public:
    CClassfactoryBase();
    virtual ~CClassfactoryBase();

    /// Local name of the type that xsi:type names; empty without such an attribute. The value is not trimmed.
    /// @param element not null.
    static std::wstring GetElementType(CXmlElement* element);
    /// Namespace of that type. A prefix is looked up in the document, where the last declaration of a prefix counts,
    /// and gives an empty text when it is unbound; without a prefix it is the element's own namespace.
    static std::wstring GetElementTypeNamespaceUri(CXmlElement* element);
};

} // namespace ZrXmlLib16

#endif
