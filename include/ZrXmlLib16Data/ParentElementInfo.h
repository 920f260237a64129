// SPDX-License-Identifier: MIT
#ifndef ZRXMLLIB16DATA_PARENTELEMENTINFO_H
#define ZRXMLLIB16DATA_PARENTELEMENTINFO_H

#include "ZrXmlLib16/Export.h"
#include "ZrXmlLib16/ItemType.h"
#include "ZrXmlLib16Data/XmlElementGroupType.h"
#include "ZrXmlLib16Data/XmlElementType.h"

#include <string>

namespace ZrXmlLib16Data {

using ZrXmlLib16::ItemType;

/// What a generated class says about itself. Built once per class, read-only, owned by the class.
class ZRXML_API CParentElementInfo {
public:
    /// @param rejectUnknownAttributes whether attributes that no record claims are errors on reading
    /// @param allowTypeAttribute whether xsi:type may be written
    /// @param valueProperty index of the property that holds the simple content, -1 when there is none
    /// @param valueType type of the simple content, ItemType_none when there is none
    /// @param valueFormat number format of the simple content; null is empty
    /// @param storeUnparsed whether the simple content is stored as the string that was read
    CParentElementInfo(XmlElementGroupType groupType, XmlElementType elementType, const wchar_t* typeName,
        const wchar_t* typeNamespace, bool rejectUnknownAttributes, bool allowTypeAttribute, int valueProperty,
        ItemType valueType, const wchar_t* valueFormat, bool storeUnparsed);
    virtual ~CParentElementInfo();

    /// @{
    /// The argument of the constructor.
    XmlElementGroupType GetGroupType() const;
    XmlElementType GetElementType() const;
    const std::wstring& GetTypeName() const;
    const std::wstring& GetTypeNamespace() const;
    bool GetRejectUnknownAttributes() const;
    bool GetAllowTypeAttribute() const;
    int GetValueProperty() const;
    ItemType GetValueType() const;
    const std::wstring& GetValueFormat() const;
    bool GetStoreUnparsed() const;
    /// @}

private:
    XmlElementGroupType m_groupType;
    XmlElementType m_elementType;
    std::wstring m_typeName;
    std::wstring m_typeNamespace;
    bool m_rejectUnknownAttributes;
    bool m_allowTypeAttribute;
    int m_valueProperty;
    ItemType m_valueType;
    std::wstring m_valueFormat;
    bool m_storeUnparsed;
};

} // namespace ZrXmlLib16Data

#endif
