// SPDX-License-Identifier: MIT
#ifndef XML_XMLNAMESPACES_H
#define XML_XMLNAMESPACES_H

namespace ZrXmlLib16 {

constexpr wchar_t XML_NAMESPACE_URI[] = L"http://www.w3.org/XML/1998/namespace";
constexpr wchar_t XMLNS_NAMESPACE_URI[] = L"http://www.w3.org/2000/xmlns/";
constexpr wchar_t SCHEMA_INSTANCE_NAMESPACE_URI[] = L"http://www.w3.org/2001/XMLSchema-instance";

} // namespace ZrXmlLib16

#endif
