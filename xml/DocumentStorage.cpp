// SPDX-License-Identifier: MIT
#include "xml/DocumentStorage.h"

#include "ZrXmlLib16/XmlAttribute.h"
#include "ZrXmlLib16/XmlElement.h"

#include <algorithm>
#include <cstring>
#include <new>

namespace ZrXmlLib16 {

namespace {

// A heap node keeps the alignment that operator new promises to any type.
constexpr std::size_t HEAP_OFFSET = __STDCPP_DEFAULT_NEW_ALIGNMENT__;

// Typical documents need a little less per four bytes of their text.
constexpr std::size_t ARENA_PER_FOUR_BYTES = 17;
// And distinct names weigh much in small ones.
constexpr std::size_t ARENA_FOR_NAMES = 12288;
constexpr std::size_t LARGEST_ESTIMATED_INPUT = std::size_t(1) << 30;

} // namespace

// The pool is still noted in front of the node.
void* NodePool::AllocateAgain() noexcept
{
    void* const node = m_freeNodes;
    std::memcpy(&m_freeNodes, node, sizeof(m_freeNodes));
    ++m_owner.m_liveNodes;
    return node;
}

void* NodePool::AllocateFromHeap(std::size_t nodeSize)
{
    static_assert(HEAP_OFFSET >= HEADER_SIZE);
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

void XmlNameRelease::operator()(const XmlName* name) const noexcept
{
    if (!name->storage) {
        delete static_cast<const OwnXmlName*>(name);
    }
}

DocumentStorage::DocumentStorage(CXmlDocument& document, std::size_t inputSize)
    : m_document(document)
    , m_arena(std::min(inputSize, LARGEST_ESTIMATED_INPUT) / 4 * ARENA_PER_FOUR_BYTES
          + (inputSize == 0 ? 0 : ARENA_FOR_NAMES))
    , m_classes(m_arena)
    , m_elements(*this)
    , m_attributes(*this)
    , m_names(*this)
{
}

DocumentStorage::~DocumentStorage()
{
    while (m_forms) {
        NodeForms* const next = m_forms->next;
        delete m_forms;
        m_forms = next;
    }
}

void DocumentStorage::Link(NodeForms& forms) noexcept
{
    forms.next = m_forms;
    if (m_forms) {
        m_forms->previous = &forms;
    }
    m_forms = &forms;
}

void DocumentStorage::Unlink(NodeForms& forms) noexcept
{
    (forms.previous ? forms.previous->next : m_forms) = forms.next;
    if (forms.next) {
        forms.next->previous = forms.previous;
    }
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
