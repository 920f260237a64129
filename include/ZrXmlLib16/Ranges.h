// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_RANGES_H
#define ZRXMLLIB16_RANGES_H

#include "ZrXmlLib16/AttributeCol.h"
#include "ZrXmlLib16/XmlCollection.h"
#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16/XmlTypeCollection.h"

#include <cstddef>
#include <iterator>
#include <type_traits>
#include <utility>
#include <vector>

// For range-based loops and the algorithms of the standard library. Nothing here owns or copies what it goes through.

namespace ZrXmlLib16 {

/// Goes through a chain of nodes; null is the end. `Walk` has the types `Node` and `Item` and the functions `Next` and
/// `ItemOf` of a node.
template <class Walk> class NodeIterator {
public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = typename Walk::Item*;
    using difference_type = std::ptrdiff_t;
    using pointer = const value_type*;
    using reference = value_type;

    NodeIterator() = default;
    /// Stands on the node; null is the end.
    explicit NodeIterator(typename Walk::Node* node)
        : m_node(node)
    {
    }
    reference operator*() const { return Walk::ItemOf(m_node); }
    NodeIterator& operator++()
    {
        m_node = Walk::Next(m_node);
        return *this;
    }
    NodeIterator operator++(int)
    {
        const NodeIterator before = *this;
        ++*this;
        return before;
    }
    bool operator==(const NodeIterator& other) const { return m_node == other.m_node; }
    bool operator!=(const NodeIterator& other) const { return m_node != other.m_node; }

private:
    typename Walk::Node* m_node = nullptr;
};

/// Two iterators as a range.
template <class Iterator> class IteratorRange {
public:
    /// From the first iterator to before the last.
    IteratorRange(Iterator first, Iterator last)
        : m_first(first)
        , m_last(last)
    {
    }
    /// The first iterator.
    Iterator begin() const { return m_first; }
    /// The last iterator.
    Iterator end() const { return m_last; }
    /// Whether there is nothing in the range.
    bool empty() const { return m_first == m_last; }

private:
    Iterator m_first, m_last;
};

/// Goes through the children of an element.
struct ChildWalk {
    /// @{
    /// See NodeIterator.
    using Node = CXmlElement;
    using Item = CXmlElement;
    static Node* Next(Node* node) { return node->GetNextSiblingElement(); }
    static Item* ItemOf(Node* node) { return node; }
    /// @}
};

/// The child elements, in document order, as pointers that are never null. An iterator stays valid until its element
/// leaves the tree.
inline IteratorRange<NodeIterator<ChildWalk>> Children(const CXmlElement& element)
{
    return {NodeIterator<ChildWalk>(element.GetFirstElement()), NodeIterator<ChildWalk>()};
}

/// The attributes, in document order, as pointers that are never null.
inline const std::vector<CXmlAttribute*>& Attributes(const CXmlElement& element)
{
    return element.GetAttributes();
}

/// Goes through the items of a collection.
template <class T> struct ItemWalk {
    /// @{
    /// See NodeIterator.
    using Node = CXmlCollection::CNode;
    using Item = T;
    static Node* Next(Node* node) { return node->GetNext(); }
    static Item* ItemOf(Node* node) { return static_cast<T*>(node->GetItem()); }
    /// @}
};

/// The objects of a collection as pointers to their class, which the caller knows. An iterator stays valid until its
/// item is removed.
template <class T> IteratorRange<NodeIterator<ItemWalk<T>>> ItemsAs(const CXmlCollection& collection)
{
    using Iterator = NodeIterator<ItemWalk<T>>;
    return {collection.GetCount() > 0 ? Iterator(collection.GetNodeAtIndex(0)) : Iterator(), Iterator()};
}

/// Goes through a collection by index; valid as long as the collection lives.
template <class Collection> class IndexIterator {
public:
    using reference = decltype(std::declval<const Collection&>().Item(0));
    using value_type = std::remove_cv_t<std::remove_reference_t<reference>>;
    using iterator_category = std::input_iterator_tag; // Item may return by value
    using difference_type = std::ptrdiff_t;
    using pointer = const value_type*;

    /// Stands on the item of that index.
    IndexIterator(const Collection& collection, int index)
        : m_collection(&collection)
        , m_index(index)
    {
    }
    reference operator*() const { return m_collection->Item(m_index); }
    IndexIterator& operator++()
    {
        ++m_index;
        return *this;
    }
    IndexIterator operator++(int)
    {
        const IndexIterator before = *this;
        ++*this;
        return before;
    }
    bool operator==(const IndexIterator& other) const { return m_index == other.m_index; }
    bool operator!=(const IndexIterator& other) const { return m_index != other.m_index; }

private:
    const Collection* m_collection;
    int m_index;
};

/// The iterator of a collection that has `Item` and `GetCount`; no type for others.
template <class Collection> using IndexIteratorOf =
    std::enable_if_t<std::is_base_of_v<CXmlTypeCollection, Collection> || std::is_base_of_v<CAttributeCol, Collection>,
        IndexIterator<Collection>>;

/// The values of a typed collection (`for (long value : numbers)`) and the attributes of an attribute collection.
template <class Collection> IndexIteratorOf<Collection> begin(const Collection& collection)
{
    return {collection, 0};
}

/// Behind the last of these.
template <class Collection> IndexIteratorOf<Collection> end(const Collection& collection)
{
    return {collection, collection.GetCount()};
}

} // namespace ZrXmlLib16

#endif
