// SPDX-License-Identifier: MIT
#ifndef XML_DOCUMENTSTORAGE_H
#define XML_DOCUMENTSTORAGE_H

#include "ZrXmlLib16/NodeText.h"
#include "xml/Arena.h"
#include "xml/ClassMemory.h"
#include "xml/NameTable.h"

#include <cstddef>
#include <cstring>

namespace ZrXmlLib16 {

class CXmlDocument;

/// Memory for nodes of one size; freed nodes are used again.
///
/// In front of every node stands the address of its pool, or null when the node came from the heap, so that a plain
/// `delete` finds the way back.
class NodePool {
public:
    static constexpr std::size_t ALIGNMENT = alignof(void*);

    explicit NodePool(DocumentStorage& owner) noexcept
        : m_owner(owner)
    {
    }
    NodePool(const NodePool&) = delete;
    NodePool& operator=(const NodePool&) = delete;

    /// @param nodeSize always the same.
    void* Allocate(std::size_t nodeSize);
    /// The same from the heap.
    static void* AllocateFromHeap(std::size_t nodeSize);
    /// Takes back what either of the two gave out; null is allowed.
    static void Free(void* node) noexcept;

private:
    static constexpr std::size_t HEADER_SIZE = sizeof(NodePool*);

    static void StorePool(void* node, NodePool* pool) noexcept
    {
        std::memcpy(static_cast<unsigned char*>(node) - HEADER_SIZE, &pool, HEADER_SIZE);
    }
    static NodePool* LoadPool(const void* node) noexcept
    {
        NodePool* pool = nullptr;
        std::memcpy(&pool, static_cast<const unsigned char*>(node) - HEADER_SIZE, HEADER_SIZE);
        return pool;
    }
    void* AllocateAgain() noexcept;

    DocumentStorage& m_owner;
    void* m_freeNodes = nullptr; // linked through their first word
};

/// Nodes, names and texts of one document between two clean-ups. Belongs to the document, and after it to the nodes
/// that a caller took out of the tree and has not deleted yet: these stay valid.
class DocumentStorage {
public:
    /// @param document not owned; see GetDocument.
    /// @param inputSize bytes of the document's text, 0 when unknown.
    DocumentStorage(CXmlDocument& document, std::size_t inputSize);
    DocumentStorage(const DocumentStorage&) = delete;
    DocumentStorage& operator=(const DocumentStorage&) = delete;

    /// Ends the document's hold, after it has deleted its tree; the storage goes now or with the last node.
    void Abandon() noexcept;
    /// Whether every node belongs to the document's tree. Then nobody needs the nodes one by one: see Drop.
    bool HasWholeTree() const noexcept { return m_hasWholeTree; }
    /// Ends the storage together with all nodes.
    void Drop() noexcept { delete this; }
    /// A node leaves the tree. From now on texts come from the heap, so that a program that builds and removes does not
    /// fill the arena with the texts of nodes that are gone.
    void ReleaseNode() noexcept { m_hasWholeTree = false; }

    /// Not for nodes that have outlived their document.
    CXmlDocument& GetDocument() const noexcept { return m_document; }
    NodePool& GetElementPool() noexcept { return m_elements; }
    NodePool& GetAttributePool() noexcept { return m_attributes; }
    NameTable& GetNames() noexcept { return m_names; }
    ClassMemory& GetClassMemory() noexcept { return m_classes; }
    Arena& GetArena() noexcept { return m_arena; }
    /// For the text that is being read; keeps its capacity from one to the next.
    std::wstring& GetScratch() noexcept { return m_scratch; }
    /// A number for every walk over the document: what lives as long as a walk is known by its address and that number.
    unsigned long GetWalk() const noexcept { return m_walk; }
    void BeginWalk() noexcept { ++m_walk; }
    bool KeepsTexts() const noexcept { return m_hasWholeTree; }

    /// The forms that go with the storage.
    void Link(NodeForms& forms) noexcept;
    void Unlink(NodeForms& forms) noexcept;

private:
    friend class NodePool;

    ~DocumentStorage();
    void NodeFreed() noexcept;

    CXmlDocument& m_document;
    Arena m_arena;
    ClassMemory m_classes;
    NodePool m_elements;
    NodePool m_attributes;
    NameTable m_names;
    NodeForms* m_forms = nullptr;
    std::wstring m_scratch;
    std::size_t m_liveNodes = 0;
    unsigned long m_walk = 0;
    bool m_hasWholeTree = true;
    bool m_abandoned = false;
};

inline void* NodePool::Allocate(std::size_t nodeSize)
{
    if (m_freeNodes) {
        return AllocateAgain();
    }
    void* const piece = m_owner.m_arena.Allocate(HEADER_SIZE + nodeSize, ALIGNMENT);
    void* const node = static_cast<unsigned char*>(piece) + HEADER_SIZE;
    StorePool(node, this);
    ++m_owner.m_liveNodes;
    return node;
}

} // namespace ZrXmlLib16

#endif
