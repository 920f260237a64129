// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/JsonContext.h"

#include "core/TextArgument.h"

namespace ZrXmlLib16 {

CJsonContext::CJsonContext()
    : m_supportRoundtrip(JsonRoundTrip_Full)
    , m_allowComments(false)
{
}

CJsonContext::CJsonContext(const CJsonContext& other) = default;

CJsonContext& CJsonContext::operator=(const CJsonContext& other) = default;

CJsonContext::~CJsonContext() = default;

JsonRoundTrip CJsonContext::GetSupportRoundtrip() const
{
    return m_supportRoundtrip;
}

void CJsonContext::SetSupportRoundtrip(JsonRoundTrip mode)
{
    m_supportRoundtrip = mode;
}

std::wstring CJsonContext::GetRootElementName() const
{
    return m_rootElementName;
}

void CJsonContext::SetRootElementName(const wchar_t* name)
{
    m_rootElementName = TextOrEmpty(name);
}

bool CJsonContext::GetAllowComments() const
{
    return m_allowComments;
}

// kept: required behaviour. The setter bears the name of the getter.
void CJsonContext::GetAllowComments(bool value)
{
    m_allowComments = value;
}

} // namespace ZrXmlLib16
