// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_OBJECTCOLLECTION_H
#define EXAMPLES_SHARED_OBJECTCOLLECTION_H

#include "ZrXmlLib16/Ranges.h"
#include "ZrXmlLib16/XmlCollection.h"

namespace Shared {

/// A repeated element whose items are objects of one class.
template <class T> class CObjectCollection : public ZrXmlLib16::CXmlCollection {
public:
    using CXmlCollection::CXmlCollection;

    /// Appends a new item, which the collection owns.
    T& Add() { return static_cast<T&>(*AppendItem(new T(ElementName().c_str()))->GetItem()); }
    /// @throws CZrInvalidParamException unless 0 <= index < GetCount().
    T& GetAt(int index) const { return static_cast<T&>(*GetNodeAtIndex(index)->GetItem()); }

    auto begin() const { return ZrXmlLib16::ItemsAs<T>(*this).begin(); }
    auto end() const { return ZrXmlLib16::ItemsAs<T>(*this).end(); }

protected:
    /// The object that an element is read into.
    ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase> CreateItem(ZrXmlLib16::CXmlElement*) override
    {
        return ZrXmlLib16::CSmartPtr<ZrXmlLib16::CXmlObjectBase>(new T(ElementName().c_str()));
    }
};

} // namespace Shared

#endif
