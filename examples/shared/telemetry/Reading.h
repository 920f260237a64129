// SPDX-License-Identifier: MIT
#ifndef EXAMPLES_SHARED_TELEMETRY_READING_H
#define EXAMPLES_SHARED_TELEMETRY_READING_H

#include "ZrXmlLib16/DateTime.h"
#include "shared/telemetry/TelemetryObject.h"

#include <optional>
#include <utility>

namespace Telemetry {

/// What one sensor measured at one time.
class CReading : public CTelemetryObject {
public:
    explicit CReading(const wchar_t* elementName = L"reading");

    /// Number of the sensor. Mandatory.
    std::optional<unsigned short> GetSensor() const { return m_sensor; }
    void SetSensor(std::optional<unsigned short> value) { m_sensor = value; }
    /// Mandatory.
    const std::optional<ZrXmlLib16::CDateTime>& GetTime() const { return m_time; }
    void SetTime(std::optional<ZrXmlLib16::CDateTime> value) { m_time = std::move(value); }
    /// Degrees Celsius. Mandatory.
    std::optional<float> GetTemperature() const { return m_temperature; }
    void SetTemperature(std::optional<float> value) { m_temperature = value; }
    /// Pascal.
    std::optional<long> GetPressure() const { return m_pressure; }
    void SetPressure(std::optional<long> value) { m_pressure = value; }
    /// Whether the sensor says that it works. Mandatory.
    std::optional<bool> GetHealthy() const { return m_healthy; }
    void SetHealthy(std::optional<bool> value) { m_healthy = value; }

    /// Fills the object from an element of a tree, which the entry points do for whole documents.
    void ReadFrom(ZrXmlLib16::CXmlElement& element, const ZrXmlLib16::CSerializationContext& context);

protected:
    void AccessProperty(int index, bool read, ZrXmlLib16::ZrVariant& value) override;
    const ZrXmlLib16Data::CParentElementInfo* GetClassInfo() const override;
    ZrXmlLib16Data::CElementInfo** GetClassElementInfo() const override;
    ZrXmlLib16Data::CAttributeInfo** GetClassAttributeInfo() const override;
    void Init() override;

private:
    enum Property { Property_Sensor, Property_Time, Property_Temperature, Property_Pressure, Property_Healthy };
    struct Tables;
    static Tables& GetTables();

    std::optional<unsigned short> m_sensor;
    std::optional<ZrXmlLib16::CDateTime> m_time;
    std::optional<float> m_temperature;
    std::optional<long> m_pressure;
    std::optional<bool> m_healthy;
};

} // namespace Telemetry

#endif
