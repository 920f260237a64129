// SPDX-License-Identifier: MIT
#ifndef CORE_COLLECTIONINDEX_H
#define CORE_COLLECTIONINDEX_H

namespace ZrXmlLib16 {

/// @throws CZrInvalidParamException unless 0 <= index <= last; the message names the index and the count.
void CheckIndex(int index, int count, int last);

} // namespace ZrXmlLib16

#endif
