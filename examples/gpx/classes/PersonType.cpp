// SPDX-License-Identifier: MIT
#include "classes/PersonType.h"

#include "ZrXmlLib16Data/ElementInfoSeqClsOpt.h"
#include "ZrXmlLib16Data/ParentElementInfo.h"
#include "classes/ClassFactory.h"
#include "classes/PropertyAccess.h"
#include "classes/Records.h"

namespace Gpx {

using ZrXmlLib16::ZrVariant;
using namespace ZrXmlLib16Data;

struct CPersonType::Tables {
    CParentElementInfo classInfo{XmlElementGroup_Sequence, XmlElementType_Element, L"personType", NAMESPACE, true, true,
        -1, ZrXmlLib16::ItemType_none, L"", false};

    OptionalElement name{L"name", Property_Name, SimpleTypes::String()};
    CElementInfoSeqClsOpt email{
        L"email", NAMESPACE, Property_Email, XmlElementType_Element, CreateObject, ClassId_EmailType, false};
    CElementInfoSeqClsOpt link{
        L"link", NAMESPACE, Property_Link, XmlElementType_Element, CreateObject, ClassId_LinkType, false};
    CElementInfo* elements[4] = {&name, &email, &link, nullptr};

    CAttributeInfo* attributes[1] = {nullptr};
};

CPersonType::Tables& CPersonType::GetTables()
{
    static Tables tables;
    return tables;
}

CPersonType::CPersonType(const wchar_t* elementName)
    : CGpxObject(elementName)
{
}

void CPersonType::SetEmail(CEmailType* value)
{
    Throw_IfElementNameDiffers(value, L"email");
    m_email = value;
}

void CPersonType::SetLink(CLinkType* value)
{
    Throw_IfElementNameDiffers(value, L"link");
    m_link = value;
}

void CPersonType::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Name:
        return AccessValue(read, value, m_name);
    case Property_Email:
        return AccessObject(read, value, m_email);
    case Property_Link:
        return AccessObject(read, value, m_link);
    default:
        ThrowUnknownProperty(index);
    }
}

const CParentElementInfo* CPersonType::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CPersonType::GetClassElementInfo() const
{
    return GetTables().elements;
}

CAttributeInfo** CPersonType::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CPersonType::Init()
{
    m_name.reset();
    m_email = nullptr;
    m_link = nullptr;
}

} // namespace Gpx
