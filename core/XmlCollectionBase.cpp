// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/XmlCollectionBase.h"

#include "ZrXmlLib16/Formatting.h"
#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "ZrXmlLib16/ZrValidationException.h"
#include "core/CollectionIndex.h"
#include "core/CoreMessages.h"
#include "core/TextArgument.h"

#include <algorithm>

namespace ZrXmlLib16 {

void CheckIndex(int index, int count, int last)
{
    if (index < 0 || index > last) {
        throw CZrInvalidParamException(FormatString(Message::INDEX_OUT_OF_RANGE, index, count));
    }
}

CXmlCollectionBase::CXmlCollectionBase(
    const wchar_t* elementName, const wchar_t* namespaceUri, int minOccurs, int maxOccurs)
    : m_namespace(TextOrEmpty(namespaceUri))
    , m_minOccurs(minOccurs)
    , m_maxOccurs(maxOccurs)
{
    SetElementName(elementName);
}

CXmlCollectionBase::CXmlCollectionBase(const CXmlCollectionBase& other)
    : CXmlObjectBase(other)
    , m_namespace(other.m_namespace)
    , m_minOccurs(other.m_minOccurs)
    , m_maxOccurs(other.m_maxOccurs)
{
}

CXmlCollectionBase& CXmlCollectionBase::operator=(const CXmlCollectionBase& other)
{
    CXmlObjectBase::operator=(other);
    m_namespace = other.m_namespace;
    m_minOccurs = other.m_minOccurs;
    m_maxOccurs = other.m_maxOccurs;
    return *this;
}

CXmlCollectionBase::~CXmlCollectionBase() = default;

void CXmlCollectionBase::Clear() { }

CXmlObjectBase* CXmlCollectionBase::GetBase()
{
    return this;
}

std::wstring CXmlCollectionBase::GetNamespace() const
{
    return m_namespace;
}

std::wstring CXmlCollectionBase::GetTargetNamespace() const
{
    return m_namespace;
}

const std::wstring& CXmlCollectionBase::Namespace() const
{
    return m_namespace;
}

int CXmlCollectionBase::GetMinOccurs() const
{
    return m_minOccurs;
}

int CXmlCollectionBase::GetMaxOccurs() const
{
    return m_maxOccurs;
}

void CXmlCollectionBase::AddEventListener(IEventSink* listener)
{
    // kept: required behaviour. A listener may be there more than once.
    if (listener) {
        m_listeners.push_back(listener);
    }
}

void CXmlCollectionBase::RemoveEventListener(IEventSink* listener)
{
    m_listeners.erase(std::remove(m_listeners.begin(), m_listeners.end(), listener), m_listeners.end());
}

bool CXmlCollectionBase::IsValidCount(const CSerializationContext& context) const
{
    const int count = GetCount();
    return context.GetIgnoreInvalidCollectionCounts()
        || ((m_maxOccurs == -1 || count <= m_maxOccurs) && count >= m_minOccurs);
}

void CXmlCollectionBase::ValidateCount(const CSerializationContext& context) const
{
    if (IsValidCount(context)) {
        return;
    }
    const bool tooMany = m_maxOccurs != -1 && GetCount() > m_maxOccurs;
    throw CZrValidationException(tooMany ? FormatString(Message::TOO_MANY_ITEMS, ElementName().c_str(), m_maxOccurs)
                                         : FormatString(Message::TOO_FEW_ITEMS, ElementName().c_str(), m_minOccurs),
        std::wstring());
}

template <class Tell> void CXmlCollectionBase::TellListeners(Tell tell)
{
    if (!m_listeners.empty()) { // seldom
        TellEach(tell);
    }
}

template <class Tell> void CXmlCollectionBase::TellEach(Tell tell)
{
    const std::vector<IEventSink*> snapshot = m_listeners;
    for (IEventSink* listener : snapshot) {
        if (std::find(m_listeners.begin(), m_listeners.end(), listener) != m_listeners.end()) {
            tell(listener);
        }
    }
}

void CXmlCollectionBase::FireOnCollectionChange()
{
    TellListeners([this](IEventSink* listener) { FireOnCollectionChangeEvent(listener, this); });
}

void CXmlCollectionBase::FireOnCollectionAdd(void* item)
{
    TellListeners([this, item](IEventSink* listener) { FireOnCollectionAddEvent(listener, this, item); });
}

void CXmlCollectionBase::FireOnCollectionAddComplete(void* item)
{
    TellListeners([this, item](IEventSink* listener) { FireOnCollectionAddCompleteEvent(listener, this, item); });
}

void CXmlCollectionBase::FireOnCollectionRemove(int index)
{
    TellListeners([this, index](IEventSink* listener) { FireOnCollectionRemoveEvent(listener, this, index); });
}

void CXmlCollectionBase::FireOnCollectionRemoveComplete(int index)
{
    TellListeners([this, index](IEventSink* listener) { FireOnCollectionRemoveCompleteEvent(listener, this, index); });
}

} // namespace ZrXmlLib16
