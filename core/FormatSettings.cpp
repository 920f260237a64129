// SPDX-License-Identifier: MIT
#include "core/FormatSettings.h"

#include "ZrXmlLib16/FastInfosetContext.h"
#include "ZrXmlLib16/JsonContext.h"
#include "ZrXmlLib16/SerializationContext.h"

#include <algorithm>

namespace ZrXmlLib16 {

const CFastInfosetContext& CFormatSettings::FastInfoset(const CSerializationContext& context)
{
    static const CFastInfosetContext defaults;
    const CFastInfosetContext* const settings = context.FindFIContext();
    return settings ? *settings : defaults;
}

const CJsonContext& CFormatSettings::Json(const CSerializationContext& context)
{
    static const CJsonContext defaults;
    const CJsonContext* const settings = context.FindJsonContext();
    return settings ? *settings : defaults;
}

unsigned long CFormatSettings::MaximumExpansion(const CSerializationContext& context, unsigned long size)
{
    constexpr unsigned long FACTOR = 100;
    return std::max(context.GetInputLimits().GetMaxExpandedCharacters(), FACTOR * size);
}

CFormatSettings::IgnoringNamespaces::IgnoringNamespaces(const CSerializationContext& context) noexcept
    : m_context(context)
    , m_before(context.m_ignoreNamespaces)
{
    context.m_ignoreNamespaces = true;
}

CFormatSettings::IgnoringNamespaces::~IgnoringNamespaces()
{
    m_context.m_ignoreNamespaces = m_before;
}

} // namespace ZrXmlLib16
