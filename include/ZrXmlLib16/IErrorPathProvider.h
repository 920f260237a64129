// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_IERRORPATHPROVIDER_H
#define ZRXMLLIB16_IERRORPATHPROVIDER_H

#include "ZrXmlLib16/Export.h"

#include <string>

namespace ZrXmlLib16 {

/// Knows where in a document the reading is.
class ZRXML_API IErrorPathProvider {
public:
    virtual ~IErrorPathProvider();
    /// The path of the current place, for messages.
    virtual std::wstring GetPath() const = 0;
};

} // namespace ZrXmlLib16

#endif
