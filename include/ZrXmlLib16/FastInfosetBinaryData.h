// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_FASTINFOSETBINARYDATA_H
#define ZRXMLLIB16_FASTINFOSETBINARYDATA_H

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/Export.h"

#include <string>

namespace ZrXmlLib16 {

/// Octets of the built-in encoding algorithms of Fast Infoset (ITU-T X.891, 10): 1 hexadecimal, 2 base64, 3 short,
/// 4 int, 5 long, 6 boolean, 7 float, 8 double, 9 uuid, 10 cdata.
class ZRXML_API CFastInfosetBinaryData : public CBinaryData {
public:
    /// Empty.
    CFastInfosetBinaryData();
    /// The octets of another value, shared with it.
    explicit CFastInfosetBinaryData(const CBinaryData& data);
    /// Octets, copied or adopted, as CBinaryData has it.
    CFastInfosetBinaryData(unsigned char* data, unsigned long length, bool adopt);
    /// The code units of a text, as CBinaryData has it.
    explicit CFastInfosetBinaryData(const wchar_t* text);
    ~CFastInfosetBinaryData() override;

    /// Replaces the content by the octets of one value. Integers are signed, of 2, 4 and 8 octets; a uuid is a text of
    /// hex digits without hyphens, of any even length; cdata is the text in UTF-8. After a failure the content is
    /// empty.
    /// @param text null is empty. No white space is removed.
    /// @throws CZrInvalidValueException for text that is no such value, CZrException for an unknown algorithm.
    void SetAsEncodedString(unsigned long algorithm, const wchar_t* text);
    /// The lexical forms of all values in the octets, with a blank between two. A uuid comes without hyphens.
    /// @throws CZrException when the octets are not a whole number of values, for an unknown algorithm and for cdata,
    /// which cannot be decoded.
    std::wstring GetAsString(unsigned long algorithm) const;
};

} // namespace ZrXmlLib16

#endif
