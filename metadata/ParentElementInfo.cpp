// SPDX-License-Identifier: MIT
#include "ZrXmlLib16Data/ParentElementInfo.h"

#include "core/TextArgument.h"

namespace ZrXmlLib16Data {

using ZrXmlLib16::TextOrEmpty;

CParentElementInfo::CParentElementInfo(XmlElementGroupType groupType, XmlElementType elementType,
    const wchar_t* typeName, const wchar_t* typeNamespace, bool rejectUnknownAttributes, bool allowTypeAttribute,
    int valueProperty, ItemType valueType, const wchar_t* valueFormat, bool storeUnparsed)
    : m_groupType(groupType)
    , m_elementType(elementType)
    , m_typeName(TextOrEmpty(typeName))
    , m_typeNamespace(TextOrEmpty(typeNamespace))
    , m_rejectUnknownAttributes(rejectUnknownAttributes)
    , m_allowTypeAttribute(allowTypeAttribute)
    , m_valueProperty(valueProperty)
    , m_valueType(valueType)
    , m_valueFormat(TextOrEmpty(valueFormat))
    , m_storeUnparsed(storeUnparsed)
{
}

CParentElementInfo::~CParentElementInfo() = default;

XmlElementGroupType CParentElementInfo::GetGroupType() const
{
    return m_groupType;
}

XmlElementType CParentElementInfo::GetElementType() const
{
    return m_elementType;
}

const std::wstring& CParentElementInfo::GetTypeName() const
{
    return m_typeName;
}

const std::wstring& CParentElementInfo::GetTypeNamespace() const
{
    return m_typeNamespace;
}

bool CParentElementInfo::GetRejectUnknownAttributes() const
{
    return m_rejectUnknownAttributes;
}

bool CParentElementInfo::GetAllowTypeAttribute() const
{
    return m_allowTypeAttribute;
}

int CParentElementInfo::GetValueProperty() const
{
    return m_valueProperty;
}

ItemType CParentElementInfo::GetValueType() const
{
    return m_valueType;
}

const std::wstring& CParentElementInfo::GetValueFormat() const
{
    return m_valueFormat;
}

bool CParentElementInfo::GetStoreUnparsed() const
{
    return m_storeUnparsed;
}

} // namespace ZrXmlLib16Data
