// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16_DATETIMEBASECOL_H
#define ZRXMLLIB16_DATETIMEBASECOL_H

#include "ZrXmlLib16/DateTime.h"
#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/XmlTypeCollection.h"

#include <vector>

namespace ZrXmlLib16 {

/// A repeated element of date and time values. The derived collections admit one kind each; all are written as the
/// value's kind says.
class ZRXML_API CdatetimeBaseCol : public CXmlTypeCollection {
public:
    /// The arguments of CXmlTypeCollection.
    CdatetimeBaseCol(ItemType type, const wchar_t* name, const wchar_t* namespaceUri, int minOccurs, int maxOccurs,
        const wchar_t* pattern, long minLength, long maxLength, const wchar_t* minInclusive,
        const wchar_t* maxInclusive, const wchar_t* minExclusive, const wchar_t* maxExclusive, long length,
        long totalDigits, long fractionDigits, CWhitespaceUtils::WhitespaceRule rule, const wchar_t* format);
    ~CdatetimeBaseCol() override;
    /// Adds at the end.
    void Add(const CDateTime& value);
    /// @param index 0 to GetCount()
    /// @throws CZrInvalidParamException before anything is announced when the value is of another kind than the
    /// collection.
    virtual void AddAt(int index, const CDateTime& value) = 0;
    /// @throws CZrInvalidParamException unless 0 <= index < GetCount(), as does Remove. The reference lasts until
    /// the collection changes.
    const CDateTime& Item(int index) const;
    /// Removes the item of that index; announced.
    void Remove(int index);
    int GetCount() const override;
    void Clear() override;

protected:
    /// Inserts a value that AddAt has announced and checked, then announces AfterAdd and CollectionChanged.
    /// @throws CZrInvalidParamException unless 0 <= index <= GetCount().
    void BaseAddAt(int index, const CDateTime& value);
    void ToXml_Int(CXmlWriter* writer, bool isRoot, const wchar_t* namespaceUri, const CSerializationContext& context,
        bool isOptional) const override;

private:
    std::vector<CDateTime> m_items;
};

} // namespace ZrXmlLib16

#endif
