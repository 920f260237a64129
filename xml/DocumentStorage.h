// SPDX-License-Identifier: MIT
#ifndef XML_DOCUMENTSTORAGE_H
#define XML_DOCUMENTSTORAGE_H

#include "xml/NameTable.h"

#include <cstddef>
#include <memory>
#include <vector>

namespace ZrXmlLib16 {

class DocumentStorage;

/// Memory for nodes of one size: slabs that grow with the number of nodes, freed nodes are used again.
///
/// In front of every node stands the address of its pool, or null when the node came from the heap, so that a plain
/// `delete` finds the way back.
class NodePool {
public:
    NodePool(DocumentStorage& owner, std::size_t nodeSize) noexcept;
    NodePool(const NodePool&) = delete;
    NodePool& operator=(const NodePool&) = delete;

    void* Allocate();
    static void* AllocateFromHeap(std::size_t nodeSize);
    /// Takes back what either of the two gave out; null is allowed.
    static void Free(void* node) noexcept;

private:
    void AddSlab();

    DocumentStorage& m_owner;
    const std::size_t m_stride;
    std::vector<std::unique_ptr<unsigned char[]>> m_slabs;
    std::size_t m_slabNodes; // nodes in the newest slab
    unsigned char* m_unused; // the untouched rest of the newest slab
    unsigned char* m_unusedEnd;
    void* m_freeNodes; // linked through their first word
};

/// Nodes and names of one document between two clean-ups. Belongs to the document, and after it to the nodes that a
/// caller took out of the tree and has not deleted yet: these stay valid.
class DocumentStorage {
public:
    DocumentStorage();
    DocumentStorage(const DocumentStorage&) = delete;
    DocumentStorage& operator=(const DocumentStorage&) = delete;

    /// Ends the document's hold; the storage goes now or with the last node.
    void Abandon() noexcept;

    NodePool& GetElementPool() noexcept { return m_elements; }
    NodePool& GetAttributePool() noexcept { return m_attributes; }
    NameTable& GetNames() noexcept { return m_names; }

private:
    friend class NodePool;

    ~DocumentStorage() = default;
    void NodeFreed() noexcept;

    NodePool m_elements;
    NodePool m_attributes;
    NameTable m_names;
    std::size_t m_liveNodes = 0;
    bool m_abandoned = false;
};

} // namespace ZrXmlLib16

#endif
