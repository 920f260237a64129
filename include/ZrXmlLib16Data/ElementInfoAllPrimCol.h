// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOALLPRIMCOL_H
#define ZRXMLLIB16DATA_ELEMENTINFOALLPRIMCOL_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfoAllCol.h"

namespace ZrXmlLib16Data {

/// Record of a repeated element in an xs:all whose content is a primitive value.
class ZRXML_API CElementInfoAllPrimCol : public CElementInfoAllCol {
public:
    /// The arguments are those of CElementInfo.
    CElementInfoAllPrimCol(const wchar_t* name, const wchar_t* namespaceUri, int propertyId);
    ~CElementInfoAllPrimCol() override;
};

} // namespace ZrXmlLib16Data

#endif
