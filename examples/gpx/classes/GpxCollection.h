// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_GPX_CLASSES_GPXCOLLECTION_H
#define EXAMPLES_GPX_CLASSES_GPXCOLLECTION_H

#include "ZrXmlLib16/XmlCollection.h"
#include "classes/GpxObject.h"

namespace Gpx {

/// A repeated element whose items are objects of one class; any number of items, none included.
template <class T> class CGpxCollection : public ZrXmlLib16::CXmlCollection {
public:
    class CIterator {
    public:
        explicit CIterator(const CNode* node)
            : m_node(node)
        {
        }
        T& operator*() const { return static_cast<T&>(*m_node->GetItem()); }
        CIterator& operator++()
        {
            m_node = m_node->GetNext();
            return *this;
        }
        bool operator!=(const CIterator& other) const { return m_node != other.m_node; }

    private:
        const CNode* m_node;
    };

    explicit CGpxCollection(const wchar_t* elementName)
        : CXmlCollection(elementName, NAMESPACE, 0, -1)
    {
    }

    /// Appends a new item, which the collection owns.
    T& Add() { return static_cast<T&>(*AppendItem(new T(ElementName().c_str()))->GetItem()); }
    /// Appends an item that exists.
    /// @throws CZrInvalidParamException for null and for an item with another element name.
    void Add(T* item)
    {
        Throw_IfPropertyIsNull(item, ElementName().c_str());
        Throw_IfElementNameDiffers(item, ElementName().c_str());
        AppendItem(item);
    }
    /// @throws CZrInvalidParamException unless 0 <= index < GetCount().
    T& GetAt(int index) const { return static_cast<T&>(*GetNodeAtIndex(index)->GetItem()); }

    CIterator begin() const { return CIterator(GetCount() == 0 ? nullptr : GetNodeAtIndex(0)); }
    CIterator end() const { return CIterator(nullptr); }

protected:
    ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> CreateItem(ZrXmlLib16::CXmlElement*) override
    {
        return ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase>(new T(ElementName().c_str()));
    }
};

} // namespace Gpx

#endif
