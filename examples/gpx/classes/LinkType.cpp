// SPDX-License-Identifier: MIT
#include "classes/LinkType.h"

#include "ZrXmlLib16Data/ParentElementInfo.h"
#include "classes/PropertyAccess.h"
#include "classes/Records.h"

namespace Gpx {

using ZrXmlLib16::ZrVariant;
using namespace ZrXmlLib16Data;

struct CLinkType::Tables {
    CParentElementInfo classInfo{XmlElementGroup_Sequence, XmlElementType_Element, L"linkType", NAMESPACE, true, true,
        -1, ZrXmlLib16::ItemType_none, L"", false};

    OptionalElement text{L"text", Property_Text, SimpleTypes::String()};
    OptionalElement type{L"type", Property_Type, SimpleTypes::String()};
    CElementInfo* elements[3] = {&text, &type, nullptr};

    RequiredAttribute href{L"href", Property_Href, SimpleTypes::AnyUri()};
    CAttributeInfo* attributes[2] = {&href, nullptr};
};

CLinkType::Tables& CLinkType::GetTables()
{
    static Tables tables;
    return tables;
}

CLinkType::CLinkType(const wchar_t* elementName)
    : CGpxObject(elementName)
{
}

void CLinkType::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Href:
        return AccessValue(read, value, m_href);
    case Property_Text:
        return AccessValue(read, value, m_text);
    case Property_Type:
        return AccessValue(read, value, m_type);
    default:
        ThrowUnknownProperty(index);
    }
}

const CParentElementInfo* CLinkType::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CLinkType::GetClassElementInfo() const
{
    return GetTables().elements;
}

CAttributeInfo** CLinkType::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CLinkType::Init()
{
    m_href.reset();
    m_text.reset();
    m_type.reset();
}

} // namespace Gpx
