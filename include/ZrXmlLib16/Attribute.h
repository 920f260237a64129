// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ATTRIBUTE_H
#define ZRXMLLIB16_ATTRIBUTE_H

#include "ZrXmlLib16/Export.h"

#include <string>

namespace ZrXmlLib16 {

/// One attribute without a record of its own: namespace URI, local name and value. A plain value.
class ZRXML_API CAttribute {
public:
    /// Null texts are empty.
    CAttribute(const wchar_t* namespaceUri, const wchar_t* value, const wchar_t* name);

    /// Namespace, empty for none.
    const std::wstring& GetNamespace() const;
    /// The value as text.
    const std::wstring& GetValue() const;
    /// Local name.
    const std::wstring& GetName() const;
    /// Replaces the value. @param value null is empty
    void SetValue(const wchar_t* value);

private:
    std::wstring m_namespace;
    std::wstring m_value;
    std::wstring m_name;
};

} // namespace ZrXmlLib16

#endif
