// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_ELEMENTCOL_H
#define ZRXMLLIB16_ELEMENTCOL_H

#include "ZrXmlLib16/Element.h"
#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/XmlCollection.h"

#include <cstddef>
#include <iterator>
#include <memory>

namespace ZrXmlLib16 {

/// Untyped elements in order: what a repeated wildcard captured, or the children of an untyped element.
///
/// Holds CElement objects only. Every one that is put in comes under the constraint of the collection on namespaces,
/// which replaces its own; one that does not fulfil it is refused. Lives on the heap, held in a CSmartPtr, like every
/// collection.
class ZRXML_API CElementCol : public CXmlCollection {
public:
    /// @param elementName named in the messages about the number of items; the items have names of their own
    /// @param namespaceSpecification a wildcard keyword, or a list of URIs, "##local" and "##targetNamespace"
    /// @param maxOccurs -1 for no maximum
    CElementCol(const wchar_t* elementName, const wchar_t* namespaceSpecification = L"##any",
        const wchar_t* targetNamespace = L"", int minOccurs = 0, int maxOccurs = -1);
    /// Does not recurse, however deep the trees below are.
    ~CElementCol() override;

    /// Forward iterator over the items; stays valid until its item is removed.
    class iterator {
    public:
        typedef std::forward_iterator_tag iterator_category;
        typedef CElement* value_type;
        typedef std::ptrdiff_t difference_type;
        typedef CElement** pointer;
        typedef CElement* reference;

        /// The end.
        iterator()
            : m_node(nullptr)
        {
        }
        CElement* operator*() const { return static_cast<CElement*>(m_node->GetItem()); }
        CElement* operator->() const { return **this; }
        iterator& operator++()
        {
            m_node = m_node->GetNext();
            return *this;
        }
        iterator operator++(int)
        {
            const iterator before = *this;
            ++*this;
            return before;
        }
        bool operator==(const iterator& other) const { return m_node == other.m_node; }
        bool operator!=(const iterator& other) const { return m_node != other.m_node; }

    private:
        friend class CElementCol;
        explicit iterator(CNode* node)
            : m_node(node)
        {
        }

        CNode* m_node;
    };

    /// Appends a new element in the collection's namespace, and returns it.
    /// @throws CZrInvalidStateException when the collection has no namespace.
    CElement* Add(const wchar_t* name);
    /// @param namespaceUri null is empty.
    /// @throws CZrInvalidNamespaceException when the constraint refuses the namespace, CZrInvalidParamException for an
    /// empty name.
    CElement* Add(const wchar_t* name, const wchar_t* namespaceUri);
    /// Appends an element, which the collection then shares.
    /// @throws CZrInvalidParamException for null, CZrInvalidNamespaceException when the constraint refuses its
    /// namespace.
    void Add(CElement* element);
    /// @throws CZrInvalidParamException unless 0 <= index < GetCount().
    CElement* Item(int index) const;
    /// The first item, in collection order.
    iterator begin() const;
    /// Behind the last item.
    iterator end() const;
    /// The target namespace when the constraint accepts it, else empty.
    std::wstring GetNamespace() const override;
    std::wstring GetTargetNamespace() const override;
    /// Puts the collection and its items under another constraint.
    /// @throws CZrInvalidNamespaceException when an item does not fulfil it; nothing changes.
    void SetNamespaceRestrictions(const wchar_t* namespaceSpecification, const wchar_t* targetNamespace);
    /// Appends the consecutive elements, from the cursor (may be null) on, that have the local name and fulfil the
    /// constraint.
    /// @param namespaceUri namespace they have to have as well, under the settings of the context; "##any" for whatever
    /// they have
    /// @return the first element that was not taken, or null.
    CXmlElement* FromXmlLockElementName_Int(const wchar_t* name, const wchar_t* namespaceUri, CXmlElement* parent,
        CXmlElement* cursor, const CSerializationContext& context);

protected:
    /// Appends the consecutive elements, from the first child on, that fulfil the constraint.
    CXmlElement* FromXml_Int(
        CXmlElement* element, CXmlElement* firstChild, const CSerializationContext& context, bool isOptional) override;
    void CheckItem(CXmlObjectBase& item) override;

private:
    friend class CElement;

    explicit CElementCol(std::shared_ptr<const NamespaceRule> rule);
    CXmlElement* ReadItem(CXmlElement* element, const CSerializationContext& context);
    void WriteChildren(CXmlWriter& writer, const CSerializationContext& context) const;

    std::shared_ptr<const NamespaceRule> m_rule;
};

} // namespace ZrXmlLib16

#endif
