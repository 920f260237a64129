// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_XMLCOLLECTION_H
#define ZRXMLLIB16_XMLCOLLECTION_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/SmartPtr.h"
#include "ZrXmlLib16/XmlCollectionBase.h"
#include "ZrXmlLib16Data/XmlElementType.h"

namespace ZrXmlLib16 {

/// A collection of generated objects, held in a list in collection order and counted by reference.
///
/// Every insertion announces BeforeAdd, AfterAdd and CollectionChanged with the item; every removal announces
/// BeforeRemove, AfterRemove and CollectionChanged with the index. Arguments are checked before anything is announced.
/// Neither element names nor the maximum count are checked on adding. A listener that changes the collection before an
/// announced change makes the change fail with CZrInvalidStateException. Going through the items by ascending or
/// descending index costs one step each.
class ZRXML_API CXmlCollection : public CXmlCollectionBase {
public:
    /// One place of the list; owned by the collection and valid until its item is removed.
    class ZRXML_API CNode {
    public:
        /// Never null; borrowed.
        CXmlObjectBase* GetItem() const;
        /// Null at the end.
        CNode* GetNext() const;
        /// Null at the beginning.
        CNode* GetPrevious() const;

    private:
        friend class CXmlCollection;
        friend class NodeBlocks;
        explicit CNode(CSmartPtr<CXmlObjectBase> item) noexcept;
        ~CNode() = default;

        CSmartPtr<CXmlObjectBase> m_item;
        CNode* m_next;
        CNode* m_previous;
    };

    /// The arguments of CXmlCollectionBase.
    CXmlCollection(const wchar_t* elementName, const wchar_t* namespaceUri, int minOccurs, int maxOccurs);
    ~CXmlCollection() override;
    /// Inserts the item at the end. Every insertion returns the new node and throws CZrInvalidParamException for a null
    /// item or an existing item that is not here.
    CNode* AppendItem(CXmlObjectBase* item);
    /// Inserts the item at the beginning.
    CNode* PrependItem(CXmlObjectBase* item);
    /// Inserts the item in front of the one of that index. @param index 0 to GetCount()
    CNode* AddItemAt(int index, CXmlObjectBase* item);
    /// Inserts the item behind the first node of an item that is there.
    CNode* AddAfterItem(CXmlObjectBase* existing, CXmlObjectBase* item);
    /// Inserts the item in front of the first node of an item that is there.
    CNode* AddBeforeItem(CXmlObjectBase* existing, CXmlObjectBase* item);
    /// Removes the item. @throws CZrInvalidParamException unless 0 <= index < GetCount(), as does GetNodeAtIndex.
    void Remove(int index);
    /// Removes the item of the node. @throws CZrInvalidParamException for a node that is not of this collection.
    void RemoveNode(CNode* node);
    /// The place of the item of that index.
    CNode* GetNodeAtIndex(int index) const;
    /// First node of the item, null when there is none.
    CNode* GetNodeForItem(const CXmlObjectBase* item) const;
    void Clear() override;
    int GetCount() const override;

protected:
    void AttributesToXml_Int(CXmlWriter* writer, const CSerializationContext& context) const override;
    void ToXml_Int(CXmlWriter* writer, bool isRoot, const wchar_t* namespaceUri, const CSerializationContext& context,
        bool isOptional) const override;
    /// Appends an item for each consecutive element of the collection's name; never clears, never stops at the maximum.
    CXmlElement* FromXml_Int(
        CXmlElement* element, CXmlElement* firstChild, const CSerializationContext& context, bool isOptional) override;
    /// The new object that reads an element; null when there is none for it. Overridden by generated collections.
    virtual CSmartPtr<CXmlObjectBase> CreateItem(CXmlElement* element);
    /// How the items are represented; by default as elements of their own.
    virtual ZrXmlLib16Data::XmlElementType GetItemElementType() const;
    /// Called for every item before it is inserted and before anybody is told; throws to refuse it. Accepts any item by
    /// default.
    virtual void CheckItem(CXmlObjectBase& item);
    /// Null when the collection is empty.
    CNode* GetFirstNode() const;
    /// Moves all items of another collection behind the own ones. Nobody is told and nothing is checked.
    void Adopt(CXmlCollection& other) noexcept;

    CXmlCollection(const CXmlCollection&) = delete;
    CXmlCollection& operator=(const CXmlCollection&) = delete;

private:
    /// The memory of the nodes, in blocks that grow with the collection. Nodes stay where they are; the places of
    /// removed ones are used again.
    class NodeBlocks {
    public:
        NodeBlocks() = default;
        NodeBlocks(const NodeBlocks&) = delete;
        NodeBlocks& operator=(const NodeBlocks&) = delete;
        ~NodeBlocks();

        /// Makes room for the next node.
        void Reserve()
        {
            if (!m_removed && m_unused == m_end) {
                AddBlock();
            }
        }
        CNode* Create(CSmartPtr<CXmlObjectBase> item);
        void Destroy(CNode* node) noexcept;
        /// Takes over the blocks of another collection, which has none then.
        void Adopt(NodeBlocks& other) noexcept;

    private:
        struct Block;
        void AddBlock();

        Block* m_newest = nullptr;
        CNode* m_unused = nullptr; // the first of the newest block that was never used
        CNode* m_end = nullptr;    // of that block
        void* m_removed = nullptr; // places of removed nodes, linked through their first word
    };

    CNode* Insert(CSmartPtr<CXmlObjectBase> item, CNode* before);
    void RemoveAt(CNode* node, int index);
    struct DetachedNodes;
    static void DestroyNodes(CNode* first) noexcept;
    void RequireUnchanged(unsigned long changes) const;
    CNode* RequireNode(const CXmlObjectBase* item) const;
    CXmlElement* ReadElements(CXmlElement* cursor, const CSerializationContext& context);
    CXmlElement* ReadInlineItems(CXmlElement* parent, CXmlElement* cursor, const CSerializationContext& context);
    CSmartPtr<CXmlObjectBase> RequireItem(CXmlElement* element);

    NodeBlocks m_nodes;
    CNode* m_first;
    CNode* m_last;
    int m_count;
    unsigned long m_changes;
    // The place of the last access by index; a null node when there is none.
    mutable CNode* m_cachedNode;
    mutable int m_cachedIndex;
};

} // namespace ZrXmlLib16

#endif
