// SPDX-License-Identifier: MIT
#ifndef CORE_CHOICECOLLECTIONS_H
#define CORE_CHOICECOLLECTIONS_H

#include "ZrXmlLib16/SmartPtr.h"
#include "ZrXmlLib16/XmlCollectionBase.h"

#include <map>

namespace ZrXmlLib16 {

/// The collections among the alternatives of a choice that its object listens to, one for each property. They are held,
/// so that the object is off their lists of listeners before it is gone, whoever else keeps them.
class CChoiceCollections {
public:
    explicit CChoiceCollections(IEventSink& listener)
        : m_listener(listener)
    {
    }
    ~CChoiceCollections()
    {
        for (const auto& entry : m_byProperty) {
            entry.second->RemoveEventListener(&m_listener);
        }
    }
    CChoiceCollections(const CChoiceCollections&) = delete;
    CChoiceCollections& operator=(const CChoiceCollections&) = delete;

    /// Takes the place of the collection that the property had before; null for none.
    void ListenTo(CXmlCollectionBase* collection, int propertyId)
    {
        const auto known = m_byProperty.find(propertyId);
        if (known != m_byProperty.end()) {
            if (known->second.GetPtr() == collection) {
                return;
            }
            known->second->RemoveEventListener(&m_listener);
            m_byProperty.erase(known);
        }
        if (collection) {
            m_byProperty[propertyId] = collection;
            collection->AddEventListener(&m_listener);
        }
    }

private:
    IEventSink& m_listener;
    std::map<int, CSmartPtr<CXmlCollectionBase>> m_byProperty;
};

} // namespace ZrXmlLib16

#endif
