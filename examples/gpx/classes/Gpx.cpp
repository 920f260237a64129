// SPDX-License-Identifier: MIT
#include "classes/Gpx.h"

#include "ZrXmlLib16Data/ElementInfoSeqClsCol.h"
#include "ZrXmlLib16Data/ElementInfoSeqClsOpt.h"
#include "ZrXmlLib16Data/ParentElementInfo.h"
#include "classes/ClassFactory.h"
#include "classes/PropertyAccess.h"
#include "classes/Records.h"

namespace Gpx {

using ZrXmlLib16::ZrVariant;
using namespace ZrXmlLib16Data;

struct CGpx::Tables {
    CParentElementInfo classInfo{XmlElementGroup_Sequence, XmlElementType_Element, L"gpxType", NAMESPACE, true, true,
        -1, ZrXmlLib16::ItemType_none, L"", false};

    CElementInfoSeqClsOpt metadata{
        L"metadata", NAMESPACE, Property_Metadata, XmlElementType_Element, CreateObject, ClassId_MetadataType, false};
    CElementInfoSeqClsCol wpt{L"wpt", NAMESPACE, Property_Wpt, XmlElementType_Element};
    CElementInfoSeqClsCol rte{L"rte", NAMESPACE, Property_Rte, XmlElementType_Element};
    CElementInfoSeqClsCol trk{L"trk", NAMESPACE, Property_Trk, XmlElementType_Element};
    OptionalExtensions extensions{Property_Extensions};
    CElementInfo* elements[6] = {&metadata, &wpt, &rte, &trk, &extensions, nullptr};

    RequiredAttribute version{L"version", Property_Version, SimpleTypes::String()};
    RequiredAttribute creator{L"creator", Property_Creator, SimpleTypes::String()};
    CAttributeInfo* attributes[3] = {&version, &creator, nullptr};
};

CGpx::Tables& CGpx::GetTables()
{
    static Tables tables;
    return tables;
}

CGpx::CGpx(const wchar_t* elementName)
    : CGpxObject(elementName)
    , m_version(L"1.1")
    , m_wpt(new CGpxCollection<CWptType>(L"wpt"))
    , m_rte(new CGpxCollection<CRteType>(L"rte"))
    , m_trk(new CGpxCollection<CTrkType>(L"trk"))
{
}

void CGpx::SetMetadata(CMetadataType* value)
{
    Throw_IfElementNameDiffers(value, L"metadata");
    m_metadata = value;
}

void CGpx::SetExtensions(CExtensionsType* value)
{
    Throw_IfElementNameDiffers(value, L"extensions");
    m_extensions = value;
}

void CGpx::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Version:
        return AccessValue(read, value, m_version);
    case Property_Creator:
        return AccessValue(read, value, m_creator);
    case Property_Metadata:
        return AccessObject(read, value, m_metadata);
    case Property_Wpt:
        return AccessCollection(read, value, m_wpt);
    case Property_Rte:
        return AccessCollection(read, value, m_rte);
    case Property_Trk:
        return AccessCollection(read, value, m_trk);
    case Property_Extensions:
        return AccessObject(read, value, m_extensions);
    default:
        ThrowUnknownProperty(index);
    }
}

const CParentElementInfo* CGpx::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CGpx::GetClassElementInfo() const
{
    return GetTables().elements;
}

CAttributeInfo** CGpx::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CGpx::Init()
{
    m_version = L"1.1";
    m_creator.reset();
    m_metadata = nullptr;
    m_wpt->Clear();
    m_rte->Clear();
    m_trk->Clear();
    m_extensions = nullptr;
}

} // namespace Gpx
