// SPDX-License-Identifier: MIT
#include "xml/DocumentStorage.h"

#include "ZrXmlLib16/XmlAttribute.h"
#include "ZrXmlLib16/XmlElement.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace ZrXmlLib16 {

namespace {

constexpr std::size_t HEADER_SIZE = sizeof(NodePool*);
// A heap node keeps the alignment that operator new promises to any type.
constexpr std::size_t HEAP_OFFSET = __STDCPP_DEFAULT_NEW_ALIGNMENT__;
constexpr std::size_t FIRST_SLAB_NODES = 8;
constexpr std::size_t MAXIMUM_SLAB_NODES = 256;

static_assert(alignof(CXmlElement) <= HEADER_SIZE && sizeof(CXmlElement) % HEADER_SIZE == 0);
static_assert(alignof(CXmlAttribute) <= HEADER_SIZE && sizeof(CXmlAttribute) % HEADER_SIZE == 0);
static_assert(HEAP_OFFSET >= HEADER_SIZE);

void StorePool(unsigned char* node, NodePool* pool) noexcept
{
    std::memcpy(node - HEADER_SIZE, &pool, HEADER_SIZE);
}

NodePool* LoadPool(const unsigned char* node) noexcept
{
    NodePool* pool = nullptr;
    std::memcpy(&pool, node - HEADER_SIZE, HEADER_SIZE);
    return pool;
}

} // namespace

NodePool::NodePool(DocumentStorage& owner, std::size_t nodeSize) noexcept
    : m_owner(owner)
    , m_stride(HEADER_SIZE + nodeSize)
    , m_slabNodes(0)
    , m_unused(nullptr)
    , m_unusedEnd(nullptr)
    , m_freeNodes(nullptr)
{
}

void* NodePool::Allocate()
{
    void* node = m_freeNodes;
    if (node) {
        std::memcpy(&m_freeNodes, node, sizeof(m_freeNodes));
    } else {
        if (m_unused == m_unusedEnd) {
            AddSlab();
        }
        unsigned char* const fresh = m_unused + HEADER_SIZE;
        StorePool(fresh, this);
        m_unused += m_stride;
        node = fresh;
    }
    ++m_owner.m_liveNodes;
    return node;
}

void* NodePool::AllocateFromHeap(std::size_t nodeSize)
{
    unsigned char* const node = static_cast<unsigned char*>(::operator new(HEAP_OFFSET + nodeSize)) + HEAP_OFFSET;
    StorePool(node, nullptr);
    return node;
}

void NodePool::Free(void* node) noexcept
{
    if (!node) {
        return;
    }
    unsigned char* const bytes = static_cast<unsigned char*>(node);
    NodePool* const pool = LoadPool(bytes);
    if (!pool) {
        ::operator delete(bytes - HEAP_OFFSET);
        return;
    }
    std::memcpy(node, &pool->m_freeNodes, sizeof(pool->m_freeNodes));
    pool->m_freeNodes = node;
    pool->m_owner.NodeFreed();
}

void NodePool::AddSlab()
{
    const std::size_t nodes = m_slabNodes == 0 ? FIRST_SLAB_NODES : std::min(2 * m_slabNodes, MAXIMUM_SLAB_NODES);
    const std::size_t size = nodes * m_stride;
    m_slabs.push_back(std::unique_ptr<unsigned char[]>(new unsigned char[size]));
    m_slabNodes = nodes;
    m_unused = m_slabs.back().get();
    m_unusedEnd = m_unused + size;
}

void XmlNameRelease::operator()(const XmlName* name) const noexcept
{
    if (!name->storage) {
        delete name;
    }
}

DocumentStorage::DocumentStorage()
    : m_elements(*this, sizeof(CXmlElement))
    , m_attributes(*this, sizeof(CXmlAttribute))
    , m_names(*this)
{
}

void DocumentStorage::Abandon() noexcept
{
    if (m_liveNodes == 0) {
        delete this;
    } else {
        m_abandoned = true;
    }
}

void DocumentStorage::NodeFreed() noexcept
{
    if (--m_liveNodes == 0 && m_abandoned) {
        delete this;
    }
}

} // namespace ZrXmlLib16
