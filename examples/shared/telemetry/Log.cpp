// SPDX-License-Identifier: MIT
#include "shared/telemetry/Log.h"

#include "ZrXmlLib16Data/ElementInfoSeqClsCol.h"
#include "shared/PropertyAccess.h"
#include "shared/Records.h"

namespace Telemetry {

using ZrXmlLib16::ZrVariant;
using namespace Shared;
using namespace ZrXmlLib16Data;

struct CLog::Tables {
    CParentElementInfo classInfo = ClassInfo(L"Log", NAMESPACE, XmlElementGroup_Sequence);

    CElementInfoSeqClsCol reading{L"reading", NAMESPACE, Property_Reading, XmlElementType_Element};
    CElementInfo* elements[2] = {&reading, nullptr};

    CAttributeInfoPrimitive station =
        Attribute(L"station", Property_Station, Use::Required, SimpleType(ZrXmlLib16::ItemType_string));
    CAttributeInfo* attributes[2] = {&station, nullptr};
};

CLog::Tables& CLog::GetTables()
{
    static Tables tables;
    return tables;
}

CLog::CLog(const wchar_t* elementName)
    : CTelemetryObject(elementName)
    , m_reading(new CObjectCollection<CReading>(L"reading", NAMESPACE, 0, -1))
{
}

void CLog::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Station:
        return AccessValue(read, value, m_station);
    case Property_Reading:
        return AccessCollection(read, value, m_reading);
    }
}

const CParentElementInfo* CLog::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CLog::GetClassElementInfo() const
{
    return GetTables().elements;
}

CAttributeInfo** CLog::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CLog::Init()
{
    m_station.reset();
    m_reading->Clear();
}

} // namespace Telemetry
