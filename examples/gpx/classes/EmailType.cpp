// SPDX-License-Identifier: MIT
#include "classes/EmailType.h"

#include "ZrXmlLib16Data/ParentElementInfo.h"
#include "classes/PropertyAccess.h"
#include "classes/Records.h"

namespace Gpx {

using ZrXmlLib16::ZrVariant;
using namespace ZrXmlLib16Data;

struct CEmailType::Tables {
    CParentElementInfo classInfo{XmlElementGroup_Sequence, XmlElementType_Element, L"emailType", NAMESPACE, true, true,
        -1, ZrXmlLib16::ItemType_none, L"", false};

    CElementInfo* elements[1] = {nullptr};

    RequiredAttribute id{L"id", Property_Id, SimpleTypes::String()};
    RequiredAttribute domain{L"domain", Property_Domain, SimpleTypes::String()};
    CAttributeInfo* attributes[3] = {&id, &domain, nullptr};
};

CEmailType::Tables& CEmailType::GetTables()
{
    static Tables tables;
    return tables;
}

CEmailType::CEmailType(const wchar_t* elementName)
    : CGpxObject(elementName)
{
}

void CEmailType::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Id:
        return AccessValue(read, value, m_id);
    case Property_Domain:
        return AccessValue(read, value, m_domain);
    default:
        ThrowUnknownProperty(index);
    }
}

const CParentElementInfo* CEmailType::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CEmailType::GetClassElementInfo() const
{
    return GetTables().elements;
}

CAttributeInfo** CEmailType::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CEmailType::Init()
{
    m_id.reset();
    m_domain.reset();
}

} // namespace Gpx
