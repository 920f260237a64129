// SPDX-License-Identifier: MIT
#ifndef VALUES_BORROWINGVARIANT_H
#define VALUES_BORROWINGVARIANT_H

#include "ZrXmlLib16/ZrVariant.h"

namespace ZrXmlLib16 {

/// For reading a property and using its value before anything else happens to the object: see ZrVariant::LendString.
class CBorrowingVariant : public ZrVariant {
public:
    CBorrowingVariant()
        : ZrVariant(Borrowing())
    {
    }
};

} // namespace ZrXmlLib16

#endif
