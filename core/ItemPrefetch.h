// SPDX-License-Identifier: MIT
#ifndef CORE_ITEMPREFETCH_H
#define CORE_ITEMPREFETCH_H

#include "ZrXmlLib16/XmlCollection.h"

namespace ZrXmlLib16 {

/// Has the item of a node (may be null) loaded into the cache while something else is done.
inline void PrefetchItem(const CXmlCollection::CNode* node)
{
    constexpr int LINE = 64;
    constexpr int LINES = 4; // of most objects
    if (node) {
        const char* const item = reinterpret_cast<const char*>(node->GetItem());
        for (int line = 0; line < LINES; ++line) {
            __builtin_prefetch(item + line * LINE);
        }
    }
}

/// For a walk from node to node: has the item of the next node loaded, and the node behind that one.
inline void PrefetchBehind(const CXmlCollection::CNode& node)
{
    if (const CXmlCollection::CNode* const next = node.GetNext()) {
        PrefetchItem(next);
        __builtin_prefetch(next->GetNext());
    }
}

} // namespace ZrXmlLib16

#endif
