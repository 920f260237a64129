// SPDX-License-Identifier: MIT
#include "classes/TrksegType.h"

#include "ZrXmlLib16Data/ElementInfoSeqClsCol.h"
#include "ZrXmlLib16Data/ParentElementInfo.h"
#include "classes/PropertyAccess.h"
#include "classes/Records.h"

namespace Gpx {

using ZrXmlLib16::ZrVariant;
using namespace ZrXmlLib16Data;

struct CTrksegType::Tables {
    CParentElementInfo classInfo{XmlElementGroup_Sequence, XmlElementType_Element, L"trksegType", NAMESPACE, true, true,
        -1, ZrXmlLib16::ItemType_none, L"", false};

    CElementInfoSeqClsCol trkpt{L"trkpt", NAMESPACE, Property_Trkpt, XmlElementType_Element};
    OptionalExtensions extensions{Property_Extensions};
    CElementInfo* elements[3] = {&trkpt, &extensions, nullptr};

    CAttributeInfo* attributes[1] = {nullptr};
};

CTrksegType::Tables& CTrksegType::GetTables()
{
    static Tables tables;
    return tables;
}

CTrksegType::CTrksegType(const wchar_t* elementName)
    : CGpxObject(elementName)
    , m_trkpt(new CGpxCollection<CWptType>(L"trkpt"))
{
}

void CTrksegType::SetExtensions(CExtensionsType* value)
{
    Throw_IfElementNameDiffers(value, L"extensions");
    m_extensions = value;
}

void CTrksegType::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Trkpt:
        return AccessCollection(read, value, m_trkpt);
    case Property_Extensions:
        return AccessObject(read, value, m_extensions);
    default:
        ThrowUnknownProperty(index);
    }
}

const CParentElementInfo* CTrksegType::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CTrksegType::GetClassElementInfo() const
{
    return GetTables().elements;
}

CAttributeInfo** CTrksegType::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CTrksegType::Init()
{
    m_trkpt->Clear();
    m_extensions = nullptr;
}

} // namespace Gpx
