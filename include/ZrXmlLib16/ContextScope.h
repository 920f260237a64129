// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_CONTEXTSCOPE_H
#define ZRXMLLIB16_CONTEXTSCOPE_H

#include "ZrXmlLib16/FastInfosetContext.h"
#include "ZrXmlLib16/JsonContext.h"
#include "ZrXmlLib16/SerializationContext.h"

namespace ZrXmlLib16 {

/// Gives a context back the settings it had, at the end of a scope:
///
///     const CContextScope scope(context);
///     context.SetIgnoreUnknownElements(true);
///
/// The settings of JSON and Fast Infoset are restored as well, also for the copies of the context that share them; the
/// additional root attributes are the same collection as before, with what is in it by then. The context is not owned,
/// outlives the scope, and belongs to one thread as long as the scope lasts. When there is no memory for the old
/// settings the program ends.
class CContextScope {
public:
    /// Notes the settings of the context.
    explicit CContextScope(CSerializationContext& context)
        : m_context(context)
        , m_jsonSettings(context.GetJsonContext())
        , m_fastInfosetSettings(context.GetFIContext())
        , m_settings(context)
    {
    }
    ~CContextScope()
    {
        m_context = m_settings;
        m_context.GetJsonContext() = m_jsonSettings;
        m_context.GetFIContext() = m_fastInfosetSettings;
    }
    CContextScope(const CContextScope&) = delete;
    CContextScope& operator=(const CContextScope&) = delete;

private:
    CSerializationContext& m_context;
    const CJsonContext m_jsonSettings;
    const CFastInfosetContext m_fastInfosetSettings;
    const CSerializationContext m_settings;
};

} // namespace ZrXmlLib16

#endif
