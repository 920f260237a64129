// SPDX-License-Identifier: MIT
#include "classes/MetadataType.h"

#include "ZrXmlLib16Data/ElementInfoSeqClsCol.h"
#include "ZrXmlLib16Data/ElementInfoSeqClsOpt.h"
#include "ZrXmlLib16Data/ParentElementInfo.h"
#include "classes/ClassFactory.h"
#include "classes/PropertyAccess.h"
#include "classes/Records.h"

namespace Gpx {

using ZrXmlLib16::ZrVariant;
using namespace ZrXmlLib16Data;

struct CMetadataType::Tables {
    CParentElementInfo classInfo{XmlElementGroup_Sequence, XmlElementType_Element, L"metadataType", NAMESPACE, true,
        true, -1, ZrXmlLib16::ItemType_none, L"", false};

    OptionalElement name{L"name", Property_Name, SimpleTypes::String()};
    OptionalElement desc{L"desc", Property_Desc, SimpleTypes::String()};
    CElementInfoSeqClsOpt author{
        L"author", NAMESPACE, Property_Author, XmlElementType_Element, CreateObject, ClassId_PersonType, false};
    CElementInfoSeqClsOpt copyright{L"copyright", NAMESPACE, Property_Copyright, XmlElementType_Element, CreateObject,
        ClassId_CopyrightType, false};
    CElementInfoSeqClsCol link{L"link", NAMESPACE, Property_Link, XmlElementType_Element};
    OptionalElement time{L"time", Property_Time, SimpleTypes::DateTime()};
    OptionalElement keywords{L"keywords", Property_Keywords, SimpleTypes::String()};
    CElementInfoSeqClsOpt bounds{
        L"bounds", NAMESPACE, Property_Bounds, XmlElementType_Element, CreateObject, ClassId_BoundsType, false};
    OptionalExtensions extensions{Property_Extensions};
    CElementInfo* elements[10] = {
        &name, &desc, &author, &copyright, &link, &time, &keywords, &bounds, &extensions, nullptr};

    CAttributeInfo* attributes[1] = {nullptr};
};

CMetadataType::Tables& CMetadataType::GetTables()
{
    static Tables tables;
    return tables;
}

CMetadataType::CMetadataType(const wchar_t* elementName)
    : CGpxObject(elementName)
    , m_link(new CGpxCollection<CLinkType>(L"link"))
{
}

void CMetadataType::SetAuthor(CPersonType* value)
{
    Throw_IfElementNameDiffers(value, L"author");
    m_author = value;
}

void CMetadataType::SetCopyright(CCopyrightType* value)
{
    Throw_IfElementNameDiffers(value, L"copyright");
    m_copyright = value;
}

void CMetadataType::SetBounds(CBoundsType* value)
{
    Throw_IfElementNameDiffers(value, L"bounds");
    m_bounds = value;
}

void CMetadataType::SetExtensions(CExtensionsType* value)
{
    Throw_IfElementNameDiffers(value, L"extensions");
    m_extensions = value;
}

void CMetadataType::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Name:
        return AccessValue(read, value, m_name);
    case Property_Desc:
        return AccessValue(read, value, m_desc);
    case Property_Author:
        return AccessObject(read, value, m_author);
    case Property_Copyright:
        return AccessObject(read, value, m_copyright);
    case Property_Link:
        return AccessCollection(read, value, m_link);
    case Property_Time:
        return AccessValue(read, value, m_time);
    case Property_Keywords:
        return AccessValue(read, value, m_keywords);
    case Property_Bounds:
        return AccessObject(read, value, m_bounds);
    case Property_Extensions:
        return AccessObject(read, value, m_extensions);
    default:
        ThrowUnknownProperty(index);
    }
}

const CParentElementInfo* CMetadataType::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CMetadataType::GetClassElementInfo() const
{
    return GetTables().elements;
}

CAttributeInfo** CMetadataType::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CMetadataType::Init()
{
    m_name.reset();
    m_desc.reset();
    m_author = nullptr;
    m_copyright = nullptr;
    m_link->Clear();
    m_time.reset();
    m_keywords.reset();
    m_bounds = nullptr;
    m_extensions = nullptr;
}

} // namespace Gpx
