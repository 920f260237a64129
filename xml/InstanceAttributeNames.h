// SPDX-License-Identifier: MIT
#ifndef XML_INSTANCEATTRIBUTENAMES_H
#define XML_INSTANCEATTRIBUTENAMES_H

#include "xml/XmlNamespaces.h"

#include <string>

namespace ZrXmlLib16 {

/// The names of the schema instance attributes, as the operations of writers take them.
struct InstanceAttributeNames {
    const std::wstring namespaceUri{SCHEMA_INSTANCE_NAMESPACE_URI};
    const std::wstring type{L"type"};
    const std::wstring nil{L"nil"};
    const std::wstring trueValue{L"true"};
};

inline const InstanceAttributeNames& GetInstanceAttributeNames()
{
    static const InstanceAttributeNames names;
    return names;
}

} // namespace ZrXmlLib16

#endif
