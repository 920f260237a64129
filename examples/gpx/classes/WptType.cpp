// SPDX-License-Identifier: MIT
#include "classes/WptType.h"

#include "ZrXmlLib16Data/ElementInfoSeqClsCol.h"
#include "ZrXmlLib16Data/ElementInfoSeqEnumOpt.h"
#include "ZrXmlLib16Data/ParentElementInfo.h"
#include "classes/PropertyAccess.h"
#include "classes/Records.h"

namespace Gpx {

using ZrXmlLib16::ZrVariant;
using namespace ZrXmlLib16Data;

struct CWptType::Tables {
    CParentElementInfo classInfo{XmlElementGroup_Sequence, XmlElementType_Element, L"wptType", NAMESPACE, true, true,
        -1, ZrXmlLib16::ItemType_none, L"", false};

    OptionalElement ele{L"ele", Property_Ele, SimpleTypes::Decimal()};
    OptionalElement time{L"time", Property_Time, SimpleTypes::DateTime()};
    OptionalElement magvar{L"magvar", Property_Magvar, SimpleTypes::Degrees()};
    OptionalElement geoidheight{L"geoidheight", Property_Geoidheight, SimpleTypes::Decimal()};
    OptionalElement name{L"name", Property_Name, SimpleTypes::String()};
    OptionalElement cmt{L"cmt", Property_Cmt, SimpleTypes::String()};
    OptionalElement desc{L"desc", Property_Desc, SimpleTypes::String()};
    OptionalElement src{L"src", Property_Src, SimpleTypes::String()};
    CElementInfoSeqClsCol link{L"link", NAMESPACE, Property_Link, XmlElementType_Element};
    OptionalElement sym{L"sym", Property_Sym, SimpleTypes::String()};
    OptionalElement type{L"type", Property_Type, SimpleTypes::String()};
    CElementInfoSeqEnumOpt fix{L"fix", NAMESPACE, Property_Fix, false, FixTypeToString, FixTypeFromString, L""};
    OptionalElement sat{L"sat", Property_Sat, SimpleTypes::NonNegativeInteger()};
    OptionalElement hdop{L"hdop", Property_Hdop, SimpleTypes::Decimal()};
    OptionalElement vdop{L"vdop", Property_Vdop, SimpleTypes::Decimal()};
    OptionalElement pdop{L"pdop", Property_Pdop, SimpleTypes::Decimal()};
    OptionalElement ageofdgpsdata{L"ageofdgpsdata", Property_Ageofdgpsdata, SimpleTypes::Decimal()};
    OptionalElement dgpsid{L"dgpsid", Property_Dgpsid, SimpleTypes::DgpsStation()};
    OptionalExtensions extensions{Property_Extensions};
    CElementInfo* elements[20] = {&ele, &time, &magvar, &geoidheight, &name, &cmt, &desc, &src, &link, &sym, &type,
        &fix, &sat, &hdop, &vdop, &pdop, &ageofdgpsdata, &dgpsid, &extensions, nullptr};

    RequiredAttribute lat{L"lat", Property_Lat, SimpleTypes::Latitude()};
    RequiredAttribute lon{L"lon", Property_Lon, SimpleTypes::Longitude()};
    CAttributeInfo* attributes[3] = {&lat, &lon, nullptr};
};

CWptType::Tables& CWptType::GetTables()
{
    static Tables tables;
    return tables;
}

CWptType::CWptType(const wchar_t* elementName)
    : CGpxObject(elementName)
    , m_link(new CGpxCollection<CLinkType>(L"link"))
{
}

void CWptType::SetExtensions(CExtensionsType* value)
{
    Throw_IfElementNameDiffers(value, L"extensions");
    m_extensions = value;
}

void CWptType::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Lat:
        return AccessValue(read, value, m_lat);
    case Property_Lon:
        return AccessValue(read, value, m_lon);
    case Property_Ele:
        return AccessValue(read, value, m_ele);
    case Property_Time:
        return AccessValue(read, value, m_time);
    case Property_Magvar:
        return AccessValue(read, value, m_magvar);
    case Property_Geoidheight:
        return AccessValue(read, value, m_geoidheight);
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
    case Property_Sym:
        return AccessValue(read, value, m_sym);
    case Property_Type:
        return AccessValue(read, value, m_type);
    case Property_Fix:
        return AccessEnumeration(read, value, m_fix);
    case Property_Sat:
        return AccessValue(read, value, m_sat);
    case Property_Hdop:
        return AccessValue(read, value, m_hdop);
    case Property_Vdop:
        return AccessValue(read, value, m_vdop);
    case Property_Pdop:
        return AccessValue(read, value, m_pdop);
    case Property_Ageofdgpsdata:
        return AccessValue(read, value, m_ageofdgpsdata);
    case Property_Dgpsid:
        return AccessValue(read, value, m_dgpsid);
    case Property_Extensions:
        return AccessObject(read, value, m_extensions);
    default:
        ThrowUnknownProperty(index);
    }
}

const CParentElementInfo* CWptType::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CWptType::GetClassElementInfo() const
{
    return GetTables().elements;
}

CAttributeInfo** CWptType::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CWptType::Init()
{
    m_lat.reset();
    m_lon.reset();
    m_ele.reset();
    m_time.reset();
    m_magvar.reset();
    m_geoidheight.reset();
    m_name.reset();
    m_cmt.reset();
    m_desc.reset();
    m_src.reset();
    m_link->Clear();
    m_sym.reset();
    m_type.reset();
    m_fix.reset();
    m_sat.reset();
    m_hdop.reset();
    m_vdop.reset();
    m_pdop.reset();
    m_ageofdgpsdata.reset();
    m_dgpsid.reset();
    m_extensions = nullptr;
}

} // namespace Gpx
