// SPDX-License-Identifier: MIT
#include "ZrXmlLib16/XmlCollection.h"

#include "ZrXmlLib16/ZrInvalidParamException.h"
#include "ZrXmlLib16/ZrInvalidStateException.h"
#include "core/CollectionIndex.h"
#include "core/CoreMessages.h"
#include "core/ItemPrefetch.h"

#include <utility>

namespace ZrXmlLib16 {

/// Nodes on their way out. They go in the end, whatever the listeners do.
struct CXmlCollection::DetachedNodes {
    DetachedNodes() = default;
    DetachedNodes(const DetachedNodes&) = delete;
    DetachedNodes& operator=(const DetachedNodes&) = delete;
    ~DetachedNodes() { DestroyNodes(first); }

    NodeBlocks memory;
    CNode* first = nullptr;
};

CXmlCollection::CNode::CNode(CSmartPtr<CXmlObjectBase> item) noexcept
    : m_item(std::move(item))
    , m_next(nullptr)
    , m_previous(nullptr)
{
}

CXmlObjectBase* CXmlCollection::CNode::GetItem() const
{
    return m_item;
}

CXmlCollection::CNode* CXmlCollection::CNode::GetNext() const
{
    return m_next;
}

CXmlCollection::CNode* CXmlCollection::CNode::GetPrevious() const
{
    return m_previous;
}

CXmlCollection::CXmlCollection(const wchar_t* elementName, const wchar_t* namespaceUri, int minOccurs, int maxOccurs)
    : CXmlCollectionBase(elementName, namespaceUri, minOccurs, maxOccurs)
    , m_first(nullptr)
    , m_last(nullptr)
    , m_count(0)
    , m_changes(0)
    , m_cachedNode(nullptr)
    , m_cachedIndex(0)
{
}

CXmlCollection::~CXmlCollection()
{
    DestroyNodes(m_first);
}

/// Their memory stays.
void CXmlCollection::DestroyNodes(CNode* first) noexcept
{
    while (first) {
        CNode* const node = std::exchange(first, first->m_next);
        if (first) {
            PrefetchItem(first->m_next);
        }
        node->~CNode();
    }
}

int CXmlCollection::GetCount() const
{
    return m_count;
}

CXmlCollection::CNode* CXmlCollection::AppendItem(CXmlObjectBase* item)
{
    return Insert(item, nullptr);
}

CXmlCollection::CNode* CXmlCollection::PrependItem(CXmlObjectBase* item)
{
    return Insert(item, m_first);
}

CXmlCollection::CNode* CXmlCollection::AddItemAt(int index, CXmlObjectBase* item)
{
    CheckIndex(index, m_count, m_count);
    return Insert(item, index == m_count ? nullptr : GetNodeAtIndex(index));
}

CXmlCollection::CNode* CXmlCollection::AddAfterItem(CXmlObjectBase* existing, CXmlObjectBase* item)
{
    return Insert(item, RequireNode(existing)->m_next);
}

CXmlCollection::CNode* CXmlCollection::AddBeforeItem(CXmlObjectBase* existing, CXmlObjectBase* item)
{
    return Insert(item, RequireNode(existing));
}

CXmlCollection::CNode* CXmlCollection::RequireNode(const CXmlObjectBase* item) const
{
    CNode* node = GetNodeForItem(item);
    if (!node) {
        throw CZrInvalidParamException(Message::ITEM_NOT_IN_COLLECTION);
    }
    return node;
}

/// Inserts in front of a node, or at the end for null.
CXmlCollection::CNode* CXmlCollection::Insert(CSmartPtr<CXmlObjectBase> inserted, CNode* before)
{
    CXmlObjectBase* const item = inserted;
    if (!item) {
        throw CZrInvalidParamException(Message::ITEM_IS_NULL);
    }
    CheckItem(*item);
    // The item is held while others are told, so that a listener's own reference cannot be the last one; and nobody is
    // told of an addition for which there is no memory.
    m_nodes.Reserve();
    const unsigned long changes = m_changes;
    FireOnCollectionAdd(item);
    RequireUnchanged(changes);
    CNode* const node = m_nodes.Create(std::move(inserted));
    node->m_next = before;
    node->m_previous = before ? before->m_previous : m_last;
    (node->m_previous ? node->m_previous->m_next : m_first) = node;
    (before ? before->m_previous : m_last) = node;
    ++m_count;
    ++m_changes;
    if (before) {
        m_cachedNode = nullptr;
    }
    FireOnCollectionAddComplete(item);
    FireOnCollectionChange();
    return node;
}

// A listener that is told of a change to come must not change the collection itself: the place of the change would be
// gone.
void CXmlCollection::RequireUnchanged(unsigned long changes) const
{
    if (m_changes != changes) {
        throw CZrInvalidStateException(Message::CHANGED_BY_LISTENER);
    }
}

void CXmlCollection::Remove(int index)
{
    RemoveAt(GetNodeAtIndex(index), index);
}

void CXmlCollection::RemoveNode(CNode* node)
{
    int index = 0;
    CNode* found = m_first;
    for (; found && found != node; found = found->m_next) {
        ++index;
    }
    if (!found) {
        throw CZrInvalidParamException(Message::ITEM_NOT_IN_COLLECTION);
    }
    RemoveAt(node, index);
}

void CXmlCollection::RemoveAt(CNode* node, int index)
{
    const unsigned long changes = m_changes;
    FireOnCollectionRemove(index);
    RequireUnchanged(changes);
    (node->m_previous ? node->m_previous->m_next : m_first) = node->m_next;
    (node->m_next ? node->m_next->m_previous : m_last) = node->m_previous;
    --m_count;
    ++m_changes;
    m_cachedNode = nullptr;
    // The reference is dropped last, so that listeners still see the item.
    const CSmartPtr<CXmlObjectBase> item = node->m_item;
    m_nodes.Destroy(node);
    FireOnCollectionRemoveComplete(index);
    FireOnCollectionChange();
}

CXmlCollection::CNode* CXmlCollection::GetNodeAtIndex(int index) const
{
    CheckIndex(index, m_count, m_count - 1);
    CNode* node = m_first;
    int at = 0;
    if (m_count - 1 - index < index) {
        node = m_last;
        at = m_count - 1;
    }
    const auto distance = [index](int from) { return from < index ? index - from : from - index; };
    if (m_cachedNode && distance(m_cachedIndex) < distance(at)) {
        node = m_cachedNode;
        at = m_cachedIndex;
    }
    for (; at < index; ++at) {
        node = node->m_next;
    }
    for (; at > index; --at) {
        node = node->m_previous;
    }
    m_cachedNode = node;
    m_cachedIndex = index;
    return node;
}

CXmlCollection::CNode* CXmlCollection::GetNodeForItem(const CXmlObjectBase* item) const
{
    CNode* node = m_first;
    while (node && node->m_item.GetPtr() != item) {
        node = node->m_next;
    }
    return node;
}

CXmlCollection::CNode* CXmlCollection::GetFirstNode() const
{
    return m_first;
}

void CXmlCollection::CheckItem(CXmlObjectBase&) { }

void CXmlCollection::Adopt(CXmlCollection& other) noexcept
{
    if (!other.m_first) {
        return;
    }
    m_nodes.Adopt(other.m_nodes);
    other.m_first->m_previous = m_last;
    (m_last ? m_last->m_next : m_first) = other.m_first;
    m_last = other.m_last;
    m_count += other.m_count;
    other.m_first = nullptr;
    other.m_last = nullptr;
    other.m_count = 0;
    other.m_cachedNode = nullptr;
}

void CXmlCollection::Clear()
{
    if (m_count == 0) {
        return;
    }
    FireOnCollectionRemove(-1);
    DetachedNodes removed;
    removed.memory.Adopt(m_nodes);
    removed.first = m_first;
    m_first = nullptr;
    m_last = nullptr;
    m_count = 0;
    ++m_changes;
    m_cachedNode = nullptr;
    FireOnCollectionRemoveComplete(-1);
    FireOnCollectionChange();
}

} // namespace ZrXmlLib16
