// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_BASE64BINARYCOL_H
#define ZRXMLLIB16_BASE64BINARYCOL_H

#include "ZrXmlLib16/BinaryData.h"
#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/XmlTypeCollection.h"

#include <string>
#include <vector>

namespace ZrXmlLib16 {

/// A repeated element of xs:base64Binary values. Lengths count octets.
class ZRXML_API Cbase64BinaryCol : public CXmlTypeCollection {
public:
    /// The arguments of CXmlTypeCollection after the item type.
    Cbase64BinaryCol(const wchar_t* name, const wchar_t* namespaceUri, int minOccurs, int maxOccurs,
        const wchar_t* pattern, long minLength, long maxLength, const wchar_t* minInclusive,
        const wchar_t* maxInclusive, const wchar_t* minExclusive, const wchar_t* maxExclusive, long length,
        long totalDigits, long fractionDigits, CWhitespaceUtils::WhitespaceRule rule, const wchar_t* format);
    ~Cbase64BinaryCol() override;
    /// Adds at the end.
    void Add(const CBinaryData& value);
    /// @param index 0 to GetCount()
    /// @throws CZrInvalidParamException for any other index, CZrException for a value that violates a facet.
    void AddAt(int index, const CBinaryData& value);
    void AddFromString(std::wstring text) override;
    /// @throws CZrInvalidParamException unless 0 <= index < GetCount(), as does Remove. The reference lasts until
    /// the collection changes.
    const CBinaryData& Item(int index) const;
    /// Removes the item of that index; announced.
    void Remove(int index);
    int GetCount() const override;
    void Clear() override;

protected:
    void ToXml_Int(CXmlWriter* writer, bool isRoot, const wchar_t* namespaceUri, const CSerializationContext& context,
        bool isOptional) const override;

private:
    std::vector<CBinaryData> m_items;
};

} // namespace ZrXmlLib16

#endif
