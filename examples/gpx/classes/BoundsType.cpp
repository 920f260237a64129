// SPDX-License-Identifier: MIT
#include "classes/BoundsType.h"

#include "ZrXmlLib16Data/ParentElementInfo.h"
#include "classes/PropertyAccess.h"
#include "classes/Records.h"

namespace Gpx {

using ZrXmlLib16::ZrVariant;
using namespace ZrXmlLib16Data;

struct CBoundsType::Tables {
    CParentElementInfo classInfo{XmlElementGroup_Sequence, XmlElementType_Element, L"boundsType", NAMESPACE, true, true,
        -1, ZrXmlLib16::ItemType_none, L"", false};

    CElementInfo* elements[1] = {nullptr};

    RequiredAttribute minlat{L"minlat", Property_Minlat, SimpleTypes::Latitude()};
    RequiredAttribute minlon{L"minlon", Property_Minlon, SimpleTypes::Longitude()};
    RequiredAttribute maxlat{L"maxlat", Property_Maxlat, SimpleTypes::Latitude()};
    RequiredAttribute maxlon{L"maxlon", Property_Maxlon, SimpleTypes::Longitude()};
    CAttributeInfo* attributes[5] = {&minlat, &minlon, &maxlat, &maxlon, nullptr};
};

CBoundsType::Tables& CBoundsType::GetTables()
{
    static Tables tables;
    return tables;
}

CBoundsType::CBoundsType(const wchar_t* elementName)
    : CGpxObject(elementName)
{
}

void CBoundsType::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Minlat:
        return AccessValue(read, value, m_minlat);
    case Property_Minlon:
        return AccessValue(read, value, m_minlon);
    case Property_Maxlat:
        return AccessValue(read, value, m_maxlat);
    case Property_Maxlon:
        return AccessValue(read, value, m_maxlon);
    default:
        ThrowUnknownProperty(index);
    }
}

const CParentElementInfo* CBoundsType::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CBoundsType::GetClassElementInfo() const
{
    return GetTables().elements;
}

CAttributeInfo** CBoundsType::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CBoundsType::Init()
{
    m_minlat.reset();
    m_minlon.reset();
    m_maxlat.reset();
    m_maxlon.reset();
}

} // namespace Gpx
