// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOSEQPRIMCOL_H
#define ZRXMLLIB16DATA_ELEMENTINFOSEQPRIMCOL_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfoSeqCol.h"

namespace ZrXmlLib16Data {

/// Record of a repeated element in an xs:sequence whose content is a primitive value.
class ZRXML_API CElementInfoSeqPrimCol : public CElementInfoSeqCol {
public:
    /// The arguments are those of CElementInfo.
    CElementInfoSeqPrimCol(const wchar_t* name, const wchar_t* namespaceUri, int propertyId);
    ~CElementInfoSeqPrimCol() override;
};

} // namespace ZrXmlLib16Data

#endif
