// SPDX-License-Identifier: MIT
#include "classes/CopyrightType.h"

#include "ZrXmlLib16Data/ParentElementInfo.h"
#include "classes/PropertyAccess.h"
#include "classes/Records.h"

namespace Gpx {

using ZrXmlLib16::ZrVariant;
using namespace ZrXmlLib16Data;

struct CCopyrightType::Tables {
    CParentElementInfo classInfo{XmlElementGroup_Sequence, XmlElementType_Element, L"copyrightType", NAMESPACE, true,
        true, -1, ZrXmlLib16::ItemType_none, L"", false};

    OptionalElement year{L"year", Property_Year, SimpleTypes::Year()};
    OptionalElement license{L"license", Property_License, SimpleTypes::AnyUri()};
    CElementInfo* elements[3] = {&year, &license, nullptr};

    RequiredAttribute author{L"author", Property_Author, SimpleTypes::String()};
    CAttributeInfo* attributes[2] = {&author, nullptr};
};

CCopyrightType::Tables& CCopyrightType::GetTables()
{
    static Tables tables;
    return tables;
}

CCopyrightType::CCopyrightType(const wchar_t* elementName)
    : CGpxObject(elementName)
{
}

void CCopyrightType::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Author:
        return AccessValue(read, value, m_author);
    case Property_Year:
        return AccessYear(read, value, m_year);
    case Property_License:
        return AccessValue(read, value, m_license);
    default:
        ThrowUnknownProperty(index);
    }
}

const CParentElementInfo* CCopyrightType::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CCopyrightType::GetClassElementInfo() const
{
    return GetTables().elements;
}

CAttributeInfo** CCopyrightType::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CCopyrightType::Init()
{
    m_author.reset();
    m_year.reset();
    m_license.reset();
}

} // namespace Gpx
