// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/Attribute.h"

#include "core/TextArgument.h"

namespace ZrXmlLib16 {

CAttribute::CAttribute(const wchar_t* namespaceUri, const wchar_t* value, const wchar_t* name)
    : m_namespace(TextOrEmpty(namespaceUri))
    , m_value(TextOrEmpty(value))
    , m_name(TextOrEmpty(name))
{
}

const std::wstring& CAttribute::GetNamespace() const
{
    return m_namespace;
}

const std::wstring& CAttribute::GetValue() const
{
    return m_value;
}

const std::wstring& CAttribute::GetName() const
{
    return m_name;
}

void CAttribute::SetValue(const wchar_t* value)
{
    m_value = TextOrEmpty(value);
}

} // namespace ZrXmlLib16
