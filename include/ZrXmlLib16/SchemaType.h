// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_SCHEMATYPE_H
#define ZRXMLLIB16_SCHEMATYPE_H

#include "ZrXmlLib16/Export.h"

namespace ZrXmlLib16 {

/// How names are taken from a document.
enum SchemaType : int {
    SchemaType_XSD = 0,      ///< names have namespaces
    SchemaType_Reserved = 1, ///< as SchemaType_XSD
    SchemaType_DTD = 2 ///< no namespace processing: names keep their prefix, declarations are attributes, only local
                       ///< names are compared
};

} // namespace ZrXmlLib16

#endif
