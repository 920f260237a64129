// SPDX-License-Identifier: MIT
#include "classes/RteType.h"

#include "ZrXmlLib16Data/ElementInfoSeqClsCol.h"
#include "ZrXmlLib16Data/ParentElementInfo.h"
#include "classes/PropertyAccess.h"
#include "classes/Records.h"

namespace Gpx {

using ZrXmlLib16::ZrVariant;
using namespace ZrXmlLib16Data;

struct CRteType::Tables {
    CParentElementInfo classInfo{XmlElementGroup_Sequence, XmlElementType_Element, L"rteType", NAMESPACE, true, true,
        -1, ZrXmlLib16::ItemType_none, L"", false};

    OptionalElement name{L"name", Property_Name, SimpleTypes::String()};
    OptionalElement cmt{L"cmt", Property_Cmt, SimpleTypes::String()};
    OptionalElement desc{L"desc", Property_Desc, SimpleTypes::String()};
    OptionalElement src{L"src", Property_Src, SimpleTypes::String()};
    CElementInfoSeqClsCol link{L"link", NAMESPACE, Property_Link, XmlElementType_Element};
    OptionalElement number{L"number", Property_Number, SimpleTypes::NonNegativeInteger()};
    OptionalElement type{L"type", Property_Type, SimpleTypes::String()};
    OptionalExtensions extensions{Property_Extensions};
    CElementInfoSeqClsCol rtept{L"rtept", NAMESPACE, Property_Rtept, XmlElementType_Element};
    CElementInfo* elements[10] = {&name, &cmt, &desc, &src, &link, &number, &type, &extensions, &rtept, nullptr};

    CAttributeInfo* attributes[1] = {nullptr};
};

CRteType::Tables& CRteType::GetTables()
{
    static Tables tables;
    return tables;
}

CRteType::CRteType(const wchar_t* elementName)
    : CGpxObject(elementName)
    , m_link(new CGpxCollection<CLinkType>(L"link"))
    , m_rtept(new CGpxCollection<CWptType>(L"rtept"))
{
}

void CRteType::SetExtensions(CExtensionsType* value)
{
    Throw_IfElementNameDiffers(value, L"extensions");
    m_extensions = value;
}

void CRteType::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Name:
        return AccessValue(read, value, m_name);
    case Property_Cmt:
        return AccessValue(read, value, m_cmt);
    case Property_Desc:
        return AccessValue(read, value, m_desc);
    case Property_Src:
        return AccessValue(read, value, m_src);
    case Property_Link:
        return AccessCollection(read, value, m_link);
    case Property_Number:
        return AccessValue(read, value, m_number);
    case Property_Type:
        return AccessValue(read, value, m_type);
    case Property_Extensions:
        return AccessObject(read, value, m_extensions);
    case Property_Rtept:
        return AccessCollection(read, value, m_rtept);
    default:
        ThrowUnknownProperty(index);
    }
}

const CParentElementInfo* CRteType::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CRteType::GetClassElementInfo() const
{
    return GetTables().elements;
}

CAttributeInfo** CRteType::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CRteType::Init()
{
    m_name.reset();
    m_cmt.reset();
    m_desc.reset();
    m_src.reset();
    m_link->Clear();
    m_number.reset();
    m_type.reset();
    m_extensions = nullptr;
    m_rtept->Clear();
}

} // namespace Gpx
