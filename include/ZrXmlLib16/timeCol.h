// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_TIMECOL_H
#define ZRXMLLIB16_TIMECOL_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/datetimeBaseCol.h"

#include <string>

namespace ZrXmlLib16 {

/// A repeated element of xs:time values.
class ZRXML_API CtimeCol : public CdatetimeBaseCol {
public:
    /// The arguments of CXmlTypeCollection after the item type.
    CtimeCol(const wchar_t* name, const wchar_t* namespaceUri, int minOccurs, int maxOccurs, const wchar_t* pattern,
        long minLength, long maxLength, const wchar_t* minInclusive, const wchar_t* maxInclusive,
        const wchar_t* minExclusive, const wchar_t* maxExclusive, long length, long totalDigits, long fractionDigits,
        CWhitespaceUtils::WhitespaceRule rule, const wchar_t* format);
    ~CtimeCol() override;
    /// @throws CZrInvalidParamException before anything is announced when the value is not of the kind dt_time.
    void AddAt(int index, const CDateTime& value) override;
    void AddFromString(std::wstring text) override;
};

} // namespace ZrXmlLib16

#endif
