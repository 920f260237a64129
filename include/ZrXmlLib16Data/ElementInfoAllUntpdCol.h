// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOALLUNTPDCOL_H
#define ZRXMLLIB16DATA_ELEMENTINFOALLUNTPDCOL_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfoAllCol.h"

namespace ZrXmlLib16Data {

/// Record of a repeated element in an xs:all whose content is untyped. Named "AnyElement" it is a wildcard, which takes
/// any name.
class ZRXML_API CElementInfoAllUntpdCol : public CElementInfoAllCol {
public:
    /// The arguments are those of CElementInfo.
    CElementInfoAllUntpdCol(const wchar_t* name, const wchar_t* namespaceUri, int propertyId);
    ~CElementInfoAllUntpdCol() override;
};

} // namespace ZrXmlLib16Data

#endif
