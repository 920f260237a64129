// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_INILLABLE_H
#define ZRXMLLIB16_INILLABLE_H

#include "ZrXmlLib16/Export.h"

namespace ZrXmlLib16 {

/// Implemented by generated classes whose element may carry xsi:nil. The first slot is IsNil: the destructor is not
/// virtual.
class ZRXML_API INillable {
public:
    /// Whether the element is written with xsi:nil="true" and without content.
    virtual bool IsNil() const = 0;
    /// Called by the read walk with the value of xsi:nil.
    virtual void SetNil(bool isNil) = 0;

protected:
    ~INillable() { }
};

} // namespace ZrXmlLib16

#endif
