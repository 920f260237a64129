// SPDX-License-Identifier: MIT
#include "shared/telemetry/Reading.h"

#include "ZrXmlLib16/XmlElement.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimMnd.h"
#include "ZrXmlLib16Data/ElementInfoSeqPrimOpt.h"
#include "shared/PropertyAccess.h"
#include "shared/Records.h"

namespace Telemetry {

using ZrXmlLib16::ZrVariant;
using namespace Shared;
using namespace ZrXmlLib16Data;

using namespace ZrXmlLib16;

struct CReading::Tables {
    CParentElementInfo classInfo = ClassInfo(L"Reading", NAMESPACE, XmlElementGroup_Sequence);

    CElementInfoSeqPrimMnd time =
        Primitive<CElementInfoSeqPrimMnd>(L"time", NAMESPACE, Property_Time, SimpleType(ItemType_datetime));
    CElementInfoSeqPrimMnd temperature = Primitive<CElementInfoSeqPrimMnd>(
        L"temperature", NAMESPACE, Property_Temperature, SimpleType(ItemType_r4).FromTo(L"-90", L"90"));
    CElementInfoSeqPrimOpt pressure = Primitive<CElementInfoSeqPrimOpt>(
        L"pressure", NAMESPACE, Property_Pressure, SimpleType(ItemType_i4).FromTo(L"0", L"200000"));
    CElementInfoSeqPrimMnd healthy =
        Primitive<CElementInfoSeqPrimMnd>(L"healthy", NAMESPACE, Property_Healthy, SimpleType(ItemType_boolean));
    CElementInfo* elements[5] = {&time, &temperature, &pressure, &healthy, nullptr};

    CAttributeInfoPrimitive sensor = Attribute(L"sensor", Property_Sensor, Use::Required, SimpleType(ItemType_ui2));
    CAttributeInfo* attributes[2] = {&sensor, nullptr};
};

CReading::Tables& CReading::GetTables()
{
    static Tables tables;
    return tables;
}

CReading::CReading(const wchar_t* elementName)
    : CTelemetryObject(elementName)
{
}

void CReading::ReadFrom(CXmlElement& element, const CSerializationContext& context)
{
    FromXml_Int(&element, element.GetFirstElement(), context, false);
}

void CReading::AccessProperty(int index, bool read, ZrVariant& value)
{
    switch (index) {
    case Property_Sensor:
        return AccessValue(read, value, m_sensor);
    case Property_Time:
        return AccessValue(read, value, m_time);
    case Property_Temperature:
        return AccessValue(read, value, m_temperature);
    case Property_Pressure:
        return AccessValue(read, value, m_pressure);
    case Property_Healthy:
        return AccessValue(read, value, m_healthy);
    }
}

const CParentElementInfo* CReading::GetClassInfo() const
{
    return &GetTables().classInfo;
}

CElementInfo** CReading::GetClassElementInfo() const
{
    return GetTables().elements;
}

CAttributeInfo** CReading::GetClassAttributeInfo() const
{
    return GetTables().attributes;
}

void CReading::Init()
{
    m_sensor.reset();
    m_time.reset();
    m_temperature.reset();
    m_pressure.reset();
    m_healthy.reset();
}

} // namespace Telemetry
