// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOCHOICEPRIMCOL_H
#define ZRXMLLIB16DATA_ELEMENTINFOCHOICEPRIMCOL_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfoChoiceCol.h"

namespace ZrXmlLib16Data {

/// Record of a repeated element in an xs:choice whose content is a primitive value.
class ZRXML_API CElementInfoChoicePrimCol : public CElementInfoChoiceCol {
public:
    /// The arguments are those of CElementInfo.
    CElementInfoChoicePrimCol(const wchar_t* name, const wchar_t* namespaceUri, int propertyId);
    ~CElementInfoChoicePrimCol() override;
};

} // namespace ZrXmlLib16Data

#endif
