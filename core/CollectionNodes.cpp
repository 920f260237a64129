// SPDX-License-Identifier: MIT
// The memory of the nodes of a collection.
#include "ZrXmlLib16/XmlCollection.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace ZrXmlLib16 {

namespace {

constexpr std::size_t FIRST_CAPACITY = 3;
constexpr std::size_t LARGEST_CAPACITY = 256;

} // namespace

/// The nodes follow.
struct CXmlCollection::NodeBlocks::Block {
    Block* older;
    std::size_t capacity;

    CNode* Nodes() { return reinterpret_cast<CNode*>(this + 1); }
};

CXmlCollection::NodeBlocks::~NodeBlocks()
{
    while (m_newest) {
        ::operator delete(std::exchange(m_newest, m_newest->older));
    }
}

CXmlCollection::CNode* CXmlCollection::NodeBlocks::Create(CSmartPtr<CXmlObjectBase> item)
{
    if (m_removed) {
        void* const place = m_removed;
        std::memcpy(&m_removed, place, sizeof(m_removed));
        return new (place) CNode(std::move(item));
    }
    Reserve();
    return new (m_unused++) CNode(std::move(item));
}

void CXmlCollection::NodeBlocks::AddBlock()
{
    static_assert(alignof(CNode) <= alignof(Block));
    const std::size_t capacity = m_newest ? std::min(2 * m_newest->capacity, LARGEST_CAPACITY) : FIRST_CAPACITY;
    void* const memory = ::operator new(sizeof(Block) + capacity * sizeof(CNode));
    m_newest = new (memory) Block{m_newest, capacity};
    m_unused = m_newest->Nodes();
    m_end = m_unused + capacity;
}

void CXmlCollection::NodeBlocks::Destroy(CNode* node) noexcept
{
    node->~CNode();
    std::memcpy(static_cast<void*>(node), &m_removed, sizeof(m_removed));
    m_removed = node;
}

void CXmlCollection::NodeBlocks::Adopt(NodeBlocks& other) noexcept
{
    if (!m_newest) {
        m_unused = other.m_unused;
        m_end = other.m_end;
        m_removed = other.m_removed;
        m_newest = other.m_newest;
    } else if (other.m_newest) { // what these blocks have left is not used any more
        Block* oldest = other.m_newest;
        while (oldest->older) {
            oldest = oldest->older;
        }
        oldest->older = std::exchange(m_newest->older, other.m_newest);
    }
    other.m_newest = nullptr;
    other.m_unused = nullptr;
    other.m_end = nullptr;
    other.m_removed = nullptr;
}

} // namespace ZrXmlLib16
