// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_IEVENTSINK_H
#define ZRXMLLIB16_IEVENTSINK_H

#include "ZrXmlLib16/Export.h"

namespace ZrXmlLib16 {

class CXmlObjectBase;

/// Told of every change of the collections it listens to. The first slot is OnEvent: the destructor is not virtual.
class ZRXML_API IEventSink {
public:
    /// What happened to the collection.
    enum MsgType : int {
        CollectionChanged = 0, ///< data: null
        BeforeAdd = 1,         ///< data: the item
        AfterAdd = 2,          ///< data: the item
        BeforeRemove = 3,      ///< data: pointer to the item's index (int), null when the whole collection is cleared
        AfterRemove = 4        ///< data: as for BeforeRemove
    };

    /// @param sender the collection, borrowed for the length of the call
    /// @param data as the message type says, borrowed for the length of the call
    virtual void OnEvent(CXmlObjectBase* sender, MsgType type, void* data) = 0;

protected:
    ~IEventSink() { }
};

} // namespace ZrXmlLib16

#endif
