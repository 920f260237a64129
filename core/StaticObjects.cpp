// SPDX-License-Identifier: MIT
// The objects of the library that exist before any other static object of a program is initialised and until it is
// unloaded.
#include "ZrXmlLib16/AttributeCol.h"
#include "ZrXmlLib16/SerializationContext.h"
#include "ZrXmlLib16/XmlWriter.h"

namespace ZrXmlLib16 {

__attribute__((init_priority(101))) CSerializationContext CSerializationContext::m_defaultContext;

__attribute__((init_priority(101))) const std::wstring CXmlWriter::XML_NAMESPACE =
    L"http://www.w3.org/XML/1998/namespace";

} // namespace ZrXmlLib16
