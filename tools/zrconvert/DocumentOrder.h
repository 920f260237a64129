// SPDX-License-Identifier: MIT
#ifndef ZRCONVERT_DOCUMENTORDER_H
#define ZRCONVERT_DOCUMENTORDER_H

#include "ZrXmlLib16/XmlElement.h"

namespace Convert {

/// The element whose start tag follows, null behind the last one.
inline const ZrXmlLib16::CXmlElement* NextInDocument(const ZrXmlLib16::CXmlElement* element)
{
    if (const ZrXmlLib16::CXmlElement* child = element->GetFirstElement()) {
        return child;
    }
    while (element && !element->GetNextSiblingElement()) {
        element = element->GetParent();
    }
    return element ? element->GetNextSiblingElement() : nullptr;
}

} // namespace Convert

#endif
