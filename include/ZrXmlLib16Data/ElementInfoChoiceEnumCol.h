// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOCHOICEENUMCOL_H
#define ZRXMLLIB16DATA_ELEMENTINFOCHOICEENUMCOL_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfoChoiceCol.h"

namespace ZrXmlLib16Data {

/// Record of a repeated element in an xs:choice whose content is an enumerated value.
class ZRXML_API CElementInfoChoiceEnumCol : public CElementInfoChoiceCol {
public:
    /// The arguments are those of CElementInfo.
    CElementInfoChoiceEnumCol(const wchar_t* name, const wchar_t* namespaceUri, int propertyId);
    ~CElementInfoChoiceEnumCol() override;
};

} // namespace ZrXmlLib16Data

#endif
