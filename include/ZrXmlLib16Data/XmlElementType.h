// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_XMLELEMENTTYPE_H
#define ZRXMLLIB16DATA_XMLELEMENTTYPE_H

namespace ZrXmlLib16Data {

/// How a class is represented in a document.
enum XmlElementType : int {
    XmlElementType_Element = 0,       ///< as an element of its own
    XmlElementType_PseudoElement = 1, ///< as content and attributes of its parent's element
    XmlElementType_Group = 2          ///< as content of its parent's element
};

} // namespace ZrXmlLib16Data

#endif
