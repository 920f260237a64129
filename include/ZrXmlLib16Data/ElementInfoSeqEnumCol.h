// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_ELEMENTINFOSEQENUMCOL_H
#define ZRXMLLIB16DATA_ELEMENTINFOSEQENUMCOL_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16Data/ElementInfoSeqCol.h"

namespace ZrXmlLib16Data {

/// Record of a repeated element in an xs:sequence whose content is an enumerated value.
class ZRXML_API CElementInfoSeqEnumCol : public CElementInfoSeqCol {
public:
    /// The arguments are those of CElementInfo.
    CElementInfoSeqEnumCol(const wchar_t* name, const wchar_t* namespaceUri, int propertyId);
    ~CElementInfoSeqEnumCol() override;
};

} // namespace ZrXmlLib16Data

#endif
